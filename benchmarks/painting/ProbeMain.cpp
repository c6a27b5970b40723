#include "Measurements.h"
#include "PaintCases.h"
#include "PaintTime.h"
#include "PaintWindows.h"
#include "Probe.h"
#include "ProcessorTime.h"
#include "Styles.h"

#include <QtCore/QDir>
#include <QtWidgets/QApplication>

#include <cstdio>
#include <iostream>
#include <malloc.h>
#include <map>
#include <string>

namespace {

double heapInUse()
{
    const struct mallinfo2 heap = mallinfo2();
    return static_cast<double>(heap.uordblks + heap.hblkhd);
}

constexpr QWidget::RenderFlags caseFlags = QWidget::DrawChildren;
constexpr QWidget::RenderFlags windowFlags = QWidget::DrawWindowBackground | QWidget::DrawChildren;

using Window = std::unique_ptr<QWidget>;

/// Opens one of the windows.
Window openWindow(Window (*make)())
{
    Window window = make();
    window->show();
    QApplication::setActiveWindow(window.get());
    QApplication::processEvents();
    return window;
}

/// Answers what is asked for.
class Measurer
{
public:
    explicit Measurer(double heapBeforeStyle)
        : m_heapBeforeStyle(heapBeforeStyle)
    {
    }

    std::optional<double> measure(const QString &name)
    {
        if (const PaintCase *paintCase = findPaintCase(name)) {
            return paintTime(ShownWidget(*paintCase).widget(), caseFlags);
        }
        if (name == MeasurementNames::formWindow) {
            m_formWindow = openWindow(makeFormWindow);
            return paintTime(*m_formWindow, windowFlags);
        }
        if (name == MeasurementNames::dataWindow) {
            m_dataWindow = openWindow(makeDataWindow);
            return paintTime(*m_dataWindow, windowFlags);
        }
        if (name == MeasurementNames::memory) {
            return heapInUse() - m_heapBeforeStyle;
        }
        if (name == MeasurementNames::paintingMemory) {
            return heapInUse() - m_heapBeforePainting;
        }
        return {};
    }

private:
    double m_heapBeforeStyle;
    double m_heapBeforePainting = heapInUse();
    // They stay open, as those of an application do whose memory is measured.
    Window m_formWindow;
    Window m_dataWindow;
};

/// Has everything painted in a style, with the theme's fonts. Returns whether there is such a
/// style.
bool prepareToPaint(const QString &style, const Look &look)
{
    if (!bringsThemeLook(style)) {
        registerThemeFonts();
    }
    if (!useStyle(style, look)) {
        std::fprintf(stderr, "There is no style \"%s\"\n", qPrintable(style));
        return false;
    }
    QApplication::setCursorFlashTime(0);
    return true;
}

/// Answers the names that come in line by line.
int paintOnRequest(const QString &style)
{
    const Look look = themeLook();
    const double heapBeforeStyle = heapInUse();
    if (!prepareToPaint(style, look)) {
        return 1;
    }
    Measurer measurer(heapBeforeStyle);
    for (std::string line; std::getline(std::cin, line);) {
        const std::optional<double> value = measurer.measure(QString::fromStdString(line));
        if (!value) {
            std::fprintf(stderr, "There is nothing to measure called \"%s\"\n", line.c_str());
            return 1;
        }
        std::printf("%.0f\n", *value);
        std::fflush(stdout);
    }
    return 0;
}

/// Saves what is measured as pictures, so that one sees it.
int paintPictures(const QString &style, const QDir &folder)
{
    if (!prepareToPaint(style, themeLook())) {
        return 1;
    }
    const auto save = [&folder](QWidget &widget, QWidget::RenderFlags flags, const QString &name) {
        QImage picture(widget.size(), QImage::Format_ARGB32_Premultiplied);
        picture.fill(widget.palette().color(QPalette::Window));
        widget.render(&picture, QPoint(), QRegion(), flags);
        return picture.save(folder.filePath(name + QLatin1String(".png")));
    };
    for (const PaintCase &paintCase : paintCases()) {
        if (!save(ShownWidget(paintCase).widget(), caseFlags, paintCase.name)) {
            return 1;
        }
    }
    return save(*openWindow(makeFormWindow), windowFlags, MeasurementNames::formWindow) &&
                   save(*openWindow(makeDataWindow), windowFlags, MeasurementNames::dataWindow)
               ? 0
               : 1;
}

/// Prints how long the application of the style took, and that with the first window.
int start(const QString &style)
{
    // An application without the theme has its palette at hand, and does without the theme's fonts.
    const Look look = bringsThemeLook(style) ? Look() : themeLook();
    const double begin = processorTime();
    useStyle(style, look);
    const double applied = processorTime();
    const std::unique_ptr<QWidget> window = makeFormWindow();
    window->show();
    QApplication::processEvents();
    const double shown = processorTime();

    std::printf("%.0f\n%.0f\n", applied - begin, shown - begin);
    return 0;
}

} // namespace

int runProbe(const QStringList &arguments)
{
    const QString task = arguments.value(0);
    const QString style = arguments.value(1);
    if (task == QLatin1String("pictures")) {
        return paintPictures(style, arguments.value(2));
    }
    return task == QLatin1String("start") ? start(style) : paintOnRequest(style);
}
