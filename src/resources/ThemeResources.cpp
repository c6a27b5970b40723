#include "resources/ThemeResources.h"

#include "resources/images/ImageFiles.h"
#include "resources/kept/KeptValue.h"
#include "resources/variables/GroupNames.h"
#include "resources/variables/LookUps.h"
#include "resources/variables/PublishedVariables.h"
#include "resources/variables/Snapshot.h"
#include "resources/variables/StyleSheetSubstitution.h"
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
    return GroupNames::variables;
}

const char *ThemeResources::getInternalThemeVariablePropertyName()
{
    return GroupNames::internalVariables;
}

const QString &ThemeResources::getColorsVarPrefix()
{
    return GroupNames::colors();
}

const QString &ThemeResources::getInternalColorsVarPrefix()
{
    return GroupNames::internalColors();
}

const QString &ThemeResources::getBrushesVarPrefix()
{
    return GroupNames::brushes();
}

const QString &ThemeResources::getInternalBrushesVarPrefix()
{
    return GroupNames::internalBrushes();
}

const QString &ThemeResources::getFontsVarPrefix()
{
    return GroupNames::fonts();
}

const QString &ThemeResources::getOpacitiesVarPrefix()
{
    return GroupNames::opacities();
}

const QString &ThemeResources::getCornerRadiusVarPrefix()
{
    return GroupNames::cornerRadii();
}

const QString &ThemeResources::getDisabledFactorsVarPrefix()
{
    return GroupNames::disabledFactors();
}

const QString &ThemeResources::iconsPrefix()
{
    return ImageFiles::iconsPrefix();
}

const QString &ThemeResources::cursorsPrefix()
{
    return ImageFiles::cursorsPrefix();
}

const QString &ThemeResources::themeResourcesPrefix()
{
    return ImageFiles::themeResourcesPrefix();
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
    return keyOfValue(value, group);
}

QString ThemeResources::customizeStyleSheet(const QString &styleSheet)
{
    return withVariables(styleSheet);
}

QIcon ThemeResources::getIcon(const QString &name)
{
    return ImageFiles::icon(name);
}

QStringList ThemeResources::getIcons(const QRegularExpression &filter)
{
    return ImageFiles::iconNames(filter);
}

QPixmap ThemeResources::getPixmap(const QString &name, const QSize &size)
{
    return ImageFiles::pixmap(name, size);
}

QCursor ThemeResources::getCursor(const QString &name)
{
    return ImageFiles::cursor(name);
}

} // namespace TARN
