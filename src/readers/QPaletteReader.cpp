#include "readers/QPaletteReader.h"

#include "readers/xml/XmlFile.h"

#include <QtCore/QMetaEnum>
#include <QtXml/QDomDocument>
#include <QtXml/QDomElement>

#include <optional>

namespace TARN {

namespace {

const QString QPaletteRootTag = QStringLiteral("QPalette");
const QString ColorRoleTag = QStringLiteral("ColorRole");
const QString ColorRoleAttribute = QStringLiteral("role");
const QString ColorGroupTag = QStringLiteral("ColorGroup");
const QString ColorGroupAttribute = QStringLiteral("group");

/// How opaque every highlight is, whatever the file says.
constexpr double highlightOpacity = 0.6;

/// Returns the value of the key \a key in an enumeration of the palette's.
template <typename Enum>
std::optional<Enum> enumValue(const QString &key)
{
    bool ok = false;
    const int value = QMetaEnum::fromType<Enum>().keyToValue(key.toUtf8().constData(), &ok);
    return ok ? std::make_optional(static_cast<Enum>(value)) : std::nullopt;
}

/// Returns the brush that \a text refers to ("@MainBrush") or spells out ("#ff0000").
std::optional<QBrush> parseBrush(const QString &text, const QMap<QString, QBrush> &brushes,
                                 const QMap<QString, QColor> &colors)
{
    if (text.startsWith(QLatin1Char('@'))) {
        const QString name = text.mid(1);
        if (brushes.contains(name)) {
            return brushes.value(name);
        }
        return colors.contains(name) ? std::make_optional<QBrush>(colors.value(name))
                                     : std::nullopt;
    }
    QColor color;
    color.setNamedColor(text);
    return color.isValid() ? std::make_optional<QBrush>(color) : std::nullopt;
}

/// Sets a brush of \a palette. The enumeration's count is a key like any other, but no role.
void setRole(QPalette &palette, QPalette::ColorGroup group, QPalette::ColorRole role,
             const QBrush &brush)
{
    if (role < QPalette::NColorRoles) {
        palette.setBrush(group, role, brush);
    }
}

void makeTranslucent(QBrush &brush)
{
    QColor color = brush.color();
    color.setAlphaF(highlightOpacity);
    brush.setColor(color);
}

} // namespace

QPaletteReader::QPaletteReader(const QString &path, const QMap<QString, QBrush> &brushes,
                               const QMap<QString, QColor> &colors, const QPalette &basePalette)
    : m_palette(basePalette)
{
    QDomDocument document;
    m_status = readXmlFile(path, document);
    if (m_status != ReadFine) {
        return;
    }
    const QDomElement root = document.firstChildElement(QPaletteRootTag);
    if (!loadPalette(root, brushes, colors)) {
        m_status = Faulty;
    }
}

int QPaletteReader::getStatus() const
{
    return m_status;
}

QPalette QPaletteReader::deserialize() const
{
    return m_palette;
}

bool QPaletteReader::loadPalette(const QDomElement &root, const QMap<QString, QBrush> &brushes,
                                 const QMap<QString, QColor> &colors)
{
    bool fine = true;
    for (QDomElement role = root.firstChildElement(ColorRoleTag); !role.isNull();
         role = role.nextSiblingElement(ColorRoleTag)) {
        fine = loadPaletteRole(role, brushes, colors) && fine;
    }
    return fine;
}

bool QPaletteReader::loadPaletteRole(const QDomElement &roleElement,
                                     const QMap<QString, QBrush> &brushes,
                                     const QMap<QString, QColor> &colors)
{
    const auto role = enumValue<QPalette::ColorRole>(roleElement.attribute(ColorRoleAttribute));
    if (!role) {
        return false;
    }
    for (QDomElement element = roleElement.firstChildElement(ColorGroupTag); !element.isNull();
         element = element.nextSiblingElement(ColorGroupTag)) {
        const auto group = enumValue<QPalette::ColorGroup>(element.attribute(ColorGroupAttribute));
        auto brush = parseBrush(element.text(), brushes, colors);
        if (!group || !brush) {
            return false;
        }
        if (*role == QPalette::Highlight) {
            makeTranslucent(*brush);
        }
        setRole(m_palette, *group, *role, *brush);
    }
    return true;
}

} // namespace TARN
