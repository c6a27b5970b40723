#include <QtTest/QtTest>
#include <QtWidgets/QFocusFrame>

#include <support/Text.h>
#include <support/painting/CallRecorder.h>
#include <support/painting/OddRectangles.h>
#include <support/painting/Pixels.h>
#include <support/themes/PaintTheme.h>

Q_DECLARE_METATYPE(QStyle::PrimitiveElement)
Q_DECLARE_METATYPE(QStyle::ControlElement)

namespace {

constexpr QSize size(60, 40);
constexpr QPoint centre(30, 20);

template <typename Option>
Option enabledOption(const QRect &rect = QRect(QPoint(), size))
{
    Option option;
    option.rect = rect;
    option.state = QStyle::State_Enabled;
    return option;
}

} // namespace

/// The small parts of windows and bars, as the style paints them when it paints
/// everything.
class SmallPartsPaintTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void plainGrounds_data();
    void plainGrounds();
    void frames_data();
    void frames();
    void sizeGrip_data();
    void sizeGrip();
    void sizeGripNeedsItsOption();
    void resizeHandle_data();
    void resizeHandle();
    void resizeHandleIsUpright();
    void focusFrame();
    void statusBarItemsHaveNoFrame();
    void progressChunk();
    void tear_data();
    void tear();
    void ends_data();
    void ends();
    void oddRectangles_data() { addOddRectangles(); }
    void oddRectangles();

private:
    template <typename Element>
    QImage picture(Element element, const QStyleOption &option, const QWidget *widget = nullptr)
    {
        return m_recorder.picture(element, option, widget, size);
    }
    int countOf(const QImage &picture, const QString &name) const
    {
        return ::countOf(picture, m_theme.brush(name));
    }

    PaintTheme m_theme;
    CallRecorder m_recorder;
};

void SmallPartsPaintTest::plainGrounds_data()
{
    QTest::addColumn<int>("primitive");
    QTest::addColumn<int>("control");
    QTest::addColumn<QString>("ground");
    QTest::newRow("menu bar") << int(QStyle::PE_PanelMenuBar) << -1
                              << text("BackgroundSubLevel2Brush");
    QTest::newRow("tool bar") << int(QStyle::PE_PanelToolBar) << -1
                              << text("BackgroundSubLevel2Brush");
    QTest::newRow("next page") << -1 << int(QStyle::CE_ScrollBarAddPage)
                               << text("GrooveBackgroundBrush");
    QTest::newRow("previous page")
        << -1 << int(QStyle::CE_ScrollBarSubPage) << text("GrooveBackgroundBrush");
}

void SmallPartsPaintTest::plainGrounds()
{
    QFETCH(int, primitive);
    QFETCH(int, control);
    QFETCH(QString, ground);
    auto option = enabledOption<QStyleOption>(QRect(5, 5, 50, 30));
    const auto paint = [&] {
        return primitive >= 0 ? picture(QStyle::PrimitiveElement(primitive), option)
                              : picture(QStyle::ControlElement(control), option);
    };
    QCOMPARE(extentOf(paint(), m_theme.brush(ground)), option.rect);
    QCOMPARE(countOf(paint(), ground), 50 * 30);
    option.state = QStyle::State_None;
    QCOMPARE(countOf(paint(), ground + text("Disabled")), 50 * 30);
}

void SmallPartsPaintTest::frames_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QString>("border");
    QTest::newRow("enabled") << true << text("CardBorderBrush");
    QTest::newRow("disabled") << false << text("CardBorderBrushDisabled");
}

void SmallPartsPaintTest::frames()
{
    QFETCH(bool, enabled);
    QFETCH(QString, border);
    auto option = enabledOption<QStyleOptionFrame>();
    option.state.setFlag(QStyle::State_Enabled, enabled);
    const QImage dock = picture(QStyle::PE_FrameDockWidget, option);
    QCOMPARE(extentOf(dock, m_theme.brush(border)), option.rect);
    QCOMPARE(countOf(dock, border), 2 * (size.width() + size.height()) - 4);
}

void SmallPartsPaintTest::sizeGrip_data()
{
    QTest::addColumn<Qt::Corner>("corner");
    QTest::addColumn<QPoint>("first");
    QTest::newRow("bottom right") << Qt::BottomRightCorner << QPoint(56, 36);
    QTest::newRow("bottom left") << Qt::BottomLeftCorner << QPoint(2, 36);
    QTest::newRow("top right") << Qt::TopRightCorner << QPoint(56, 2);
    QTest::newRow("top left") << Qt::TopLeftCorner << QPoint(2, 2);
}

