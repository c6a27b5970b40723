#include "readers/ThemeConfiguration.h"

#include "readers/BrushReader.h"
#include "readers/ConfigurationTags.h"
#include "readers/ElementText.h"
#include "readers/ThemeConfigurationReader.h"
#include "resources/DisabledFactors.h"

#include <QtCore/QStringBuilder>
#include <QtXml/QDomDocument>
#include <QtXml/QDomElement>

#include <algorithm>
#include <iterator>

namespace TARN {

namespace {

/// Calls \a readEntry for the children \a tag of \a list, for all children when \a tag is null,
/// up to the first faulty entry: what follows it would be read on false assumptions. Returns
/// whether there was none.
template <typename ReadEntry>
bool readList(const QDomElement &list, const QString &tag, ReadEntry readEntry)
{
    for (QDomElement entry = list.firstChildElement(tag); !entry.isNull();
         entry = entry.nextSiblingElement(tag)) {
        if (!readEntry(entry)) {
            return false;
        }
    }
    return true;
}

/// Adds \a value to \a values under \a name. Returns false, and adds nothing, when the name is
/// empty or taken.
template <typename T>
bool insertUnique(QMap<QString, T> &values, const QString &name, const T &value)
{
    const auto next = qAsConst(values).lowerBound(name);
    const bool taken = next != values.cend() && next.key() == name;
    if (name.isEmpty() || taken) {
        return false;
    }
    values.insert(next, name, value);
    return true;
}

const QString disabledPrefix = QStringLiteral("Disabled");

/// Adds the colour or brush \a value of \a element to \a values, and to \a internalValues when it
/// is marked so. Returns false, and adds nothing, when the name is empty or taken, be it by the
/// disabled variant of an earlier entry.
template <typename T>
bool insertEntry(QMap<QString, T> &values, QMap<QString, T> &internalValues,
                 const QDomElement &element, const T &value)
{
    const QString name = element.attribute(NameAttribute);
    const bool namesVariant =
        name.startsWith(disabledPrefix) && values.contains(name.mid(disabledPrefix.size()));
    if (namesVariant || !insertUnique(values, name, value)) {
        return false;
    }
    if (element.attribute(InternalAttribute) == QLatin1String("true")) {
        internalValues.insert(name, value);
    }
    return true;
}

/// Adds the disabled variant of every entry to \a values and to \a internalValues, in place of an
/// entry of that name. All at once, since the variants are sorted as their entries are and need
/// not be searched for.
template <typename T, typename Disable>
void insertDisabledVariants(QMap<QString, T> &values, QMap<QString, T> &internalValues,
                            Disable disable)
{
    QMap<QString, T> variants;
    for (auto it = values.cbegin(); it != values.cend(); ++it) {
        variants.insert(variants.cend(), disabledPrefix % it.key(), disable(it.key(), it.value()));
    }
    auto position = qAsConst(values).lowerBound(disabledPrefix);
    for (auto it = variants.cbegin(); it != variants.cend(); ++it) {
        position = values.insert(position, it.key(), it.value());
        ++position;
    }
    for (auto it = internalValues.cbegin(); it != internalValues.cend(); ++it) {
        insertUnique(variants, it.key(), it.value());
    }
    internalValues = variants;
}

/// Tells whether the entry \a name is the colour of a text or an icon.
bool isForeground(const QString &name)
{
    return name.contains(QStringLiteral("Foreground"));
}

int fontWeight(const QString &text)
{
    static const QMap<QString, int> weights{
        {QStringLiteral("Thin"), QFont::Thin},
        {QStringLiteral("ExtraLight"), QFont::ExtraLight},
        {QStringLiteral("Light"), QFont::Light},
        {QStringLiteral("Normal"), QFont::Normal},
        {QStringLiteral("Medium"), QFont::Medium},
        {QStringLiteral("DemiBold"), QFont::DemiBold},
        {QStringLiteral("Bold"), QFont::Bold},
        {QStringLiteral("ExtraBold"), QFont::ExtraBold},
        {QStringLiteral("Black"), QFont::Black},
    };
    return weights.value(text, QFont::Normal);
}

} // namespace

/// Reads the sections of a configuration file. Each of the readers is given the section's element,
/// which may be null, and returns whether it was read without fault.
class ConfigurationSections
{
public:
    explicit ConfigurationSections(ThemeConfiguration &result)
        : m_result(result)
    {
    }

    bool readDisabledFactors(const QDomElement &section);
    bool readPalette(const QDomElement &section, const DisableColor &disable);
    bool readFonts(const QDomElement &section);
    bool readOpacities(const QDomElement &section);
    bool readCornerRadius(const QDomElement &section);

private:
    bool readColors(const QDomElement &list, const DisableColor &disable);
    bool readBrushes(const QDomElement &list, const DisableColor &disable);
    bool readFont(const QDomElement &section, const QString &sizeTag, const QString &family,
                  ThemeFont::ThemeFontId id);

