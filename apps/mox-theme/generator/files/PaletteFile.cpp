#include "generator/files/PaletteFile.h"

#include "generator/files/Sections.h"
#include "text/Literals.h"

namespace TARN::ThemeTool {

namespace {

/// Writes \a entries, those of one role that follow each other in one element.
void writeRoles(XmlLayout &xml, const QVector<PaletteEntry> &entries)
{
    QString openRole;
    for (const PaletteEntry &entry : entries) {
        if (entry.role != openRole) {
            if (!openRole.isEmpty()) {
                xml.close();
            }
            xml.open("ColorRole"_s, {{"role"_s, entry.role}});
            openRole = entry.role;
        }
        xml.element("ColorGroup"_s, "@"_s + entry.color, {{"group"_s, entry.group}});
    }
    if (!openRole.isEmpty()) {
        xml.close();
    }
}

} // namespace

QByteArray paletteFile(const ThemeDefinition &definition)
{
    XmlLayout xml;
    xml.comment(
        "The colours of config.xml as palette roles; disabled ones are derived from these."_s);
    xml.open("QPalette"_s);
    writeSections(xml, definition.palette,
                  [&xml](const QVector<PaletteEntry> &entries) { writeRoles(xml, entries); });
    xml.close();
    return xml.toUtf8();
}

} // namespace TARN::ThemeTool
