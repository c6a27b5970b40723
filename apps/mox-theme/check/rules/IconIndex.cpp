#include "check/rules/IconIndex.h"

#include "text/Literals.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QMap>

namespace TARN::ThemeTool {

namespace {

const QString iconFolder = QStringLiteral("scalable");
const QString mainSection = QStringLiteral("Icon Theme");

/// The keys of a desktop entry file by section, and where they stand.
struct Index
{
    struct Value
    {
        QString text;
        int line;
    };

    QMap<QString, QMap<QString, Value>> sections;
};

Index readIndex(const QString &text)
{
    Index index;
    QString section;
    int line = 0;
    for (const QString &rawText : text.split(u'\n')) {
        ++line;
        const QString entry = rawText.trimmed();
        if (entry.startsWith(u'[') && entry.endsWith(u']')) {
            section = entry.mid(1, entry.size() - 2);
            index.sections[section];
            continue;
        }
        const int separator = entry.indexOf(u'=');
        if (separator > 0 && !entry.startsWith(u'#') && !entry.startsWith(u';')) {
            index.sections[section].insert(entry.left(separator).trimmed(),
                                           {entry.mid(separator + 1).trimmed(), line});
        }
    }
    return index;
}

/// Tells whether \a folders, a list of names with commas between them, has the icons' folder.
bool listsIcons(const QString &folders)
{
    for (const QString &folder : folders.split(u',')) {
        if (folder.trimmed() == iconFolder) {
            return true;
        }
    }
    return false;
}

} // namespace

void checkIconIndex(const QString &path, FindingList &findings)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        findings.add("missing-file"_s, {path, 0, 0},
                     R"(The theme's images have no readable "index.theme", so that icons are not )"
                     "found by their names"_s);
        return;
    }
    const QString rule = "image-folder"_s;
    const Index index = readIndex(QString::fromUtf8(file.readAll()));
    const Index::Value folders = index.sections.value(mainSection).value("Directories"_s, {{}, 0});
    if (!listsIcons(folders.text)) {
        findings.add(rule, {path, folders.line, 0},
                     R"("Directories" does not list the folder )"_s + quoted(iconFolder),
                     R"(Write "Directories=scalable" below "[Icon Theme]")"_s);
    }
    const Index::Value size = index.sections.value(iconFolder).value("Size"_s, {{}, 0});
    bool ok = false;
    size.text.toInt(&ok);
    if (!ok) {
        findings.add(rule, {path, size.line, 0},
                     "The folder "_s + quoted(iconFolder) +
                         " has no size, without which it is not "
                         "searched"_s,
                     R"(Write "Size=16" below "[scalable]")"_s);
    }
}

} // namespace TARN::ThemeTool
