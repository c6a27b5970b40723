#include "style/families/ProgressBarSample.h"

#include <QtCore/QAbstractAnimation>
#include <QtTest/QtTest>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QTableView>

#include <support/Text.h>
#include <support/painting/CallRecorder.h>
#include <support/painting/Pixels.h>
#include <support/themes/PaintTheme.h>

namespace {

/// A proxy over the theme's style in which it can be chosen whether widgets move.
class AnimatedStyle : public QProxyStyle
{
public:
    AnimatedStyle()
        : QProxyStyle(new TARN::BaseStyle)
    {
    }

    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returnData) const override
    {
        if (hint == SH_Widget_Animate) {
            return int(isAnimated);
        }
        return hint == SH_Widget_Animation_Duration
                   ? duration
                   : QProxyStyle::styleHint(hint, option, widget, returnData);
    }

    bool isAnimated = true;
    int duration = 200;
};

class CountingBar : public QProgressBar
{
public:
    int paintCount = 0;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        ++paintCount;
        QProgressBar::paintEvent(event);
    }
};

/// Shows \a bar busy.
void showBusy(QProgressBar &bar, QStyle &style)
{
    bar.setStyle(&style);
    bar.setRange(0, 0);
    bar.resize(102, 20);
    bar.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bar));
}

/// Waits until a bar that does move was painted several times. Tells whether it was.
bool anotherBarMoves()
{
    AnimatedStyle style;
    CountingBar bar;
    showBusy(bar, style);
    return QTest::qWaitFor([&bar] { return bar.paintCount >= 5; });
}

} // namespace

/// Busy progress bars and what moves them.
class BusyBarTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void busyBarAtRest();
    void busyBarMoves();
    void busyBarIsMirrored();
    void busyBarIsPaintedCalmly();
    void hiddenBarComesToRest();
    void finishedBarComesToRest();
    void nothingMoves_data();
    void nothingMoves();
    void otherWidgetsStandStill();
    void labelOfABusyBar();
};

/// Without a bar on the screen, the chunk stands in the middle of a tinted groove.
void BusyBarTest::busyBarAtRest()
{
    const PaintTheme theme;
    CallRecorder recorder;
    for (const auto orientation : {Qt::Horizontal, Qt::Vertical}) {
        QStyleOptionProgressBar option = barOption(orientation);
        option.maximum = 0;
        option.progress = 0;
        const QImage picture =
            recorder.picture(QStyle::CE_ProgressBarContents, option, nullptr, canvas);
        const QRect chunk = extentOf(picture, theme.brush(text("MainBrush")));
        QCOMPARE(orientation == Qt::Horizontal
                     ? chunk
                     : QRect(chunk.top(), chunk.left(), chunk.height(), chunk.width()),
                 QRect(44, 11, 34, 18));
        const QColor tint = picture.pixelColor(option.rect.topLeft() + QPoint(5, 5));
        const QColor main = theme.brush(text("MainBrush"));
        QVERIFY(tint != QColor(Qt::black) && tint != main);
        QVERIFY(tint.red() <= main.red() && tint.green() <= main.green());
    }
}

/// The chunk goes from one end to the other and back.
void BusyBarTest::busyBarMoves()
{
    const PaintTheme theme;
    AnimatedStyle style;
    QProgressBar bar;
    showBusy(bar, style);
    bar.grab();
    auto *animation = bar.findChild<QAbstractAnimation *>();
    QVERIFY(animation);
    QCOMPARE(animation->state(), QAbstractAnimation::Running);
    animation->pause();
    const auto chunkAt = [&](double share) {
        animation->setCurrentTime(int(share * animation->duration()));
        return extentOf(bar.grab().toImage(), theme.brush(text("MainBrush")));
    };
    QCOMPARE(chunkAt(0).left(), 1);
    QCOMPARE(chunkAt(0.5).right(), 100);
    QCOMPARE(chunkAt(0.25).left(), 34);
    QCOMPARE(chunkAt(0.75), chunkAt(0.25));
    QVERIFY(chunkAt(0.3).left() > chunkAt(0.2).left());
    QVERIFY(chunkAt(0.8).left() < chunkAt(0.7).left());
}

