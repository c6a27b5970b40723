#include "style/families/ProgressBarSample.h"

#include <QtTest/QtTest>
#include <QtWidgets/QProgressBar>

#include <climits>
#include <support/TestedMode.h>
#include <support/Text.h>
#include <support/painting/CallRecorder.h>
#include <support/painting/Pixels.h>
#include <support/themes/PaintTheme.h>

Q_DECLARE_METATYPE(QStyle::State)

namespace {

/// Returns along the bar how many of its 102 pixels are filled, beginning with its start; -1 when
/// they are not all together there.
int filledFromStart(const PaintTheme &theme, const QImage &picture,
                    const QStyleOptionProgressBar &option, bool isFromFarEnd,
                    const QString &name = text("MainBrush"))
{
    const bool isHorizontal = option.orientation == Qt::Horizontal;
    // The lines at the two ends belong to what lies between them.
    const auto isFilled = [&](int i) {
        const int offset = isFromFarEnd ? 101 - i : i;
        const QPoint point = isHorizontal ? QPoint(10 + offset, 20) : QPoint(20, 10 + offset);
        return theme.nameAt(picture, point) == name;
    };
    int count = 0;
    while (count < 100 && isFilled(count + 1)) {
        ++count;
    }
    for (int i = count; i < 100; ++i) {
        if (isFilled(i + 1)) {
            return -1;
        }
    }
    return count;
}

} // namespace

/// Progress bars. BusyBarPaintTest is about busy ones.
class ProgressBarPaintTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void groove_data();
    void groove();
    void contents_data();
    void contents();
    void filledLengths_data();
    void filledLengths();
    void contentsStayInTheGroove();
    void directions_data();
    void directions();
    void ownHighlight();
    void labelColors_data();
    void labelColors();
    void labelIsDrawnTwice();
    void textDirection();
    void invisibleText();
    void needTheirOption();
    void hugeAndEmptyRectangles();
};

void ProgressBarPaintTest::groove_data()
{
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<QString>("twin");
    QTest::newRow("enabled") << QStyle::State(QStyle::State_Enabled) << QString();
    QTest::newRow("disabled") << QStyle::State() << text("Disabled");
}

void ProgressBarPaintTest::groove()
{
    QFETCH(QStyle::State, state);
    QFETCH(QString, twin);
    const QStyleOptionProgressBar option = barOption(Qt::Horizontal, state);
    const PaintTheme theme(PaintTheme::Radii{0, 6, 0, 0});
    CallRecorder recorder;
    const QImage picture = recorder.picture(QStyle::CE_ProgressBarGroove, option, nullptr, canvas);
    QCOMPARE(theme.nameAt(picture, option.rect.center()), text("GrooveBackgroundBrush") + twin);
    for (const QPoint &edge : {QPoint(60, 10), QPoint(60, 29), QPoint(10, 20), QPoint(111, 20)}) {
        QCOMPARE(theme.nameAt(picture, edge), text("CardBorderBrush") + twin);
    }
    for (const QPoint &corner : {option.rect.topLeft(), option.rect.topRight(),
                                 option.rect.bottomLeft(), option.rect.bottomRight()}) {
        QCOMPARE(picture.pixelColor(corner), QColor(Qt::black));
    }
}

void ProgressBarPaintTest::contents_data()
{
    groove_data();
}

void ProgressBarPaintTest::contents()
{
    QFETCH(QStyle::State, state);
    QFETCH(QString, twin);
    const PaintTheme theme;
    CallRecorder recorder;
    for (const auto orientation : {Qt::Horizontal, Qt::Vertical}) {
        QStyleOptionProgressBar option = barOption(orientation, state);
        option.progress = 100;
        const QImage picture =
            recorder.picture(QStyle::CE_ProgressBarContents, option, nullptr, canvas);
        QStringList names{text("CardBorderBrush") + twin, text("MainBrush") + twin};
        QCOMPARE(theme.namesIn(picture), names);
        QCOMPARE(theme.nameAt(picture, option.rect.topLeft()), names.at(0));
        QCOMPARE(theme.nameAt(picture, option.rect.bottomRight()), names.at(0));
        QCOMPARE(theme.nameAt(picture, option.rect.center()), names.at(1));
    }
}