    ThemeConfiguration &m_result;
};

bool ConfigurationSections::readDisabledFactors(const QDomElement &section)
{
    return readList(section, FactorTag, [this](const QDomElement &element) {
        return insertUnique(m_result.disabledFactors, element.attribute(NameAttribute),
                            element.text().toInt());
    });
}

bool ConfigurationSections::readPalette(const QDomElement &section, const DisableColor &disable)
{
    const bool colorsFine = readColors(section.firstChildElement(ColorsListTag), disable);
    const bool brushesFine = readBrushes(section.firstChildElement(BrushesListTag), disable);
    return colorsFine && brushesFine;
}

bool ConfigurationSections::readColors(const QDomElement &list, const DisableColor &disable)
{
    const bool fine = readList(list, ColorTag, [this](const QDomElement &element) {
        QColor color;
        color.setNamedColor(elementText(element));
        return color.isValid() &&
               insertEntry(m_result.colors, m_result.internalColors, element, color);
    });
    insertDisabledVariants(m_result.colors, m_result.internalColors,
                           [&disable](const QString &name, const QColor &color) {
                               return disable(color, isForeground(name));
                           });
    return fine;
}

bool ConfigurationSections::readBrushes(const QDomElement &list, const DisableColor &disable)
{
    const bool fine = readList(list, QString(), [this](const QDomElement &element) {
        const BrushReader *reader =
            ThemeConfigurationReader::s_brushReaders.value(element.tagName());
        bool ok = false;
        const QBrush brush = reader ? reader->readBrush(element, m_result.colors, ok) : QBrush();
        return ok && insertEntry(m_result.brushes, m_result.internalBrushes, element, brush);
    });
    // A gradient has one disabled variant like every other brush, and it is plain.
    insertDisabledVariants(m_result.brushes, m_result.internalBrushes,
                           [&disable](const QString &name, const QBrush &brush) {
                               return QBrush(disable(brush.color(), isForeground(name)));
                           });
    return fine;
}

bool ConfigurationSections::readFonts(const QDomElement &section)
{
    const QDomElement familyElement = section.firstChildElement(FontFamilyTag);
    if (familyElement.isNull()) {
        return false;
    }
    const QString family = familyElement.text();
    return readFont(section, SmallSizeTag, family, ThemeFont::Small) &&
           readFont(section, BaseSizeTag, family, ThemeFont::Base) &&
           readFont(section, MediumSizeTag, family, ThemeFont::Medium) &&
           readFont(section, LargeSizeTag, family, ThemeFont::Large);
}

bool ConfigurationSections::readFont(const QDomElement &section, const QString &sizeTag,
                                     const QString &family, ThemeFont::ThemeFontId id)
{
    bool ok = false;
    const int size = section.firstChildElement(sizeTag).text().toInt(&ok);
    if (ok) {
        const int weight = fontWeight(section.firstChildElement(FontWeightTag).text());
        m_result.font.setFont(id, QFont(family, size, weight, false));
    }
    return ok;
}

bool ConfigurationSections::readOpacities(const QDomElement &section)
{
    return readList(section, OpacityTag, [this](const QDomElement &element) {
        return insertUnique(m_result.opacities, element.attribute(NameAttribute),
                            element.text().toDouble());
    });
}

bool ConfigurationSections::readCornerRadius(const QDomElement &section)
{
    const auto readSize = [this, &section](const QString &tag, const QDomElement &required) {
        if (required.isNull()) {
            return false;
        }
        m_result.cornerRadii.insert(tag, section.firstChildElement(tag).text().toInt());
        return true;
    };
    // "MediumSize" may be left out of a section, for 0.
    return readSize(SmallSizeTag, section.firstChildElement(SmallSizeTag)) &&
           readSize(BaseSizeTag, section.firstChildElement(BaseSizeTag)) &&
           readSize(MediumSizeTag, section) &&
           readSize(LargeSizeTag, section.firstChildElement(LargeSizeTag));
}

DisableColor disablingBy(const QMap<QString, int> &factors)
{
    const auto kept =
        DisabledFactors::from([&factors](const QString &name) { return factors.value(name); });
    return [kept](const QColor &color, bool foreground) {
        return disabledColor(color, foreground, kept);
    };
}

ThemeConfiguration readConfiguration(const QString &path, const ChooseDisabling &chooseDisabling,
                                     const QFont &defaultFont)
{
    ThemeConfiguration result;
    result.font = ThemeFont(defaultFont);
    QDomDocument document;
    result.status = readXmlFile(path, document);
    if (result.status != ReadFine) {
        return result;
    }
    const QDomElement root = document.firstChildElement(ConfigRootTag);
    ConfigurationSections sections(result);
    // The factors come first: the disabled colours that the palette derives depend on them.
    const bool factorsFine = sections.readDisabledFactors(root.firstChildElement(FactorsRootTag));
    const DisableColor disable = chooseDisabling(result.disabledFactors);
    const bool sectionsFine[] = {
        factorsFine,
        sections.readPalette(root.firstChildElement(PaletteRootTag), disable),
        sections.readFonts(root.firstChildElement(FontRootTag)),
        sections.readOpacities(root.firstChildElement(OpacitiesRootTag)),
        sections.readCornerRadius(root.firstChildElement(CornerRadiusRootTag)),
    };
    const auto isFine = [](bool sectionFine) { return sectionFine; };
    if (!std::all_of(std::begin(sectionsFine), std::end(sectionsFine), isFine)) {
        result.status = Faulty;
    }
    return result;
}

} // namespace TARN
