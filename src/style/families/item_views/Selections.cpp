#include "style/families/item_views/Selections.h"

#include "catalogue/Names.h"
#include "common_utils/Contrast.h"
#include "style/asking/Classes.h"
#include "style/asking/OptionState.h"
#include "style/asking/Properties.h"
#include "style/polishing/Polishing.h"

namespace TARN::ItemViews {

namespace {

/// What the list of a combo box lies on. It is seen where its items have no ground.
constexpr BrushName listGround = BrushName::BackgroundUpLevel1Brush;

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

QColor mixed(const QColor &first, const QColor &second, qreal share)
{
    const auto mix = [share](qreal a, qreal b) { return a + (b - a) * share; };
    return QColor::fromRgbF(mix(first.redF(), second.redF()), mix(first.greenF(), second.greenF()),
                            mix(first.blueF(), second.blueF()));
}

/// Returns the brushes of a role, of which the disabled one is the twin of \a inactive.
RoleBrushes byState(QPalette::ColorRole role, BrushName active, BrushName inactive)
{
    return {role, themeBrush(active, true), themeBrush(inactive, true),
            themeBrush(inactive, false)};
}

/// Returns the faintest text that can still be read on \a ground: the disabled one of \a palette,
/// or as much nearer to the enabled one as it takes.
QColor disabledTextOn(const QColor &ground, const QPalette &palette)
{
    constexpr double leastContrast = 2;
    constexpr int steps = 8;
    const QColor &faintest = palette.color(QPalette::Disabled, QPalette::Text);
    const QColor &strongest = palette.color(QPalette::Active, QPalette::Text);
    QColor text = faintest;
    for (int i = 1; i <= steps && Helpers::contrastRatio(text, ground) < leastContrast; ++i) {
        text = mixed(faintest, strongest, qreal(i) / steps);
    }
    return text;
}

} // namespace

void polishColors(Polishing &polishing)
{
    const QWidget &widget = polishing.widget();
    const QPalette palette = widget.palette();
    const RoleBrushes selection =
        byState(QPalette::Highlight, BrushName::MainBrush, BrushName::MainSubLevel1Brush);
    const RoleBrushes text{QPalette::HighlightedText,
                           palette.brush(QPalette::Active, QPalette::HighlightedText),
                           palette.brush(QPalette::Inactive, QPalette::HighlightedText),
                           disabledTextOn(selection.disabled.color(), palette)};
    const RoleBrushes alternate =
        byState(QPalette::AlternateBase, BrushName::ItemViewAlternateBackgroundBrush,
                BrushName::ItemViewAlternateBackgroundBrush);
    if (isSet(&widget, Property::CustomItemViewPalette)) {
        polishing.setBrushes({selection, text, alternate});
        return;
    }
    const BrushName ground =
        isInComboBoxPopup(&widget) ? listGround : BrushName::ItemViewBackgroundBrush;
    polishing.setBrushes({selection, text, alternate, byState(QPalette::Base, ground, ground)});
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
    const bool isOnList = isInComboBoxPopup(widget) && base == themeBrush(listGround, enabled);
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
