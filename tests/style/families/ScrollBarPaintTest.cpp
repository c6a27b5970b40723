#include "style/families/ScrollBarSample.h"

#include <QtTest/QtTest>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>

#include <support/Components.h>
#include <support/Text.h>
#include <support/painting/CallRecorder.h>
#include <support/themes/PaintTheme.h>

using TARN::Components::MinimizedScrollBar;

Q_DECLARE_METATYPE(QStyle::State)

namespace {

constexpr QStyle::State enabled = QStyle::State_Enabled;
constexpr QStyle::State hovered = QStyle::State_Enabled | QStyle::State_MouseOver;

} // namespace

/// Scroll bars and their parts.
class ScrollBarPaintTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void corner();
    void handleColors_data();
    void handleColors();
    void handleShape_data();
    void handleShape();
    void handleNeedsItsOption();
    void lineArrows_data();
    void lineArrows();
    void lineFaces_data();
    void lineFaces();
    void groove();
    void grooveOfMinimizedBars_data();
    void grooveOfMinimizedBars();
    void onlyTheActivePartIsHovered_data();
    void onlyTheActivePartIsHovered();
    void scrollBarNeedsItsOption();
    void hugeAndEmptyRectangles();
};

void ScrollBarPaintTest::corner()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOption option;
    option.rect = QRect(10, 10, 16, 16);
    for (const bool isEnabled : {true, false}) {
        option.state = isEnabled ? QStyle::State_Enabled : QStyle::State_None;
        const QImage picture =
            recorder.picture(QStyle::PE_PanelScrollAreaCorner, option, nullptr, canvas);
        const QString name =
            isEnabled ? text("GrooveBackgroundBrush") : text("GrooveBackgroundBrushDisabled");
        QCOMPARE(theme.namesIn(picture), QStringList{name});
        QCOMPARE(theme.nameAt(picture, {10, 10}), name);
        QCOMPARE(theme.nameAt(picture, {25, 25}), name);
        QCOMPARE(theme.nameAt(picture, {26, 26}), QString());
    }
}

void ScrollBarPaintTest::handleColors_data()
{
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<QString>("ordinary");
    QTest::addColumn<QString>("minimized");
    QTest::newRow("rest") << enabled << text("ForegroundDisabledBrush")
                          << text("PrioritySecondarySubLevel1Brush");
    QTest::newRow("hovered") << hovered << text("MainColor") << text("MainColor");
    QTest::newRow("dragged away from the mouse")
        << (enabled | QStyle::State_Sunken) << text("MainColor") << text("MainColor");
    QTest::newRow("disabled") << QStyle::State() << text("ForegroundDisabledBrushDisabled")
                              << text("PrioritySecondarySubLevel1BrushDisabled");
    QTest::newRow("disabled and hovered")
        << QStyle::State(QStyle::State_MouseOver) << text("ForegroundDisabledBrushDisabled")
        << text("PrioritySecondarySubLevel1BrushDisabled");
}

void ScrollBarPaintTest::handleColors()
{
    QFETCH(QStyle::State, state);
    QFETCH(QString, ordinary);
    QFETCH(QString, minimized);
    const PaintTheme theme;
    CallRecorder recorder;
    const QStyleOptionSlider option = scrollBarOption(state, Qt::Horizontal);
    const auto nameFor = [&](const QWidget *widget) {
        return theme.nameAt(recorder.picture(QStyle::CE_ScrollBarSlider, option, widget, canvas),
                            {60, 8});
    };
    const QScrollBar scrollBar;
    const MinimizedScrollBar line;
    QCOMPARE(nameFor(nullptr), ordinary);
    QCOMPARE(nameFor(&scrollBar), ordinary);
    QCOMPARE(nameFor(&line), minimized);
}

