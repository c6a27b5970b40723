#pragma once

#include <QtCore/QString>

#include <functional>

namespace TARN::Gallery {

class MainWindow;

/// Sets up the environment so that pictures come out the same on every run, with \a scale pixels
/// per device-independent one. To be called before the application object is created; a platform
/// that is already chosen in the environment stays.
void prepareScreenshotEnvironment(int scale);

/// Shows every page in \a window and writes a picture of the whole window for each into \a folder,
/// which is created when it is missing. \a report is called with the path of each picture once it
/// is written. Returns one line that says what went wrong; empty when nothing did.
QString writeScreenshots(MainWindow &window, const QString &folder,
                         const std::function<void(const QString &)> &report);

} // namespace TARN::Gallery
