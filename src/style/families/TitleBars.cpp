#include "style/families/TitleBars.h"

#include "catalogue/Names.h"
#include "resources/ThemeColorHelper.h"
#include "style/asking/OptionState.h"
#include "style/brushes/ButtonBrushChoice.h"
#include "style/brushes/KeptBrushes.h"
#include "style/drawing/Icons.h"
#include "style/drawing/Lines.h"

#include <QtGui/QPainter>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QWidget>

namespace TARN::TitleBars {

namespace {

constexpr QSize iconSize(16, 16);

/// Returns the picture of \a icon for the screen on which \a widget is.
QPixmap pictureOf(const QIcon &icon, const QWidget *widget, QIcon::Mode mode = QIcon::Normal)
{
    return iconPixmap(icon, iconSize, mode, QIcon::Off, widget);
}

/// How far the title stays away from its neighbours.
constexpr int titleMargin = 4;
/// How much of its colour the title of a window keeps that is not the active one.
constexpr qreal inactiveOpacity = 0.7;

struct Button
{
    QStyle::SubControl subControl;
    QStyle::StandardPixmap pixmap;
    /// A button among the sub-controls is drawn when the window also has this flag: the base style
    /// has a place for some buttons that the window does not want.
    Qt::WindowType hint;
};

constexpr Button buttons[] = {
    {QStyle::SC_TitleBarMinButton, QStyle::SP_TitleBarMinButton, Qt::WindowMinimizeButtonHint},
    {QStyle::SC_TitleBarMaxButton, QStyle::SP_TitleBarMaxButton, Qt::WindowMaximizeButtonHint},
    {QStyle::SC_TitleBarCloseButton, QStyle::SP_TitleBarCloseButton, Qt::WindowSystemMenuHint},
    {QStyle::SC_TitleBarNormalButton, QStyle::SP_TitleBarNormalButton, Qt::Widget},
    {QStyle::SC_TitleBarContextHelpButton, QStyle::SP_TitleBarContextHelpButton,
     Qt::WindowContextHelpButtonHint},
    {QStyle::SC_TitleBarShadeButton, QStyle::SP_TitleBarShadeButton, Qt::WindowShadeButtonHint},
    {QStyle::SC_TitleBarUnshadeButton, QStyle::SP_TitleBarUnshadeButton, Qt::WindowShadeButtonHint},
};

struct MdiButton
{
    QStyle::SubControl subControl;
    QStyle::StandardPixmap pixmap;
};

constexpr MdiButton mdiButtons[] = {
    {QStyle::SC_MdiMinButton, QStyle::SP_TitleBarMinButton},
    {QStyle::SC_MdiNormalButton, QStyle::SP_TitleBarNormalButton},
    {QStyle::SC_MdiCloseButton, QStyle::SP_TitleBarCloseButton},
};

bool isActive(const QStyleOptionTitleBar &option)
{
    return (option.titleBarState & QStyle::State_Active) != 0;
}

QColor titleColor(const QStyleOptionTitleBar &option)
{
    const QPalette::ColorGroup group = isEnabled(option) ? QPalette::Current : QPalette::Disabled;
    QColor color = option.palette.color(group, QPalette::WindowText);
    if (!isActive(option)) {
        color.setAlphaF(color.alphaF() * inactiveOpacity);
    }
    return color;
}

void drawFace(QPainter &painter, const QStyleOptionTitleBar &option)
{
    const bool enabled = isEnabled(option);
    // The active window comes forward, the others step back.
    const BrushName face =
        isActive(option) ? BrushName::BackgroundUpLevel1Brush : BrushName::BackgroundSubLevel1Brush;
    painter.fillRect(option.rect, themeBrush(face, enabled));
    fillFrame(painter, option.rect, cardBorderBrush(enabled));
}

void drawTitle(const PaintRequest &request, const QStyleOptionTitleBar &option)
{
    const QRect rect =
        request.proxy()
            .subControlRect(QStyle::CC_TitleBar, &option, QStyle::SC_TitleBarLabel, request.widget)
            .adjusted(titleMargin, 0, -titleMargin, 0);
    if (rect.isEmpty() || option.text.isEmpty()) {
        return;
    }
    QPainter &painter = *request.painter;
    const QString title =
        painter.fontMetrics().elidedText(option.text, Qt::ElideRight, rect.width());
    painter.setPen(titleColor(option));
    painter.drawText(
        rect,
        int(QStyle::visualAlignment(option.direction, Qt::AlignLeft) | Qt::AlignVCenter) |
            Qt::TextSingleLine,
        title);
}

using Tint = QIcon (*)(const QIcon &icon, const QBrush &brush);

/// Tints an icon of the library's. One that the theme brings in its own colour stays as it is.
QIcon tinted(const QIcon &icon, const QBrush &brush)
{
    return ThemeColorHelper::getModifiedIconWithForegroundBrush(icon, brush);
}

void drawWindowIcon(const PaintRequest &request, const QStyleOptionTitleBar &option, Tint tint)
{
    const QRect rect = request.proxy().subControlRect(QStyle::CC_TitleBar, &option,
                                                      QStyle::SC_TitleBarSysMenu, request.widget);
    if (!rect.isValid()) {
        return;
    }
    const QIcon icon = option.icon.isNull()
                           ? tint(request.proxy().standardIcon(QStyle::SP_TitleBarMenuButton,
                                                               &option, request.widget),
                                  titleColor(option))
                           : option.icon;
    const QIcon::Mode mode = isEnabled(option) ? QIcon::Normal : QIcon::Disabled;
    request.proxy().drawItemPixmap(request.painter, rect, Qt::AlignCenter,
                                   pictureOf(icon, request.widget, mode));
}

/// Draws one button of a title bar, or of the menu bar.
void drawButtonOf(const PaintRequest &request, QStyle::ComplexControl control,
                  const QStyleOptionComplex &option, QStyle::SubControl subControl,
                  QStyle::StandardPixmap standardPixmap, Tint tint)
{
    const QStyle &proxy = request.proxy();
    const QRect rect = proxy.subControlRect(control, &option, subControl, request.widget);
    if (!rect.isValid()) {
        return;
    }
    QStyleOptionButton button;
    button.palette = option.palette;
    button.rect = rect;
    // Buttons that are not in use have no state at all and look disabled.
    if (option.activeSubControls.testFlag(subControl)) {
        button.state =
            option.state & (QStyle::State_Active | QStyle::State_HasFocus | QStyle::State_Enabled |
                            QStyle::State_Sunken | QStyle::State_MouseOver);
    }
    request.draw(QStyle::PE_PanelButtonBevel, button);
    const QIcon icon = tint(request.style.standardIcon(standardPixmap, &option, request.widget),
                            buttonBrushes(&button, request.widget).foreground);
    proxy.drawItemPixmap(request.painter, rect, Qt::AlignCenter, pictureOf(icon, request.widget));
}

bool paint(const PaintRequest &request, Tint tint)
{
    const auto *option = qstyleoption_cast<const QStyleOptionTitleBar *>(request.option);
    if (!option) {
        return false;
    }
    drawFace(*request.painter, *option);
    if (option->subControls.testFlag(QStyle::SC_TitleBarLabel)) {
        drawTitle(request, *option);
    }
    for (const Button &button : buttons) {
        const bool isWanted = !button.hint || option->titleBarFlags.testFlag(button.hint);
        if (isWanted && option->subControls.testFlag(button.subControl)) {
            drawButtonOf(request, QStyle::CC_TitleBar, *option, button.subControl, button.pixmap,
                         tint);
        }
    }
    if (option->subControls.testFlag(QStyle::SC_TitleBarSysMenu)) {
        drawWindowIcon(request, *option, tint);
    }
    return true;
}

} // namespace

bool drawTitleBar(const PaintRequest &request)
{
    return paint(request, tinted);
}

bool drawTintedTitleBar(const PaintRequest &request)
{
    return paint(request, iconInBrush);
}

void drawButton(const PaintRequest &request, const QStyleOptionTitleBar &option,
                QStyle::SubControl subControl, QStyle::StandardPixmap standardPixmap)
{
    drawButtonOf(request, QStyle::CC_TitleBar, option, subControl, standardPixmap, tinted);
}

bool drawMdiControls(const PaintRequest &request)
{
    const auto *option = qstyleoption_cast<const QStyleOptionComplex *>(request.option);
    if (!option) {
        return false;
    }
    for (const MdiButton &button : mdiButtons) {
        if (option->subControls.testFlag(button.subControl)) {
            drawButtonOf(request, QStyle::CC_MdiControls, *option, button.subControl, button.pixmap,
                         iconInBrush);
        }
    }
    return true;
}

} // namespace TARN::TitleBars
