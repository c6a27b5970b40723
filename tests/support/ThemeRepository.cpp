#include "support/ThemeRepository.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

QByteArray ThemeConfiguration::toXml() const
{
    return "<Config><Factors>" + factors + "</Factors><Palette><ColorsList>" + colors +
           "</ColorsList><BrushesList>" + brushes + "</BrushesList></Palette><Font>" + font +
           "</Font><Opacities>" + opacities + "</Opacities><CornerRadius>" + cornerRadii +
           "</CornerRadius></Config>";
}

QString ThemeRepository::write(const QString &relativePath, const QByteArray &content) const
{
    QString filePath = path(relativePath);
    QDir().mkpath(QFileInfo(filePath).absolutePath());
    QFile file(filePath);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("The test can't write %s", qPrintable(filePath));
    }
    return filePath;
}

QString ThemeRepository::makeFolder(const QString &relativePath) const
{
    QDir().mkpath(path(relativePath));
    return path(relativePath);
}

QString ThemeRepository::addTheme(const QString &name, const ThemeConfiguration &configuration,
                                  const QByteArray &paletteRoles) const
{
    write(name + QLatin1String("/theme.xml"), "<theme><name>" + name.toUtf8() + "</name></theme>");
    write(name + QLatin1String("/config.xml"), configuration.toXml());
    write(name + QLatin1String("/qpaletteMapping.xml"),
          "<QPalette>" + paletteRoles + "</QPalette>");
    return path(name);
}

QByteArray paletteRole(const QByteArray &role, const QByteArray &value, const QByteArray &group)
{
    return "<ColorRole role=\"" + role + "\"><ColorGroup group=\"" + group + "\">" + value +
           "</ColorGroup></ColorRole>";
}