void ProgressBarPaintTest::filledLengths_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("progress");
    QTest::addColumn<int>("length");
    QTest::newRow("reset") << 0 << 100 << -1 << 0;
    QTest::newRow("nothing") << 0 << 100 << 0 << 0;
    QTest::newRow("1 %") << 0 << 100 << 1 << 1;
    QTest::newRow("begun") << 0 << 100000 << 1 << 1;
    QTest::newRow("half") << 0 << 100 << 50 << 50;
    QTest::newRow("99 %") << 0 << 100 << 99 << 99;
    QTest::newRow("nearly done") << 0 << 100000 << 99999 << 99;
    QTest::newRow("done") << 0 << 100 << 100 << 100;
    QTest::newRow("beyond") << 0 << 100 << 500 << 100;
    QTest::newRow("far beyond") << 0 << 1 << INT_MAX << 100;
    QTest::newRow("below") << 50 << 100 << 10 << 0;
    QTest::newRow("negative") << -100 << -50 << -75 << 50;
    QTest::newRow("all integers, begun") << INT_MIN << INT_MAX << INT_MIN + 1 << 1;
    QTest::newRow("all integers, half") << INT_MIN << INT_MAX << 0 << 50;
    QTest::newRow("all integers, nearly done") << INT_MIN << INT_MAX << INT_MAX - 1 << 99;
    QTest::newRow("one value, done") << 7 << 7 << 7 << 100;
    QTest::newRow("one value, not begun") << 7 << 7 << 6 << 0;
}

void ProgressBarPaintTest::filledLengths()
{
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QFETCH(int, progress);
    QFETCH(int, length);
    const PaintTheme theme;
    CallRecorder recorder;
    for (const auto orientation : {Qt::Horizontal, Qt::Vertical}) {
        QStyleOptionProgressBar option = barOption(orientation);
        option.minimum = minimum;
        option.maximum = maximum;
        option.progress = progress;
        const QImage picture =
            recorder.picture(QStyle::CE_ProgressBarContents, option, nullptr, canvas);
        QCOMPARE(filledFromStart(theme, picture, option, orientation == Qt::Vertical), length);
    }
}

/// Whatever is filled lies within the rounded outline of the groove.
void ProgressBarPaintTest::contentsStayInTheGroove()
{
    const PaintTheme theme(PaintTheme::Radii{0, 8, 0, 0});
    CallRecorder recorder;
    for (const auto orientation : {Qt::Horizontal, Qt::Vertical}) {
        QStyleOptionProgressBar option = barOption(orientation);
        const QImage groove =
            recorder.picture(QStyle::CE_ProgressBarGroove, option, nullptr, canvas);
        for (const int progress : {1, 3, 7, 50, 95, 99, 100}) {
            option.progress = progress;
            const QImage picture =
                recorder.picture(QStyle::CE_ProgressBarContents, option, nullptr, canvas);
            QVERIFY(theme.shows(picture, text("MainBrush")));
            for (int y = 0; y < canvas.height(); ++y) {
                for (int x = 0; x < canvas.width(); ++x) {
                    if (groove.pixelColor(x, y) == QColor(Qt::black)) {
                        QCOMPARE(picture.pixelColor(x, y), QColor(Qt::black));
                    }
                }
            }
        }
    }
}

void ProgressBarPaintTest::directions_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<bool>("isInverted");
    QTest::addColumn<bool>("isFromFarEnd");
    const auto leftToRight = Qt::LeftToRight;
    const auto rightToLeft = Qt::RightToLeft;
    QTest::newRow("horizontal") << Qt::Horizontal << leftToRight << false << false;
    QTest::newRow("horizontal, inverted") << Qt::Horizontal << leftToRight << true << true;
    QTest::newRow("horizontal, mirrored") << Qt::Horizontal << rightToLeft << false << true;
    QTest::newRow("horizontal, both") << Qt::Horizontal << rightToLeft << true << false;
    QTest::newRow("vertical") << Qt::Vertical << leftToRight << false << true;
    QTest::newRow("vertical, inverted") << Qt::Vertical << leftToRight << true << false;
    QTest::newRow("vertical, mirrored") << Qt::Vertical << rightToLeft << false << true;
    QTest::newRow("vertical, both") << Qt::Vertical << rightToLeft << true << false;
}

