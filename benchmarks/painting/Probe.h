#pragma once

/// \file
/// A probe is the benchmark's own program in a process of its own, under one style: the library
/// keeps values for the life of the process, and what a process has painted before costs less.

#include <QtCore/QProcess>
#include <QtCore/QStringList>

#include <optional>

/// Runs as a probe with \a arguments. Returns the exit code.
int runProbe(const QStringList &arguments);

/// Where the probes run: without a display, and without the settings of who runs the benchmark.
QProcessEnvironment probeEnvironment(const QString &settingsFolder);

/// A probe that measures how long painting takes, whenever it is asked.
class PaintProbe
{
public:
    PaintProbe(const QString &style, const QProcessEnvironment &environment);
    ~PaintProbe();

    /// Returns what was measured of the case or window \a name, nothing when the probe failed.
    std::optional<double> measure(const QString &name);

    QString errorText();

private:
    QProcess m_process;
};

/// What a fresh process took of the processor, in nanoseconds.
struct StartTimes
{
    double applying; ///< until the style was in use
    double showing;  ///< until then and until the form window was painted
};

/// Starts a process, and returns nothing when it failed.
std::optional<StartTimes> measureStart(const QString &style,
                                       const QProcessEnvironment &environment);

/// Has a probe save what is painted under the style as pictures. Returns whether it did.
bool savePictures(const QString &style, const QString &folder,
                  const QProcessEnvironment &environment);
