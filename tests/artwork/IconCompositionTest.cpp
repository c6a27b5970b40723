#include "support/Text.h"

#include <QtCore/QBuffer>
#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>
#include <QtGui/QImageReader>
#include <QtTest/QtTest>

#include <icons/IconLibrary.h>

using namespace TARN::Artwork;

namespace {

constexpr QRgb Ink = 0xffe5eef4;
constexpr QRgb Red = 0xffe5484d;

void write(const QString &path, const QByteArray &contents)
{
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(contents);
}

/// Sources of icons in a folder of their own.
class Sources
{
public:
    explicit Sources(const QByteArray &icons, const QByteArray &motifs = QByteArray())
    {
        write(m_folder.filePath(text("palette.txt")), "colour compiled-in light-ground\n"
                                                      "ink    #E5EEF4    #272E34\n"
                                                      "red    #E5484D    #CE2C31\n");
        write(m_folder.filePath(text("standard.txt")), "# nothing\n");
        write(m_folder.filePath(text("families/action.icons")), icons);
        write(m_folder.filePath(text("motifs/signs.icons")), motifs);
    }

    void setStandardIcons(const QByteArray &lines)
    {
        write(m_folder.filePath(text("standard.txt")), lines);
    }

    [[nodiscard]] IconLibrary library(QStringList *errors) const
    {
        return {m_folder.path(), errors};
    }

    /// Everything that is told about reading the sources and composing their icons.
    [[nodiscard]] QStringList errors() const
    {
        QStringList errors;
        const FileSet files = library(&errors).compiledInFiles(&errors);
        return errors;
    }

    [[nodiscard]] QByteArray svg(const char *name = "action.test") const
    {
        QStringList errors;
        QByteArray svg = library(&errors).icon(text(name), &errors);
        if (!errors.isEmpty()) {
            qFatal("%s", qPrintable(errors.join(QLatin1Char('\n'))));
        }
        return svg;
    }

    /// The icon at one pixel a unit.
    [[nodiscard]] QImage image(const char *name = "action.test") const
    {
        QByteArray data = svg(name);
        QBuffer buffer(&data);
        return QImageReader(&buffer, "svg").read().convertToFormat(QImage::Format_ARGB32);
    }

private:
    QTemporaryDir m_folder;
};

bool isEmpty(const QImage &image, const QRect &rect)
{
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        for (int x = rect.left(); x <= rect.right(); ++x) {
            if (qAlpha(image.pixel(x, y)) != 0) {
                return false;
            }
        }
    }
    return true;
}

} // namespace

class IconCompositionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shapesArePainted();
    void linesFillWholePixels();
    void slantedLinesAreAsStrongAsStraightOnes();
    void colorsAreOfThePalette();
    void sizeWordsNameTheGrid();
    void drawingsAreReferredTo();
    void changesOfPlaceFollowEachOther();
    void aChangedMotifChangesItsIcons();
    void clearTakesOutAreas();
    void clearTakesOutLines();
    void clearLeavesWhatComesLater();
    void holesKeepTheirCurves();
    void groovesAreCut();
    void closedLinesAreCutWithoutASeam();
    void statementsGoOnInIndentedLines();
    void errorsAreTold_data();
    void errorsAreTold();
    void palettesAreRead();
    void standardIconsTakeTheColorsOfTheGround();
    void filesAreWrittenAndRemoved();
};

void IconCompositionTest::shapesArePainted()
{
    const QImage image = Sources("action.test: solid rect 2 2 4 4; solid circle 12 4 2;"
                                 " solid ellipse 4 12 2 3; solid M10 10h4v4h-4z;"
                                 " soft rect 7 7 2 2\n")
                             .image();
    for (const QPoint point : {QPoint(3, 3), QPoint(11, 4), QPoint(4, 13), QPoint(13, 13)}) {
        QCOMPARE(image.pixel(point), Ink);
    }
    QVERIFY(qAbs(qAlpha(image.pixel(7, 7)) - 0.3 * 255) < 2);
    QCOMPARE(image.pixel(8, 3), 0U);
}

