#include "style/families/tabs/TabEdges.h"

#include <resources/ThemeResources.h>

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>
#include <QtGui/QPainter>
#include <QtTest/QtTest>
#include <QtWidgets/QTabWidget>
#include <QtWidgets/QToolButton>

#include <support/Text.h>
#include <support/painting/CallRecorder.h>
#include <support/themes/PaintTheme.h>

Q_DECLARE_METATYPE(QStyle::State)

namespace {

const QSize canvas(120, 100);
const QRect baseRect(20, 20, 60, 40);
const QRect pageRect(10, 30, 100, 60);

constexpr QStyle::State enabled = QStyle::State_Enabled;

const QRect tabRect(20, 20, 60, 40);

QStyleOptionTab tabOption(QStyle::State state, QTabBar::Shape shape = QTabBar::RoundedNorth)
{
    QStyleOptionTab option;
    option.rect = tabRect;
    option.state = state;
    option.shape = shape;
    option.position = QStyleOptionTab::OnlyOneTab;
    return option;
}

} // namespace

/// What belongs to tabs: the frame of their pages, the base of their bar, and close buttons.
class TabPagePaintTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void widgetFrame();
    void widgetFrameOfAnotherOption();
    void widgetFrameMeetsTheTabs_data();
    void widgetFrameMeetsTheTabs();
    void stretchedBarLeavesNoGap();
    void barBase_data();
    void barBase();
    void barBaseIsOpenBelowTheCurrentTab();
    void barBaseNeedsItsOption();
    void closeButton_data();
    void closeButton();
    void closeButtonIsSizedByMetrics();
    void baseLineOfADisabledTab();
};

void TabPagePaintTest::widgetFrame()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOptionTabWidgetFrame option;
    option.rect = pageRect;
    option.tabBarRect = QRect(10, 0, 50, 31);
    for (const bool isEnabled : {true, false}) {
        option.state = isEnabled ? QStyle::State_Enabled : QStyle::State_None;
        const QString twin = isEnabled ? QString() : text("Disabled");
        const QImage picture = recorder.picture(QStyle::PE_FrameTabWidget, option, nullptr, canvas);
        QCOMPARE(theme.nameAt(picture, pageRect.center()), text("TabBackgroundActiveBrush") + twin);
        for (const QPoint &point : {QPoint(60, 30), pageRect.topRight(), pageRect.bottomLeft(),
                                    pageRect.bottomRight(), QPoint(10, 31)}) {
            QCOMPARE(theme.nameAt(picture, point), text("CardBorderBrush") + twin);
        }
        // The tab bar draws its own share of the line.
        QCOMPARE(theme.nameAt(picture, {59, 30}), text("TabBackgroundActiveBrush") + twin);
        QCOMPARE(theme.nameAt(picture, {60, 29}), QString());
    }
}

/// Without knowing about a tab bar, the page has no outline.
void TabPagePaintTest::widgetFrameOfAnotherOption()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOption option;
    option.rect = pageRect;
    option.state = QStyle::State_Enabled;
    const QImage picture = recorder.picture(QStyle::PE_FrameTabWidget, option, nullptr, canvas);
    QCOMPARE(theme.namesIn(picture), QStringList{text("TabBackgroundActiveBrush")});
    QCOMPARE(theme.nameAt(picture, pageRect.topLeft()), text("TabBackgroundActiveBrush"));
    QCOMPARE(theme.nameAt(picture, pageRect.bottomRight()), text("TabBackgroundActiveBrush"));
}

void TabPagePaintTest::widgetFrameMeetsTheTabs_data()
{
    QTest::addColumn<QTabWidget::TabPosition>("position");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        const char *suffix = direction == Qt::RightToLeft ? ", mirrored" : "";
        QTest::addRow("north%s", suffix) << QTabWidget::North << direction;
        QTest::addRow("south%s", suffix) << QTabWidget::South << direction;
        QTest::addRow("west%s", suffix) << QTabWidget::West << direction;
        QTest::addRow("east%s", suffix) << QTabWidget::East << direction;
    }
}

