#include "style/families/Buttons.h"

#include "style/BaseStyle.h"
#include "style/Drawing.h"
#include "style/Geometry.h"
#include "style/IconTinting.h"
#include "style/Properties.h"

#include <QtWidgets/QStyleOption>
#include <QtWidgets/QWidget>

namespace TARN::Buttons {

namespace {

/// Tells whether a button opens a menu but has no separate part for it that would show an arrow.
bool hasPlainMenu(const QStyleOptionToolButton &option)
{
    return option.features.testFlag(QStyleOptionToolButton::HasMenu) &&
           !option.features.testFlag(QStyleOptionToolButton::Arrow) &&
           !option.features.testFlag(QStyleOptionToolButton::Menu);
}

QStyleOptionButton asButtonOption(const QStyleOption &option)
{
    QStyleOptionButton button;
    button.QStyleOption::operator=(option);
    button.version = QStyleOptionButton::Version;
    button.type = QStyleOptionButton::Type;
    return button;
}

} // namespace

QSize pushButtonSize(const BaseStyle &style, const ContentsRequest &request)
{
    ContentsRequest raised = request;
    const int iconSize =
        style.proxy()->pixelMetric(QStyle::PM_ButtonIconSize, request.option, request.widget);
    raised.contents.setHeight(qMax(request.contents.height(), iconSize));
    return baseSize(style, raised);
}

QSize toolButtonSize(const BaseStyle &style, const ContentsRequest &request)
{
    QSize size = baseSize(style, request);
    const auto *option = qstyleoption_cast<const QStyleOptionToolButton *>(request.option);
    if (!option) {
        return size;
    }
    if (request.widget && hasPlainMenu(*option) && !isSet(request.widget, "no menu arrow")) {
        size.rwidth() += style.proxy()->pixelMetric(QStyle::PM_MenuButtonIndicator, request.option,
                                                    request.widget);
    }
    // An even height keeps the icon on whole pixels.
    size.rheight() += size.height() % 2;
    return size;
}

int pushButtonHeight(const BaseStyle &style, const ContentsRequest &request)
{
    if (qstyleoption_cast<const QStyleOptionButton *>(request.option)) {
        return style
            .sizeFromContents(QStyle::CT_PushButton, request.option, request.contents,
                              request.widget)
            .height();
    }
    const QStyleOptionButton option = asButtonOption(*request.option);
    return style.sizeFromContents(QStyle::CT_PushButton, &option, request.contents, request.widget)
        .height();
}

void polishCommandLink(BaseStyle &style, QWidget &widget)
{
    tintOnPaint(style, widget);
}

bool drawDefaultFrame(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

bool drawPanel(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

bool drawPushButton(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

bool drawBevel(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

bool drawLabel(const BaseStyle & /*style*/, const PaintRequest & /*request*/)
{
    return false;
}

} // namespace TARN::Buttons

namespace TARN {

template <typename ButtonOption>
const ButtonOption *BaseStyle::commonCallButtonText(const QStyleOption *option,
                                                    const QWidget *widget) const
{
    // The caller's own option is prepared, so that whatever it paints next matches the label.
    auto *button = const_cast<ButtonOption *>(static_cast<const ButtonOption *>(option));
    useForeground(*button, buttonBrushes(option, widget).foreground);
    return button;
}

template MOX_COMMON_THEME_EXPORT const QStyleOptionButton *
BaseStyle::commonCallButtonText<QStyleOptionButton>(const QStyleOption *option,
                                                    const QWidget *widget) const;

} // namespace TARN