/// Six dots of four pixels, the first of them in the corner.
void SmallPartsPaintTest::sizeGrip()
{
    QFETCH(Qt::Corner, corner);
    QFETCH(QPoint, first);
    auto option = enabledOption<QStyleOptionSizeGrip>();
    option.corner = corner;
    const QImage grip = picture(QStyle::CE_SizeGrip, option);
    const QColor dots = m_theme.brush(text("ForegroundDisabledBrush"));
    QCOMPARE(::countOf(grip, dots), 6 * 4);
    const QRect extent = extentOf(grip, dots);
    QCOMPARE(extent.size(), QSize(10, 10));
    QVERIFY(extent.contains(first));
    QCOMPARE(grip.pixelColor(first), dots);
    // Opposite of the corner there is none.
    const QPoint opposite = extent.topLeft() + extent.bottomRight() - first;
    QCOMPARE(grip.pixelColor(opposite), QColor(Qt::black));
    option.state = QStyle::State_None;
    QCOMPARE(countOf(picture(QStyle::CE_SizeGrip, option), text("ForegroundDisabledBrushDisabled")),
             6 * 4);
}

void SmallPartsPaintTest::sizeGripNeedsItsOption()
{
    QVERIFY(m_theme.namesIn(picture(QStyle::CE_SizeGrip, enabledOption<QStyleOption>())).isEmpty());
}

void SmallPartsPaintTest::resizeHandle_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("expected");
    const int enabled = QStyle::State_Enabled;
    QTest::newRow("at rest") << enabled << text("ForegroundDisabledBrush");
    QTest::newRow("hovered") << (enabled | QStyle::State_MouseOver) << text("MainBrush");
    QTest::newRow("pressed") << (enabled | QStyle::State_Sunken) << text("MainBrush");
    QTest::newRow("disabled") << int(QStyle::State_MouseOver)
                              << text("ForegroundDisabledBrushDisabled");
}

void SmallPartsPaintTest::resizeHandle()
{
    QFETCH(int, state);
    QFETCH(QString, expected);
    auto option = enabledOption<QStyleOption>(QRect(0, 10, 60, 6));
    option.state = QStyle::State(state);
    const QImage handle = picture(QStyle::PE_IndicatorDockWidgetResizeHandle, option);
    QCOMPARE(m_theme.namesIn(handle), QStringList{expected});
    QCOMPARE(extentOf(handle, m_theme.brush(expected)), QRect(21, 12, 18, 2));
    QCOMPARE(countOf(handle, expected), 5 * 4);
}

void SmallPartsPaintTest::resizeHandleIsUpright()
{
    auto option = enabledOption<QStyleOption>(QRect(10, 0, 6, 40));
    const QImage handle = picture(QStyle::PE_IndicatorDockWidgetResizeHandle, option);
    QCOMPARE(paintedRect(handle), QRect(12, 11, 2, 18));
    // One that is short has as many dots as there is room for.
    option.rect = QRect(10, 0, 6, 10);
    QCOMPARE(paintedRect(picture(QStyle::PE_IndicatorDockWidgetResizeHandle, option)),
             QRect(12, 0, 2, 10));
}

void SmallPartsPaintTest::focusFrame()
{
    const QFocusFrame widget;
    const QImage frame = picture(QStyle::CE_FocusFrame, enabledOption<QStyleOption>(), &widget);
    const QColor color = m_theme.brush(text("MainBrush"));
    const int width = m_recorder.pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &widget);
    QVERIFY(width > 0);
    for (int i = 0; i < width; ++i) {
        QCOMPARE(frame.pixelColor(i, 20), color);
        QCOMPARE(frame.pixelColor(size.width() - 1 - i, 20), color);
        QCOMPARE(frame.pixelColor(30, i), color);
        QCOMPARE(frame.pixelColor(30, size.height() - 1 - i), color);
    }
    QCOMPARE(frame.pixelColor(width, 20), QColor(Qt::black));
    QCOMPARE(frame.pixelColor(30, width), QColor(Qt::black));
}

void SmallPartsPaintTest::statusBarItemsHaveNoFrame()
{
    QVERIFY(paintedRect(picture(QStyle::PE_FrameStatusBarItem, enabledOption<QStyleOption>()))
                .isEmpty());
}

void SmallPartsPaintTest::progressChunk()
{
    auto option = enabledOption<QStyleOption>();
    QCOMPARE(m_theme.nameAt(picture(QStyle::PE_IndicatorProgressChunk, option), centre),
             text("MainBrush"));
    option.state = QStyle::State_None;
    QCOMPARE(m_theme.nameAt(picture(QStyle::PE_IndicatorProgressChunk, option), centre),
             text("MainBrushDisabled"));
    // An application marks a bar by the highlight of its palette.
    auto bar = enabledOption<QStyleOptionProgressBar>();
    bar.palette.setColor(QPalette::Highlight, Qt::red);
    QCOMPARE(picture(QStyle::PE_IndicatorProgressChunk, bar).pixelColor(centre), QColor(Qt::red));
}

