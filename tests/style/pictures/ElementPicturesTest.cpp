#include <style/BaseStyle.h>
#include <theme/BaseTheme.h>

#include <QtCore/QDir>
#include <QtGui/QPainter>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

#include <states/ElementSubject.h>
#include <support/Text.h>
#include <support/pictures/PictureSheet.h>

using namespace TARN::Gallery;

namespace {

/// Around each element, so that what is painted beyond its rectangle is seen.
constexpr int margin = 2;

QImage pictureOf(const ElementSample &sample, ElementState state, const QStyle &style)
{
    const qreal ratio = qApp->devicePixelRatio();
    const QSize size = sample.size + QSize(2 * margin, 2 * margin);
    QImage image(size * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(QApplication::palette().color(QPalette::Window));
    QPainter painter(&image);
    painter.translate(margin, margin);
    ElementSubject(sample, state).paint(style, painter, Qt::LeftToRight, true);
    return image;
}

PictureSheet sheetOf(const ElementFamily &family, const QStyle &style)
{
    PictureSheet sheet;
    for (const ElementSample &sample : family.samples) {
        for (const ElementState state : sample.states) {
            const QString name = elementName(sample.id) + text(", ") + text(sample.title) +
                                 text(": ") + stateName(state);
            sheet.add(name, pictureOf(sample, state, style));
        }
        sheet.endRow();
    }
    return sheet;
}

/// Returns the folder of the references of a theme, or of their differences, at the scale of this
/// process.
QDir folder(const char *root, const QString &theme)
{
    const QDir directory(text("%1/%2@%3x").arg(text(root), theme).arg(qApp->devicePixelRatio()));
    directory.mkpath(text("."));
    return directory;
}

/// Compares the sheet with its reference, and writes down how they differ. Returns what is to be
/// said about that.
QStringList compare(const PictureSheet &actual, const QString &theme, const QString &family)
{
    const QString file = family + text(".png");
    const PictureSheet expected =
        PictureSheet::load(folder(MOX_REFERENCE_PICTURES, theme).filePath(file));
    if (expected.isEmpty()) {
        return {text("There is no reference; scripts/update-pictures makes it.")};
    }
    QStringList lines = actual.differences(expected);
    const QDir differences = folder(MOX_DIFFERING_PICTURES, theme);
    const QString path = differences.filePath(family);
    if (lines.isEmpty()) {
        for (const char *kind : {"actual", "expected", "difference"}) {
            QFile::remove(path + text("-%1.png").arg(text(kind)));
        }
        return lines;
    }
    actual.save(path + text("-actual.png"));
    expected.save(path + text("-expected.png"));
    actual.markedDifferences(expected).save(path + text("-difference.png"));
    lines.append(text("Pictures are in ") + differences.path());
    return lines;
}

} // namespace

/// Every element that can be shown, in every state, looks as it did when somebody last looked.
class ElementPicturesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Each in a process of its own: the style keeps values of the theme.
    void dark() { checkTheme(text("Dark")); }
    void light() { checkTheme(text("Light")); }
    void highContrast() { checkTheme(text("HighContrast")); }

private:
    static void checkTheme(const QString &theme);
};

void ElementPicturesTest::checkTheme(const QString &theme)
{
    TARN::BaseTheme(text(MOX_SHIPPED_THEMES "/") + theme).customize(qApp);
    // Without the application's stylesheet, which has ideas of its own about parts of widgets.
    const TARN::BaseStyle style;
    const bool isUpdating = qEnvironmentVariableIsSet("MOX_UPDATE_PICTURES");
    QStringList problems;
    for (const ElementFamily &family : elementFamilies()) {
        const PictureSheet sheet = sheetOf(family, style);
        if (isUpdating) {
            QVERIFY(sheet.save(
                folder(MOX_REFERENCE_PICTURES, theme).filePath(family.id + text(".png"))));
            continue;
        }
        for (const QString &line : compare(sheet, theme, family.id)) {
            problems.append(theme + text(", ") + family.title + text(": ") + line);
        }
    }
    for (const QString &problem : qAsConst(problems)) {
        qWarning("%s", qPrintable(problem));
    }
    QVERIFY(problems.isEmpty());
}

int main(int argc, char **argv)
{
    // Whatever the desktop is like.
    qputenv("QT_SCALE_FACTOR", MOX_SCALE);
    qputenv("FONTCONFIG_FILE", MOX_REFERENCE_PICTURES "/fonts.conf");
    const QApplication application(argc, argv);
    ElementPicturesTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "ElementPicturesTest.moc"
