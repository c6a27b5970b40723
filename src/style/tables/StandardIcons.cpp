#include "style/tables/StandardIcons.h"

#include "catalogue/Names.h"
#include "common_utils/Helpers.h"
#include "resources/ThemeColorHelper.h"
#include "resources/ThemeResources.h"
#include "resources/kept/KeptValue.h"
#include "style/asking/Properties.h"
#include "style/drawing/Icons.h"

#include <QtGui/QImage>
#include <QtGui/QPixmap>
#include <QtWidgets/QLabel>
#include <QtWidgets/QStyleOption>

#include <algorithm>
#include <iterator>

namespace TARN {

namespace {

constexpr int titleBarIconSize = 16;

constexpr char minimizeIcon[] = "action.app.minimize";
constexpr char maximizeIcon[] = "action.app.maximize";
constexpr char restoreIcon[] = "action.app.restore";
constexpr char closeIcon[] = "action.close";
constexpr char menuIcon[] = "action.menu";
constexpr char shadeIcon[] = "chevron.up";
constexpr char unshadeIcon[] = "chevron.down";
constexpr char helpIcon[] = "action.help";

/// An icon by default, and in the complete mode. What has none is the base style's.
struct IconRow
{
    constexpr IconRow(QStyle::StandardPixmap ofPixmap, const char *name)
        : IconRow(ofPixmap, name, name)
    {
    }
    constexpr IconRow(QStyle::StandardPixmap ofPixmap, const char *byDefault, const char *complete)
        : pixmap(ofPixmap)
        , ofModes{byDefault, complete}
    {
    }

    QStyle::StandardPixmap pixmap;
    const char *ofModes[2];
};

constexpr const char *baseStyles = nullptr;

constexpr IconRow iconTable[] = {
    {QStyle::SP_TitleBarMenuButton, baseStyles, menuIcon},
    {QStyle::SP_TitleBarMinButton, minimizeIcon},
    {QStyle::SP_TitleBarMaxButton, maximizeIcon},
    {QStyle::SP_TitleBarNormalButton, maximizeIcon, restoreIcon},
    {QStyle::SP_TitleBarCloseButton, closeIcon},
    {QStyle::SP_TitleBarShadeButton, baseStyles, shadeIcon},
    {QStyle::SP_TitleBarUnshadeButton, baseStyles, unshadeIcon},
    {QStyle::SP_TitleBarContextHelpButton, baseStyles, helpIcon},
    {QStyle::SP_DockWidgetCloseButton, closeIcon},
    {QStyle::SP_DialogCloseButton, closeIcon},
    {QStyle::SP_LineEditClearButton, closeIcon},
    {QStyle::SP_MessageBoxInformation, "status.info.circular.colored"},
    {QStyle::SP_MessageBoxWarning, "status.warning.circular.colored"},
    {QStyle::SP_MessageBoxCritical, "status.danger.circular.colored"},
    {QStyle::SP_MessageBoxQuestion, "status.help.circular.colored"},
    {QStyle::SP_TrashIcon, "action.delete"},
    {QStyle::SP_ArrowUp, "arrow.up.small"},
    {QStyle::SP_ArrowDown, "arrow.down.small"},
    {QStyle::SP_ArrowLeft, "arrow.left.small"},
    {QStyle::SP_ArrowBack, "arrow.left.small"},
    {QStyle::SP_ArrowRight, "arrow.right.small"},
    {QStyle::SP_ArrowForward, "arrow.right.small"},
    {QStyle::SP_CommandLink, "arrow.right.small"},
};

constexpr IconRow titleBarPixmapTable[] = {
    {QStyle::SP_TitleBarCloseButton, closeIcon},
    {QStyle::SP_DockWidgetCloseButton, closeIcon},
    {QStyle::SP_DialogCloseButton, closeIcon},
    {QStyle::SP_TitleBarMaxButton, maximizeIcon},
    {QStyle::SP_TitleBarNormalButton, maximizeIcon, restoreIcon},
    {QStyle::SP_TitleBarMinButton, minimizeIcon},
    {QStyle::SP_TitleBarMenuButton, baseStyles, menuIcon},
    {QStyle::SP_TitleBarShadeButton, baseStyles, shadeIcon},
    {QStyle::SP_TitleBarUnshadeButton, baseStyles, unshadeIcon},
    {QStyle::SP_TitleBarContextHelpButton, baseStyles, helpIcon},
};

/// Icons that are highlighted by another of their colours than the foreground.
struct HighlightRow
{
    const char *name;
    QRgb color;
};

constexpr HighlightRow highlightTable[] = {{"status.checked.circular.colored", 0xfff6b436}};

// Two chevrons, pointing right and down.
const char *const horizontalExtension[] = {"8 5 3 1",  "  c None", ". c #000000",
                                           "+ c none", "..++..++", "+..++..+",
                                           "++..++..", "+..++..+", "..++..++"};
const char *const verticalExtension[] = {"5 8 3 1", "  c None", ". c #000000", "+ c none",
                                         ".+++.",   "..+..",    "+...+",       "++.++",
                                         ".+++.",   "..+..",    "+...+",       "++.++"};

template <std::size_t Size>
const char *iconName(const IconRow (&table)[Size], QStyle::StandardPixmap pixmap, Mode mode)
{
    const auto *row = std::find_if(std::begin(table), std::end(table),
                                   [pixmap](const IconRow &each) { return each.pixmap == pixmap; });
    return row == std::end(table) ? nullptr : row->ofModes[static_cast<int>(mode)];
}

/// Returns the icon \a name of the icon theme, to which that of the library stands in where
/// nothing is left to the base style.
QIcon themeIcon(const char *name, Mode mode)
{
    const QIcon icon = QIcon::fromTheme(QLatin1String(name));
    return icon.isNull() && mode == Mode::Complete ? keptIcon(name) : icon;
}

QIcon highlightedIcon(const QStyleOption *option, const QWidget *widget)
{
    const QString name = textOf(widget, Property::HighlightedIcon);
    if (name.isEmpty()) {
        return {};
    }
    const bool enabled = !option || option->state.testFlag(QStyle::State_Enabled);
    const QBrush tint = themeBrush(BrushName::MainBrush, enabled);
    for (const HighlightRow &row : highlightTable) {
        if (name == QLatin1String(row.name)) {
            return Helpers::getModifiedIconWithForegroundBrush(QIcon::fromTheme(name),
                                                               QColor(row.color), tint, false);
        }
    }
    return ThemeColorHelper::getModifiedIconWithForegroundBrush(QIcon::fromTheme(name), tint);
}

/// Returns \a image with every pixel that is not wholly transparent in \a color.
QPixmap colored(QImage image, const QColor &color)
{
    const QRgb rgb = color.rgb() & 0x00ffffff;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb alpha = image.pixel(x, y) & 0xff000000;
            if (alpha != 0) {
                image.setPixel(x, y, alpha | rgb);
            }
        }
    }
    return QPixmap::fromImage(image);
}

} // namespace

