#include "theme/ApplicationPalette.h"

#include "catalogue/Names.h"
#include "common_utils/Contrast.h"
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

/// Returns a colour between \a first and \a second, of which it has the \a share.
QColor mixed(const QColor &first, const QColor &second, qreal share)
{
    const auto mix = [share](qreal a, qreal b) { return a + (b - a) * share; };
    return QColor::fromRgbF(mix(first.redF(), second.redF()), mix(first.greenF(), second.greenF()),
                            mix(first.blueF(), second.blueF()));
}

/// Returns the colour that is seen where \a top lies on \a bottom.
QColor over(const QColor &top, const QColor &bottom)
{
    return mixed(bottom, top, top.alphaF());
}

/// Returns the faintest text that can still be read on the \a ground of selected items: the
/// disabled one of \a palette, or as much nearer to the enabled one as it takes.
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
    complete.setColor(
        QPalette::Disabled, QPalette::HighlightedText,
        disabledTextOn(themeBrush(BrushName::MainSubLevel1Brush, false).color(), complete));
    // Who takes it from the style has set no role on purpose.
    complete.resolve(0);
    return complete;
}

} // namespace TARN