/// All along the side where the tabs stand there is a line, but for where the current tab opens.
void TabPagePaintTest::widgetFrameMeetsTheTabs()
{
    QFETCH(QTabWidget::TabPosition, position);
    QFETCH(Qt::LayoutDirection, direction);
    const PaintTheme theme;
    CallRecorder recorder;
    QTabWidget tabs;
    tabs.setStyle(&recorder);
    tabs.tabBar()->setStyle(&recorder);
    tabs.setLayoutDirection(direction);
    tabs.setTabPosition(position);
    for (const char *name : {"One", "Two", "Three"}) {
        tabs.addTab(new QWidget, text(name));
    }
    tabs.setCurrentIndex(1);
    tabs.resize(300, 250);
    tabs.show();
    const QImage picture = tabs.grab().toImage();
    const QRect bar = tabs.tabBar()->geometry();
    const QRect current = tabs.tabBar()->tabRect(1).translated(bar.topLeft());
    const bool isVertical = position == QTabWidget::West || position == QTabWidget::East;
    int open = 0;
    const int length = isVertical ? picture.height() : picture.width();
    for (int i = 0; i < length; ++i) {
        const QPoint point = position == QTabWidget::North   ? QPoint(i, bar.bottom())
                             : position == QTabWidget::South ? QPoint(i, bar.top())
                             : position == QTabWidget::West  ? QPoint(bar.right(), i)
                                                             : QPoint(bar.left(), i);
        if (theme.nameAt(picture, point) != text("CardBorderBrush")) {
            QVERIFY2(current.contains(point), qPrintable(QString::number(i)));
            QCOMPARE(theme.nameAt(picture, point), text("TabBackgroundActiveBrush"));
            ++open;
        }
    }
    QCOMPARE(open, (isVertical ? current.height() : current.width()) - 1);
}

/// A stretched bar reaches beyond its last tab, which is where the page draws its own line.
void TabPagePaintTest::stretchedBarLeavesNoGap()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QTabWidget tabs;
    tabs.setStyle(&recorder);
    tabs.tabBar()->setStyle(&recorder);
    tabs.setProperty("stretched", true);
    tabs.addTab(new QWidget, text("One"));
    tabs.addTab(new QWidget, text("Two"));
    tabs.tabBar()->setExpanding(false);
    tabs.resize(300, 200);
    tabs.show();
    const QImage picture = tabs.grab().toImage();
    const QRect bar = tabs.tabBar()->geometry();
    QCOMPARE(bar.width(), 300);
    QVERIFY(tabs.tabBar()->tabRect(1).right() < 250);
    for (int x = tabs.tabBar()->tabRect(1).left(); x < 300; ++x) {
        QCOMPARE(theme.nameAt(picture, {x, bar.bottom()}), text("CardBorderBrush"));
    }
}

void TabPagePaintTest::barBase_data()
{
    addShapes();
}

/// The line is at the side of the base that the tabs touch.
void TabPagePaintTest::barBase()
{
    QFETCH(QTabBar::Shape, shape);
    QFETCH(Qt::Edge, baseEdge);
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOptionTabBarBase option;
    option.rect = baseRect;
    option.shape = shape;
    // Tabs whose own base is at their bottom stand above the base of the bar.
    const Qt::Edge touching = baseEdge == Qt::TopEdge      ? Qt::BottomEdge
                              : baseEdge == Qt::BottomEdge ? Qt::TopEdge
                              : baseEdge == Qt::LeftEdge   ? Qt::RightEdge
                                                           : Qt::LeftEdge;
    for (const bool isEnabled : {true, false}) {
        option.state = isEnabled ? QStyle::State_Enabled : QStyle::State_None;
        const QImage picture =
            recorder.picture(QStyle::PE_FrameTabBarBase, option, nullptr, canvas);
        for (const Qt::Edge edge : edges) {
            QCOMPARE(theme.nameAt(picture, middleOfEdge(baseRect, edge)),
                     edge != touching ? QString()
                     : isEnabled      ? text("CardBorderBrush")
                                      : text("CardBorderBrushDisabled"));
            QCOMPARE(theme.nameAt(picture, middleOfEdge(baseRect.adjusted(-1, -1, 1, 1), edge)),
                     QString());
        }
        QCOMPARE(theme.nameAt(picture, baseRect.center()), QString());
    }
}

void TabPagePaintTest::barBaseIsOpenBelowTheCurrentTab()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOptionTabBarBase option;
    option.rect = QRect(0, 50, 120, 1);
    option.selectedTabRect = QRect(30, 11, 40, 40);
    option.shape = QTabBar::RoundedNorth;
    option.state = QStyle::State_Enabled;
    const QImage picture = recorder.picture(QStyle::PE_FrameTabBarBase, option, nullptr, canvas);
    for (int x = 0; x < canvas.width(); ++x) {
        const bool isOpen = x >= 30 && x < 70;
        QCOMPARE(theme.nameAt(picture, {x, 50}), isOpen ? QString() : text("CardBorderBrush"));
    }
}