void ProgressBarPaintTest::directions()
{
    QFETCH(Qt::Orientation, orientation);
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(bool, isInverted);
    QFETCH(bool, isFromFarEnd);
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOptionProgressBar option = barOption(orientation);
    option.direction = direction;
    option.invertedAppearance = isInverted;
    const QImage picture =
        recorder.picture(QStyle::CE_ProgressBarContents, option, nullptr, canvas);
    QCOMPARE(filledFromStart(theme, picture, option, isFromFarEnd), 30);
}

/// The highlight that an application gives one bar wins over the theme's; that of the theme itself,
/// which all bars have, does not. In the complete mode whatever a program has chosen does.
void ProgressBarPaintTest::ownHighlight()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOptionProgressBar option = barOption(Qt::Horizontal);
    const auto colorAt = [&] {
        return recorder.picture(QStyle::CE_ProgressBarContents, option, nullptr, canvas)
            .pixelColor(15, 20);
    };
    const QColor red(200, 0, 0);
    option.palette.setColor(QPalette::Highlight, red);
    QCOMPARE(colorAt(), red);
    option.palette.setColor(QPalette::Highlight, theme.color(text("MainColor")));
    QCOMPARE(theme.nameOf(colorAt()), testsCompleteMode() ? text("MainColor") : text("MainBrush"));

    QPalette ofApplication = QApplication::palette();
    ofApplication.setColor(QPalette::Highlight, red);
    QApplication::setPalette(ofApplication);
    const QProgressBar bar;
    option.initFrom(&bar);
    option.rect = barOption(Qt::Horizontal).rect;
    QCOMPARE(option.palette.color(QPalette::Highlight), red);
    QCOMPARE(colorAt(), testsCompleteMode() ? red : theme.brush(text("MainBrush")));
}

void ProgressBarPaintTest::labelColors_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<bool>("isInverted");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    for (const auto orientation : {Qt::Horizontal, Qt::Vertical}) {
        for (const bool isInverted : {false, true}) {
            for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
                QTest::addRow("%s%s%s", orientation == Qt::Horizontal ? "horizontal" : "vertical",
                              isInverted ? ", inverted" : "",
                              direction == Qt::RightToLeft ? ", mirrored" : "")
                    << orientation << isInverted << direction;
            }
        }
    }
}

/// The text is a row of full blocks: where it lies on the filled part it has another colour.
void ProgressBarPaintTest::labelColors()
{
    QFETCH(Qt::Orientation, orientation);
    QFETCH(bool, isInverted);
    QFETCH(Qt::LayoutDirection, direction);
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOptionProgressBar option = barOption(orientation);
    option.invertedAppearance = isInverted;
    option.direction = direction;
    option.text = blocks(4);
    option.palette.setColor(QPalette::Text, plainText);
    option.palette.setColor(QPalette::HighlightedText, filledText);
    option.progress = 50;
    const QImage half = recorder.picture(QStyle::CE_ProgressBarContents, option, nullptr, canvas);
    const QImage label = recorder.picture(QStyle::CE_ProgressBarLabel, option, nullptr, canvas);
    QVERIFY(!extentOf(label, plainText).isEmpty());
    QVERIFY(!extentOf(label, filledText).isEmpty());
    for (int y = 0; y < canvas.height(); ++y) {
        for (int x = 0; x < canvas.width(); ++x) {
            const QColor color = label.pixelColor(x, y);
            // Beyond the lines at its sides the bar has the look of its middle.
            const QPoint inside = orientation == Qt::Horizontal ? QPoint(x, 20) : QPoint(20, y);
            const bool isFilled = theme.nameAt(half, inside) == text("MainBrush");
            QVERIFY(color != plainText || !isFilled);
            QVERIFY(color != filledText || isFilled);
        }
    }
    QVERIFY(!extentOf(label, plainText).intersects(extentOf(label, filledText)));
}