void BusyBarTest::busyBarIsMirrored()
{
    const PaintTheme theme;
    AnimatedStyle style;
    QProgressBar bar;
    bar.setLayoutDirection(Qt::RightToLeft);
    showBusy(bar, style);
    bar.grab();
    auto *animation = bar.findChild<QAbstractAnimation *>();
    QVERIFY(animation);
    animation->pause();
    animation->setCurrentTime(0);
    QCOMPARE(extentOf(bar.grab().toImage(), theme.brush(text("MainBrush"))).right(), 100);
}

/// A busy bar asks for no more pictures than it takes to look smooth, and goes on asking.
void BusyBarTest::busyBarIsPaintedCalmly()
{
    const PaintTheme theme;
    AnimatedStyle style;
    CountingBar bar;
    showBusy(bar, style);
    QTRY_VERIFY(bar.paintCount > 0);
    bar.paintCount = 0;
    QElapsedTimer timer;
    timer.start();
    QTRY_VERIFY(bar.paintCount >= 8);
    // There is no limit to how long they may take, but to how short.
    QVERIFY(timer.elapsed() >= 30 * (bar.paintCount - 2));
}

void BusyBarTest::hiddenBarComesToRest()
{
    const PaintTheme theme;
    AnimatedStyle style;
    QProgressBar bar;
    showBusy(bar, style);
    bar.grab();
    auto *animation = bar.findChild<QAbstractAnimation *>();
    QVERIFY(animation);
    bar.hide();
    QTRY_COMPARE(animation->state(), QAbstractAnimation::Stopped);
    bar.show();
    QTRY_COMPARE(animation->state(), QAbstractAnimation::Running);
    QCOMPARE(bar.findChildren<QAbstractAnimation *>().size(), 1);
}

void BusyBarTest::finishedBarComesToRest()
{
    const PaintTheme theme;
    AnimatedStyle style;
    CountingBar bar;
    showBusy(bar, style);
    bar.grab();
    auto *animation = bar.findChild<QAbstractAnimation *>();
    QVERIFY(animation);
    bar.setRange(0, 100);
    bar.setValue(100);
    QTRY_COMPARE(animation->state(), QAbstractAnimation::Stopped);
    bar.paintCount = 0;
    QVERIFY(anotherBarMoves());
    QCOMPARE(bar.paintCount, 0);
}

void BusyBarTest::nothingMoves_data()
{
    QTest::addColumn<bool>("isAnimated");
    QTest::addColumn<int>("duration");
    QTest::newRow("no animation") << false << 200;
    QTest::newRow("no duration") << true << 0;
}

void BusyBarTest::nothingMoves()
{
    QFETCH(bool, isAnimated);
    QFETCH(int, duration);
    const PaintTheme theme;
    AnimatedStyle style;
    style.isAnimated = isAnimated;
    style.duration = duration;
    CountingBar bar;
    showBusy(bar, style);
    const QImage picture = bar.grab().toImage();
    QVERIFY(theme.shows(picture, text("MainBrush")));
    QVERIFY(!bar.findChild<QAbstractAnimation *>());
    bar.paintCount = 0;
    QVERIFY(anotherBarMoves());
    QCOMPARE(bar.paintCount, 0);
}

/// A delegate paints bars on behalf of its view, which is not to be repainted time and again.
void BusyBarTest::otherWidgetsStandStill()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QTableView view;
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QStyleOptionProgressBar option = barOption(Qt::Horizontal);
    option.maximum = 0;
    option.styleObject = &view;
    const QImage picture = recorder.picture(QStyle::CE_ProgressBarContents, option, &view, canvas);
    QCOMPARE(extentOf(picture, theme.brush(text("MainBrush"))), QRect(44, 11, 34, 18));
    QVERIFY(!view.findChild<QAbstractAnimation *>());
}

void BusyBarTest::labelOfABusyBar()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOptionProgressBar option = barOption(Qt::Horizontal);
    option.maximum = 0;
    option.progress = 0;
    option.text = blocks(4);
    option.palette.setColor(QPalette::Text, plainText);
    option.palette.setColor(QPalette::HighlightedText, filledText);
    const QImage label = recorder.picture(QStyle::CE_ProgressBarLabel, option, nullptr, canvas);
    QVERIFY(!extentOf(label, plainText).isEmpty());
    QVERIFY(extentOf(label, filledText).isEmpty());
}

QTEST_MAIN(BusyBarTest)
#include "BusyBarTest.moc"
