#include "compare/References.h"

#include "text/Literals.h"

#include <readers/ConfigurationTags.h>

#include <QtCore/QMetaEnum>
#include <QtGui/QPalette>
#include <QtXml/QDomDocument>

namespace TARN::ThemeTool {

namespace {

QVector<QDomElement> children(const QDomElement &parent, const QString &tag = QString())
{
    QVector<QDomElement> children;
    for (QDomElement child = parent.firstChildElement(tag); !child.isNull();
         child = child.nextSiblingElement(tag)) {
        children.append(child);
    }
    return children;
}

BrushReference gradientReference(const QDomElement &brush)
{
    BrushReference reference;
    QStringList stops;
    for (const QDomElement &stop : children(brush, GradientStopTag)) {
        reference.colors.append(stop.text());
        stops.append(stop.attribute(GradientStopPositionAttribute) + " "_s + stop.text());
    }
    reference.text = "gradient from %1 to %2: %3"_s.arg(
        brush.attribute(LinearGradientBrushStartAttribute),
        brush.attribute(LinearGradientBrushEndAttribute), stops.join(", "_s));
    return reference;
}

/// Returns the groups of the palette that the key \a key stands for.
QVector<int> groups(const QString &key)
{
    const int group =
        QMetaEnum::fromType<QPalette::ColorGroup>().keyToValue(key.toUtf8().constData());
    if (group == QPalette::All) {
        return {QPalette::Active, QPalette::Inactive, QPalette::Disabled};
    }
    const bool isOwn = group == QPalette::Inactive || group == QPalette::Disabled;
    return {isOwn ? group : QPalette::Active};
}

} // namespace

QMap<QString, BrushReference> brushReferences(const QDomDocument &document)
{
    const QDomElement list = document.firstChildElement(ConfigRootTag)
                                 .firstChildElement(PaletteRootTag)
                                 .firstChildElement(BrushesListTag);
    QMap<QString, BrushReference> references;
    for (const QDomElement &brush : children(list)) {
        const QString name = brush.attribute(NameAttribute);
        // The reader stops at a name that is taken.
        if (!references.contains(name)) {
            const bool isGradient = brush.tagName() == LinearGradientBrushTag;
            references.insert(name, isGradient ? gradientReference(brush)
                                               : BrushReference{brush.text(), {brush.text()}});
        }
    }
    return references;
}

QMap<QString, QString> paletteReferences(const QDomDocument &document)
{
    const auto roles = QMetaEnum::fromType<QPalette::ColorRole>();
    QMap<QString, QString> references;
    const QDomElement root = document.firstChildElement("QPalette"_s);
    for (const QDomElement &roleElement : children(root, "ColorRole"_s)) {
        const int role = roles.keyToValue(roleElement.attribute("role"_s).toUtf8().constData());
        for (const QDomElement &entry : children(roleElement, "ColorGroup"_s)) {
            for (const int group : groups(entry.attribute("group"_s))) {
                references.insert(paletteEntry(role, group), entry.text());
            }
        }
    }
    return references;
}

QString paletteEntry(int role, int group)
{
    const auto roles = QMetaEnum::fromType<QPalette::ColorRole>();
    const auto groups = QMetaEnum::fromType<QPalette::ColorGroup>();
    return QLatin1String(roles.valueToKey(role)) + "/"_s + QLatin1String(groups.valueToKey(group));
}

} // namespace TARN::ThemeTool
