#include "style/families/item_views/Selections.h"

#include "catalogue/Names.h"
#include "style/asking/Classes.h"
#include "style/asking/OptionState.h"
#include "style/asking/Properties.h"
#include "style/asking/ViewRoles.h"
#include "style/polishing/Polishing.h"

namespace TARN::ItemViews {

namespace {

/// Tells whether keys go to the view. While a pop-up is open they do, wherever the focus is.
bool hasKeys(const QWidget *widget)
{
    return widget && (widget->hasFocus() || isInComboBoxPopup(widget));
}

QPalette::ColorGroup groupOf(const QStyleOptionViewItem &option, bool isActive)
{
    if (!isEnabled(option)) {
        return QPalette::Disabled;
    }
    return isActive ? QPalette::Active : QPalette::Inactive;
}

const QBrush &textBrush(const QStyleOptionViewItem &option, QPalette::ColorRole role)
{
    return option.palette.brush(groupOf(option, has(option, QStyle::State_Active)), role);
}

RoleBrushes brushesOf(const ViewRole &role)
{
    return {role.role, role.brush(QPalette::Active), role.brush(QPalette::Inactive),
            role.brush(QPalette::Disabled)};
}

} // namespace

void polishColors(Polishing &polishing)
{
    const QWidget &widget = polishing.widget();
    if (isSet(&widget, Property::CustomItemViewPalette)) {
        polishing.setBrushes({brushesOf(viewSelection), brushesOf(alternateGround)});
        return;
    }
    const ViewRole &ground = isInComboBoxPopup(&widget) ? listGround : viewGround;
    polishing.setBrushes({brushesOf(viewSelection), brushesOf(alternateGround), brushesOf(ground)});
}

bool isInComboBoxPopup(const QWidget *widget)
{
    return widget && isA(widget->parent(), "QComboBoxPrivateContainer");
}

const QBrush &itemBrush(const QStyleOptionViewItem &option, const QWidget *widget, Mode mode)
{
    const bool isAlternate = option.features.testFlag(QStyleOptionViewItem::Alternate);
    const bool enabled = isEnabled(option);
    const QBrush &base = option.palette.brush(
        groupOf(option, true), isAlternate ? QPalette::AlternateBase : QPalette::Base);
    const bool isOnList =
        isInComboBoxPopup(widget) && base == listGround.brush(groupOf(option, true));
    if (mode == Mode::Complete && !isOnList) {
        return base;
    }
    return themeBrush(isAlternate ? BrushName::ItemViewAlternateBackgroundBrush
                                  : BrushName::ItemViewBackgroundBrush,
                      enabled);
}

bool showsHover(const QStyleOptionViewItem &option, const QWidget *widget)
{
    return isHovered(option) && isSet(widget, Property::HighlightItemsOnMouseHover);
}

const QBrush &selectionBrush(const QStyleOptionViewItem &option, const QWidget *widget, Mode mode)
{
    const bool isActive = hasKeys(widget);
    if (mode == Mode::Complete) {
        return option.palette.brush(groupOf(option, isActive), QPalette::Highlight);
    }
    return themeBrush(isActive ? BrushName::MainBrush : BrushName::MainSubLevel1Brush,
                      isEnabled(option));
}

const QBrush &hoverBrush(const QStyleOptionViewItem &option, Mode mode)
{
    return mode == Mode::Complete ? option.palette.brush(QPalette::Active, QPalette::Highlight)
                                  : themeBrush(BrushName::MainBrush, isEnabled(option));
}

const QBrush &itemTextBrush(const QStyleOptionViewItem &option, const QWidget *widget, Mode mode)
{
    const bool isSelected = has(option, QStyle::State_Selected);
    const bool isOnAccent = isSelected || showsHover(option, widget);
    if (mode == Mode::Complete && isOnAccent) {
        const bool isActive = !isSelected || hasKeys(widget);
        return option.palette.brush(groupOf(option, isActive), QPalette::HighlightedText);
    }
    // By default disabled texts have the same colour on every ground: the selection is so faint
    // then that highlighted text would not be read on it.
    return textBrush(option,
                     isOnAccent && isEnabled(option) ? QPalette::HighlightedText : QPalette::Text);
}

const QBrush &plainTextBrush(const QStyleOptionViewItem &option)
{
    return textBrush(option, QPalette::Text);
}

} // namespace TARN::ItemViews
