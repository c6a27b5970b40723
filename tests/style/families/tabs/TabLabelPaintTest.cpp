#include "style/families/tabs/TabLabelSample.h"

#include <QtTest/QtTest>
#include <QtWidgets/QTabBar>

#include <support/Text.h>
#include <support/painting/CallRecorder.h>
#include <support/painting/Pixels.h>
#include <support/themes/PaintTheme.h>

Q_DECLARE_METATYPE(QStyle::State)
Q_DECLARE_METATYPE(QTabBar::Shape)

namespace {

constexpr QStyle::State enabled = QStyle::State_Enabled;
constexpr QStyle::State selected = QStyle::State_Selected;
constexpr QStyle::State keyboardFocus = QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;

QString nameOfText(const PaintTheme &theme, const QImage &picture)
{
    const QStringList names = theme.namesIn(picture);
    if (!names.isEmpty()) {
        return names.join(QLatin1Char(' '));
    }
    return extentOf(picture, paletteText).isEmpty() ? QString() : text("palette");
}

} // namespace

/// The labels of tabs.
class TabLabelPaintTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void colors_data();
    void colors();
    void iconHasTheColorOfTheText();
    void iconStandsBeforeTheText_data();
    void iconStandsBeforeTheText();
    void labelKeepsOffTheRightButton_data();
    void labelKeepsOffTheRightButton();
    void mnemonics();
    void alignment_data();
    void alignment();
    void sideTabsAreTurned_data();
    void sideTabsAreTurned();
    void focus_data();
    void focus();
    void rectangleCanBeChanged();
};

void TabLabelPaintTest::colors_data()
{
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<bool>("isHighlighting");
    QTest::addColumn<QString>("name");
    QTest::newRow("rest") << enabled << false << text("palette");
    QTest::newRow("hovered") << (enabled | QStyle::State_MouseOver) << false
                             << text("TabForegroundMouseOverBrush");
    QTest::newRow("focused by keyboard")
        << (enabled | keyboardFocus) << false << text("TabForegroundMouseOverBrush");
    QTest::newRow("selected") << (enabled | selected) << false << text("palette");
    QTest::newRow("disabled") << QStyle::State() << false << text("ForegroundDisabledBrush");
    QTest::newRow("disabled and selected") << selected << false << text("ForegroundDisabledBrush");
    QTest::newRow("highlighting, selected")
        << (enabled | selected) << true << text("MainUpLevel1Color");
    QTest::newRow("highlighting, disabled and selected")
        << selected << true << text("MainUpLevel1ColorDisabled");
    QTest::newRow("highlighting, rest") << enabled << true << text("palette");
    QTest::newRow("highlighting, hovered")
        << (enabled | QStyle::State_MouseOver) << true << text("TabForegroundMouseOverBrush");
}

void TabLabelPaintTest::colors()
{
    QFETCH(QStyle::State, state);
    QFETCH(bool, isHighlighting);
    QFETCH(QString, name);
    const PaintTheme theme;
    CallRecorder recorder;
    recorder.stopAt("PE_FrameFocusRect");
    QTabBar tabBar;
    tabBar.setProperty("currentTabHighlighted", isHighlighting);
    const QImage picture =
        recorder.picture(QStyle::CE_TabBarTabLabel, tabOption(state), &tabBar, canvas);
    QCOMPARE(nameOfText(theme, picture), name);
}

void TabLabelPaintTest::iconHasTheColorOfTheText()
{
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOptionTab option = tabOption(QStyle::State_Enabled | QStyle::State_MouseOver);
    option.palette = recorder.style().getPalette();
    option.text.clear();
    option.icon = squareIcon();
    option.iconSize = QSize(16, 16);
    const QImage picture = recorder.picture(QStyle::CE_TabBarTabLabel, option, nullptr, canvas);
    const QColor color = theme.brush(text("TabForegroundMouseOverBrush"));
    QCOMPARE(extentOf(picture, color).size(), QSize(16, 16));
}

void TabLabelPaintTest::iconStandsBeforeTheText_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QSize>("leftButton");
    QTest::addColumn<int>("left");
    // The padding is half of the space that the base style's tabs have.
    QTest::newRow("icon") << Qt::LeftToRight << QSize() << 32;
    QTest::newRow("mirrored") << Qt::RightToLeft << QSize() << 200 - 32 - 16;
    QTest::newRow("button") << Qt::LeftToRight << QSize(20, 18) << 32 + 24;
}

