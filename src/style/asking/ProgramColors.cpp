#include "style/asking/ProgramColors.h"

#include "catalogue/Names.h"
#include "resources/kept/SlotCache.h"
#include "resources/variables/ThemeGeneration.h"
#include "style/asking/OptionState.h"
#include "style/asking/ViewRoles.h"

#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QProgressBar>

namespace TARN {

namespace {

QPalette::ColorGroup groupOf(const QStyleOption &option)
{
    if (!isEnabled(option)) {
        return QPalette::Disabled;
    }
    return has(option, QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
}

bool isField(const QWidget *widget)
{
    return qobject_cast<const QComboBox *>(widget) || qobject_cast<const QProgressBar *>(widget) ||
           qobject_cast<const QAbstractSpinBox *>(widget);
}

/// Returns the roles of \a widget, to whose kind what is neither a button's nor an input's belongs.
WidgetColors::Roles rolesOf(const QWidget *widget)
{
    if (isField(widget)) {
        return {QPalette::Base, QPalette::Text};
    }
    const QPalette::ColorRole text = widget ? widget->foregroundRole() : QPalette::WindowText;
    switch (text) {
    case QPalette::ButtonText:
        return {QPalette::Button, text};
    case QPalette::Text:
        return {QPalette::Base, text};
    case QPalette::ToolTipText:
        return {QPalette::ToolTipBase, text};
    default:
        return {QPalette::Window, QPalette::WindowText};
    }
}

/// Returns \a palette with the roles that polishing has given to item views as the style has them.
QPalette withoutPolishedRoles(QPalette palette, const QPalette &own)
{
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        for (const ViewRole &view : {viewGround, listGround, viewSelection}) {
            if (palette.brush(group, view.role) == view.brush(group)) {
                palette.setBrush(group, view.role, own.brush(group, view.role));
            }
        }
    }
    return palette;
}

/// A palette beside that of the style.
struct PaletteKey
{
    QPalette own;
    QPalette palette;
    QPalette::ColorGroup group;

    bool operator==(const PaletteKey &other) const
    {
        return palette.cacheKey() == other.palette.cacheKey() &&
               own.cacheKey() == other.own.cacheKey() && group == other.group;
    }
    std::size_t hash() const
    {
        return mixedHash({std::size_t(palette.cacheKey()), std::size_t(group)});
    }
};

/// Nearly all widgets that are painted have the style's palette, which is to be found out fast.
bool isPrograms(const PaletteKey &key)
{
    // What is looked up on the way is to be the theme's.
    const WidgetColors::Scope plain(nullptr);
    return WidgetColors::differ(key.own, withoutPolishedRoles(key.palette, key.own), key.group);
}

struct ColorsKey
{
    PaletteKey palette;
    WidgetColors::Roles roles;

    bool operator==(const ColorsKey &other) const
    {
        return palette == other.palette && roles.text == other.roles.text;
    }
    std::size_t hash() const { return mixedHash({palette.hash(), std::size_t(roles.text)}); }
};

using Colors = std::shared_ptr<const WidgetColors>;

Colors makeColors(const ColorsKey &key)
{
    const WidgetColors::Scope plain(nullptr);
    const PaletteKey &palette = key.palette;
    return std::make_shared<WidgetColors>(
        palette.own, withoutPolishedRoles(palette.palette, palette.own), palette.group, key.roles);
}

} // namespace

std::shared_ptr<const WidgetColors> programColors(const PaintRequest &request, const QPalette &own)
{
    constexpr std::size_t pairCount = 61;
    static SlotCache<PaletteKey, bool, pairCount, ThemeGeneration> palettes(isPrograms);
    static SlotCache<ColorsKey, Colors, pairCount, ThemeGeneration> colors(makeColors);
    const QWidget *widget = request.widget;
    const PaletteKey key{own, widget ? widget->palette() : request.option->palette,
                         groupOf(*request.option)};
    return palettes.value(key) ? colors.value({key, rolesOf(widget)}) : nullptr;
}

} // namespace TARN
