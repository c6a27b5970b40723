#include "theme/ApplicationPalette.h"

#include "catalogue/Names.h"
#include "resources/ThemeColorHelper.h"

#include <QtCore/QMetaEnum>

namespace TARN {

namespace {

bool isForegroundRole(QPalette::ColorRole role, const QString &name)
{
    return name.contains(QLatin1String("Text")) || name.contains(QLatin1String("Foreground")) ||
           name.contains(QLatin1String("Link")) || role == QPalette::WindowText;
}

/// Returns \a palette with the brushes of its disabled group derived from those of its current
/// one.
QPalette withDisabledColors(QPalette palette)
{
    const auto roles = QMetaEnum::fromType<QPalette::ColorRole>();
    for (int i = 0; i < roles.keyCount(); ++i) {
        const auto role = static_cast<QPalette::ColorRole>(roles.value(i));
        if (role == QPalette::NColorRoles) {
            continue;
        }
        // The name is that of the role numbered like the key, so the aliases that follow the
        // roles go without one.
        const QString name = QString::fromLatin1(roles.valueToKey(i));
        const QColor color = palette.color(QPalette::Current, role);
        palette.setBrush(QPalette::Disabled, role,
                         ThemeColorHelper::disabled(color, isForegroundRole(role, name)));
    }
    return palette;
}

/// Returns the colour that is seen where \a top lies on \a bottom.
QColor over(const QColor &top, const QColor &bottom)
{
    const auto mixed = [alpha = top.alphaF()](qreal upper, qreal lower) {
        return upper * alpha + lower * (1 - alpha);
    };
    return QColor::fromRgbF(mixed(top.redF(), bottom.redF()), mixed(top.greenF(), bottom.greenF()),
                            mixed(top.blueF(), bottom.blueF()));
}

/// Returns \a palette with its selections as they are seen on a field.
QPalette withOpaqueSelections(QPalette palette)
{
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        const QColor field =
            over(palette.color(group, QPalette::Base), palette.color(group, QPalette::Window));
        palette.setColor(group, QPalette::Highlight,
                         over(palette.color(group, QPalette::Highlight), field));
    }
    return palette;
}

} // namespace

QPalette applicationPalette(const QPalette &palette, Mode mode)
{
    const QPalette whole = withDisabledColors(palette);
    if (mode == Mode::Default) {
        return whole;
    }
    QPalette complete = withOpaqueSelections(whole);
    complete.setBrush(QPalette::Disabled, QPalette::WindowText,
                      themeBrush(BrushName::ForegroundBrush, false));
    complete.setBrush(QPalette::Disabled, QPalette::HighlightedText,
                      complete.brush(QPalette::Disabled, QPalette::Text));
    // Who takes it from the style has set no role on purpose.
    complete.resolve(0);
    return complete;
}

} // namespace TARN
