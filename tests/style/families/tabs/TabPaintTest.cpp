#include "style/families/tabs/TabEdges.h"

#include <QtGui/QPainter>
#include <QtTest/QtTest>

#include <cmath>
#include <support/Text.h>
#include <support/painting/CallRecorder.h>
#include <support/painting/Pixels.h>
#include <support/themes/PaintTheme.h>

Q_DECLARE_METATYPE(QStyle::State)
Q_DECLARE_METATYPE(QStyleOptionTab::TabPosition)

namespace {

const QSize canvas(120, 100);
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

constexpr QStyle::State enabled = QStyle::State_Enabled;
constexpr QStyle::State selected = QStyle::State_Selected;
constexpr QStyle::State keyboardFocus = QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;

} // namespace

/// The shapes of tabs.
class TabPaintTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void states_data();
    void states();
    void shapes_data();
    void shapes();
    void currentTabIsOpenTowardsItsPage_data();
    void currentTabIsOpenTowardsItsPage();
    void openTabStaysClosedToTheOutsideWhenScaled();
    void neighboursShareABorder_data();
    void neighboursShareABorder();
    void radius_data();
    void radius();
    void roundCorners_data();
    void roundCorners();
    void highlight_data();
    void highlight();
    void highlightOfTheApplication();
    void tabNeedsItsOption();
    void hugeAndEmptyRectangles();
};

void TabPaintTest::states_data()
{
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<QString>("fill");
    QTest::addColumn<QString>("border");
    QTest::newRow("rest") << enabled << text("TabBackgroundBrush") << text("CardBorderBrush");
    QTest::newRow("hovered") << (enabled | QStyle::State_MouseOver)
                             << text("TabBorderMouseOverBrush") << text("CardBorderBrush");
    QTest::newRow("focused by mouse") << (enabled | QStyle::State_HasFocus)
                                      << text("TabBackgroundBrush") << text("CardBorderBrush");
    QTest::newRow("focused by keyboard")
        << (enabled | keyboardFocus) << text("TabBorderMouseOverBrush") << text("CardBorderBrush");
    QTest::newRow("selected") << (enabled | selected) << text("TabBackgroundActiveBrush")
                              << text("CardBorderBrush");
    QTest::newRow("selected and hovered")
        << (enabled | selected | QStyle::State_MouseOver) << text("TabBackgroundActiveBrush")
        << text("CardBorderBrush");
    QTest::newRow("disabled") << QStyle::State() << text("TabBackgroundBrushDisabled")
                              << text("CardBorderBrushDisabled");
    QTest::newRow("disabled and hovered")
        << QStyle::State(QStyle::State_MouseOver) << text("TabBackgroundBrushDisabled")
        << text("CardBorderBrushDisabled");
    QTest::newRow("disabled and selected")
        << selected << text("TabBackgroundActiveBrushDisabled") << text("CardBorderBrushDisabled");
}

void TabPaintTest::states()
{
    QFETCH(QStyle::State, state);
    QFETCH(QString, fill);
    QFETCH(QString, border);
    const PaintTheme theme;
    CallRecorder recorder;
    const QTabBar tabBar;
    for (const QWidget *widget :
         {static_cast<const QWidget *>(&tabBar), (const QWidget *)nullptr}) {
        const QImage picture =
            recorder.picture(QStyle::CE_TabBarTabShape, tabOption(state), widget, canvas);
        QCOMPARE(theme.nameAt(picture, tabRect.center()), fill);
        QCOMPARE(theme.nameAt(picture, middleOfEdge(tabRect, Qt::TopEdge)), border);
        QCOMPARE(theme.nameAt(picture, middleOfEdge(tabRect, Qt::LeftEdge)), border);
        QCOMPARE(theme.nameAt(picture, middleOfEdge(tabRect, Qt::RightEdge)), border);
    }
}

void TabPaintTest::shapes_data()
{
    addShapes();
}

/// A tab that is not the current one has a border at all sides, the one towards the page included.
void TabPaintTest::shapes()
{
    QFETCH(QTabBar::Shape, shape);
    const PaintTheme theme;
    CallRecorder recorder;
    const QImage picture =
        recorder.picture(QStyle::CE_TabBarTabShape, tabOption(enabled, shape), nullptr, canvas);
    for (const Qt::Edge edge : edges) {
        QCOMPARE(theme.nameAt(picture, middleOfEdge(tabRect, edge)), text("CardBorderBrush"));
        QCOMPARE(theme.nameAt(picture, middleOfEdge(tabRect.adjusted(-1, -1, 1, 1), edge)),
                 QString());
    }
}