std::optional<QIcon> standardIconOf(QStyle::StandardPixmap pixmap, const QStyleOption *option,
                                    const QWidget *widget, const QPalette &palette, Mode mode)
{
    if (pixmap == QStyle::SP_CustomBase) {
        return highlightedIcon(option, widget);
    }
    if (pixmap == QStyle::SP_ToolBarHorizontalExtensionButton) {
        static ProcessKept<QIcon> icon;
        return icon.value([&] { return toolBarExtensionIcon(horizontalExtension, palette); });
    }
    if (pixmap == QStyle::SP_ToolBarVerticalExtensionButton) {
        static ProcessKept<QIcon> icon;
        return icon.value([&] { return toolBarExtensionIcon(verticalExtension, palette); });
    }
    const char *name = iconName(iconTable, pixmap, mode);
    return name ? std::optional<QIcon>(themeIcon(name, mode)) : std::nullopt;
}

std::optional<QPixmap> standardPixmapOf(QStyle::StandardPixmap pixmap, Mode mode)
{
    const char *name = iconName(titleBarPixmapTable, pixmap, mode);
    return name ? std::optional<QPixmap>(
                      themeIcon(name, mode).pixmap(QSize(titleBarIconSize, titleBarIconSize)))
                : std::nullopt;
}

QPixmap generatedPixmap(QIcon::Mode mode, const QPixmap &pixmap, const QStyleOption *option)
{
    if (mode != QIcon::Disabled || !option || !qobject_cast<QLabel *>(option->styleObject)) {
        return pixmap;
    }
    const QBrush tint = themeBrush(BrushName::ForegroundBrush, false);
    const QIcon icon = ThemeColorHelper::getModifiedIconWithForegroundBrush(QIcon(pixmap), tint);
    const qreal ratio = pixmap.devicePixelRatio();
    return icon.pixmap(QSize(int(pixmap.width() / ratio), int(pixmap.height() / ratio)));
}

QIcon toolBarExtensionIcon(const char *const *xpm, const QPalette &palette)
{
    const QImage image = QImage(xpm).convertToFormat(QImage::Format_ARGB32);
    QIcon icon;
    icon.addPixmap(colored(image, palette.color(QPalette::Current, QPalette::Text)), QIcon::Normal,
                   QIcon::Off);
    icon.addPixmap(colored(image, palette.color(QPalette::Current, QPalette::HighlightedText)),
                   QIcon::Active, QIcon::Off);
    return icon;
}

} // namespace TARN
