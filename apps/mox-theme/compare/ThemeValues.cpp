#include "compare/ThemeValues.h"

#include "check/Check.h"
#include "color/ColorText.h"
#include "compare/References.h"
#include "text/Literals.h"

#include <readers/QPaletteReader.h>
#include <readers/ThemeConfigurationReader.h>
#include <readers/xml/XmlFile.h>
#include <theme/BaseThemeSettings.h>

#include <QtCore/QCryptographicHash>
#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QMetaEnum>
#include <QtGui/QPalette>
#include <QtXml/QDomDocument>

#include <algorithm>

namespace TARN::ThemeTool {

namespace {

using Values = QMap<QString, ThemeValue>;

const QString derivedPrefix = QStringLiteral("Disabled");

/// Returns whether the library has derived the entry \a name of \a entries by itself.
template <typename T>
bool isDerived(const QMap<QString, T> &entries, const QString &name)
{
    return name.startsWith(derivedPrefix) && entries.contains(name.mid(derivedPrefix.size()));
}

/// Returns the name of the entry that the theme itself holds for the entry \a name of \a entries.
template <typename T>
QString definedName(const QMap<QString, T> &entries, const QString &name)
{
    return isDerived(entries, name) ? name.mid(derivedPrefix.size()) : name;
}

Values colorValues(const QMap<QString, QColor> &colors)
{
    Values values;
    for (auto it = colors.cbegin(); it != colors.cend(); ++it) {
        if (!isDerived(colors, it.key())) {
            values.insert(it.key(), {colorText(it.value()), QBrush(it.value()), 0, {}});
        }
    }
    return values;
}

QStringList colorSources(const QStringList &names, const QMap<QString, QColor> &colors)
{
    QStringList sources;
    for (const QString &name : names) {
        sources.append("colors/"_s + definedName(colors, name));
    }
    return sources;
}

Values brushValues(const ThemeConfigurationReader &reader, const QDomDocument &document)
{
    const QMap<QString, BrushReference> references = brushReferences(document);
    const QMap<QString, QBrush> &brushes = reader.getBrushesMap();
    Values values;
    for (auto it = brushes.cbegin(); it != brushes.cend(); ++it) {
        if (!isDerived(brushes, it.key())) {
            const BrushReference reference = references.value(it.key());
            values.insert(it.key(), {reference.text, it.value(), 0,
                                     colorSources(reference.colors, reader.getColorsMap())});
        }
    }
    return values;
}

/// A palette in which nothing is set: files can only set brushes that have a style.
QPalette unsetPalette()
{
    QPalette palette;
    for (int role = 0; role < QPalette::NColorRoles; ++role) {
        palette.setBrush(QPalette::All, static_cast<QPalette::ColorRole>(role),
                         QBrush(Qt::NoBrush));
    }
    return palette;
}

/// Returns the sources of the palette entry that says \a text.
QStringList paletteSources(const QString &text, const ThemeConfigurationReader &reader,
                           const Values &brushes)
{
    if (!text.startsWith("@"_s)) {
        return {};
    }
    if (!reader.getBrushesMap().contains(text.mid(1))) {
        return colorSources({text.mid(1)}, reader.getColorsMap());
    }
    const QString name = definedName(reader.getBrushesMap(), text.mid(1));
    return QStringList("brushes/"_s + name) + brushes.value(name).sources;
}

Values paletteValues(const QString &path, const ThemeConfigurationReader &reader,
                     const Values &brushes, QStringList &notes)
{
    const QPaletteReader paletteReader(path, reader.getBrushesMap(), reader.getColorsMap(),
                                       unsetPalette());
    if (paletteReader.getStatus() != ReadFine) {
        notes.append(path + ": is missing or faulty; only what could be read of it is compared"_s);
    }
    QDomDocument document;
    XmlSource source;
    readXmlFile(path, document, source);
    const QMap<QString, QString> references = paletteReferences(document);
    const QPalette palette = paletteReader.deserialize();
    Values values;
    for (int role = 0; role < QPalette::NColorRoles; ++role) {
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            const QBrush &brush = palette.brush(group, static_cast<QPalette::ColorRole>(role));
            if (brush.style() != Qt::NoBrush) {
                const QString entry = paletteEntry(role, group);
                const QString text = references.value(entry);
                values.insert(entry, {text, brush, 0, paletteSources(text, reader, brushes)});
            }
        }
    }
    return values;
}

Values fontValues(const ThemeFont &themeFont)
{
    const auto weights = QMetaEnum::fromType<QFont::Weight>();
    const QFont unset;
    Values values;
    for (const auto id : {ThemeFont::Small, ThemeFont::Base, ThemeFont::Medium, ThemeFont::Large}) {
        const QFont font = themeFont.getFont(id);
        // The reader leaves the sizes alone that the file does not give.
        if (!font.isCopyOf(unset)) {
            values.insert("family"_s, {font.family(), {}, 0, {}});
            values.insert("weight"_s,
                          {QString::fromLatin1(weights.valueToKey(font.weight())), {}, 0, {}});
            values.insert(
                ThemeFont::getFontName(id) + " size"_s,
                {QString::number(font.pointSize()) + " pt"_s, {}, double(font.pointSize()), {}});
        }
    }
    return values;
}

template <typename Number>
Values numberValues(const QMap<QString, Number> &numbers)
{
    Values values;
    for (auto it = numbers.cbegin(); it != numbers.cend(); ++it) {
        values.insert(it.key(), {QString::number(it.value()), {}, double(it.value()), {}});
    }
    return values;
}

/// Returns the files in the folders of fonts and images. The images of a theme lie in a folder of
/// its name, which differs between two themes without any image being another one.
Values fileValues(const QDir &directory, const QString &themeName)
{
    const QString ownImages = "Images/"_s + themeName + "/"_s;
    Values values;
    for (const QString &folder : {"Fonts"_s, "Images"_s}) {
        QDirIterator files(directory.absoluteFilePath(folder), QDir::Files | QDir::Hidden,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            QCryptographicHash hash(QCryptographicHash::Sha256);
            const bool isRead = file.open(QIODevice::ReadOnly) && hash.addData(&file);
            QString name = directory.relativeFilePath(file.fileName());
            if (!themeName.isEmpty() && name.startsWith(ownImages)) {
                name = "Images/<name>/"_s + name.mid(ownImages.size());
            }
            const QString content = QString::fromLatin1(hash.result().toHex().left(12));
            values.insert(
                name, {isRead ? "%1 bytes (%2)"_s.arg(file.size()).arg(content) : "unreadable"_s,
                       {},
                       double(file.size()),
                       {}});
        }
    }
    return values;
}

/// Returns why the configuration file at \a path cannot be read into \a document; empty when it
/// could.
QString configurationProblem(const QString &path, QDomDocument &document)
{
    XmlSource source;
    const int status = readXmlFile(path, document, source);
    if (status == ReadFine) {
        return {};
    }
    if (status == CannotOpen) {
        return path + ": cannot be opened"_s;
    }
    return "%1:%2:%3: %4"_s.arg(path).arg(source.line).arg(source.column).arg(source.fault);
}

} // namespace

