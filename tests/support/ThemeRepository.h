#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QTemporaryDir>

/// What a test theme's configuration file holds; each text is the content of a section.
struct ThemeConfiguration
{
    QByteArray factors;
    QByteArray colors;
    QByteArray brushes;
    QByteArray font = "<Family>DejaVu Sans</Family><SmallSize>8</SmallSize><BaseSize>9</BaseSize>"
                      "<MediumSize>10</MediumSize><LargeSize>12</LargeSize>";
    QByteArray opacities;
    QByteArray cornerRadii = "<SmallSize>2</SmallSize><BaseSize>4</BaseSize>"
                             "<MediumSize>6</MediumSize><LargeSize>8</LargeSize>";

    /// Returns the whole file.
    QByteArray toXml() const;
};

/// A theme repository in a temporary directory.
class ThemeRepository
{
public:
    QString path() const { return m_directory.path(); }
    /// Returns the path of \a relativePath in the repository.
    QString path(const QString &relativePath) const { return m_directory.filePath(relativePath); }

    /// Writes \a content to the file \a relativePath, whose folders are made as needed. Returns
    /// its path.
    QString write(const QString &relativePath, const QByteArray &content) const;

    /// Makes the folder \a relativePath. Returns its path.
    QString makeFolder(const QString &relativePath) const;

    /// Writes a theme of the directory and display name \a name. Returns its directory.
    QString addTheme(const QString &name, const ThemeConfiguration &configuration = {},
                     const QByteArray &paletteRoles = {}) const;

private:
    QTemporaryDir m_directory;
};

/// Returns a palette role element that sets \a role to \a value in all groups.
QByteArray paletteRole(const QByteArray &role, const QByteArray &value,
                       const QByteArray &group = "All");