void ProgressBarPaintTest::labelIsDrawnTwice()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOptionProgressBar option = barOption(Qt::Horizontal);
    option.text = text("30%");
    recorder.picture(QStyle::CE_ProgressBarLabel, option, nullptr, canvas);
    QCOMPARE(recorder.elements(), (QStringList{text("drawItemText"), text("drawItemText")}));
    QCOMPARE(recorder.calls().at(0).text, text("30%"));
    QCOMPARE(recorder.calls().at(1).text, text("30%"));
    // Nothing lies on a part that is not there.
    for (const int progress : {0, 100}) {
        option.progress = progress;
        recorder.picture(QStyle::CE_ProgressBarLabel, option, nullptr, canvas);
        QCOMPARE(recorder.elements(), QStringList{text("drawItemText")});
    }
    option.text.clear();
    recorder.picture(QStyle::CE_ProgressBarLabel, option, nullptr, canvas);
    QCOMPARE(recorder.elements(), QStringList());
}

/// The text of a vertical bar runs along it: a block below a line of text, when turned, is at the
/// side where the text has its foot.
void ProgressBarPaintTest::textDirection()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOptionProgressBar option = barOption(Qt::Vertical);
    option.progress = 0;
    option.palette.setColor(QPalette::Text, plainText);
    // A lower half block, and a full one before it.
    option.text = blocks() + QString(3, QChar(0x2584));
    for (const bool bottomToTop : {true, false}) {
        option.bottomToTop = bottomToTop;
        const QImage label = recorder.picture(QStyle::CE_ProgressBarLabel, option, nullptr, canvas);
        const QRect extent = extentOf(label, plainText);
        QVERIFY(option.rect.contains(extent));
        QVERIFY(extent.height() > extent.width());
        const int atFoot = bottomToTop ? extent.right() : extent.left();
        const int atHead = bottomToTop ? extent.left() : extent.right();
        const int ofLast = bottomToTop ? extent.top() + 1 : extent.bottom() - 1;
        const int ofFirst = bottomToTop ? extent.bottom() - 1 : extent.top() + 1;
        QCOMPARE(label.pixelColor(atFoot, ofLast), plainText);
        QCOMPARE(label.pixelColor(atHead, ofLast), QColor(Qt::black));
        QCOMPARE(label.pixelColor(atHead, ofFirst), plainText);
    }
}

void ProgressBarPaintTest::invisibleText()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOptionProgressBar option = barOption(Qt::Horizontal);
    option.text = text("30%");
    recorder.picture(QStyle::CE_ProgressBar, option, nullptr, canvas);
    QVERIFY(recorder.elements().contains(text("drawItemText")));
    option.textVisible = false;
    recorder.picture(QStyle::CE_ProgressBar, option, nullptr, canvas);
    QCOMPARE(recorder.elements(),
             (QStringList{text("CE_ProgressBarGroove"), text("CE_ProgressBarContents")}));
}

void ProgressBarPaintTest::needTheirOption()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOption option;
    option.rect = QRect(10, 10, 102, 20);
    option.state = QStyle::State_Enabled;
    for (const auto element : {QStyle::CE_ProgressBarGroove, QStyle::CE_ProgressBarContents,
                               QStyle::CE_ProgressBarLabel}) {
        QCOMPARE(theme.namesIn(recorder.picture(element, option, nullptr, canvas)), QStringList());
    }
}

void ProgressBarPaintTest::hugeAndEmptyRectangles()
{
    const PaintTheme theme(PaintTheme::Radii{0, 4, 0, 0});
    CallRecorder recorder;
    constexpr int far = 1 << 24;
    for (const auto orientation : {Qt::Horizontal, Qt::Vertical}) {
        for (const QRect &rect :
             {QRect(), QRect(0, 0, 1, 1), QRect(0, 0, 3, 3), QRect(5, 5, -20, -20),
              QRect(QPoint(-far, -far), QPoint(far, far))}) {
            for (const int maximum : {0, 100}) {
                QStyleOptionProgressBar option = barOption(orientation);
                option.rect = rect;
                option.maximum = maximum;
                option.progress = maximum;
                option.text = text("Text");
                const QImage picture =
                    recorder.picture(QStyle::CE_ProgressBar, option, nullptr, canvas);
                const bool isHuge = rect.contains(QRect(QPoint(), canvas));
                const QColor ground(Qt::black);
                QCOMPARE(picture.pixelColor(100, 100) != ground, isHuge);
                QVERIFY(rect.isValid() || picture.pixelColor(0, 0) == ground);
            }
        }
    }
}

QTEST_MAIN(ProgressBarPaintTest)
#include "ProgressBarPaintTest.moc"