const ThemeValue *ThemeValues::find(const QString &key, const QString &name) const
{
    const auto *const section =
        std::find_if(sections.cbegin(), sections.cend(),
                     [&key](const ThemeSection &each) { return each.key == key; });
    if (section == sections.cend()) {
        return nullptr;
    }
    const auto value = section->values.constFind(name);
    return value == section->values.cend() ? nullptr : &*value;
}

QString readThemeValues(const QString &directory, ThemeValues &values)
{
    QString problem = unreadableTheme(directory);
    if (!problem.isEmpty()) {
        return problem;
    }
    const QDir folder(directory);
    const BaseThemeSettings settings(folder.filePath("theme.xml"_s));
    if (settings.getStatus() != ReadFine) {
        return folder.filePath("theme.xml"_s) + ": cannot be read"_s;
    }
    const QString path = folder.filePath("config.xml"_s);
    QDomDocument document;
    problem = configurationProblem(path, document);
    if (!problem.isEmpty()) {
        return problem;
    }
    const ThemeConfigurationReader reader(path);
    if (reader.getStatus() != ReadFine) {
        values.notes.append(path + ": has a faulty entry; neither it nor what follows it in its "
                                   "list is compared"_s);
    }
    const Values brushes = brushValues(reader, document);
    const Values palette =
        paletteValues(folder.filePath("qpaletteMapping.xml"_s), reader, brushes, values.notes);
    values.sections = {
        {"description"_s, "Description"_s, {{"name"_s, {settings.getName(), {}, 0, {}}}}},
        {"colors"_s, "Colours"_s, colorValues(reader.getColorsMap())},
        {"brushes"_s, "Brushes"_s, brushes},
        {"palette"_s, "Palette"_s, palette},
        {"fonts"_s, "Font"_s, fontValues(reader.getFont())},
        {"cornerRadius"_s, "Corner radii"_s, numberValues(reader.getCornerRadiusMap())},
        {"opacities"_s, "Opacities"_s, numberValues(reader.getOpacitiesMap())},
        {"factors"_s, "Disabled factors"_s, numberValues(reader.getDisabledFactorsMap())},
        {"files"_s, "Files"_s, fileValues(folder, settings.getName())},
    };
    return {};
}

} // namespace TARN::ThemeTool
