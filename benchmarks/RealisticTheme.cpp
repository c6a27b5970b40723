#include "RealisticTheme.h"

#include <QtCore/QDir>
#include <QtCore/QFile>

namespace {

const QString source = QStringLiteral(MOX_SHIPPED_THEMES "/Dark");

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("The benchmark can't read %s", qPrintable(path));
    }
    return file.readAll();
}

/// Appends entries of the form \a entry ("... name='%1' ...") to the list \a list of \a content
/// until it has \a count entries.
void fillUp(QByteArray &content, const QByteArray &list, const QByteArray &tag, int count,
            const QString &entry)
{
    QByteArray added;
    for (int i = content.count('<' + tag); i < count; ++i) {
        added += entry.arg(i).toUtf8();
    }
    const QByteArray end = "</" + list + '>';
    content.replace(end, added + end);
}

} // namespace

RealisticTheme::RealisticTheme()
{
    for (const char *name : {"theme.xml", "qpaletteMapping.xml", "Fonts", "Images"}) {
        const QString file = QString::fromLatin1(name);
        QFile::link(source + QLatin1Char('/') + file, m_directory.filePath(file));
    }
    QByteArray content = contentOf(source + QLatin1String("/config.xml"));
    fillUp(
        content, "ColorsList", "Color ", 300,
        QStringLiteral("      <Color name=\"ApplicationAccentNumber%1Color\">#3a5f7d</Color>\n"));
    const int gradients = content.count("<LinearGradientBrush ");
    fillUp(content, "BrushesList", "SolidBrush ", 1500 - gradients,
           QStringLiteral("      <SolidBrush name=\"ButtonApplicationKind%1UncheckedHoverBrush\">"
                          "MainColor</SolidBrush>\n"));
    QFile file(configurationFile());
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("The benchmark can't write its theme");
    }
}
