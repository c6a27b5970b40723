#include "style/families/tabs/TabLabelSample.h"

#include <QtGui/QPainter>
#include <QtTest/QtTest>
#include <QtWidgets/QTabBar>

#include <support/Text.h>
#include <support/themes/PaintTheme.h>

Q_DECLARE_METATYPE(QStyle::State)

namespace {

constexpr QStyle::State enabled = QStyle::State_Enabled;
constexpr QStyle::State selected = QStyle::State_Selected;

} // namespace

/// The fonts of tab labels.
class TabLabelFontTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fontOfTheBar();
    void boldText_data();
    void boldText();
    void boldTextOfTheApplication();
    void boldTextFindsRoom_data();
    void boldTextFindsRoom();
};

/// A painter that was not made for the bar knows no font, as that of a tab which is being moved.
void TabLabelFontTest::fontOfTheBar()
{
    const PaintTheme theme;
    const TextRecorder recorder;
    QTabBar bar;
    QFont font = bar.font();
    font.setPixelSize(27);
    bar.setFont(font);
    QVERIFY(recorder.draw(tabOption(QStyle::State_Enabled), &bar));
    QCOMPARE(recorder.m_pixelSize, 27);

    QImage picture(canvas, QImage::Format_RGB32);
    QPainter painter(&picture);
    font.setPixelSize(19);
    painter.setFont(font);
    const QStyleOptionTab option = tabOption(QStyle::State_Enabled);
    recorder.drawControl(QStyle::CE_TabBarTabLabel, &option, &painter, &bar);
    QCOMPARE(recorder.m_pixelSize, 19);
}

void TabLabelFontTest::boldText_data()
{
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<bool>("isHighlighting");
    QTest::addColumn<bool>("isBold");
    QTest::newRow("rest") << enabled << false << false;
    QTest::newRow("hovered") << (enabled | QStyle::State_MouseOver) << false << false;
    QTest::newRow("selected") << (enabled | selected) << false << true;
    QTest::newRow("disabled and selected") << selected << false << true;
    QTest::newRow("highlighting, selected") << (enabled | selected) << true << false;
}

void TabLabelFontTest::boldText()
{
    QFETCH(QStyle::State, state);
    QFETCH(bool, isHighlighting);
    QFETCH(bool, isBold);
    const PaintTheme theme;
    const TextRecorder recorder;
    QTabBar tabBar;
    tabBar.setProperty("currentTabHighlighted", isHighlighting);
    QVERIFY(recorder.draw(tabOption(state), &tabBar));
    QCOMPARE(recorder.m_isBold, isBold);
}

void TabLabelFontTest::boldTextOfTheApplication()
{
    const PaintTheme theme;
    const TextRecorder recorder;
    const QStyleOptionTab option = tabOption(QStyle::State_Enabled | QStyle::State_Selected);
    QVERIFY(recorder.draw(option, nullptr));
    QVERIFY(recorder.m_isBold);
    qApp->setProperty("appCurrentTabHighlighted", true);
    const bool isRestored = recorder.draw(option, nullptr);
    qApp->setProperty("appCurrentTabHighlighted", QVariant());
    QVERIFY(isRestored);
    QVERIFY(!recorder.m_isBold);
}

void TabLabelFontTest::boldTextFindsRoom_data()
{
    QTest::addColumn<QSize>("leftButton");
    QTest::addColumn<QSize>("rightButton");
    QTest::addColumn<int>("padding");
    QTest::addColumn<int>("mirroredPadding");
    const QSize button(16, 16);
    // Of the 12 pixels of padding at either side, 3 stay free; 2 more the text has anyway.
    QTest::newRow("no buttons") << QSize() << QSize() << 2 + 18 << 2 + 18;
    QTest::newRow("right button") << QSize() << button << 2 + 9 << 2 + 9;
    QTest::newRow("left button") << button << QSize() << 2 + 9 << 2 + 9;
    // In a mirrored tab both stand before the text.
    QTest::newRow("two buttons") << button << button << 2 << 2 + 9;
}

/// Bold text is wider than the toolkit makes its tab. It takes the padding, as far as there is any;
/// beyond that the text is plain, for which the tab has room.
void TabLabelFontTest::boldTextFindsRoom()
{
    QFETCH(QSize, leftButton);
    QFETCH(QSize, rightButton);
    QFETCH(int, padding);
    QFETCH(int, mirroredPadding);
    const PaintTheme theme;
    const TextRecorder recorder;
    QStyleOptionTab option = tabOption(QStyle::State_Enabled | QStyle::State_Selected);
    option.text = text("Measurements");
    option.leftButtonSize = leftButton;
    option.rightButtonSize = rightButton;
    QFont bold = QApplication::font();
    bold.setBold(true);
    // Fonts are measured for the device that is painted on.
    QImage picture(canvas, QImage::Format_RGB32);
    const int width = QFontMetrics(bold, &picture).size(0, option.text).width();
    const auto buttonWidth = [](const QSize &size) {
        return size.isEmpty() ? 0 : size.width() + 4;
    };
    for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        option.direction = direction;
        const int rest = 24 + buttonWidth(leftButton) + buttonWidth(rightButton);
        const bool isMirrored = direction == Qt::RightToLeft;
        option.rect.setWidth(width - (isMirrored ? mirroredPadding : padding) + rest);
        QVERIFY(recorder.draw(option, nullptr));
        QVERIFY(recorder.m_isBold);
        QCOMPARE(recorder.m_rect.width(), width);
        const int atLeft = isMirrored ? 0 : buttonWidth(leftButton);
        const int atRight = buttonWidth(rightButton) + (isMirrored ? buttonWidth(leftButton) : 0);
        QVERIFY(recorder.m_rect.left() >= option.rect.left() + 3 + atLeft);
        QVERIFY(recorder.m_rect.right() <= option.rect.right() - 1 - atRight);

        option.rect.setWidth(option.rect.width() - 1);
        QVERIFY(recorder.draw(option, nullptr));
        QVERIFY(!recorder.m_isBold);
        QCOMPARE(recorder.m_text, option.text);
        QCOMPARE(recorder.m_rect,
                 recorder.subElementRect(QStyle::SE_TabBarTabText, &option, nullptr)
                     .translated(isMirrored ? -buttonWidth(rightButton) : 0, 0));
    }
}

QTEST_MAIN(TabLabelFontTest)
#include "TabLabelFontTest.moc"