void IconCompositionTest::linesFillWholePixels()
{
    const QImage image = Sources("action.test: line M2.5 8.5h11\n").image();
    QCOMPARE(image.pixel(8, 8), Ink);
    QVERIFY(isEmpty(image, QRect(0, 0, 16, 8)));
    QVERIFY(isEmpty(image, QRect(0, 9, 16, 7)));
}

void IconCompositionTest::slantedLinesAreAsStrongAsStraightOnes()
{
    const QImage image = Sources("action.test: line M3 3l10 10\n").image();
    // A line of one unit covers 1.41 units of a row that it crosses at 45 degrees.
    int alpha = 0;
    for (int x = 0; x < 16; ++x) {
        alpha += qAlpha(image.pixel(x, 8));
    }
    QVERIFY2(qAbs(alpha / 255.0 - 1.41) < 0.1, qPrintable(QString::number(alpha)));
}

void IconCompositionTest::colorsAreOfThePalette()
{
    const QImage image =
        Sources("action.test: solid red rect 2 2 4 4; line red M2.5 8.5h11\n").image();
    QCOMPARE(image.pixel(3, 3), Red);
    QCOMPARE(image.pixel(8, 8), Red);
}

void IconCompositionTest::sizeWordsNameTheGrid()
{
    const Sources sources("action.test.24x: solid rect 20 20 2 2\n"
                          "action.test.32x: solid rect 28 28 2 2\n"
                          "action.test: solid rect 12 12 2 2\n");
    QCOMPARE(sources.image("action.test.24x").size(), QSize(24, 24));
    QCOMPARE(sources.image("action.test.24x").pixel(21, 21), Ink);
    QCOMPARE(sources.image("action.test.32x").size(), QSize(32, 32));
    QCOMPARE(sources.image("action.test").size(), QSize(16, 16));
}

void IconCompositionTest::drawingsAreReferredTo()
{
    const Sources sources("action.test: action.other; dot moved 4 0\n"
                          "action.other: dot\n",
                          "dot: solid rect 2 2 2 2\n");
    QCOMPARE(sources.image().pixel(3, 3), Ink);
    QCOMPARE(sources.image().pixel(7, 3), Ink);
    QVERIFY(isEmpty(sources.image("action.other"), QRect(5, 0, 11, 16)));
}

void IconCompositionTest::changesOfPlaceFollowEachOther()
{
    const Sources sources("action.turned: dot turned 90\n"
                          "action.mirrored: dot mirrored\n"
                          "action.flipped: dot flipped\n"
                          "action.scaled: dot scaled 2\n"
                          "action.both: dot moved 2 0 turned 90\n",
                          "dot: solid rect 5 5 2 2\n");
    QCOMPARE(sources.image("action.turned").pixel(10, 5), Ink);
    QVERIFY(isEmpty(sources.image("action.turned"), QRect(0, 0, 9, 16)));
    QCOMPARE(sources.image("action.mirrored").pixel(10, 6), Ink);
    QCOMPARE(sources.image("action.flipped").pixel(6, 10), Ink);
    QCOMPARE(sources.image("action.scaled").pixel(2, 2), Ink);
    QCOMPARE(sources.image("action.both").pixel(10, 8), Ink);
}

void IconCompositionTest::aChangedMotifChangesItsIcons()
{
    const QByteArray icons = "action.one: dot\naction.two: dot mirrored\n";
    const Sources before(icons, "dot: solid rect 2 2 2 2\n");
    const Sources after(icons, "dot: solid circle 3 3 1\n");
    for (const char *name : {"action.one", "action.two"}) {
        QVERIFY(before.svg(name) != after.svg(name));
    }
}

