#pragma once

#include <QtCore/QString>
#include <QtCore/QTemporaryDir>

/// The shipped theme "Dark", with a configuration file of the size that a theme of a large
/// application has: 300 colours and 1,500 brushes.
class RealisticTheme
{
public:
    RealisticTheme();

    QString directory() const { return m_directory.path(); }
    QString configurationFile() const { return m_directory.filePath(QStringLiteral("config.xml")); }

private:
    QTemporaryDir m_directory;
};
