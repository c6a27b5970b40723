#include "PropertyReference.h"

#include "Markdown.h"

#include <catalogue/Properties.h>

#include <algorithm>

namespace TARN::Reference {

namespace {

QString typeText(PropertyType type)
{
    switch (type) {
    case PropertyType::Bool:
        break;
    case PropertyType::Int:
        return QStringLiteral("int");
    case PropertyType::Number:
        return QStringLiteral("double");
    case PropertyType::Text:
        return QStringLiteral("text");
    case PropertyType::Alignment:
        return code(QStringLiteral("Qt::Alignment")) + QStringLiteral(" or int");
    case PropertyType::Shape:
        return code(QStringLiteral("QFrame::Shape"));
    case PropertyType::Brush:
        return code(QStringLiteral("QBrush"));
    case PropertyType::Color:
        return code(QStringLiteral("QColor"));
    case PropertyType::ColorList:
        return code(QStringLiteral("QList<QColor>"));
    case PropertyType::Font:
        return code(QStringLiteral("QFont"));
    case PropertyType::Icon:
        return code(QStringLiteral("QIcon"));
    case PropertyType::Pixmap:
        return code(QStringLiteral("QPixmap"));
    case PropertyType::Map:
        return code(QStringLiteral("QVariantMap"));
    }
    return {};
}

bool haveSameText(const PropertyRow &left, const PropertyRow &right)
{
    return left.type == right.type && left.use == right.use &&
           qstrcmp(left.bearer, right.bearer) == 0 && qstrcmp(left.meaning, right.meaning) == 0;
}

/// Tells whether the heading says already what the properties are set on.
bool isToldByHeading(const PropertySection &section)
{
    return std::all_of(section.rows.cbegin(), section.rows.cend(), [&](const PropertyRow &row) {
        return qstricmp(row.bearer, section.heading) == 0;
    });
}

/// Returns the cell that names the properties, all of one type and use.
QString namesText(QStringList names, const PropertyRow &row)
{
    QString text = names.join(QStringLiteral(", "));
    if (row.use == PropertyUse::Preset) {
        text += QStringLiteral(" *");
    }
    const QString type = typeText(row.type);
    return type.isEmpty() ? text : text + QStringLiteral(" (") + type + QLatin1Char(')');
}

/// Returns the table of a section. Neighbours that differ in nothing but their names share a row.
QString table(const PropertySection &section)
{
    const bool tellsBearer = !isToldByHeading(section);
    QStringList titles{QStringLiteral("property"), QStringLiteral("what it does")};
    if (tellsBearer) {
        titles.insert(1, QStringLiteral("on"));
    }
    QString text = tableHead(titles);
    QStringList names;
    for (int i = 0; i < section.rows.size(); ++i) {
        const PropertyRow &current = section.rows.at(i);
        names.append(QLatin1Char('"') + QString::fromLatin1(nameOf(current.property)) +
                     QLatin1Char('"'));
        if (i + 1 < section.rows.size() && haveSameText(current, section.rows.at(i + 1))) {
            continue;
        }
        QStringList cells{namesText(names, current), QString::fromLatin1(current.meaning)};
        if (tellsBearer) {
            cells.insert(1, QString::fromLatin1(current.bearer));
        }
        text += row(cells);
        names.clear();
    }
    return text;
}

/// Returns what of a section concerns applications.
PropertySection documented(PropertySection section)
{
    QVector<PropertyRow> &rows = section.rows;
    const auto isInternal = [](const PropertyRow &row) { return row.use == PropertyUse::Internal; };
    rows.erase(std::remove_if(rows.begin(), rows.end(), isInternal), rows.end());
    return section;
}

QString sectionText(const PropertySection &section)
{
    QString text =
        QStringLiteral("## ") + QString::fromLatin1(section.heading) + QStringLiteral("\n\n");
    if (qstrlen(section.introduction) > 0) {
        text += QString::fromLatin1(section.introduction) + QStringLiteral("\n\n");
    }
    return text + table(section);
}

QString sections()
{
    QStringList texts;
    for (const PropertySection &all : Catalogue::propertySections()) {
        const PropertySection section = documented(all);
        if (!section.rows.isEmpty()) {
            texts.append(sectionText(section));
        }
    }
    return texts.join(QLatin1Char('\n'));
}

} // namespace

QString makePropertyReference(const QString &page)
{
    return fillIn(page, {{QStringLiteral("%PROPERTIES%"), sections}});
}

} // namespace TARN::Reference
