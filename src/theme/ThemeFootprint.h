#pragma once

#include "theme/AddedFonts.h"

#include <QtCore/QObject>
#include <QtGui/QFont>
#include <QtGui/QPalette>

class QApplication;

namespace TARN {

/// What applied themes have added to an application, so that it can be taken back, and what the
/// application looked like before the first of them.
class ThemeFootprint : public QObject
{
    Q_OBJECT

public:
    /// Returns the footprint of \a app, which owns it. The first call defines what the
    /// application looks like without a theme. The images that themes have added to earlier
    /// applications of the process count as added to this one: they are still there.
    static ThemeFootprint &of(QApplication &app);

    /// Returns the palette that the application has without a theme.
    const QPalette &basePalette() const;
    /// Returns the font that the application has without a theme.
    const QFont &baseFont() const;

    /// Tells whether no theme has been applied to the application.
    bool isEmpty() const;

    /// Registers the fonts "*.ttf" in \a folder with the application.
    void addFonts(const QString &folder);
    /// Does so, and removes all other fonts that were added. A font that was there before, byte for
    /// byte, is there all the time.
    void replaceFonts(const QString &folder);

    /// Has theme icons looked up in the icon themes below \a folder.
    void addIconThemes(const QString &folder);
    /// Returns the path by which the folder of images \a folder of the theme \a name is to be
    /// looked into: of itself, or of one that lacks what must not be read. Both end with a slash.
    QString addImages(const QString &folder, const QString &name);
    /// Has icons that an icon theme lacks looked up in \a folder.
    void addFallbackIcons(const QString &folder);
    /// Registers the resource files "*.rcc" in \a folder that are sound. In the complete mode their
    /// files have to lie where the theme \a name may have some.
    void addResourceFiles(const QString &folder, const QString &name);
    /// Appends \a folder to the search paths of the prefix \a prefix.
    void addSearchPath(const QString &prefix, const QString &folder);
    /// Removes whatever was added but for the fonts. What the application added itself stays.
    /// Whoever adds the images of a theme next does so at once: in between there are none.
    void takeBackImages();

private:
    explicit ThemeFootprint(QApplication &app);

    QPalette m_basePalette;
    QFont m_baseFont;
    AddedFonts m_fonts;
    bool m_isEmpty = true;
};

} // namespace TARN
