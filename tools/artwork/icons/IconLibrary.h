#pragma once

#include "FileSet.h"
#include "icons/Drawing.h"
#include "icons/Palette.h"

#include <QtCore/QHash>

namespace TARN::Artwork {

/// The sources of the icons:
/// - "palette.txt", the colours in each palette;
/// - "motifs/*.icons", what several icons share;
/// - "families/<family>.icons", the icons of each family;
/// - "standard.txt", the icons that each theme holds itself, as lines "name drawing palette";
///   a "*" there stands for the palette of the theme's ground.
class IconLibrary
{
public:
    /// Reads the sources in \a folder. What is wrong is told in \a errors.
    IconLibrary(const QString &folder, QStringList *errors);

    /// The names of all icons, in ascending order.
    [[nodiscard]] QStringList iconNames() const;

    /// The names of the motifs that nothing refers to.
    [[nodiscard]] QStringList unusedMotifs() const;

    /// The colours of the compiled-in icons.
    [[nodiscard]] Palette palette() const;

    /// Returns the SVG file of an icon, in the compiled-in colours.
    [[nodiscard]] QByteArray icon(const QString &name, QStringList *errors) const;

    /// Returns the compiled-in set: "icons/<name>.svg" and "icons.qrc".
    [[nodiscard]] FileSet compiledInFiles(QStringList *errors) const;

    /// The grounds that themes show icons on: the palettes besides that of the compiled-in icons.
    [[nodiscard]] QStringList grounds() const;

    /// Returns the icons that a theme of the ground \a ground holds itself: "<name>.svg".
    [[nodiscard]] FileSet standardIcons(const QString &ground, QStringList *errors) const;

    /// Returns the standard icons for every ground, as the tool that writes themes compiles them
    /// in:
    /// "<ground>/<name>.svg" and "<ground>.qrc".
    [[nodiscard]] FileSet standardIconFiles(QStringList *errors) const;

private:
    struct StandardIcon
    {
        QString name;
        QString drawing;
        QString palette;
    };

    void readDrawings(const QString &folder, QStringList *names, QStringList *errors);
    void readStandardIcons(const QString &path, QStringList *errors);

    QMap<QString, Palette> m_palettes;
    QHash<QString, Drawing> m_drawings;
    QStringList m_motifNames;
    QStringList m_iconNames;
    QVector<StandardIcon> m_standardIcons;
};

} // namespace TARN::Artwork
