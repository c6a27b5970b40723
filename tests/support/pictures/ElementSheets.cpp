#include "support/pictures/ElementSheets.h"

#include <QtCore/QDir>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>

#include <states/ElementSubject.h>
#include <support/Text.h>

using namespace TARN::Gallery;

namespace {

/// Around each element, so that what is painted beyond its rectangle is seen.
constexpr int margin = 2;

QImage pictureOf(const ElementSample &sample, ElementState state, const QStyle &style,
                 Qt::LayoutDirection direction)
{
    const qreal ratio = qApp->devicePixelRatio();
    const QSize size = sample.size + QSize(2 * margin, 2 * margin);
    QImage image(size * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(QApplication::palette().color(QPalette::Window));
    QPainter painter(&image);
    painter.translate(margin, margin);
    ElementSubject(sample, state).paint(style, painter, direction, true);
    return image;
}

/// Returns the folder of the references of a theme, or of their differences, at the scale of this
/// process.
QDir folder(const char *root, const QString &theme)
{
    const QDir directory(text("%1/%2@%3x").arg(text(root), theme).arg(qApp->devicePixelRatio()));
    directory.mkpath(text("."));
    return directory;
}

} // namespace

void addPictures(PictureSheet &sheet, const ElementFamily &family, const QStyle &style,
                 Qt::LayoutDirection direction, SheetStates states)
{
    const bool areAll = states == SheetStates::All;
    for (const ElementSample &sample : family.samples) {
        for (const ElementState state : sample.states.mid(0, areAll ? -1 : 1)) {
            const QString name = elementName(sample.id) + text(", ") + text(sample.title) +
                                 text(": ") + stateName(state);
            sheet.add(name, pictureOf(sample, state, style, direction));
        }
        if (areAll) {
            sheet.endRow();
        }
    }
    if (!areAll) {
        sheet.endRow();
    }
}

QStringList compareWithReference(const PictureSheet &sheet, const QString &theme,
                                 const QString &name)
{
    const QString reference = folder(MOX_REFERENCE_PICTURES, theme).filePath(name + text(".png"));
    if (qEnvironmentVariableIsSet("MOX_UPDATE_PICTURES")) {
        return sheet.save(reference) ? QStringList() : QStringList(text("It can't be saved."));
    }
    const PictureSheet expected = PictureSheet::load(reference);
    if (expected.isEmpty()) {
        return {text("There is no reference; scripts/update-pictures makes it.")};
    }
    QStringList lines = sheet.differences(expected);
    const QDir differences = folder(MOX_DIFFERING_PICTURES, theme);
    const QString path = differences.filePath(name);
    if (lines.isEmpty()) {
        for (const char *kind : {"actual", "expected", "difference"}) {
            QFile::remove(path + text("-%1.png").arg(text(kind)));
        }
        return lines;
    }
    sheet.save(path + text("-actual.png"));
    expected.save(path + text("-expected.png"));
    sheet.markedDifferences(expected).save(path + text("-difference.png"));
    lines.append(text("Pictures are in ") + differences.path());
    return lines;
}

void setReferenceEnvironment(const char *scale)
{
    qputenv("QT_SCALE_FACTOR", scale);
    qputenv("FONTCONFIG_FILE", MOX_REFERENCE_PICTURES "/fonts.conf");
}
