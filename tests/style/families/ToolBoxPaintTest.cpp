#include <QtTest/QtTest>
#include <QtWidgets/QToolBox>

#include <support/Text.h>
#include <support/painting/CallRecorder.h>
#include <support/painting/Pixels.h>
#include <support/themes/IconTheme.h>
#include <support/themes/PaintTheme.h>

namespace {

constexpr QSize size(100, 42);
constexpr QPoint inFace(60, 6);

QStyleOptionToolBox tab(QStyle::State state = QStyle::State_Enabled)
{
    QStyleOptionToolBox option;
    option.rect = QRect(QPoint(), size);
    option.state = state;
    option.position = QStyleOptionToolBox::Beginning;
    option.text = blocks(2);
    option.icon = squareIcon();
    if (!state.testFlag(QStyle::State_Enabled)) {
        option.palette.setCurrentColorGroup(QPalette::Disabled);
    }
    return option;
}

} // namespace

/// The tabs of tool boxes, as the style paints them when it paints everything.
class ToolBoxPaintTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void face_data();
    void face();
    void openTab_data();
    void openTab();
    void label_data();
    void label();
    void labelIsMirrored();
    void longTextIsElided();
    void withoutIcon();
    void focus();
    void tabIsWholeOfBoth();
    void needsItsOption();

private:
    QImage shape(const QStyleOption &option)
    {
        return m_recorder.picture(QStyle::CE_ToolBoxTabShape, option, nullptr, size);
    }
    QImage labelPicture(const QStyleOption &option)
    {
        return m_recorder.picture(QStyle::CE_ToolBoxTabLabel, option, nullptr, size);
    }

    PaintTheme m_theme;
    CallRecorder m_recorder;
};

void ToolBoxPaintTest::face_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("face");
    QTest::addColumn<QString>("border");
    const int enabled = QStyle::State_Enabled;
    const QString border = text("CardBorderBrush");
    QTest::newRow("at rest") << enabled << text("BackgroundUpLevel1Brush") << border;
    QTest::newRow("hovered") << (enabled | QStyle::State_MouseOver)
                             << text("ButtonUncheckedHoverBackgroundBrush") << border;
    QTest::newRow("pressed") << (enabled | QStyle::State_MouseOver | QStyle::State_Sunken)
                             << text("ButtonUncheckedPressedBackgroundBrush") << border;
    QTest::newRow("disabled") << int(QStyle::State_MouseOver | QStyle::State_Sunken)
                              << text("BackgroundUpLevel1BrushDisabled")
                              << text("CardBorderBrushDisabled");
}

void ToolBoxPaintTest::face()
{
    QFETCH(int, state);
    QFETCH(QString, face);
    QFETCH(QString, border);
    const QImage picture = shape(tab(QStyle::State(state)));
    QCOMPARE(m_theme.nameAt(picture, inFace), face);
    for (const QPoint &edge : {QPoint(0, 20), QPoint(99, 20), QPoint(50, 0), QPoint(50, 41)}) {
        QCOMPARE(m_theme.nameAt(picture, edge), border);
    }
}

void ToolBoxPaintTest::openTab_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QString>("mark");
    const int enabled = QStyle::State_Enabled;
    QTest::newRow("enabled") << enabled << Qt::LeftToRight << text("MainBrush");
    QTest::newRow("hovered") << (enabled | QStyle::State_MouseOver) << Qt::LeftToRight
                             << text("MainBrush");
    QTest::newRow("right to left") << enabled << Qt::RightToLeft << text("MainBrush");
    QTest::newRow("disabled") << 0 << Qt::LeftToRight << text("MainBrushDisabled");
}

void ToolBoxPaintTest::openTab()
{
    QFETCH(int, state);
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(QString, mark);
    QStyleOptionToolBox option = tab(QStyle::State(state));
    option.direction = direction;
    QVERIFY(!m_theme.shows(shape(option), mark));
    option.state |= QStyle::State_Selected;
    const QRect place = QStyle::visualRect(direction, option.rect, QRect(1, 1, 3, 40));
    QCOMPARE(extentOf(shape(option), m_theme.brush(mark)), place);
}