void ScrollBarPaintTest::handleShape_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<QRect>("expected");
    // A fifth of the thickness stays free, rounded to whole pixels.
    QTest::newRow("horizontal") << Qt::Horizontal << QRect(10, 20, 60, 16) << QRect(13, 23, 54, 10);
    QTest::newRow("vertical") << Qt::Vertical << QRect(20, 10, 16, 60) << QRect(23, 13, 10, 54);
    QTest::newRow("minimized") << Qt::Vertical << QRect(20, 10, 5, 60) << QRect(21, 11, 3, 58);
    QTest::newRow("thick") << Qt::Horizontal << QRect(10, 20, 90, 30) << QRect(16, 26, 78, 18);
}

void ScrollBarPaintTest::handleShape()
{
    QFETCH(Qt::Orientation, orientation);
    QFETCH(QRect, rect);
    QFETCH(QRect, expected);
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOptionSlider option = scrollBarOption(QStyle::State_Enabled, orientation);
    option.rect = rect;
    const QImage picture = recorder.picture(QStyle::CE_ScrollBarSlider, option, nullptr, canvas);
    const QColor ground(Qt::black);
    QRect drawn;
    for (int y = 0; y < canvas.height(); ++y) {
        for (int x = 0; x < canvas.width(); ++x) {
            if (picture.pixelColor(x, y) != ground) {
                drawn |= QRect(x, y, 1, 1);
            }
        }
    }
    QCOMPARE(drawn, expected);
    // The long edges are sharp, the ends are half circles.
    const QPoint middle = expected.center();
    const QPoint onEdge = orientation == Qt::Horizontal ? QPoint(middle.x(), expected.top())
                                                        : QPoint(expected.left(), middle.y());
    QCOMPARE(theme.nameAt(picture, onEdge), text("ForegroundDisabledBrush"));
    for (const QPoint &corner :
         {expected.topLeft(), expected.topRight(), expected.bottomLeft(), expected.bottomRight()}) {
        QVERIFY(theme.nameAt(picture, corner) != text("ForegroundDisabledBrush"));
    }
}

void ScrollBarPaintTest::handleNeedsItsOption()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOption option;
    option.rect = QRect(10, 10, 60, 16);
    option.state = QStyle::State_Enabled;
    QCOMPARE(theme.namesIn(recorder.picture(QStyle::CE_ScrollBarSlider, option, nullptr, canvas)),
             QStringList());
}

void ScrollBarPaintTest::lineArrows_data()
{
    QTest::addColumn<QStyle::ControlElement>("element");
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QString>("arrow");
    const auto add = QStyle::CE_ScrollBarAddLine;
    const auto sub = QStyle::CE_ScrollBarSubLine;
    QTest::newRow("right") << add << Qt::Horizontal << Qt::LeftToRight
                           << text("PE_IndicatorArrowRight");
    QTest::newRow("left") << sub << Qt::Horizontal << Qt::LeftToRight
                          << text("PE_IndicatorArrowLeft");
    QTest::newRow("mirrored right")
        << add << Qt::Horizontal << Qt::RightToLeft << text("PE_IndicatorArrowLeft");
    QTest::newRow("mirrored left")
        << sub << Qt::Horizontal << Qt::RightToLeft << text("PE_IndicatorArrowRight");
    QTest::newRow("down") << add << Qt::Vertical << Qt::RightToLeft
                          << text("PE_IndicatorArrowDown");
    QTest::newRow("up") << sub << Qt::Vertical << Qt::LeftToRight << text("PE_IndicatorArrowUp");
}

void ScrollBarPaintTest::lineArrows()
{
    QFETCH(QStyle::ControlElement, element);
    QFETCH(Qt::Orientation, orientation);
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(QString, arrow);
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOptionSlider option = scrollBarOption(QStyle::State_Enabled, orientation);
    option.direction = direction;
    option.rect = QRect(10, 10, 16, 16);
    recorder.picture(element, option, nullptr, canvas);
    QCOMPARE(recorder.elements(), QStringList{arrow});
    QCOMPARE(recorder.calls().front().rect, QRect(10, 10, 16, 16));

    // Where the option tells no orientation, its state does.
    QStyleOption plain;
    plain.rect = QRect(10, 10, 16, 16);
    plain.direction = direction;
    plain.state = orientation == Qt::Horizontal ? QStyle::State_Horizontal : QStyle::State_None;
    recorder.picture(element, plain, nullptr, canvas);
    QCOMPARE(recorder.elements(), QStringList{arrow});
}

