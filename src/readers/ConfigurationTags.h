#pragma once

#include <QtCore/QString>

/// The element and attribute names of a theme's configuration file.
namespace TARN {

inline const QString ConfigRootTag = QStringLiteral("Config");
inline const QString NameAttribute = QStringLiteral("name");
inline const QString InternalAttribute = QStringLiteral("internal");

inline const QString FactorsRootTag = QStringLiteral("Factors");
inline const QString FactorTag = QStringLiteral("Factor");

inline const QString PaletteRootTag = QStringLiteral("Palette");
inline const QString ColorsListTag = QStringLiteral("ColorsList");
inline const QString ColorTag = QStringLiteral("Color");
inline const QString BrushesListTag = QStringLiteral("BrushesList");
inline const QString SolidBrushTag = QStringLiteral("SolidBrush");
inline const QString LinearGradientBrushTag = QStringLiteral("LinearGradientBrush");
inline const QString LinearGradientBrushStartAttribute = QStringLiteral("startPoint");
inline const QString LinearGradientBrushEndAttribute = QStringLiteral("endPoint");
inline const QString GradientStopTag = QStringLiteral("GradientStop");
inline const QString GradientStopPositionAttribute = QStringLiteral("offset");

inline const QString FontRootTag = QStringLiteral("Font");
inline const QString FontFamilyTag = QStringLiteral("Family");
inline const QString FontWeightTag = QStringLiteral("Weight");

// The four sizes name both fonts and corner radii.
inline const QString SmallSizeTag = QStringLiteral("SmallSize");
inline const QString BaseSizeTag = QStringLiteral("BaseSize");
inline const QString MediumSizeTag = QStringLiteral("MediumSize");
inline const QString LargeSizeTag = QStringLiteral("LargeSize");

inline const QString OpacitiesRootTag = QStringLiteral("Opacities");
inline const QString OpacityTag = QStringLiteral("Opacity");
inline const QString CornerRadiusRootTag = QStringLiteral("CornerRadius");

} // namespace TARN