void TabPaintTest::currentTabIsOpenTowardsItsPage_data()
{
    addShapes();
}

void TabPaintTest::currentTabIsOpenTowardsItsPage()
{
    QFETCH(QTabBar::Shape, shape);
    QFETCH(Qt::Edge, baseEdge);
    const PaintTheme theme;
    CallRecorder recorder;
    const QImage picture = recorder.picture(QStyle::CE_TabBarTabShape,
                                            tabOption(enabled | selected, shape), nullptr, canvas);
    for (const Qt::Edge edge : edges) {
        QCOMPARE(theme.nameAt(picture, middleOfEdge(tabRect, edge)),
                 edge == baseEdge ? text("TabBackgroundActiveBrush") : text("CardBorderBrush"));
        QCOMPARE(theme.nameAt(picture, middleOfEdge(tabRect.adjusted(-1, -1, 1, 1), edge)),
                 QString());
    }
}

/// A line between two pixels of the screen is not to leave a trace where the tab is open.
void TabPaintTest::openTabStaysClosedToTheOutsideWhenScaled()
{
    const PaintTheme theme(PaintTheme::Radii{4, 4, 4, 4});
    const TARN::BaseStyle style;
    const QStyleOptionTab option = tabOption(QStyle::State_Enabled | QStyle::State_Selected);
    for (const qreal scale : {1.25, 1.5, 1.75}) {
        QImage picture(canvas * 2, QImage::Format_RGB32);
        picture.fill(Qt::black);
        QPainter painter(&picture);
        painter.scale(scale, scale);
        style.drawControl(QStyle::CE_TabBarTabShape, &option, &painter);
        painter.end();
        const int x = qRound(tabRect.center().x() * scale);
        for (int y = qRound(tabRect.center().y() * scale); y < picture.height(); ++y) {
            const QString name = theme.nameAt(picture, {x, y});
            const bool isGround = picture.pixelColor(x, y) == QColor(Qt::black);
            QVERIFY2(isGround || name == text("TabBackgroundActiveBrush"), qPrintable(name));
        }
    }
}

void TabPaintTest::neighboursShareABorder_data()
{
    QTest::addColumn<QTabBar::Shape>("shape");
    QTest::addColumn<QStyleOptionTab::TabPosition>("position");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QPoint>("growth");
    const QPoint none;
    QTest::newRow("first") << QTabBar::RoundedNorth << QStyleOptionTab::Beginning << Qt::LeftToRight
                           << QPoint(1, 0);
    QTest::newRow("middle") << QTabBar::RoundedSouth << QStyleOptionTab::Middle << Qt::LeftToRight
                            << QPoint(1, 0);
    QTest::newRow("last") << QTabBar::RoundedNorth << QStyleOptionTab::End << Qt::LeftToRight
                          << none;
    QTest::newRow("only") << QTabBar::RoundedNorth << QStyleOptionTab::OnlyOneTab << Qt::LeftToRight
                          << none;
    QTest::newRow("first, mirrored")
        << QTabBar::RoundedNorth << QStyleOptionTab::Beginning << Qt::RightToLeft << none;
    QTest::newRow("last, mirrored")
        << QTabBar::RoundedNorth << QStyleOptionTab::End << Qt::RightToLeft << QPoint(1, 0);
    QTest::newRow("first, vertical")
        << QTabBar::RoundedWest << QStyleOptionTab::Beginning << Qt::RightToLeft << QPoint(0, 1);
    QTest::newRow("last, vertical")
        << QTabBar::TriangularEast << QStyleOptionTab::End << Qt::RightToLeft << none;
}

/// Each tab but the last one ends on the first pixel of the next one.
void TabPaintTest::neighboursShareABorder()
{
    QFETCH(QTabBar::Shape, shape);
    QFETCH(QStyleOptionTab::TabPosition, position);
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(QPoint, growth);
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOptionTab option = tabOption(QStyle::State_Enabled, shape);
    option.position = position;
    option.direction = direction;
    const QImage picture = recorder.picture(QStyle::CE_TabBarTabShape, option, nullptr, canvas);
    const QRect drawn = tabRect.adjusted(0, 0, growth.x(), growth.y());
    for (const Qt::Edge edge : edges) {
        QCOMPARE(theme.nameAt(picture, middleOfEdge(drawn, edge)), text("CardBorderBrush"));
        QCOMPARE(theme.nameAt(picture, middleOfEdge(drawn.adjusted(-1, -1, 1, 1), edge)),
                 QString());
    }
}

