#include "resources/ThemeResources.h"

#include "resources/kept/KeptValue.h"
#include "resources/variables/LookUps.h"
#include "resources/variables/PublishedVariables.h"
#include "resources/variables/Snapshot.h"
#include "resources/variables/VariableKeyIndex.h"
#include "resources/variables/VariablePath.h"

#include <QtCore/QCoreApplication>

#include <algorithm>

namespace TARN {

namespace {

/// Returns the variable \a name of \a Kind; a default-constructed value when there is none.
template <typename Kind>
typename Kind::Value valueOf(const QString &name)
{
    const auto *variable = findVariable<Kind>(name);
    // Not a constant: the default of fonts changes with time.
    return variable ? *variable : typename Kind::Value();
}

template <typename T>
QString keyInGroup(const T &value, const QString &group)
{
    static ProcessCached<VariableKeyIndex<T>> index([] { return VariableKeyIndex<T>(); });
    return index.value().key(
        value,
        publishedVariables(ThemeResources::getThemeVariablePropertyName()).value(group).toMap());
}

} // namespace

const char *ThemeResources::getThemeVariablePropertyName()
{
    return "theme_var";
}

const char *ThemeResources::getInternalThemeVariablePropertyName()
{
    return "theme_var_internal";
}

const QString &ThemeResources::getColorsVarPrefix()
{
    static const QString prefix = QStringLiteral("colors");
    return prefix;
}

const QString &ThemeResources::getInternalColorsVarPrefix()
{
    static const QString prefix = QStringLiteral("internalColors");
    return prefix;
}

const QString &ThemeResources::getBrushesVarPrefix()
{
    static const QString prefix = QStringLiteral("brushes");
    return prefix;
}

const QString &ThemeResources::getInternalBrushesVarPrefix()
{
    static const QString prefix = QStringLiteral("internalBrushes");
    return prefix;
}

const QString &ThemeResources::getFontsVarPrefix()
{
    static const QString prefix = QStringLiteral("fonts");
    return prefix;
}

const QString &ThemeResources::getOpacitiesVarPrefix()
{
    static const QString prefix = QStringLiteral("opacities");
    return prefix;
}

const QString &ThemeResources::getCornerRadiusVarPrefix()
{
    static const QString prefix = QStringLiteral("cornerRadius");
    return prefix;
}

const QString &ThemeResources::getDisabledFactorsVarPrefix()
{
    static const QString prefix = QStringLiteral("factors");
    return prefix;
}

const QString &ThemeResources::iconsPrefix()
{
    static const QString prefix = QStringLiteral("icons");
    return prefix;
}

const QString &ThemeResources::cursorsPrefix()
{
    static const QString prefix = QStringLiteral("cursors");
    return prefix;
}

const QString &ThemeResources::themeResourcesPrefix()
{
    static const QString prefix = QStringLiteral("resources");
    return prefix;
}

QVariant ThemeResources::getThemeVar(const QString &path, const QVariant &defaultValue)
{
    tellLookUp(path);
    return getThemeVarInternal(publishedVariables(getThemeVariablePropertyName()), path,
                               defaultValue);
}

QColor ThemeResources::getColor(const QString &name)
{
    return valueOf<ColorKind>(name);
}

QBrush ThemeResources::getBrush(const QString &name)
{
    return valueOf<BrushKind>(name);
}

QFont ThemeResources::getFont(const QString &name)
{
    return valueOf<FontKind>(name);
}

double ThemeResources::getOpacity(const QString &name)
{
    const double opacity = valueOf<OpacityKind>(name);
    return QCoreApplication::instance() ? opacity : 1.0;
}

double ThemeResources::getCornerRadius(const QString &name)
{
    return valueOf<CornerRadiusKind>(name);
}

int ThemeResources::getDisabledFactor(const QString &name)
{
    const int factor = valueOf<DisabledFactorKind>(name);
    return QCoreApplication::instance() ? factor : 100;
}

QStringList ThemeResources::getColors(const QRegularExpression &pattern)
{
    QStringList names = getThemeVar(getColorsVarPrefix()).toMap().keys();
    names.erase(std::remove_if(names.begin(), names.end(),
                               [&pattern](const QString &name) { return !name.contains(pattern); }),
                names.end());
    return names;
}

QString ThemeResources::getColorKey(const QColor &color)
{
    return keyInGroup(color, getColorsVarPrefix());
}

QString ThemeResources::getBrushKey(const QBrush &brush)
{
    return keyInGroup(brush, getBrushesVarPrefix());
}

QString ThemeResources::getColorOrBrushKey(const QVariant &value, const QVariantMap &group)
{
    QString first;
    bool found = false;
    for (auto it = group.cbegin(); it != group.cend(); ++it) {
        if (it.value() != value) {
            continue;
        }
        if (isPreferredKey(it.key())) {
            return it.key();
        }
        if (!found) {
            first = it.key();
            found = true;
        }
    }
    return first;
}

} // namespace TARN
