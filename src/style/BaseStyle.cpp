#include "style/BaseStyle.h"

#include "catalogue/Names.h"
#include "catalogue/Words.h"
#include "resources/ThemeResources.h"
#include "style/asking/AppliedTheme.h"
#include "style/asking/Backgrounds.h"
#include "style/brushes/ButtonBrushChoice.h"
#include "style/brushes/KeptBrushes.h"
#include "style/brushes/LabelBrushes.h"
#include "style/drawing/Grips.h"
#include "style/drawing/Marks.h"
#include "style/drawing/Palettes.h"
#include "style/drawing/Shapes.h"
#include "style/families/ComboBoxes.h"
#include "style/families/TitleBars.h"
#include "style/families/buttons/ButtonGroups.h"
#include "style/families/buttons/ToolButtons.h"
#include "style/families/item_views/ItemViews.h"
#include "style/polishing/PaletteRoles.h"
#include "style/polishing/PolishedWidgets.h"
#include "style/tables/Geometry.h"
#include "style/tables/Metrics.h"
#include "style/tables/Painting.h"
#include "style/tables/Polishing.h"
#include "style/tables/StandardIcons.h"
#include "style/text/SingleLine.h"
#include "style/watching/AltKey.h"
#include "style/watching/EventFilter.h"

#include <QtCore/QPointer>
#include <QtGui/QPainter>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QStyleOptionTab>
#include <QtWidgets/QWidget>

namespace TARN {

/// What a style keeps.
class BaseStyle::State
{
public:
    /// The base style that was made for us; an application may set another one.
    QPointer<QStyle> fusion;
    /// That of the theme which was applied when the style was made.
    const Mode mode = appliedTheme().mode;
    QPalette palette;
    PaletteRoles paletteRoles{mode};
    PolishedWidgets polishedWidgets;
    AltKey altKey;
};

BaseStyle::BaseStyle()
    : QProxyStyle(QStringLiteral("fusion"))
    , m_state(std::make_unique<State>())
{
    m_state->fusion = baseStyle();
    m_state->palette = m_state->mode == Mode::Complete ? appliedTheme().palette
                                                       : m_state->fusion->standardPalette();
    // These are looked up when a style is made, whether or not anything is painted with them.
    themeBrush(BrushName::ExpanderHeaderBrush, true);
    themeBrush(BrushName::BackgroundBrush, true);
    if (m_state->mode == Mode::Complete && qApp) {
        connect(qApp, &QGuiApplication::paletteChanged, this,
                [this] { repolishWidgets(*this, m_state->mode, m_state->polishedWidgets); });
    }
}

BaseStyle::~BaseStyle()
{
    ComboBoxes::replaceDelegates(*this);
    m_state->polishedWidgets.takeBackAll();
}

const QPalette &BaseStyle::getPalette() const
{
    return m_state->palette;
}

void BaseStyle::setPalette(const QPalette &palette)
{
    if (palette == m_state->palette) {
        return;
    }
    m_state->palette = palette;
    Q_EMIT paletteChanged(m_state->palette);
}

QPalette BaseStyle::standardPalette() const
{
    return m_state->palette;
}

void BaseStyle::polish(QPalette &pal)
{
    m_state->paletteRoles.polish(pal, m_state->palette);
}

void BaseStyle::polish(QWidget *widget)
{
    QProxyStyle::polish(widget);
    polishWidget(*this, *widget, m_state->mode, m_state->polishedWidgets);
}

void BaseStyle::unpolish(QWidget *widget)
{
    QProxyStyle::unpolish(widget);
    unpolishWidget(*widget, m_state->mode, m_state->polishedWidgets);
}

void BaseStyle::polish(QApplication *application)
{
    QProxyStyle::polish(application);
}

void BaseStyle::unpolish(QApplication *application)
{
    QProxyStyle::unpolish(application);
}

int BaseStyle::pixelMetric(PixelMetric metric, const QStyleOption *option,
                           const QWidget *widget) const
{
    const std::optional<int> own = pixelMetricOf(metric, widget, m_state->mode);
    return own ? *own : QProxyStyle::pixelMetric(metric, option, widget);
}

int BaseStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                         QStyleHintReturn *returnData) const
{
    if (const std::optional<int> own = styleHintOf(hint, option, returnData, m_state->mode)) {
        return *own;
    }
    const int answer = QProxyStyle::styleHint(hint, option, widget, returnData);
    // What nobody sees has nothing to hide.
    if (hint == SH_UnderlineShortcut && answer != 0 && widget && widget->isVisible()) {
        return m_state->altKey.underlines(*widget) ? answer : 0;
    }
    return answer;
}

void BaseStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                              QPainter *painter, const QWidget *widget) const
{
    if (!option || !painter) {
        return;
    }
    const PaintRule rule = paintRule(element, m_state->mode);
    if (!rule || !paint(rule, {*this, option, painter, widget}, m_state->mode, m_state->palette)) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void BaseStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                            const QWidget *widget) const
{
    if (!option || !painter) {
        return;
    }
    const PaintRule rule = paintRule(element, m_state->mode);
    if (!rule || !paint(rule, {*this, option, painter, widget}, m_state->mode, m_state->palette)) {
        QProxyStyle::drawControl(element, option, painter, widget);
    }
}

void BaseStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                   QPainter *painter, const QWidget *widget) const
{
    if (!option || !painter) {
        return;
    }
    const PaintRule rule = paintRule(control, m_state->mode);
    if (!rule || !paint(rule, {*this, option, painter, widget}, m_state->mode, m_state->palette)) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
}

void BaseStyle::drawItemText(QPainter *painter, const QRect &rect, int flags,
                             const QPalette &palette, bool enabled, const QString &text,
                             QPalette::ColorRole textRole) const
{
    const QBrush brush =
        enabled ? palette.brush(textRole) : QBrush(palette.color(QPalette::Disabled, textRole));
    if (drawsTextsItself(enabled) &&
        (textRole == QPalette::NoRole
             ? drawSingleLine(*painter, rect, flags, text)
             : drawSingleLine(*painter, rect, flags, text, outlinePen(brush)))) {
        return;
    }
    QPalette copy = palette;
    if (!enabled) {
        copy.setBrush(QPalette::All, textRole, brush);
    }
    QProxyStyle::drawItemText(painter, rect, flags, copy, enabled, text, textRole);
}

/// Tells whether the base style would draw a text as we do: it is the one that was made for us, and
/// etches nothing.
bool BaseStyle::drawsTextsItself(bool enabled) const
{
    return baseStyle() == m_state->fusion &&
           (enabled || (proxy()->styleHint(SH_DitherDisabledText) == 0 &&
                        proxy()->styleHint(SH_EtchDisabledText) == 0));
}

void BaseStyle::drawItemPixmap(QPainter *painter, const QRect &rect, int alignment,
                               const QPixmap &pixmap) const
{
    painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    QProxyStyle::drawItemPixmap(painter, rect, alignment, pixmap);
}

QRect BaseStyle::subElementRect(SubElement element, const QStyleOption *option,
                                const QWidget *widget) const
{
    ItemViews::listViewPadding(*proxy());
    const SubElementRule rule = subElementRule(element, m_state->mode);
    if (rule && !option) {
        // The base style does not look whether there is one.
        return {};
    }
    return rule ? rule({*this, element, option, widget})
                : QProxyStyle::subElementRect(element, option, widget);
}

QRect BaseStyle::subControlRect(ComplexControl control, const QStyleOptionComplex *option,
                                SubControl sc, const QWidget *widget) const
{
    const SubControlRule rule = subControlRule(control, m_state->mode);
    if (rule && !option) {
        return {};
    }
    return rule ? rule({*this, control, option, sc, widget})
                : QProxyStyle::subControlRect(control, option, sc, widget);
}

QSize BaseStyle::sizeFromContents(ContentsType type, const QStyleOption *option,
                                  const QSize &contentsSize, const QWidget *widget) const
{
    const ContentsRule rule = option ? contentsRule(type, m_state->mode) : nullptr;
    return rule ? rule({*this, type, option, contentsSize, widget})
                : QProxyStyle::sizeFromContents(type, option, contentsSize, widget);
}

const QBrush &BaseStyle::lightOutlineBrush(const QPalette &pal) const
{
    return TARN::lightOutlineBrush(pal);
}

QPalette BaseStyle::generateShadeBorderPalette(const QPalette &pal) const
{
    return shadeBorderPalette(pal);
}

QPalette BaseStyle::generateWinBorderPalette(const QPalette &pal) const
{
    return windowBorderPalette(pal);
}

QBrush BaseStyle::getBrush(QString name, bool enabled)
{
    return ThemeResources::getBrush(Words::twin(name, enabled));
}