void TabPaintTest::radius_data()
{
    QTest::addColumn<QByteArrayList>("ofApplication");
    QTest::addColumn<QByteArrayList>("ofTabBar");
    QTest::addColumn<int>("radius");
    const QByteArrayList none;
    QTest::newRow("default") << none << none << 14;
    QTest::newRow("small") << none << QByteArrayList{"smallTabSize"} << 6;
    QTest::newRow("base") << none << QByteArrayList{"baseTabSize"} << 10;
    QTest::newRow("medium") << none << QByteArrayList{"mediumTabSize"} << 14;
    QTest::newRow("large") << none << QByteArrayList{"largeTabSize"} << 18;
    QTest::newRow("small and large") << none << QByteArrayList{"smallTabSize", "largeTabSize"} << 6;
    QTest::newRow("small application") << QByteArrayList{"appSmallTabSize"} << none << 6;
    QTest::newRow("base application") << QByteArrayList{"appBaseTabSize"} << none << 10;
    QTest::newRow("medium application")
        << QByteArrayList{"appMediumTabSize"} << QByteArrayList{"smallTabSize"} << 14;
    QTest::newRow("large application, small tab bar")
        << QByteArrayList{"appLargeTabSize"} << QByteArrayList{"smallTabSize"} << 18;
    QTest::newRow("small and large application")
        << QByteArrayList{"appLargeTabSize", "appSmallTabSize"} << none << 6;
}

void TabPaintTest::radius()
{
    QFETCH(QByteArrayList, ofApplication);
    QFETCH(QByteArrayList, ofTabBar);
    QFETCH(int, radius);
    const PaintTheme theme(PaintTheme::Radii{6, 10, 14, 18});
    CallRecorder recorder;
    QTabBar tabBar;
    for (const QByteArray &property : qAsConst(ofTabBar)) {
        tabBar.setProperty(property.constData(), true);
    }
    for (const QByteArray &property : qAsConst(ofApplication)) {
        qApp->setProperty(property.constData(), true);
    }
    const QImage picture =
        recorder.picture(QStyle::CE_TabBarTabShape, tabOption(enabled), &tabBar, canvas);
    for (const QByteArray &property : qAsConst(ofApplication)) {
        qApp->setProperty(property.constData(), QVariant());
    }
    // The arc meets the diagonal of the corner at a distance that depends on the radius alone.
    const int onDiagonal = qRound(radius * (1 - std::sqrt(0.5)));
    const QColor border = theme.brush(text("CardBorderBrush"));
    const auto isCut = [&](int i) {
        return areAlike(picture.pixelColor(tabRect.topLeft() + QPoint(i, i)), Qt::black);
    };
    QVERIFY(isCut(onDiagonal - 2));
    QVERIFY(!isCut(onDiagonal));
    QVERIFY(theme.nameAt(picture, tabRect.topLeft() + QPoint(onDiagonal + 2, onDiagonal + 2)) ==
            text("TabBackgroundBrush"));
    QVERIFY(areAlike(picture.pixelColor(tabRect.topLeft() + QPoint(radius + 1, 0)), border));
}

void TabPaintTest::roundCorners_data()
{
    addShapes();
}

/// The corners at the page are straight, the two others are round.
void TabPaintTest::roundCorners()
{
    QFETCH(QTabBar::Shape, shape);
    QFETCH(Qt::Edge, baseEdge);
    const PaintTheme theme(PaintTheme::Radii{8, 8, 8, 8});
    CallRecorder recorder;
    const QImage picture =
        recorder.picture(QStyle::CE_TabBarTabShape, tabOption(enabled, shape), nullptr, canvas);
    const auto isAt = [&](const QPoint &corner, Qt::Edge edge) {
        return corner == QPoint(edge == Qt::LeftEdge    ? tabRect.left()
                                : edge == Qt::RightEdge ? tabRect.right()
                                                        : corner.x(),
                                edge == Qt::TopEdge      ? tabRect.top()
                                : edge == Qt::BottomEdge ? tabRect.bottom()
                                                         : corner.y());
    };
    for (const QPoint &corner :
         {tabRect.topLeft(), tabRect.topRight(), tabRect.bottomLeft(), tabRect.bottomRight()}) {
        QVERIFY(areAlike(picture.pixelColor(corner), isAt(corner, baseEdge)
                                                         ? theme.brush(text("CardBorderBrush"))
                                                         : QColor(Qt::black)));
    }
}

