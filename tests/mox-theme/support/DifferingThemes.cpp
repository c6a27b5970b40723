#include "DifferingThemes.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>

#include <support/Text.h>

using namespace TARN::ThemeTool;

namespace {

QString pathInTheme(const char *path)
{
    return text("Plain/") + text(path);
}

} // namespace

Printed diff(const QString &before, const QString &after, ReportFormat format)
{
    DiffOptions options;
    options.before = before;
    options.after = after;
    options.format = format;
    return printedBy([&options] { return runCommand(options); });
}

QJsonObject jsonDiff(const QString &before, const QString &after)
{
    const Printed printed = diff(before, after, ReportFormat::Json);
    return QJsonDocument::fromJson(printed.output.toUtf8()).object();
}

ThemeConfiguration plainConfiguration()
{
    ThemeConfiguration configuration;
    configuration.colors = "<Color name='MainColor'>#1a6fae</Color>"
                           "<Color name='BackgroundColor'>#20282f</Color>";
    configuration.brushes =
        "<SolidBrush name='MainBrush'>MainColor</SolidBrush>"
        "<SolidBrush name='FaintBrush'>DisabledMainColor</SolidBrush>"
        "<SolidBrush name='BackgroundBrush'>BackgroundColor</SolidBrush>"
        "<LinearGradientBrush name='ShadedBrush' startPoint='0,0' endPoint='0,1'>"
        "<GradientStop offset='0'>MainColor</GradientStop>"
        "<GradientStop offset='1'>BackgroundColor</GradientStop></LinearGradientBrush>";
    configuration.opacities = "<Opacity name='RubberBandOpacity'>0.25</Opacity>";
    configuration.factors = "<Factor name='DarkForegroundDisableFactor'>250</Factor>";
    return configuration;
}

QByteArray plainRoles()
{
    return "<ColorRole role='Link'><ColorGroup group='All'>@MainColor"
           "</ColorGroup></ColorRole>"
           "<ColorRole role='Base'><ColorGroup group='Active'>@ShadedBrush"
           "</ColorGroup></ColorRole>";
}

void Pair::write(const char *path, const QByteArray &contentBefore, const QByteArray &contentAfter)
{
    m_before.write(pathInTheme(path), contentBefore);
    m_after.write(pathInTheme(path), contentAfter);
}

void Pair::writeBefore(const char *path)
{
    m_before.write(pathInTheme(path), "x");
}

void Pair::writeAfter(const char *path)
{
    m_after.write(pathInTheme(path), "x");
}

Printed Pair::diff(ReportFormat format) const
{
    return ::diff(m_before.addTheme(text("Plain"), before, rolesBefore),
                  m_after.addTheme(text("Plain"), after, rolesAfter), format);
}

QJsonObject Pair::json() const
{
    return QJsonDocument::fromJson(diff(ReportFormat::Json).output.toUtf8()).object();
}

QVector<QJsonObject> Pair::changes(const char *section) const
{
    QVector<QJsonObject> changes;
    for (const QJsonValue change : json()[text("changes")].toArray()) {
        if (change[text("section")] == text(section)) {
            changes.append(change.toObject());
        }
    }
    return changes;
}