void IconCompositionTest::clearTakesOutAreas()
{
    const QImage image = Sources("action.test: solid rect 2 2 12 12; clear rect 8 8 8 8\n").image();
    QCOMPARE(image.pixel(7, 7), Ink);
    QCOMPARE(image.pixel(12, 3), Ink);
    QVERIFY(isEmpty(image, QRect(8, 8, 8, 8)));
}

void IconCompositionTest::clearTakesOutLines()
{
    const QImage image =
        Sources("action.test: line rect 2.5 2.5 11 11; clear rect 8 8 8 8\n").image();
    QVERIFY(isEmpty(image, QRect(8, 8, 8, 8)));
    // The line goes on to the region, and its round end stays out of it.
    QCOMPARE(image.pixel(6, 13), Ink);
    QVERIFY(qAlpha(image.pixel(7, 13)) > 160);
}

void IconCompositionTest::clearLeavesWhatComesLater()
{
    const QImage image =
        Sources("action.test: solid rect 2 2 12 12; clear rect 4 4 8 8; solid red rect 6 6 4 4\n")
            .image();
    QCOMPARE(image.pixel(7, 7), Red);
    QCOMPARE(image.pixel(3, 3), Ink);
    QCOMPARE(image.pixel(5, 5), 0U);
}

void IconCompositionTest::holesKeepTheirCurves()
{
    const QByteArray svg = Sources("action.test: solid circle 8 8 6; clear circle 8 8 3\n").svg();
    QVERIFY(svg.contains('C'));
    QVERIFY(!svg.contains('L'));
}

void IconCompositionTest::groovesAreCut()
{
    const QImage image = Sources("action.test: solid rect 2 2 12 12; groove M2 8h12\n").image();
    QCOMPARE(image.pixel(8, 5), Ink);
    QVERIFY(qAlpha(image.pixel(8, 8)) < 80);
    QCOMPARE(image.pixel(8, 10), Ink);
}

void IconCompositionTest::closedLinesAreCutWithoutASeam()
{
    // The line begins in the middle of its upper side, where nothing is cut out.
    const QByteArray svg =
        Sources("action.test: line M8 2.5h5.5v11h-11v-11z; clear rect 10 10 6 6\n").svg();
    QCOMPARE(svg.count('M'), 1);
}

void IconCompositionTest::statementsGoOnInIndentedLines()
{
    const Sources sources("# A comment.\n\naction.test: solid rect 2 2 2 2\n"
                          "  ; solid rect 8 8\n  2 2\n");
    QCOMPARE(sources.image().pixel(3, 3), Ink);
    QCOMPARE(sources.image().pixel(9, 9), Ink);
}

void IconCompositionTest::errorsAreTold_data()
{
    QTest::addColumn<QByteArray>("icons");
    QTest::addColumn<QString>("message");
    QTest::newRow("no name") << QByteArray("solid rect 1 1 1 1\n")
                             << text("action.icons:1: expected \"name: layers\"");
    QTest::newRow("unknown drawing") << QByteArray("\naction.test: nothing\n")
                                     << text("action.icons:2: no drawing is named \"nothing\"");
    QTest::newRow("cycle") << QByteArray("action.one: action.two\naction.two: action.one\n")
                           << text("no drawing is named");
    QTest::newRow("unknown geometry") << QByteArray("action.test: solid blob 1 2 3\n")
                                      << text("action.icons:1: no layer: \"solid blob 1 2 3\"");
    QTest::newRow("too few numbers")
        << QByteArray("action.test: solid circle 8 8\n") << text("no layer: \"solid circle 8 8\"");
    QTest::newRow("no numbers") << QByteArray("action.test: solid circle a b c\n")
                                << text("no layer: \"solid circle a b c\"");
    QTest::newRow("paint alone") << QByteArray("action.test: solid\n") << text("no layer");
    QTest::newRow("empty layer") << QByteArray("action.test: solid rect 1 1 1 1;;\n")
                                 << text("no layer: \"\"");
    QTest::newRow("unknown change") << QByteArray("action.a: solid rect 1 1 1 1\n"
                                                  "action.b: action.a twisted 3\n")
                                    << text("action.icons:2: no layer");
    QTest::newRow("change without number") << QByteArray("action.a: solid rect 1 1 1 1\n"
                                                         "action.b: action.a moved 3\n")
                                           << text("action.icons:2: no layer");
    QTest::newRow("twice") << QByteArray("action.a: solid rect 1 1 1 1\n"
                                         "action.a: solid rect 2 2 1 1\n")
                           << text("\"action.a\" stands in action.icons:1 already");
    QTest::newRow("unknown colour")
        << QByteArray("action.a: solid pink rect 1 1 1 1\n") << text("no colour is named \"pink\"");
    QTest::newRow("broken path") << QByteArray("action.a: line Mxyz\n") << text("draws nothing");
}