void SmallPartsPaintTest::tear_data()
{
    QTest::addColumn<QStyle::PrimitiveElement>("element");
    QTest::addColumn<QRect>("rect");
    QTest::newRow("start") << QStyle::PE_IndicatorTabTear << QRect(0, 5, 4, 30);
    QTest::newRow("end") << QStyle::PE_IndicatorTabTearRight << QRect(56, 5, 4, 30);
    QTest::newRow("top") << QStyle::PE_IndicatorTabTear << QRect(5, 0, 50, 4);
    QTest::newRow("bottom") << QStyle::PE_IndicatorTabTearRight << QRect(5, 36, 50, 4);
}

void SmallPartsPaintTest::tear()
{
    QFETCH(QStyle::PrimitiveElement, element);
    QFETCH(QRect, rect);
    auto option = enabledOption<QStyleOptionTab>(rect);
    const QImage torn = picture(element, option);
    QCOMPARE(paintedRect(torn), rect);
    const QRect dashes = extentOf(torn, m_theme.brush(text("ForegroundDisabledBrush")));
    QCOMPARE(qMin(dashes.width(), dashes.height()), 1);
    QCOMPARE(dashes.width() > dashes.height(), rect.width() > rect.height());
    QVERIFY(rect.adjusted(1, 1, -1, -1).intersects(dashes));
    QVERIFY(countOf(torn, text("ForegroundDisabledBrush")) < qMax(rect.width(), rect.height()));
    QCOMPARE(m_theme.nameAt(torn, rect.topLeft()), text("TabBackgroundBrush"));
    option.state = QStyle::State_None;
    QCOMPARE(
        m_theme.namesIn(picture(element, option)),
        (QStringList{text("ForegroundDisabledBrushDisabled"), text("TabBackgroundBrushDisabled")}));
}

void SmallPartsPaintTest::ends_data()
{
    QTest::addColumn<QStyle::ControlElement>("element");
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<bool>("pointsBack");
    const auto first = QStyle::CE_ScrollBarFirst;
    const auto last = QStyle::CE_ScrollBarLast;
    QTest::newRow("first") << first << Qt::Horizontal << Qt::LeftToRight << true;
    QTest::newRow("last") << last << Qt::Horizontal << Qt::LeftToRight << false;
    QTest::newRow("first, right to left") << first << Qt::Horizontal << Qt::RightToLeft << false;
    QTest::newRow("last, right to left") << last << Qt::Horizontal << Qt::RightToLeft << true;
    QTest::newRow("top") << first << Qt::Vertical << Qt::LeftToRight << true;
    QTest::newRow("bottom") << last << Qt::Vertical << Qt::RightToLeft << false;
}

/// The buttons differ by their icons, which those of the other end mirror, and have a face while
/// they are used.
void SmallPartsPaintTest::ends()
{
    QFETCH(QStyle::ControlElement, element);
    QFETCH(Qt::Orientation, orientation);
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(bool, pointsBack);
    auto option = enabledOption<QStyleOptionSlider>(QRect(20, 10, 20, 20));
    option.orientation = orientation;
    option.state.setFlag(QStyle::State_Horizontal, orientation == Qt::Horizontal);
    option.direction = direction;
    const QImage button = picture(element, option);
    option.direction = Qt::LeftToRight;
    const QImage expected =
        picture(pointsBack ? QStyle::CE_ScrollBarFirst : QStyle::CE_ScrollBarLast, option);
    QCOMPARE(button, expected);
    QVERIFY(button !=
            picture(pointsBack ? QStyle::CE_ScrollBarLast : QStyle::CE_ScrollBarFirst, option));
    QVERIFY(option.rect.contains(paintedRect(button)));
    QVERIFY(!m_theme.shows(button, text("ButtonUncheckedHoverBackgroundBrush")));
    option.state |= QStyle::State_MouseOver;
    QVERIFY(m_theme.shows(picture(element, option), text("ButtonUncheckedHoverBackgroundBrush")));
}

void SmallPartsPaintTest::oddRectangles()
{
    QFETCH(QRect, rect);
    QStyleOptionSizeGrip grip;
    grip.corner = Qt::BottomRightCorner;
    QStyleOptionTab tab;
    const std::pair<QStyle::PrimitiveElement, QStyleOption *> primitives[] = {
        {QStyle::PE_IndicatorDockWidgetResizeHandle, &grip},
        {QStyle::PE_IndicatorTabTear, &tab},
        {QStyle::PE_PanelToolBar, &tab},
        {QStyle::PE_FrameDockWidget, &tab},
        {QStyle::PE_IndicatorSpinUp, &tab},
        {QStyle::PE_IndicatorSpinDown, &tab},
    };
    for (const auto &[element, option] : primitives) {
        option->rect = rect;
        option->state = QStyle::State_Enabled;
        const QRect painted = paintedRect(picture(element, *option));
        QVERIFY(painted.isEmpty() || rect.contains(painted));
    }
    const QRect painted = paintedRect(picture(QStyle::CE_SizeGrip, grip));
    QVERIFY(painted.isEmpty() || rect.contains(painted));
}

QTEST_MAIN(SmallPartsPaintTest)
#include "SmallPartsPaintTest.moc"
