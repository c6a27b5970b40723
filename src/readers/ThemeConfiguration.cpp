#include "readers/ThemeConfigurationReader.h"

#include "readers/ConfigurationTags.h"
#include "readers/ElementText.h"
#include "readers/LinearGradientBrushReader.h"
#include "readers/SolidBrushReader.h"
#include "readers/xml/XmlFile.h"
#include "resources/ThemeColorHelper.h"
#include "resources/ThemeResources.h"
#include "resources/variables/VariantMap.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QStringBuilder>
#include <QtXml/QDomElement>

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

/// Returns the disabled variant of the colour of the entry \a name.
QColor disabledColor(const QString &name, const QColor &color)
{
    return ThemeColorHelper::disabled(color, name.contains(QStringLiteral("Foreground")));
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

void publishDisabledFactors(const QMap<QString, int> &factors)
{
    QCoreApplication *app = QCoreApplication::instance();
    if (!app) {
        return;
    }
    const QVariantMap variables{
        {ThemeResources::getDisabledFactorsVarPrefix(), fillQVariantMap(factors)}};
    app->setProperty(ThemeResources::getInternalThemeVariablePropertyName(), variables);
}

} // namespace

// The readers live as long as the process; there is nothing to gain from deleting them at its end.
QMap<QString, BrushReader *> ThemeConfigurationReader::s_brushReaders{
    {SolidBrushTag, new SolidBrushReader},
    {LinearGradientBrushTag, new LinearGradientBrushReader},
};

ThemeConfigurationReader::ThemeConfigurationReader(const QString &path)
{
    m_status = readXmlFile(path, m_document);
    if (m_status != ReadFine) {
        return;
    }
    const QDomElement root = m_document.firstChildElement(ConfigRootTag);
    // The factors come first: the disabled colours that the palette derives depend on them.
    const bool sectionsFine[] = {
        readDisabledFactors(root.firstChildElement(FactorsRootTag)),
        readPalette(root.firstChildElement(PaletteRootTag)),
        readFonts(root.firstChildElement(FontRootTag)),
        readOpacities(root.firstChildElement(OpacitiesRootTag)),
        readCornerRadius(root.firstChildElement(CornerRadiusRootTag)),
    };
    for (const bool sectionFine : sectionsFine) {
        if (!sectionFine) {
            m_status = Faulty;
        }
    }
}

int ThemeConfigurationReader::getStatus() const
{
    return m_status;
}

const QMap<QString, QColor> &ThemeConfigurationReader::getColorsMap() const
{
    return m_colors;
}

const QMap<QString, QColor> &ThemeConfigurationReader::getInternalColorsMap() const
{
    return m_internalColors;
}

const QMap<QString, QBrush> &ThemeConfigurationReader::getBrushesMap() const
{
    return m_brushes;
}

const QMap<QString, QBrush> &ThemeConfigurationReader::getInternalBrushesMap() const
{
    return m_internalBrushes;
}

const QMap<QString, double> &ThemeConfigurationReader::getOpacitiesMap() const
{
    return m_opacities;
}

const QMap<QString, int> &ThemeConfigurationReader::getCornerRadiusMap() const
{
    return m_cornerRadii;
}

const QMap<QString, int> &ThemeConfigurationReader::getDisabledFactorsMap() const
{
    return m_disabledFactors;
}

ThemeFont ThemeConfigurationReader::getFont() const
{
    return m_font;
}

bool ThemeConfigurationReader::readDisabledFactors(const QDomElement &section)
{
    const bool fine = readList(section, FactorTag, [this](const QDomElement &element) {
        return insertUnique(m_disabledFactors, element.attribute(NameAttribute),
                            element.text().toInt());
    });
    publishDisabledFactors(m_disabledFactors);
    return fine;
}

bool ThemeConfigurationReader::readPalette(const QDomElement &section)
{
    const bool colorsFine = readColors(section.firstChildElement(ColorsListTag));
    const bool brushesFine = readBrushes(section.firstChildElement(BrushesListTag));
    return colorsFine && brushesFine;
}

bool ThemeConfigurationReader::readColors(const QDomElement &list)
{
    const bool fine = readList(list, ColorTag, [this](const QDomElement &element) {
        QColor color;
        color.setNamedColor(elementText(element));
        return color.isValid() && insertEntry(m_colors, m_internalColors, element, color);
    });
    insertDisabledVariants(m_colors, m_internalColors, disabledColor);
    return fine;
}

bool ThemeConfigurationReader::readBrushes(const QDomElement &list)
{
    const bool fine = readList(list, QString(), [this](const QDomElement &element) {
        const BrushReader *reader = s_brushReaders.value(element.tagName());
        bool ok = false;
        const QBrush brush = reader ? reader->readBrush(element, m_colors, ok) : QBrush();
        return ok && insertEntry(m_brushes, m_internalBrushes, element, brush);
    });
    // A gradient has one disabled variant like every other brush, and it is plain.
    insertDisabledVariants(m_brushes, m_internalBrushes,
                           [](const QString &name, const QBrush &brush) {
                               return QBrush(disabledColor(name, brush.color()));
                           });
    return fine;
}

bool ThemeConfigurationReader::readFonts(const QDomElement &section)
{
    const QDomElement familyElement = section.firstChildElement(FontFamilyTag);
    if (familyElement.isNull()) {
        return false;
    }
    const QString family = familyElement.text();
    return readFont(section, SmallSizeTag, family, ThemeFont::Small, m_font) &&
           readFont(section, BaseSizeTag, family, ThemeFont::Base, m_font) &&
           readFont(section, MediumSizeTag, family, ThemeFont::Medium, m_font) &&
           readFont(section, LargeSizeTag, family, ThemeFont::Large, m_font);
}

bool ThemeConfigurationReader::readFont(const QDomElement &section, const QString &sizeTag,
                                        const QString &family, ThemeFont::ThemeFontId id,
                                        ThemeFont &font)
{
    bool ok = false;
    const int size = section.firstChildElement(sizeTag).text().toInt(&ok);
    if (ok) {
        const int weight = fontWeight(section.firstChildElement(FontWeightTag).text());
        font.setFont(id, QFont(family, size, weight, false));
    }
    return ok;
}

bool ThemeConfigurationReader::readOpacities(const QDomElement &section)
{
    return readList(section, OpacityTag, [this](const QDomElement &element) {
        return insertUnique(m_opacities, element.attribute(NameAttribute),
                            element.text().toDouble());
    });
}

bool ThemeConfigurationReader::readCornerRadius(const QDomElement &section)
{
    const auto readSize = [this, &section](const QString &tag, const QDomElement &required) {
        if (required.isNull()) {
            return false;
        }
        m_cornerRadii.insert(tag, section.firstChildElement(tag).text().toInt());
        return true;
    };
    // "MediumSize" may be left out of a section, for 0.
    return readSize(SmallSizeTag, section.firstChildElement(SmallSizeTag)) &&
           readSize(BaseSizeTag, section.firstChildElement(BaseSizeTag)) &&
           readSize(MediumSizeTag, section) &&
           readSize(LargeSizeTag, section.firstChildElement(LargeSizeTag));
}

} // namespace TARN