void ScrollBarPaintTest::lineFaces_data()
{
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<QString>("face");
    QTest::newRow("rest") << enabled << QString();
    QTest::newRow("hovered") << hovered << text("ButtonUncheckedHoverBackgroundBrush");
    QTest::newRow("pressed") << (hovered | QStyle::State_Sunken)
                             << text("ButtonUncheckedPressedBackgroundBrush");
    QTest::newRow("disabled") << QStyle::State(QStyle::State_MouseOver) << QString();
}

void ScrollBarPaintTest::lineFaces()
{
    QFETCH(QStyle::State, state);
    QFETCH(QString, face);
    const PaintTheme theme;
    CallRecorder recorder;
    recorder.stopAt("PE_IndicatorArrowRight");
    QStyleOptionSlider option = scrollBarOption(state, Qt::Horizontal);
    option.rect = QRect(10, 10, 16, 16);
    const QImage picture = recorder.picture(QStyle::CE_ScrollBarAddLine, option, nullptr, canvas);
    QCOMPARE(theme.nameAt(picture, {12, 12}), face);
    QCOMPARE(theme.nameAt(picture, {23, 23}), face);
    QCOMPARE(theme.nameAt(picture, {11, 12}), QString());
    QCOMPARE(recorder.calls().front().state, state);
}

void ScrollBarPaintTest::groove()
{
    const PaintTheme theme;
    CallRecorder recorder;
    recorder.stopAt("CE_ScrollBarSlider");
    recorder.stopAt("CE_ScrollBarAddLine");
    recorder.stopAt("CE_ScrollBarSubLine");
    const QScrollBar scrollBar;
    for (const QWidget *widget :
         {static_cast<const QWidget *>(nullptr), static_cast<const QWidget *>(&scrollBar)}) {
        for (const bool isEnabled : {true, false}) {
            const QStyleOptionSlider option = scrollBarOption(
                isEnabled ? QStyle::State_Enabled : QStyle::State_None, Qt::Horizontal);
            const QImage picture = recorder.picture(QStyle::CC_ScrollBar, option, widget, canvas);
            const QString name =
                isEnabled ? text("GrooveBackgroundBrush") : text("GrooveBackgroundBrushDisabled");
            QCOMPARE(theme.nameAt(picture, {0, 0}), name);
            QCOMPARE(theme.nameAt(picture, {119, 15}), name);
            QCOMPARE(theme.nameAt(picture, {60, 16}), QString());
        }
    }
}

void ScrollBarPaintTest::grooveOfMinimizedBars_data()
{
    QTest::addColumn<bool>("isOnScrollArea");
    QTest::addColumn<bool>("isOpaque");
    QTest::addColumn<bool>("hasGroove");
    QTest::newRow("of its own") << false << false << true;
    QTest::newRow("of its own, opaque") << false << true << true;
    QTest::newRow("on a scroll area") << true << false << false;
    QTest::newRow("on a scroll area, opaque") << true << true << true;
}

