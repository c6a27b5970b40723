#include "FreshRendering.h"

#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>

#include <support/Text.h>

QImage freshRendering(const QString &widgets, const QString &directory)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(text("rendering.png"));
    QProcess renderer;
    renderer.start(text(MOX_RENDERER), {widgets, directory, file, text(MOX_SWITCH_PROPERTY)});
    if (!renderer.waitForFinished(60000) || renderer.exitCode() != 0) {
        qWarning("The renderer failed: %s", renderer.readAllStandardError().constData());
    }
    return QImage(file).convertToFormat(QImage::Format_RGB32);
}

bool areEqual(const QImage &actual, const QImage &expected, const QString &name)
{
    const bool equal = !expected.isNull() && actual == expected;
    if (!equal) {
        actual.save(text("clean-switch-%1-actual.png").arg(name));
        expected.save(text("clean-switch-%1-expected.png").arg(name));
    }
    return equal;
}