void TabPaintTest::highlight_data()
{
    addShapes();
}

/// A line in the main colour runs along the side of the current tab that is away from its page.
void TabPaintTest::highlight()
{
    QFETCH(QTabBar::Shape, shape);
    QFETCH(Qt::Edge, baseEdge);
    const PaintTheme theme;
    CallRecorder recorder;
    QTabBar tabBar;
    tabBar.setProperty("currentTabHighlighted", true);
    const auto picture = [&](QStyle::State state) {
        return recorder.picture(QStyle::CE_TabBarTabShape, tabOption(state, shape), &tabBar,
                                canvas);
    };
    const Qt::Edge outerEdge = baseEdge == Qt::TopEdge      ? Qt::BottomEdge
                               : baseEdge == Qt::BottomEdge ? Qt::TopEdge
                               : baseEdge == Qt::LeftEdge   ? Qt::RightEdge
                                                            : Qt::LeftEdge;
    const QPoint outer = middleOfEdge(tabRect, outerEdge);
    QCOMPARE(theme.nameAt(picture(enabled | selected), outer), text("MainColor"));
    QCOMPARE(theme.nameAt(picture(selected), outer), text("MainColorDisabled"));
    QVERIFY(!theme.shows(picture(enabled), text("MainColor")));
    const QPoint inner = middleOfEdge(tabRect, baseEdge);
    QCOMPARE(theme.nameAt(picture(enabled | selected), inner), text("TabBackgroundActiveBrush"));
}

void TabPaintTest::highlightOfTheApplication()
{
    const PaintTheme theme;
    CallRecorder recorder;
    const QStyleOptionTab option = tabOption(QStyle::State_Enabled | QStyle::State_Selected);
    QVERIFY(!theme.shows(recorder.picture(QStyle::CE_TabBarTabShape, option, nullptr, canvas),
                         text("MainColor")));
    qApp->setProperty("appCurrentTabHighlighted", true);
    const QImage picture = recorder.picture(QStyle::CE_TabBarTabShape, option, nullptr, canvas);
    qApp->setProperty("appCurrentTabHighlighted", QVariant());
    QVERIFY(theme.shows(picture, text("MainColor")));
}

void TabPaintTest::tabNeedsItsOption()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOption option;
    option.rect = tabRect;
    option.state = QStyle::State_Enabled;
    for (const auto element : {QStyle::CE_TabBarTabShape, QStyle::CE_TabBarTabLabel}) {
        QCOMPARE(theme.namesIn(recorder.picture(element, option, nullptr, canvas)), QStringList());
    }
}

void TabPaintTest::hugeAndEmptyRectangles()
{
    const PaintTheme theme(PaintTheme::Radii{8, 8, 8, 8});
    CallRecorder recorder;
    constexpr int far = 1 << 24;
    const QWidget other;
    for (const QRect &rect : {QRect(), QRect(0, 0, 1, 1), QRect(5, 5, -20, -20),
                              QRect(QPoint(-far, -far), QPoint(far, far))}) {
        for (const auto shape : {QTabBar::RoundedNorth, QTabBar::TriangularEast}) {
            QStyleOptionTab tab = tabOption(QStyle::State_Enabled | QStyle::State_Selected, shape);
            tab.rect = rect;
            tab.text = text("&Text");
            QStyleOptionTabBarBase base;
            base.rect = rect;
            base.shape = shape;
            QStyleOptionTabWidgetFrame frame;
            frame.rect = rect;
            frame.tabBarRect = rect;
            for (const QWidget *widget : {static_cast<const QWidget *>(nullptr), &other}) {
                const bool isSeen = rect.isValid();
                const QColor ground(Qt::black);
                const QImage page =
                    recorder.picture(QStyle::PE_FrameTabWidget, frame, widget, canvas);
                QCOMPARE(page.pixelColor(0, 0) != ground, isSeen);
                const QImage shown = recorder.picture(QStyle::CE_TabBarTab, tab, widget, canvas);
                QVERIFY(isSeen || shown.pixelColor(0, 0) == ground);
                recorder.picture(QStyle::PE_FrameTabBarBase, base, widget, canvas);
                recorder.picture(QStyle::PE_IndicatorTabClose, base, widget, canvas);
            }
        }
    }
}

QTEST_MAIN(TabPaintTest)
#include "TabPaintTest.moc"
