#include "style/families/menus/MenuSample.h"

#include <QtTest/QtTest>
#include <QtWidgets/QMenu>

#include <support/painting/CallRecorder.h>
#include <support/painting/OddRectangles.h>
#include <support/painting/Pixels.h>
#include <support/themes/PaintTheme.h>

Q_DECLARE_METATYPE(QStyle::ControlElement)

/// What a menu has beside its entries, as the style paints it when it paints everything.
class MenuPartsPaintTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ground_data();
    void ground();
    void outline_data() { ground_data(); }
    void outline();
    void scroller_data();
    void scroller();
    void tearOff_data();
    void tearOff();
    void tearOffStaysCountable();
    void checkMark_data();
    void checkMark();
    void smallCheckMark();
    void frame();
    void oddRectangles_data() { addOddRectangles(); }
    void oddRectangles();

private:
    template <typename Element>
    QImage picture(Element element, const QStyleOption &option, const QWidget *widget = nullptr)
    {
        return m_recorder.picture(element, option, widget, pictureSize);
    }

    PaintTheme m_theme;
    CallRecorder m_recorder;
};

void MenuPartsPaintTest::ground_data()
{
    QTest::addColumn<QStyle::ControlElement>("element");
    QTest::newRow("scroller") << QStyle::CE_MenuScroller;
    QTest::newRow("tear-off") << QStyle::CE_MenuTearoff;
    QTest::newRow("margin above") << QStyle::CE_MenuVMargin;
    QTest::newRow("margin beside") << QStyle::CE_MenuHMargin;
    QTest::newRow("empty area") << QStyle::CE_MenuEmptyArea;
}

void MenuPartsPaintTest::ground()
{
    QFETCH(QStyle::ControlElement, element);
    QStyleOptionMenuItem option = itemOption(QString());
    const QImage enabled = picture(element, option);
    QCOMPARE(m_theme.nameAt(enabled, corner), text("BackgroundSubLevel1Brush"));
    QCOMPARE(paintedRect(enabled), itemRect);
    option.state = QStyle::State_None;
    QCOMPARE(m_theme.nameAt(picture(element, option), corner),
             text("BackgroundSubLevel1BrushDisabled"));
}

/// A part covers what the panel has drawn of the menu's outline, and draws it again.
void MenuPartsPaintTest::outline()
{
    QFETCH(QStyle::ControlElement, element);
    QMenu menu;
    menu.resize(pictureSize);
    QStyleOptionMenuItem option = itemOption(QString());
    option.palette.setColor(QPalette::Window, QColor(160, 160, 160));
    option.rect = QRect(0, 8, pictureSize.width(), 25);
    const QImage part = picture(element, option, &menu);
    const QColor line = QColor(160, 160, 160).darker(160);
    const int right = pictureSize.width() - 1;
    for (int y = 8; y < 33; ++y) {
        QCOMPARE(part.pixelColor(0, y), line);
        QCOMPARE(part.pixelColor(right, y), line);
    }
    QVERIFY(part.pixelColor(20, 8) != line);
    QVERIFY(part.pixelColor(20, 32) != line);
}

void MenuPartsPaintTest::scroller_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("arrow");
    QTest::addColumn<QColor>("color");
    const int enabled = QStyle::State_Enabled;
    QTest::newRow("up") << enabled << text("PE_IndicatorArrowUp") << textColor;
    QTest::newRow("down") << (enabled | QStyle::State_DownArrow) << text("PE_IndicatorArrowDown")
                          << textColor;
    QTest::newRow("highlighted") << (enabled | QStyle::State_Selected)
                                 << text("PE_IndicatorArrowUp") << highlightedTextColor;
    QTest::newRow("disabled") << int(QStyle::State_None) << text("PE_IndicatorArrowUp")
                              << disabledTextColor;
}

void MenuPartsPaintTest::scroller()
{
    QFETCH(int, state);
    QFETCH(QString, arrow);
    QFETCH(QColor, color);
    IconTheme icons;
    const QStyleOptionMenuItem option = itemOption(QString(), QStyle::State(state));
    const QImage scroller = picture(QStyle::CE_MenuScroller, option);
    QCOMPARE(m_recorder.elements(), QStringList{arrow});
    QCOMPARE(m_recorder.call(qPrintable(arrow)).rect, itemRect);
    const QRect painted = rectOf(scroller, color);
    QVERIFY(itemRect.contains(painted));
    QVERIFY(qAbs(painted.center().x() - itemRect.center().x()) <= 1);
}

