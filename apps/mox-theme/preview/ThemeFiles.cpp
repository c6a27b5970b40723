#include "preview/ThemeFiles.h"

#include "text/Literals.h"

#include <readers/QPaletteReader.h>
#include <readers/ThemeConfiguration.h>
#include <theme/BaseThemeSettings.h>

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QXmlStreamReader>

namespace TARN::ThemeTool {

namespace {

// The readers tell that a file is faulty, but not where.
QString faultOf(const QString &path)
{
    const QString name = QFileInfo(path).fileName();
    if (!QFileInfo::exists(path)) {
        return name + " is missing"_s;
    }
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        return name + " cannot be opened"_s;
    }
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        xml.readNext();
    }
    if (xml.hasError()) {
        return name + ", line "_s + QString::number(xml.lineNumber()) + ": "_s +
               xml.errorString().simplified();
    }
    return name + " holds an entry that cannot be read"_s;
}

} // namespace

QString unappliableTheme(const QString &directory)
{
    const QString description = directory + "/theme.xml"_s;
    if (BaseThemeSettings(description).getStatus() != 0) {
        return faultOf(description);
    }
    const QString configurationPath = directory + "/config.xml"_s;
    const ThemeConfiguration configuration = readConfiguration(configurationPath);
    if (configuration.status != ReadFine) {
        return faultOf(configurationPath);
    }
    const QString mappingPath = directory + "/qpaletteMapping.xml"_s;
    const QPaletteReader mapping(mappingPath, configuration.brushes, configuration.colors,
                                 QPalette());
    return mapping.getStatus() != 0 ? faultOf(mappingPath) : QString();
}

} // namespace TARN::ThemeTool
