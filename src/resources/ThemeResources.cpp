#include "resources/ThemeResources.h"

#include "resources/kept/KeptValue.h"
#include "resources/variables/LookUps.h"
#include "resources/variables/VariableGroup.h"
#include "resources/variables/VariableKeyIndex.h"
#include "resources/variables/VariablePath.h"

#include <QtCore/QCoreApplication>

#include <algorithm>

namespace TARN {

namespace {

template <typename T>
VariableGroup<T> publishedGroup(const char *propertyName, const QString &group)
{
    return VariableGroup<T>(publishedVariables(propertyName).value(group).toMap());
}

/// Returns the variable \a name of a kept group. Each instance of this template keeps the one
/// group that \a Prefix names, in the property that \a PropertyName names.
template <typename T, const QString &(*Prefix)(),
          const char *(*PropertyName)() = ThemeResources::getThemeVariablePropertyName>
T keptVariable(const QString &name, const T &withoutApplication)
{
    if (Q_UNLIKELY(lookUpObserver)) {
        lookUpObserver(Prefix(), name);
    }
    if (!QCoreApplication::instance()) {
        return withoutApplication;
    }
    static ProcessCached<VariableGroup<T>> group(
        [] { return publishedGroup<T>(PropertyName(), Prefix()); });
    return group.value().value(name);
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
    return keptVariable<QColor, getColorsVarPrefix>(name, QColor());
}

QBrush ThemeResources::getBrush(const QString &name)
{
    return keptVariable<QBrush, getBrushesVarPrefix>(name, QBrush());
}

QFont ThemeResources::getFont(const QString &name)
{
    return keptVariable<QFont, getFontsVarPrefix>(name, QFont());
}

double ThemeResources::getOpacity(const QString &name)
{
    return keptVariable<double, getOpacitiesVarPrefix>(name, 1.0);
}

double ThemeResources::getCornerRadius(const QString &name)
{
    return keptVariable<double, getCornerRadiusVarPrefix>(name, 0.0);
}

int ThemeResources::getDisabledFactor(const QString &name)
{
    return keptVariable<int, getDisabledFactorsVarPrefix, getInternalThemeVariablePropertyName>(
        name, 100);
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