void TabLabelPaintTest::iconStandsBeforeTheText()
{
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(QSize, leftButton);
    QFETCH(int, left);
    const PaintTheme theme;
    CallRecorder recorder;
    QStyleOptionTab option = tabOption(QStyle::State_Enabled);
    option.text.clear();
    option.direction = direction;
    option.icon = squareIcon();
    option.iconSize = QSize(16, 16);
    option.leftButtonSize = leftButton;
    const QImage picture = recorder.picture(QStyle::CE_TabBarTabLabel, option, nullptr, canvas);
    QCOMPARE(extentOf(picture, paletteText), QRect(left, 31, 16, 16));
    // The common layout has the text right beside it.
    const QRect textRect = recorder.subElementRect(QStyle::SE_TabBarTabText, &option, nullptr);
    QCOMPARE(direction == Qt::LeftToRight ? textRect.left() - left - 16
                                          : left - textRect.right() - 1,
             4);
}

void TabLabelPaintTest::labelKeepsOffTheRightButton_data()
{
    QTest::addColumn<QTabBar::Shape>("shape");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    const QPair<const char *, QTabBar::Shape> shapes[] = {
        {"north", QTabBar::RoundedNorth},
        {"south", QTabBar::RoundedSouth},
        {"triangular north", QTabBar::TriangularNorth},
        {"triangular south", QTabBar::TriangularSouth},
    };
    for (const auto &[name, shape] : shapes) {
        QTest::newRow(name) << shape << Qt::LeftToRight;
        QTest::addRow("%s, mirrored", name) << shape << Qt::RightToLeft;
    }
}

/// Wherever the style places the button, neither the icon nor the text lies below it or leaves the
/// tab.
void TabLabelPaintTest::labelKeepsOffTheRightButton()
{
    QFETCH(QTabBar::Shape, shape);
    QFETCH(Qt::LayoutDirection, direction);
    const PaintTheme theme;
    const TextRecorder recorder;
    QStyleOptionTab option = tabOption(QStyle::State_Enabled, shape);
    // The toolkit places buttons as if all tabs began at the top of their bar.
    option.rect.moveTop(0);
    option.direction = direction;
    option.icon = squareIcon();
    option.iconSize = QSize(16, 16);
    option.rightButtonSize = QSize(20, 18);
    QVERIFY(recorder.draw(option, nullptr));
    CallRecorder painting;
    option.text.clear();
    const QImage picture = painting.picture(QStyle::CE_TabBarTabLabel, option, nullptr, canvas);
    const QRect icon = extentOf(picture, paletteText);
    const QRect button = recorder.subElementRect(QStyle::SE_TabBarTabRightButton, &option, nullptr);
    QCOMPARE(icon.size(), QSize(16, 16));
    QVERIFY(option.rect.contains(icon));
    QVERIFY(recorder.m_rect.left() >= option.rect.left());
    QVERIFY(recorder.m_rect.right() <= option.rect.right());
    QVERIFY(!button.intersects(icon));
    QVERIFY(!button.intersects(recorder.m_rect));
    QVERIFY(!icon.intersects(recorder.m_rect));
}

void TabLabelPaintTest::mnemonics()
{
    const PaintTheme theme;
    TextRecorder recorder;
    const QStyleOptionTab option = tabOption(QStyle::State_Enabled);
    QVERIFY(recorder.draw(option, nullptr));
    QCOMPARE(recorder.m_flags & (Qt::TextShowMnemonic | Qt::TextHideMnemonic),
             int(Qt::TextShowMnemonic));
    recorder.isUnderlined = false;
    QVERIFY(recorder.draw(option, nullptr));
    QVERIFY(recorder.m_flags & Qt::TextHideMnemonic);
}

void TabLabelPaintTest::alignment_data()
{
    QTest::addColumn<QVariant>("property");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QTabBar::Shape>("shape");
    QTest::addColumn<Qt::Alignment>("expected");
    const auto north = QTabBar::RoundedNorth;
    const auto west = QTabBar::RoundedWest;
    const QVariant left(int(Qt::AlignLeft));
    const Qt::Alignment leftCentered = Qt::AlignLeft | Qt::AlignVCenter;
    const Qt::Alignment rightCentered = Qt::AlignRight | Qt::AlignVCenter;
    QTest::newRow("none") << QVariant() << Qt::LeftToRight << north
                          << Qt::Alignment(Qt::AlignCenter);
    QTest::newRow("left") << left << Qt::LeftToRight << north << leftCentered;
    QTest::newRow("left, mirrored") << left << Qt::RightToLeft << north << rightCentered;
    QTest::newRow("left, at the side") << left << Qt::RightToLeft << west << leftCentered;
    QTest::newRow("flags") << QVariant::fromValue(Qt::Alignment(Qt::AlignRight | Qt::AlignTop))
                           << Qt::LeftToRight << north
                           << Qt::Alignment(Qt::AlignRight | Qt::AlignTop);
}

