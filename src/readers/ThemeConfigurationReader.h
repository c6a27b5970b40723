#pragma once

#include <mox_common_theme_export.h>
#include <readers/ThemeFont.h>

#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtGui/QBrush>
#include <QtGui/QColor>

class BrushReader;

namespace TARN {

/// Reads the configuration file of a theme, "config.xml": the theme's named values.
///
/// Every colour and brush X also yields an entry "Disabled" + X. A list of entries is read up to
/// its first faulty entry; what was read before stays, and the other sections are read as well.
///
/// Constructing a reader publishes the file's disabled factors on the application object, in
/// place of those published before, since the disabled colours of the file depend on them.
class MOX_COMMON_THEME_EXPORT ThemeConfigurationReader
{
public:
    /// Reads the file at \a path. Never fails; getStatus() tells how it went.
    explicit ThemeConfigurationReader(const QString &path);
    /// The same with \a defaultFont for the sizes of the font that the file leaves out, in place of
    /// the application's default font.
    ThemeConfigurationReader(const QString &path, const QFont &defaultFont);

    /// Returns 0 when the file was read without fault, 1 when it could not be opened, 2 when it
    /// is not well-formed or holds a faulty entry.
    int getStatus() const;

    const QMap<QString, QColor> &getColorsMap() const;
    /// The colours that are marked internal, and every "Disabled" entry.
    const QMap<QString, QColor> &getInternalColorsMap() const;
    const QMap<QString, QBrush> &getBrushesMap() const;
    /// The brushes that are marked internal, and every "Disabled" entry.
    const QMap<QString, QBrush> &getInternalBrushesMap() const;
    /// Opacities; from 0 (transparent) to 1 (opaque) unless the file says otherwise.
    const QMap<QString, double> &getOpacitiesMap() const;
    /// Corner radii in device-independent pixels, by "SmallSize", "BaseSize", "MediumSize" and
    /// "LargeSize".
    const QMap<QString, int> &getCornerRadiusMap() const;
    /// Disabled factors in percent, as QColor::lighter() and QColor::darker() take them.
    const QMap<QString, int> &getDisabledFactorsMap() const;
    ThemeFont getFont() const;

private:
    friend class ConfigurationSections;

    int m_status = 0;
    QMap<QString, QColor> m_colors;
    QMap<QString, QColor> m_internalColors;
    QMap<QString, QBrush> m_brushes;
    QMap<QString, QBrush> m_internalBrushes;
    QMap<QString, double> m_opacities;
    QMap<QString, int> m_cornerRadii;
    QMap<QString, int> m_disabledFactors;
    ThemeFont m_font;

    static QMap<QString, BrushReader *> s_brushReaders;
};

} // namespace TARN
