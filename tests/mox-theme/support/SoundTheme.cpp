#include "SoundTheme.h"

#include <catalogue/Catalogue.h>

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QSet>

using namespace TARN;
using TARN::ThemeTool::Finding;

namespace {

/// Returns the colour of a variable: things are white on black, but for those that are seen as
/// things and as surfaces.
QByteArray colorWord(const Variable &variable)
{
    static const QSet<QString> seenAsBoth{QStringLiteral("MainBrush")};
    static const QSet<QString> lightSurfaces{QStringLiteral("MainSubLevel1Brush")};
    if (seenAsBoth.contains(variable.name)) {
        return "Grey";
    }
    const bool isSurface =
        variable.role == VariableRole::Surface || variable.role == VariableRole::Decoration;
    return isSurface && !lightSurfaces.contains(variable.name) ? "Black" : "White";
}

QByteArray colorText(const QByteArray &word)
{
    return word == "Black" ? "#000000" : word == "Grey" ? "#808080" : "#FFFFFF";
}

QByteArray entry(const char *tag, const QByteArray &name, const QByteArray &value)
{
    return QByteArray("<") + tag + " name=\"" + name + "\">" + value + "</" + tag + ">\n";
}

QByteArray colorEntries()
{
    QByteArray entries;
    for (const char *word : {"White", "Black", "Grey"}) {
        entries += entry("Color", word, colorText(word));
    }
    for (const Variable &variable : Catalogue::variables()) {
        if (variable.group == QLatin1String("colors")) {
            const QByteArray name = variable.name.toUtf8();
            const QByteArray value = colorText(colorWord(variable));
            entries += entry("Color", name, value);
            entries += variable.hasDisabledTwin ? entry("Color", name + "Disabled", value) : "";
        }
    }
    return entries;
}

QByteArray brushEntries()
{
    QByteArray entries;
    for (const Variable &variable : Catalogue::variables()) {
        if (variable.group == QLatin1String("brushes")) {
            const QByteArray name = variable.name.toUtf8();
            const QByteArray word = colorWord(variable);
            entries += entry("SolidBrush", name, word);
            entries += variable.hasDisabledTwin ? entry("SolidBrush", name + "Disabled", word) : "";
        }
    }
    return entries;
}

QByteArray numberEntries(const char *group, const char *tag, const QByteArray &value)
{
    QByteArray entries;
    for (const Variable &variable : Catalogue::variables()) {
        if (variable.group == QLatin1String(group)) {
            entries += entry(tag, variable.name.toUtf8(), value);
        }
    }
    return entries;
}

QByteArray configuration()
{
    return "<Config>\n<Factors>\n" + numberEntries("factors", "Factor", "120") +
           "</Factors>\n<Palette>\n<ColorsList>\n" + colorEntries() +
           "</ColorsList>\n<BrushesList>\n" + brushEntries() +
           "</BrushesList>\n</Palette>\n<Font>\n<Family>DejaVu Sans</Family>\n"
           "<Weight>Normal</Weight>\n<SmallSize>8</SmallSize>\n<BaseSize>9</BaseSize>\n"
           "<MediumSize>10</MediumSize>\n<LargeSize>12</LargeSize>\n</Font>\n<Opacities>\n" +
           numberEntries("opacities", "Opacity", "0.5") +
           "</Opacities>\n<CornerRadius>\n<SmallSize>2</SmallSize>\n<BaseSize>3</BaseSize>\n"
           "<MediumSize>4</MediumSize>\n<LargeSize>6</LargeSize>\n</CornerRadius>\n</Config>\n";
}

QByteArray palette()
{
    QByteArray roles;
    for (const char *ground : {"Window", "Base", "AlternateBase", "Button", "ToolTipBase"}) {
        roles += paletteRole(ground, "@Black") + "\n";
    }
    for (const char *text : {"WindowText", "Text", "PlaceholderText", "ButtonText", "ToolTipText",
                             "Link", "LinkVisited", "Highlight"}) {
        roles += paletteRole(text, "@White") + "\n";
    }
    return "<QPalette>\n" + roles + paletteRole("HighlightedText", "@Black") + "\n</QPalette>\n";
}

QByteArray resource(const char *path)
{
    QFile file(QString::fromLatin1(path));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

SoundTheme::SoundTheme()
{
    write(QStringLiteral("theme.xml"), "<theme>\n<name>Sound</name>\n</theme>\n");
    write(QStringLiteral("config.xml"), configuration());
    write(QStringLiteral("qpaletteMapping.xml"), palette());
    write(QStringLiteral("Images/Sound/index.theme"),
          "[Icon Theme]\nName=Sound\nDirectories=scalable\n\n[scalable]\nSize=16\n");
    write(QStringLiteral("Images/Sound/scalable/dot.svg"),
          "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"16\" height=\"16\">"
          "<circle cx=\"8\" cy=\"8\" r=\"4\"/></svg>");
    write(QStringLiteral("Images/Sound/Cursors/pick.cur"), resource(":/Cursors/pick.plus.cur"));
}

QString SoundTheme::path(const QString &file) const
{
    return directory() + QLatin1Char('/') + file;
}

QByteArray SoundTheme::content(const QString &file) const
{
    QFile source(path(file));
    return source.open(QIODevice::ReadOnly) ? source.readAll() : QByteArray();
}

void SoundTheme::write(const QString &file, const QByteArray &content) const
{
    m_repository.write(name() + QLatin1Char('/') + file, content);
}

void SoundTheme::remove(const QString &file) const
{
    if (!QFile::remove(path(file))) {
        qFatal("The test can't remove %s", qPrintable(file));
    }
}

void SoundTheme::replace(const QString &file, const QByteArray &before,
                         const QByteArray &after) const
{
    QByteArray text = content(file);
    const int position = text.indexOf(before);
    if (position < 0) {
        qFatal("%s does not hold %s", qPrintable(file), before.constData());
    }
    write(file, text.replace(position, before.size(), after));
}

QVector<Finding> SoundTheme::check(const ThemeTool::CheckSettings &settings) const
{
    return ThemeTool::checkTheme(directory(), settings);
}

QVector<Finding> SoundTheme::findings(const QString &rule) const
{
    QVector<Finding> found;
    for (const Finding &finding : check()) {
        if (finding.rule == rule) {
            found.append(finding);
        }
    }
    return found;
}

QStringList places(const QVector<Finding> &findings)
{
    QStringList texts;
    for (const Finding &finding : findings) {
        texts.append(QStringLiteral("%1:%2:%3 %4")
                         .arg(QFileInfo(finding.file).fileName())
                         .arg(finding.line)
                         .arg(finding.column)
                         .arg(finding.rule));
    }
    return texts;
}

QString placeOf(const QString &file, const QByteArray &content, const QByteArray &marker)
{
    const int position = content.indexOf(marker);
    if (position < 0) {
        qFatal("%s does not hold %s", qPrintable(file), marker.constData());
    }
    const QByteArray before = content.left(position);
    return QStringLiteral("%1:%2:%3")
        .arg(QFileInfo(file).fileName())
        .arg(before.count('\n') + 1)
        .arg(position - before.lastIndexOf('\n'));
}