void ScrollBarPaintTest::grooveOfMinimizedBars()
{
    QFETCH(bool, isOnScrollArea);
    QFETCH(bool, isOpaque);
    QFETCH(bool, hasGroove);
    const PaintTheme theme;
    CallRecorder recorder;
    recorder.stopAt("CE_ScrollBarSlider");
    QScrollArea area;
    QWidget other;
    QWidget *parent = isOnScrollArea ? static_cast<QWidget *>(&area) : &other;
    auto *line = new MinimizedScrollBar(Qt::Vertical, parent);
    line->setAttribute(Qt::WA_OpaquePaintEvent, isOpaque);
    const QStyleOptionSlider option = scrollBarOption(QStyle::State_Enabled, Qt::Vertical);
    const QImage picture = recorder.picture(QStyle::CC_ScrollBar, option, line, canvas);
    QCOMPARE(theme.nameAt(picture, {8, 60}), hasGroove ? text("GrooveBackgroundBrush") : QString());

    // An ordinary scroll bar has its groove anywhere.
    auto *scrollBar = new QScrollBar(Qt::Vertical, parent);
    scrollBar->setAttribute(Qt::WA_OpaquePaintEvent, isOpaque);
    QCOMPARE(
        theme.nameAt(recorder.picture(QStyle::CC_ScrollBar, option, scrollBar, canvas), {8, 60}),
        text("GrooveBackgroundBrush"));
}

void ScrollBarPaintTest::onlyTheActivePartIsHovered_data()
{
    QTest::addColumn<QStyle::SubControl>("active");
    QTest::addColumn<QString>("hovered");
    QTest::newRow("nothing") << QStyle::SC_None << QString();
    QTest::newRow("handle") << QStyle::SC_ScrollBarSlider << text("CE_ScrollBarSlider");
    QTest::newRow("page") << QStyle::SC_ScrollBarAddPage << QString();
    QTest::newRow("button") << QStyle::SC_ScrollBarSubLine << text("CE_ScrollBarSubLine");
}

void ScrollBarPaintTest::onlyTheActivePartIsHovered()
{
    QFETCH(QStyle::SubControl, active);
    QFETCH(QString, hovered);
    const PaintTheme theme;
    CallRecorder recorder;
    const QStyle::State state =
        QStyle::State_Enabled | QStyle::State_MouseOver | QStyle::State_Sunken;
    QStyleOptionSlider option = scrollBarOption(state, Qt::Horizontal);
    option.activeSubControls = active;
    recorder.picture(QStyle::CC_ScrollBar, option, nullptr, canvas);
    for (const char *part : {"CE_ScrollBarSlider", "CE_ScrollBarAddLine", "CE_ScrollBarSubLine"}) {
        QCOMPARE(recorder.call(part).state,
                 text(part) == hovered ? state : QStyle::State(QStyle::State_Enabled));
    }
}

void ScrollBarPaintTest::scrollBarNeedsItsOption()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOptionComplex option;
    option.rect = QRect(0, 0, 120, 16);
    option.state = QStyle::State_Enabled;
    QCOMPARE(theme.namesIn(recorder.picture(QStyle::CC_ScrollBar, option, nullptr, canvas)),
             QStringList());
}

void ScrollBarPaintTest::hugeAndEmptyRectangles()
{
    const PaintTheme theme(PaintTheme::Radii{4, 4, 4, 4});
    CallRecorder recorder;
    constexpr int far = 1 << 24;
    for (const auto orientation : {Qt::Horizontal, Qt::Vertical}) {
        for (const QRect &rect : {QRect(), QRect(0, 0, 1, 1), QRect(5, 5, -20, -20),
                                  QRect(QPoint(-far, -far), QPoint(far, far))}) {
            QStyleOptionSlider option =
                scrollBarOption(QStyle::State_Enabled | QStyle::State_MouseOver, orientation);
            option.rect = rect;
            option.activeSubControls = QStyle::SC_All;
            const bool isSeen = rect.isValid();
            const QImage picture = recorder.picture(QStyle::CC_ScrollBar, option, nullptr, canvas);
            QCOMPARE(picture.pixelColor(0, 0) != QColor(Qt::black), isSeen);
            recorder.picture(QStyle::CE_ScrollBarSlider, option, nullptr, canvas);
        }
    }
}

QTEST_MAIN(ScrollBarPaintTest)
#include "ScrollBarPaintTest.moc"