void TabPagePaintTest::barBaseNeedsItsOption()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOption option;
    option.rect = baseRect;
    QCOMPARE(theme.namesIn(recorder.picture(QStyle::PE_FrameTabBarBase, option, nullptr, canvas)),
             QStringList());
}

void TabPagePaintTest::closeButton_data()
{
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<bool>("isButtonEnabled");
    QTest::addColumn<QString>("cross");
    QTest::addColumn<QString>("face");
    QTest::newRow("rest") << enabled << true << text("ButtonUncheckedForegroundBrush") << QString();
    QTest::newRow("hovered") << (enabled | QStyle::State_MouseOver) << true
                             << text("ButtonUncheckedHoverForegroundBrush")
                             << text("ButtonUncheckedHoverBackgroundBrush");
    QTest::newRow("pressed") << (enabled | QStyle::State_Sunken | QStyle::State_MouseOver) << true
                             << text("ButtonUncheckedPressedForegroundBrush")
                             << text("ButtonUncheckedPressedBackgroundBrush");
    QTest::newRow("disabled") << QStyle::State(QStyle::State_MouseOver) << false
                              << text("ButtonUncheckedForegroundBrushDisabled") << QString();
}

void TabPagePaintTest::closeButton()
{
    QFETCH(QStyle::State, state);
    QFETCH(bool, isButtonEnabled);
    QFETCH(QString, cross);
    QFETCH(QString, face);
    const PaintTheme theme;
    // The icon is a square in the colour that tinting replaces.
    const QTemporaryDir icons;
    QPixmap square(32, 32);
    square.fill(QColor(0xe5, 0xee, 0xf4));
    QVERIFY(square.save(icons.filePath(text("action.close.png"))));
    QDir::setSearchPaths(TARN::ThemeResources::iconsPrefix(), {icons.path()});
    CallRecorder recorder;
    QTabBar tabBar;
    auto *button = new QToolButton(&tabBar);
    button->setEnabled(isButtonEnabled);
    QStyleOption option;
    option.rect = QRect(QPoint(), canvas);
    option.state = state;
    const QImage picture = recorder.picture(QStyle::PE_IndicatorTabClose, option, button, canvas);
    QStringList expected{cross};
    if (!face.isEmpty()) {
        expected.append(face);
    }
    expected.sort();
    QCOMPARE(theme.namesIn(picture), expected);
}

void TabPagePaintTest::closeButtonIsSizedByMetrics()
{
    struct SizedStyle : QProxyStyle
    {
        SizedStyle()
            : QProxyStyle(new TARN::BaseStyle)
        {
        }
        int pixelMetric(PixelMetric metric, const QStyleOption *option,
                        const QWidget *widget) const override
        {
            return metric == PM_TabCloseIndicatorWidth ? 30
                   : metric == PM_TabCloseIndicatorHeight
                       ? 20
                       : QProxyStyle::pixelMetric(metric, option, widget);
        }
    };
    const PaintTheme theme;
    const SizedStyle style;
    QStyleOption option;
    option.rect = QRect(QPoint(), canvas);
    option.state = QStyle::State_Enabled | QStyle::State_MouseOver;
    QImage picture(canvas, QImage::Format_RGB32);
    picture.fill(Qt::black);
    QPainter painter(&picture);
    style.drawPrimitive(QStyle::PE_IndicatorTabClose, &option, &painter, nullptr);
    painter.end();
    const QRect face(45, 40, 30, 20);
    const QString name = text("ButtonUncheckedHoverBackgroundBrush");
    for (const QPoint &corner : {face.topLeft(), face.bottomRight()}) {
        QCOMPARE(theme.nameAt(picture, corner), name);
    }
    QCOMPARE(theme.nameAt(picture, face.topLeft() - QPoint(1, 0)), QString());
    QCOMPARE(theme.nameAt(picture, face.bottomRight() + QPoint(0, 1)), QString());
}

/// The line below the tabs goes on below a single tab that is disabled.
void TabPagePaintTest::baseLineOfADisabledTab()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QTabBar tabBar;
    const QStyleOptionTab option = tabOption(QStyle::State_None);
    const QPoint base = middleOfEdge(tabRect, Qt::BottomEdge);
    QImage picture = recorder.picture(QStyle::CE_TabBarTabShape, option, &tabBar, canvas);
    QCOMPARE(theme.nameAt(picture, base), text("CardBorderBrush"));
    tabBar.setEnabled(false);
    picture = recorder.picture(QStyle::CE_TabBarTabShape, option, &tabBar, canvas);
    QCOMPARE(theme.nameAt(picture, base), text("CardBorderBrushDisabled"));
}

QTEST_MAIN(TabPagePaintTest)
#include "TabPagePaintTest.moc"
