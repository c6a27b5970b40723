#include "theme/BaseThemeSettings.h"

#include "readers/xml/XmlFile.h"

#include <QtXml/QDomDocument>

namespace TARN {

namespace {
const QString ThemeRootTag = QStringLiteral("theme");
const QString ThemeNameTag = QStringLiteral("name");
} // namespace

BaseThemeSettings::BaseThemeSettings(const QString &path)
{
    QDomDocument document;
    m_status = readXmlFile(path, document);
    // A truncated file still names its theme when the name stands before the break.
    m_name = document.firstChildElement(ThemeRootTag).firstChildElement(ThemeNameTag).text();
}

QString BaseThemeSettings::getName() const
{
    return m_name;
}

int BaseThemeSettings::getStatus() const
{
    return m_status;
}

} // namespace TARN
