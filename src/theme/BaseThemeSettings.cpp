#include "theme/BaseThemeSettings.h"

#include "readers/xml/XmlFile.h"

namespace TARN {

namespace {
const QString ThemeRootTag = QStringLiteral("theme");
const QString ThemeNameTag = QStringLiteral("name");
} // namespace

BaseThemeSettings::BaseThemeSettings(const QString &path)
    : m_status(readXmlFile(path, m_document))
{
    // A truncated file still names its theme when the name stands before the break.
    m_root = m_document.firstChildElement(ThemeRootTag);
}

QString BaseThemeSettings::getName() const
{
    return m_root.firstChildElement(ThemeNameTag).text();
}

int BaseThemeSettings::getStatus() const
{
    return m_status;
}

} // namespace TARN
