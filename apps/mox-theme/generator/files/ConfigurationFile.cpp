#include "generator/files/ConfigurationFile.h"

#include "color/ColorText.h"
#include "generator/files/Sections.h"
#include "text/Literals.h"

#include <readers/ConfigurationTags.h>

#include <QtCore/QLocale>

namespace TARN::ThemeTool {

namespace {

QStringList sizeTags()
{
    return {SmallSizeTag, BaseSizeTag, MediumSizeTag, LargeSizeTag};
}

void writeSizes(XmlLayout &xml, const std::array<int, 4> &sizes)
{
    const QStringList tags = sizeTags();
    for (int i = 0; i < tags.size(); ++i) {
        xml.element(tags.at(i), QString::number(sizes.at(static_cast<std::size_t>(i))));
    }
}

void writeHead(XmlLayout &xml, const ThemeDefinition &definition)
{
    xml.commentBlock(
        {"%1: %2"_s.arg(definition.name, definition.description),
         "Colours are literal, brushes name a colour. While a widget is disabled, the style "
         R"(paints with XDisabled in place of X. No name begins with "Disabled": those are )"
         "reserved for the entries that the library derives itself from the factors below."_s,
         "Written by mox-theme, which replaces the whole folder when it makes the theme again: "
         "what is to stay belongs in the theme's token file."_s});
}

void writeFactors(XmlLayout &xml, const ThemeDefinition &definition)
{
    xml.comment("Percentages by which light colours darken and dark ones lighten in the "
                "palette's disabled group. All shipped themes share them, for a process may keep "
                "those of its first theme."_s);
    xml.open(FactorsRootTag);
    for (const auto &factor : definition.factors) {
        xml.element(FactorTag, QString::number(factor.second), {{NameAttribute, factor.first}});
    }
    xml.close();
}

void writePalette(XmlLayout &xml, const ThemeDefinition &definition)
{
    xml.open(PaletteRootTag);
    xml.open(ColorsListTag);
    writeSections(xml, definition.colors, [&xml](const QVector<ColorEntry> &entries) {
        for (const ColorEntry &entry : entries) {
            xml.element(ColorTag, colorText(entry.color), {{NameAttribute, entry.name}});
        }
    });
    xml.close();
    xml.gap();
    xml.open(BrushesListTag);
    writeSections(xml, definition.brushes, [&xml](const QVector<BrushEntry> &entries) {
        for (const BrushEntry &entry : entries) {
            xml.element(SolidBrushTag, entry.color, {{NameAttribute, entry.name}});
        }
    });
    xml.close();
    xml.close();
}

void writeFont(XmlLayout &xml, const FontTokens &font)
{
    xml.comment("Point sizes: captions, widgets, titles of cards, titles of pages."_s);
    xml.open(FontRootTag);
    xml.element(FontFamilyTag, font.family);
    xml.element(FontWeightTag, font.weight);
    writeSizes(xml, font.sizes);
    xml.close();
}

void writeOpacities(XmlLayout &xml, const ThemeDefinition &definition)
{
    xml.open(OpacitiesRootTag);
    for (const auto &opacity : definition.opacities) {
        xml.element(OpacityTag,
                    QString::number(opacity.second, 'g', QLocale::FloatingPointShortest),
                    {{NameAttribute, opacity.first}});
    }
    xml.close();
}

void writeCornerRadii(XmlLayout &xml, const ThemeDefinition &definition)
{
    xml.comment("Pixels: fields inside inputs, buttons and inputs, cards and tabs, large tabs."_s);
    xml.open(CornerRadiusRootTag);
    writeSizes(xml, definition.cornerRadii);
    xml.close();
}

} // namespace

QByteArray configurationFile(const ThemeDefinition &definition)
{
    XmlLayout xml;
    writeHead(xml, definition);
    xml.open(ConfigRootTag);
    writeFactors(xml, definition);
    xml.gap();
    writePalette(xml, definition);
    xml.gap();
    writeFont(xml, definition.font);
    xml.gap();
    writeOpacities(xml, definition);
    xml.gap();
    writeCornerRadii(xml, definition);
    xml.close();
    return xml.toUtf8();
}

} // namespace TARN::ThemeTool
