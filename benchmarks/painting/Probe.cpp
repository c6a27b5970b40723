#include "Probe.h"

#include <QtCore/QCoreApplication>

namespace {

void startProbe(QProcess &process, const QProcessEnvironment &environment,
                const QStringList &arguments)
{
    process.setProcessEnvironment(environment);
    process.start(QCoreApplication::applicationFilePath(),
                  QStringList{QStringLiteral("--probe")} + arguments);
}

/// Returns the number on the next line that the process prints.
std::optional<double> readNumber(QProcess &process)
{
    while (!process.canReadLine()) {
        if (!process.waitForReadyRead()) {
            return {};
        }
    }
    bool isNumber = false;
    const double number = process.readLine().trimmed().toDouble(&isNumber);
    return isNumber ? std::make_optional(number) : std::nullopt;
}

} // namespace

QProcessEnvironment probeEnvironment(const QString &settingsFolder)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *variable : {"QT_STYLE_OVERRIDE", "QT_QPA_PLATFORMTHEME", "QT_SCALE_FACTOR",
                                 "QT_FONT_DPI", "XDG_CURRENT_DESKTOP", "TARN_USE_NATIVE_STYLE"}) {
        environment.remove(QLatin1String(variable));
    }
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), settingsFolder);
    return environment;
}

PaintProbe::PaintProbe(const QString &style, const QProcessEnvironment &environment)
{
    startProbe(m_process, environment, {QStringLiteral("paint"), style});
}

PaintProbe::~PaintProbe()
{
    m_process.closeWriteChannel();
    m_process.waitForFinished();
}

std::optional<double> PaintProbe::measure(const QString &name)
{
    m_process.write(name.toUtf8() + '\n');
    return readNumber(m_process);
}

QString PaintProbe::errorText()
{
    return QString::fromLocal8Bit(m_process.readAllStandardError());
}

std::optional<StartTimes> measureStart(const QString &style, const QProcessEnvironment &environment)
{
    QProcess process;
    startProbe(process, environment, {QStringLiteral("start"), style});
    const std::optional<double> applying = readNumber(process);
    const std::optional<double> showing = readNumber(process);
    process.waitForFinished();
    if (!applying || !showing) {
        return {};
    }
    return StartTimes{*applying, *showing};
}

bool savePictures(const QString &style, const QString &folder,
                  const QProcessEnvironment &environment)
{
    QProcess process;
    startProbe(process, environment, {QStringLiteral("pictures"), style, folder});
    return process.waitForFinished() && process.exitStatus() == QProcess::NormalExit &&
           process.exitCode() == 0;
}