QColor BaseStyle::getColor(QString name, bool enabled)
{
    return ThemeResources::getColor(Words::twin(name, enabled));
}

const QBrush &BaseStyle::getBorderBrush(bool enabled)
{
    return cardBorderBrush(enabled);
}

const QBrush &BaseStyle::grooveBackgroundBrush(bool enabled) const
{
    return grooveBrush(enabled);
}

ButtonBrushes BaseStyle::buttonBrushes(const QStyleOption *opt, const QWidget *widget)
{
    return TARN::buttonBrushes(opt, widget);
}

int BaseStyle::getButtonBackgroundState(const QStyleOption &opt) const
{
    return static_cast<int>(buttonBackground(opt));
}

int BaseStyle::getTabBackgroundState(const QStyleOptionTab &opt) const
{
    return static_cast<int>(tabBackground(opt));
}

void BaseStyle::drawCheckMark(QPainter *painter, const QRect &rect, QBrush brush) const
{
    TARN::drawCheckMark(*painter, rect, brush);
}

void BaseStyle::drawRadioMark(QPainter *painter, const QRect &rect, QBrush brush) const
{
    TARN::drawRadioMark(*painter, rect, brush);
}

void BaseStyle::drawGrips(QPainter &painter, Qt::Orientation orientation, int from, int to,
                          int across, int step, int lightSize, int darkSize) const
{
    TARN::drawGrips(painter, orientation, from, to, across, step, lightSize, darkSize);
}

void BaseStyle::drawButtonGroup(const QRectF &rect, QPainter *painter, const QStyleOption *option,
                                int radius, ButtonBrushes brushes, const QWidget *widget) const
{
    Buttons::drawInGroup(*proxy(), rect, *painter, option, radius, brushes, widget);
}

void BaseStyle::drawToolButtonArrow(const QStyle *style, const QStyleOptionToolButton *option,
                                    const QRect &rect, QPainter *painter,
                                    const QWidget *widget) const
{
    ToolButtons::drawArrow(*style, *option, rect, *painter, widget);
}

void BaseStyle::drawTitleBarButton(QPainter *painter, const QStyleOptionTitleBar *option,
                                   SubControl subControl, StandardPixmap standardPixmap,
                                   const QWidget *widget) const
{
    TitleBars::drawButton({*this, option, painter, widget}, *option, subControl, standardPixmap);
}

template <typename ButtonOption>
const ButtonOption *BaseStyle::commonCallButtonText(const QStyleOption *option,
                                                    const QWidget *widget) const
{
    return preparedForLabel<ButtonOption>(option, widget);
}

template MOX_COMMON_THEME_EXPORT const QStyleOptionButton *
BaseStyle::commonCallButtonText<QStyleOptionButton>(const QStyleOption *option,
                                                    const QWidget *widget) const;

QIcon BaseStyle::standardIcon(StandardPixmap sp, const QStyleOption *option,
                              const QWidget *widget) const
{
    const std::optional<QIcon> own =
        standardIconOf(sp, option, widget, m_state->palette, m_state->mode);
    return own ? *own : QProxyStyle::standardIcon(sp, option, widget);
}

QPixmap BaseStyle::standardPixmap(StandardPixmap sp, const QStyleOption *option,
                                  const QWidget *widget) const
{
    const std::optional<QPixmap> own = standardPixmapOf(sp, m_state->mode);
    return own ? *own : QProxyStyle::standardPixmap(sp, option, widget);
}

QPixmap BaseStyle::generatedIconPixmap(QIcon::Mode mode, const QPixmap &pixmap,
                                       const QStyleOption *option) const
{
    return generatedPixmap(mode, pixmap, option);
}

QIcon BaseStyle::generateToolBarExpandButtonIcon(const char *const *xpm,
                                                 const QPalette &palette) const
{
    return toolBarExtensionIcon(xpm, palette);
}

bool BaseStyle::eventFilter(QObject *watched, QEvent *event)
{
    if (watched->isWidgetType()) {
        watch(static_cast<QWidget &>(*watched), *event, m_state->altKey);
    }
    return QProxyStyle::eventFilter(watched, event);
}

bool BaseStyle::hasSeenAlt(const QWidget *w) const
{
    return m_state->altKey.hasBeenSeen(w);
}

bool BaseStyle::altDown() const
{
    return m_state->altKey.isDown();
}

} // namespace TARN