void TabLabelPaintTest::alignment()
{
    QFETCH(QVariant, property);
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(QTabBar::Shape, shape);
    QFETCH(Qt::Alignment, expected);
    const PaintTheme theme;
    const TextRecorder recorder;
    QTabBar tabBar;
    tabBar.setProperty("textAlignment", property);
    QStyleOptionTab option = tabOption(QStyle::State_Enabled, shape);
    option.direction = direction;
    QVERIFY(recorder.draw(option, &tabBar));
    constexpr int directions =
        Qt::AlignLeft | Qt::AlignRight | Qt::AlignHCenter | Qt::AlignVertical_Mask;
    QCOMPARE(recorder.m_flags & directions, int(expected));
}

void TabLabelPaintTest::sideTabsAreTurned_data()
{
    QTest::addColumn<QTabBar::Shape>("shape");
    QTest::addColumn<bool>("isUpwards");
    QTest::newRow("west") << QTabBar::RoundedWest << true;
    QTest::newRow("triangular west") << QTabBar::TriangularWest << true;
    QTest::newRow("east") << QTabBar::RoundedEast << false;
    QTest::newRow("triangular east") << QTabBar::TriangularEast << false;
}

/// The text runs along the tab; the icon stands where it begins, also from right to left.
void TabLabelPaintTest::sideTabsAreTurned()
{
    QFETCH(QTabBar::Shape, shape);
    QFETCH(bool, isUpwards);
    const PaintTheme theme;
    CallRecorder recorder;
    for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        QStyleOptionTab option = tabOption(QStyle::State_Enabled, shape);
        option.direction = direction;
        QImage picture = recorder.picture(QStyle::CE_TabBarTabLabel, option, nullptr, canvas);
        const QRect block = extentOf(picture, paletteText);
        QVERIFY(verticalTab.contains(block));
        QVERIFY(block.height() > block.width());
        option.text.clear();
        option.icon = squareIcon();
        option.iconSize = QSize(16, 16);
        picture = recorder.picture(QStyle::CE_TabBarTabLabel, option, nullptr, canvas);
        const QRect icon = extentOf(picture, paletteText);
        QCOMPARE(icon.size(), QSize(16, 16));
        QCOMPARE(icon.center().y() > verticalTab.center().y(), isUpwards);
        QVERIFY(qAbs(icon.center().x() - verticalTab.center().x()) <= 1);
    }
}

void TabLabelPaintTest::focus_data()
{
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<bool>("isMarked");
    QTest::newRow("rest") << enabled << false;
    QTest::newRow("selected") << (enabled | selected) << false;
    QTest::newRow("focused") << (enabled | selected | keyboardFocus) << true;
}

void TabLabelPaintTest::focus()
{
    QFETCH(QStyle::State, state);
    QFETCH(bool, isMarked);
    const PaintTheme theme;
    CallRecorder recorder;
    recorder.stopAt("PE_FrameFocusRect");
    recorder.picture(QStyle::CE_TabBarTabLabel, tabOption(state), nullptr, canvas);
    QCOMPARE(recorder.elements().contains(text("PE_FrameFocusRect")), isMarked);
    if (isMarked) {
        const PaintCall call = recorder.call("PE_FrameFocusRect");
        QCOMPARE(call.rect, horizontalTab.adjusted(3, 3, -3, -3));
        QVERIFY(call.state & QStyle::State_KeyboardFocusChange);
    }
}

/// What a further proxy says about the place of the text holds.
void TabLabelPaintTest::rectangleCanBeChanged()
{
    struct MovedStyle : TextRecorder
    {
        QRect subElementRect(SubElement element, const QStyleOption *option,
                             const QWidget *widget) const override
        {
            return element == SE_TabBarTabText
                       ? QRect(1, 2, 30, 4)
                       : QProxyStyle::subElementRect(element, option, widget);
        }
    };
    const PaintTheme theme;
    const MovedStyle style;
    QVERIFY(style.draw(tabOption(QStyle::State_Enabled), nullptr));
    QCOMPARE(style.m_rect, QRect(1, 2, 30, 4));
}

QTEST_MAIN(TabLabelPaintTest)
#include "TabLabelPaintTest.moc"
