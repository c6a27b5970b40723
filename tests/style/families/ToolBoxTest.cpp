#include <style/BaseStyle.h>

#include <QtTest/QtTest>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QToolBox>

#include <support/NamedWidget.h>
#include <support/Text.h>
#include <support/painting/CallRecorder.h>
#include <support/painting/FusionPicture.h>
#include <support/themes/PaintTheme.h>

using TARN::BaseStyle;

Q_DECLARE_METATYPE(QStyleOptionToolBox::TabPosition)
Q_DECLARE_METATYPE(QStyleOptionToolBox::SelectedPosition)

namespace {

constexpr QSize size(60, 42);

QStyleOptionToolBox tab(bool enabled)
{
    QStyleOptionToolBox option;
    option.rect = QRect(QPoint(), size);
    option.state = enabled ? QStyle::State_Enabled : QStyle::State_None;
    return option;
}

} // namespace

/// Tool boxes: their tabs, and what polishing does to them.
class ToolBoxTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shape_data();
    void shape();
    void topLine_data();
    void topLine();
    void needsItsOption();
    void polishing();
    void layoutsOfOtherWidgetsStay();

private:
    QString nameAt(const QImage &picture, int x, int y) const
    {
        return m_theme.nameAt(picture, {x, y});
    }

    PaintTheme m_theme;
    CallRecorder m_recorder;
    BaseStyle m_style;
};

void ToolBoxTest::shape_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QString>("suffix");
    QTest::newRow("enabled") << true << QString();
    QTest::newRow("disabled") << false << text("Disabled");
}

void ToolBoxTest::shape()
{
    QFETCH(bool, enabled);
    QFETCH(QString, suffix);
    const QImage picture =
        m_recorder.picture(QStyle::CE_ToolBoxTabShape, tab(enabled), nullptr, size);
    const QString border = text("CardBorderBrush") + suffix;
    QCOMPARE(nameAt(picture, 30, 20), text("BackgroundUpLevel1Brush") + suffix);
    QCOMPARE(nameAt(picture, 0, 20), border);
    QCOMPARE(nameAt(picture, 59, 20), border);
    QCOMPARE(nameAt(picture, 30, 0), border);
    QCOMPARE(nameAt(picture, 30, 41), border);
    QCOMPARE(nameAt(picture, 30, 40), text("BackgroundUpLevel2Color") + suffix);
    QCOMPARE(nameAt(picture, 30, 39), text("BackgroundUpLevel1Brush") + suffix);
}

void ToolBoxTest::topLine_data()
{
    QTest::addColumn<QStyleOptionToolBox::TabPosition>("position");
    QTest::addColumn<QStyleOptionToolBox::SelectedPosition>("selected");
    QTest::addColumn<bool>("hasLine");
    using Tab = QStyleOptionToolBox;
    QTest::newRow("first") << Tab::Beginning << Tab::NotAdjacent << true;
    QTest::newRow("only one") << Tab::OnlyOneTab << Tab::NotAdjacent << true;
    QTest::newRow("below a closed one") << Tab::Middle << Tab::NotAdjacent << false;
    QTest::newRow("last below a closed one") << Tab::End << Tab::NotAdjacent << false;
    QTest::newRow("below the open page") << Tab::Middle << Tab::PreviousIsSelected << true;
    QTest::newRow("above the open page") << Tab::Middle << Tab::NextIsSelected << false;
}

// Tabs lie closely: the line between two is the bottom line of the upper one.
void ToolBoxTest::topLine()
{
    QFETCH(QStyleOptionToolBox::TabPosition, position);
    QFETCH(QStyleOptionToolBox::SelectedPosition, selected);
    QFETCH(bool, hasLine);
    QStyleOptionToolBox option = tab(true);
    option.position = position;
    option.selectedPosition = selected;
    const QImage picture = m_recorder.picture(QStyle::CE_ToolBoxTabShape, option, nullptr, size);
    QCOMPARE(nameAt(picture, 30, 0),
             hasLine ? text("CardBorderBrush") : text("BackgroundUpLevel1Brush"));
}

void ToolBoxTest::needsItsOption()
{
    QStyleOption option;
    option.rect = QRect(QPoint(), size);
    QCOMPARE(m_recorder.picture(QStyle::CE_ToolBoxTabShape, option, nullptr, size),
             fusionPicture(QStyle::CE_ToolBoxTabShape, option, nullptr, size));
}

void ToolBoxTest::polishing()
{
    QToolBox toolBox;
    toolBox.addItem(new QWidget, text("First"));
    toolBox.layout()->setContentsMargins(1, 2, 3, 4);
    toolBox.layout()->setSpacing(5);
    auto *button = toolBox.findChild<QAbstractButton *>();
    QVERIFY(button->inherits("QToolBoxButton"));
    m_style.polish(&toolBox);
    m_style.polish(button);
    QCOMPARE(toolBox.layout()->contentsMargins(), QMargins());
    QCOMPARE(toolBox.layout()->spacing(), 0);
    QCOMPARE(button->minimumHeight(), 42);

    NamedWidget withoutLayout("QToolBox");
    m_style.polish(&withoutLayout);
    QVERIFY(!withoutLayout.layout());
}

void ToolBoxTest::layoutsOfOtherWidgetsStay()
{
    QFrame frame;
    QHBoxLayout layout(&frame);
    layout.setContentsMargins(1, 2, 3, 4);
    layout.setSpacing(5);
    m_style.polish(&frame);
    QCOMPARE(layout.contentsMargins(), QMargins(1, 2, 3, 4));
    QCOMPARE(layout.spacing(), 5);
    QPushButton button;
    m_style.polish(&button);
    QCOMPARE(button.minimumHeight(), 0);
}

QTEST_MAIN(ToolBoxTest)
#include "ToolBoxTest.moc"
