#pragma once

#include <QtCore/QMap>
#include <QtCore/QObject>
#include <QtCore/QStringList>
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
    /// application looks like without a theme.
    static ThemeFootprint &of(QApplication &app);

    /// Returns the palette that the application has without a theme.
    const QPalette &basePalette() const;
    /// Returns the font that the application has without a theme.
    const QFont &baseFont() const;

    /// Tells whether no theme has been applied, or all of them were taken back.
    bool isEmpty() const;

    /// Registers the fonts "*.ttf" in \a folder with the application.
    void addFonts(const QString &folder);
    /// Has every font be looked up anew: what was missing when it was asked for may be there now.
    void forgetFontLookUps() const;
    /// Has theme icons looked up in the icon themes below \a folder, of which \a name is current.
    void addIconTheme(const QString &folder, const QString &name);
    /// Has icons that an icon theme lacks looked up in \a folder.
    void addFallbackIcons(const QString &folder);
    /// Registers the resource files "*.rcc" in \a folder.
    void addResourceFiles(const QString &folder);
    /// Appends \a folder to the search paths of the prefix \a prefix.
    void addSearchPath(const QString &prefix, const QString &folder);

    /// Removes whatever was added, and the disabled factors. What the application added itself
    /// stays.
    void takeBack();

private:
    explicit ThemeFootprint(QApplication &app);

    QApplication &m_app;
    QPalette m_basePalette;
    QFont m_baseFont;
    QMap<int, QString> m_fonts; ///< files by the ids that they are registered under
    QStringList m_resourceFiles;
    QStringList m_iconThemeFolders;
    QStringList m_fallbackIconFolders;
    QMap<QString, QStringList> m_searchPaths;
};

} // namespace TARN