void MenuPartsPaintTest::tearOff_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QString>("ground");
    QTest::newRow("enabled") << int(QStyle::State_Enabled) << textColor
                             << text("BackgroundSubLevel1Brush");
    QTest::newRow("highlighted") << int(QStyle::State_Enabled | QStyle::State_Selected)
                                 << highlightedTextColor << text("MainColor");
    QTest::newRow("disabled") << int(QStyle::State_None) << disabledTextColor
                              << text("BackgroundSubLevel1BrushDisabled");
}

void MenuPartsPaintTest::tearOff()
{
    QFETCH(int, state);
    QFETCH(QColor, color);
    QFETCH(QString, ground);
    const QStyleOptionMenuItem option = itemOption(QString(), QStyle::State(state));
    const QImage line = picture(QStyle::CE_MenuTearoff, option);
    const QRect dashes = rectOf(line, color);
    QCOMPARE(dashes.height(), 1);
    QCOMPARE(dashes.top(), itemRect.center().y());
    // Its ends are equally far from the edges, and there are as many gaps as dashes but one.
    QVERIFY(qAbs((dashes.left() - itemRect.left()) - (itemRect.right() - dashes.right())) <= 1);
    QVERIFY(dashes.left() - itemRect.left() >= 5);
    const int painted = countOf(line, color);
    const int gaps = dashes.width() - painted;
    QVERIFY(gaps > 0 && gaps < painted && painted - gaps <= 4);
    QCOMPARE(m_theme.nameAt(line, corner), ground);
}

void MenuPartsPaintTest::tearOffStaysCountable()
{
    QStyleOptionMenuItem option = itemOption(QString());
    option.rect = QRect(-farAway, 0, 2 * farAway, 20);
    QVERIFY(containsColor(picture(QStyle::CE_MenuTearoff, option), QColor(Qt::black)));
}

void MenuPartsPaintTest::checkMark_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<QColor>("color");
    QTest::newRow("enabled") << int(QStyle::State_Enabled) << textColor;
    QTest::newRow("highlighted") << int(QStyle::State_Enabled | QStyle::State_Selected)
                                 << highlightedTextColor;
    QTest::newRow("disabled") << int(QStyle::State_None) << disabledTextColor;
}

void MenuPartsPaintTest::checkMark()
{
    QFETCH(int, state);
    QFETCH(QColor, color);
    QStyleOptionMenuItem option = itemOption(QString(), QStyle::State(state));
    option.rect = QRect(20, 10, 20, 20);
    const QImage mark = picture(QStyle::PE_IndicatorMenuCheckMark, option);
    QVERIFY(containsColor(mark, color));
    const QRect painted = paintedRect(mark);
    QVERIFY(option.rect.contains(painted));
    QVERIFY(qAbs(painted.center().x() - option.rect.center().x()) <= 1);
}

void MenuPartsPaintTest::smallCheckMark()
{
    QStyleOptionMenuItem option = itemOption(QString());
    for (const int extent : {1, 4, 9, 10, 14}) {
        option.rect = QRect(20, 10, extent, extent);
        const QRect painted = paintedRect(picture(QStyle::PE_IndicatorMenuCheckMark, option));
        QVERIFY(painted.isEmpty() || option.rect.contains(painted));
        QCOMPARE(painted.isEmpty(), extent < 10);
    }
}

void MenuPartsPaintTest::frame()
{
    QStyleOptionFrame option;
    option.rect = itemRect;
    option.state = QStyle::State_Enabled;
    option.palette.setColor(QPalette::Window, QColor(160, 160, 160));
    const QImage outlined = picture(QStyle::PE_FrameMenu, option);
    const QColor line = QColor(160, 160, 160).darker(160);
    QCOMPARE(extentOf(outlined, line), itemRect);
    QCOMPARE(countOf(outlined, line), 2 * (itemRect.width() + itemRect.height()) - 4);
}

void MenuPartsPaintTest::oddRectangles()
{
    QFETCH(QRect, rect);
    QStyleOptionMenuItem option = itemOption(QString());
    option.rect = rect;
    for (const auto element : {QStyle::CE_MenuScroller, QStyle::CE_MenuTearoff,
                               QStyle::CE_MenuVMargin, QStyle::CE_MenuEmptyArea}) {
        const QRect painted = paintedRect(picture(element, option));
        QVERIFY(painted.isEmpty() || rect.contains(painted));
    }
}

QTEST_MAIN(MenuPartsPaintTest)
#include "MenuPartsPaintTest.moc"
