#include "style/watching/ButtonIcons.h"

#include "catalogue/ComposedBrushes.h"
#include "catalogue/Names.h"
#include "resources/ThemeColorHelper.h"
#include "style/asking/OptionState.h"
#include "style/asking/Properties.h"
#include "style/polishing/Polishing.h"

#include <QtGui/QPalette>
#include <QtWidgets/QAction>
#include <QtWidgets/QToolButton>

namespace TARN {

namespace {

bool isHovered(const QWidget &button)
{
    return button.underMouse() && button.isEnabled();
}

/// Tells whether \a button still shows what it was given for \a tint. Setting an icon has the
/// button painted again, so that setting the same one at every painting would never end.
bool isTinted(const QAbstractButton &button, const QBrush &tint)
{
    return propertyOf(&button, Property::IconTint).value<QBrush>() == tint &&
           propertyOf(&button, Property::TintedIcon).toLongLong() == button.icon().cacheKey();
}

void setTintedIcon(QAbstractButton &button, const QIcon &source, const QBrush &tint)
{
    button.setIcon(ThemeColorHelper::getModifiedIconWithForegroundBrush(source, tint));
    setProperty(button, Property::IconTint, tint);
    setProperty(button, Property::TintedIcon, button.icon().cacheKey());
}

/// Tells whether the button was made for an action that an application added to its line edit:
/// that action's icon is to stay.
bool isOfAnAddedAction(const QToolButton &button)
{
    const QAction *action = button.defaultAction();
    return action && action->objectName() != QLatin1String("_q_qlineeditclearaction");
}

/// Returns the icon that \a button had before it was tinted.
QIcon originalIcon(const QAbstractButton &button)
{
    const auto *toolButton = qobject_cast<const QToolButton *>(&button);
    return toolButton && toolButton->defaultAction()
               ? toolButton->defaultAction()->icon()
               : propertyOf(&button, Property::OriginalIcon).value<QIcon>();
}

void takeBackTint(QAbstractButton &button)
{
    if (propertyOf(&button, Property::TintedIcon).toLongLong() == button.icon().cacheKey()) {
        button.setIcon(originalIcon(button));
    }
    for (const Property property :
         {Property::IconTint, Property::TintedIcon, Property::OriginalIcon}) {
        setProperty(button, property, QVariant());
    }
}

} // namespace

void tintOnPaint(Polishing &polishing)
{
    // What a former style put on it came from another theme.
    setProperty(polishing.widget(), Property::IconTint, QVariant());
    polishing.installEventFilter();
    if (auto *button = qobject_cast<QAbstractButton *>(&polishing.widget())) {
        polishing.addUndo([button] { takeBackTint(*button); });
    }
}

void tintClearButton(QToolButton &button)
{
    if (isOfAnAddedAction(button)) {
        return;
    }
    const QBrush tint(isHovered(button) ? themeColor(ColorName::MainColor, true)
                                        : button.palette().color(QPalette::WindowText));
    if (!isTinted(button, tint)) {
        setTintedIcon(button, QIcon::fromTheme(QStringLiteral("action.close")), tint);
    }
}

/// Returns the brush that draws the text of a plain button under the mouse.
QBrush hoveredForeground()
{
    return composedBrush(ComposedWidget::Button, KindWord(),
                         {CheckState::Unchecked, Interaction::Hover}, BrushField::Foreground, true);
}

void tintCommandLink(QAbstractButton &button)
{
    if (button.icon().isNull()) {
        return;
    }
    if (!propertyOf(&button, Property::OriginalIcon).isValid()) {
        setProperty(button, Property::OriginalIcon, button.icon());
    }
    const bool isHighlighted = !button.isChecked() && !button.isDown() && isHovered(button);
    const QBrush tint = isHighlighted ? hoveredForeground() : button.palette().buttonText();
    if (!isTinted(button, tint)) {
        setTintedIcon(button, propertyOf(&button, Property::OriginalIcon).value<QIcon>(), tint);
    }
}

} // namespace TARN