void IconCompositionTest::errorsAreTold()
{
    QFETCH(const QByteArray, icons);
    QFETCH(const QString, message);
    const QString told = Sources(icons).errors().join(QLatin1Char('\n'));
    QVERIFY2(told.contains(message), qPrintable(told));
}

void IconCompositionTest::palettesAreRead()
{
    QTemporaryDir folder;
    write(folder.filePath(text("palette.txt")), "colour compiled-in\nink #E5EEF4 #000000\n"
                                                "red #xyz\n");
    write(folder.filePath(text("standard.txt")), "one two\n");
    QStringList errors;
    const IconLibrary library(folder.path(), &errors);
    QCOMPARE(errors.size(), 3);
    QVERIFY(errors.at(0).contains(text("one value per column")));
    QVERIFY(errors.at(1).contains(text("no colour: #xyz")));
    QVERIFY(errors.at(2).contains(text("expected three words")));
}

void IconCompositionTest::standardIconsTakeTheColorsOfTheGround()
{
    Sources sources("action.test: solid rect 2 2 2 2\n");
    sources.setStandardIcons("edit-test action.test *\naction.test action.test compiled-in\n");
    QStringList errors;
    const FileSet files = sources.library(&errors).standardIcons(text("light-ground"), &errors);
    QCOMPARE(errors, QStringList());
    QCOMPARE(QStringList(files.keys()),
             QStringList({text("action.test.svg"), text("edit-test.svg")}));
    QVERIFY(files.value(text("edit-test.svg")).contains("#272E34"));
    QVERIFY(files.value(text("action.test.svg")).contains("#E5EEF4"));

    const FileSet unknown = sources.library(&errors).standardIcons(text("Unknown"), &errors);
    QVERIFY(errors.join(QLatin1Char('\n')).contains(text("no palette is named \"Unknown\"")));
}

void IconCompositionTest::filesAreWrittenAndRemoved()
{
    const QTemporaryDir folder;
    write(folder.filePath(text("icons/old.svg")), "old");
    write(folder.filePath(text("icons/readme.txt")), "kept");
    const FileSet files = {{text("icons/new.svg"), "new"}, {text("icons.qrc"), "list"}};
    QCOMPARE(writeFiles(folder.path(), files), QStringList());
    QCOMPARE(QDir(folder.filePath(text("icons"))).entryList(QDir::Files),
             QStringList({text("new.svg"), text("readme.txt")}));

    // Nothing is taken for superfluous where the folder is named relative to the current one.
    QVERIFY(QDir::setCurrent(folder.path()));
    QCOMPARE(writeFiles(text("."), files), QStringList());
    QVERIFY(QFileInfo::exists(folder.filePath(text("icons/new.svg"))));

    QFile blocked(folder.filePath(text("blocked")));
    QVERIFY(blocked.open(QIODevice::WriteOnly));
    QCOMPARE(writeFiles(blocked.fileName(), files).size(), 2);
}

QTEST_GUILESS_MAIN(IconCompositionTest)
#include "IconCompositionTest.moc"
