#pragma once

#include <readers/ThemeConfigurationReader.h>

#include <support/ThemeRepository.h>

/// A configuration file that is written and read.
class ConfigurationFile
{
public:
    /// Returns the path of a file that says \a configuration.
    QString write(const ThemeConfiguration &configuration) const
    {
        return m_files.write(QStringLiteral("config.xml"), configuration.toXml());
    }

    /// Returns the path of the file \a name beside the configuration file.
    QString path(const QString &name) const { return m_files.path(name); }

    TARN::ThemeConfigurationReader readText(const QByteArray &content) const
    {
        return TARN::ThemeConfigurationReader(m_files.write(QStringLiteral("config.xml"), content));
    }

    TARN::ThemeConfigurationReader read(const ThemeConfiguration &configuration) const
    {
        return readText(configuration.toXml());
    }

private:
    ThemeRepository m_files;
};