void ToolBoxPaintTest::label_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("foreground");
    const int enabled = QStyle::State_Enabled;
    QTest::newRow("at rest") << enabled << text("ForegroundColor");
    QTest::newRow("hovered") << (enabled | QStyle::State_MouseOver)
                             << text("ButtonUncheckedHoverForegroundBrush");
    QTest::newRow("pressed") << (enabled | QStyle::State_MouseOver | QStyle::State_Sunken)
                             << text("ButtonUncheckedPressedForegroundBrush");
    QTest::newRow("disabled") << int(QStyle::State_MouseOver) << text("ForegroundColorDisabled");
}

void ToolBoxPaintTest::label()
{
    QFETCH(int, state);
    QFETCH(QString, foreground);
    const QImage picture = labelPicture(tab(QStyle::State(state)));
    // The icon stands in the middle of the height.
    const QRect icon(8, 13, 16, 16);
    for (const QPoint &pixel : {icon.topLeft(), icon.bottomRight()}) {
        QCOMPARE(m_theme.nameAt(picture, pixel), foreground);
    }
    const PaintCall text = m_recorder.call("drawItemText");
    QCOMPARE(text.rect.left(), icon.right() + 1 + 5);
    QVERIFY(text.rect.right() < size.width() - 4);
    QCOMPARE(m_theme.nameAt(picture, QPoint(text.rect.left() + 3, 21)), foreground);
    QCOMPARE(text.state.testFlag(QStyle::State_Enabled), (state & QStyle::State_Enabled) != 0);
}

void ToolBoxPaintTest::labelIsMirrored()
{
    QStyleOptionToolBox option = tab();
    labelPicture(option);
    const QRect leftToRight = m_recorder.call("drawItemText").rect;
    option.direction = Qt::RightToLeft;
    const QImage mirrored = labelPicture(option);
    QCOMPARE(m_recorder.call("drawItemText").rect,
             QStyle::visualRect(Qt::RightToLeft, option.rect, leftToRight));
    QCOMPARE(m_theme.nameAt(mirrored, {size.width() - 9, 21}), text("ForegroundColor"));
}

void ToolBoxPaintTest::longTextIsElided()
{
    QStyleOptionToolBox option = tab();
    option.text = blocks(60);
    labelPicture(option);
    QVERIFY(m_recorder.call("drawItemText").text.endsWith(QChar(0x2026)));
}

void ToolBoxPaintTest::withoutIcon()
{
    QStyleOptionToolBox option = tab();
    option.icon = QIcon();
    labelPicture(option);
    QCOMPARE(m_recorder.elements(), QStringList{text("drawItemText")});
    QCOMPARE(m_recorder.call("drawItemText").rect, option.rect.adjusted(8, 0, -8, 0));
}

void ToolBoxPaintTest::focus()
{
    labelPicture(tab());
    QVERIFY(!m_recorder.elements().contains(text("PE_FrameFocusRect")));
    labelPicture(tab(QStyle::State_Enabled | QStyle::State_HasFocus));
    const QRect focused = m_recorder.call("PE_FrameFocusRect").rect;
    QCOMPARE(focused.center(), QRect(QPoint(), size).center());
    QVERIFY(QRect(QPoint(), size).adjusted(1, 1, -1, -1).contains(focused));
}

/// A tab is a shape with a label, which both are asked of the outermost style.
void ToolBoxPaintTest::tabIsWholeOfBoth()
{
    m_recorder.picture(QStyle::CE_ToolBoxTab, tab(), nullptr, size);
    const QStringList elements = m_recorder.elements();
    QVERIFY(elements.contains(text("CE_ToolBoxTabShape")));
    QVERIFY(elements.contains(text("CE_ToolBoxTabLabel")));
}

void ToolBoxPaintTest::needsItsOption()
{
    QStyleOption option;
    option.rect = QRect(QPoint(), size);
    option.state = QStyle::State_Enabled;
    QVERIFY(m_theme.namesIn(shape(option)).isEmpty());
    QVERIFY(m_theme.namesIn(labelPicture(option)).isEmpty());
}

QTEST_MAIN(ToolBoxPaintTest)
#include "ToolBoxPaintTest.moc"
