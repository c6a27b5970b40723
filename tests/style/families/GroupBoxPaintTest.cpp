#include <QtTest/QtTest>
#include <QtWidgets/QGroupBox>

#include <support/Text.h>
#include <support/painting/CallRecorder.h>
#include <support/painting/Pixels.h>
#include <support/themes/PaintTheme.h>

namespace {

constexpr QSize size(160, 80);

QStyleOptionGroupBox groupBox(const QString &title)
{
    QStyleOptionGroupBox option;
    option.rect = QRect(QPoint(), size);
    option.state = QStyle::State_Enabled;
    option.text = title;
    option.textAlignment = Qt::AlignLeft;
    option.lineWidth = 1;
    option.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel;
    option.palette.setColor(QPalette::WindowText, Qt::red);
    option.palette.setColor(QPalette::Disabled, QPalette::WindowText, Qt::blue);
    return option;
}

} // namespace

/// Group boxes, as the style paints them when it paints everything.
class GroupBoxPaintTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void parts();
    void onlyWantedParts();
    void title_data();
    void title();
    void titleOfAColor();
    void longTitle_data();
    void longTitle();
    void checkBox_data();
    void checkBox();
    void focus();
    void frameKeepsItsFeatures();
    void needsItsOption();

private:
    QImage picture(const QStyleOptionComplex &option)
    {
        return m_recorder.picture(QStyle::CC_GroupBox, option, nullptr, size);
    }
    QRect placeOf(const QStyleOptionGroupBox &option, QStyle::SubControl part) const
    {
        return m_recorder.subControlRect(QStyle::CC_GroupBox, &option, part, nullptr);
    }

    PaintTheme m_theme;
    CallRecorder m_recorder;
};

void GroupBoxPaintTest::parts()
{
    QStyleOptionGroupBox option = groupBox(text("Title"));
    option.subControls |= QStyle::SC_GroupBoxCheckBox;
    picture(option);
    QCOMPARE(m_recorder.elements().mid(0, 3),
             (QStringList{text("PE_FrameGroupBox"), text("drawItemText"),
                          text("PE_IndicatorCheckBox")}));
    QCOMPARE(m_recorder.call("PE_FrameGroupBox").rect, placeOf(option, QStyle::SC_GroupBoxFrame));
    QCOMPARE(m_recorder.call("drawItemText").rect, placeOf(option, QStyle::SC_GroupBoxLabel));
    QCOMPARE(m_recorder.call("drawItemText").text, text("Title"));
    QCOMPARE(m_recorder.call("PE_IndicatorCheckBox").rect,
             placeOf(option, QStyle::SC_GroupBoxCheckBox));
}

void GroupBoxPaintTest::onlyWantedParts()
{
    QStyleOptionGroupBox option = groupBox(QString());
    picture(option);
    QCOMPARE(m_recorder.elements(), QStringList{text("PE_FrameGroupBox")});
    option.text = text("Title");
    option.subControls = QStyle::SC_GroupBoxLabel;
    picture(option);
    QCOMPARE(m_recorder.elements(), QStringList{text("drawItemText")});
}

void GroupBoxPaintTest::title_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QColor>("color");
    QTest::newRow("enabled") << true << Qt::LeftToRight << QColor(Qt::red);
    QTest::newRow("disabled") << false << Qt::LeftToRight << QColor(Qt::blue);
    QTest::newRow("right to left") << true << Qt::RightToLeft << QColor(Qt::red);
}

void GroupBoxPaintTest::title()
{
    QFETCH(bool, enabled);
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(QColor, color);
    QStyleOptionGroupBox option = groupBox(blocks(3));
    option.state.setFlag(QStyle::State_Enabled, enabled);
    option.direction = direction;
    const QRect place = placeOf(option, QStyle::SC_GroupBoxLabel);
    const QRect painted = extentOf(picture(option), color);
    QVERIFY(!painted.isEmpty());
    QVERIFY(place.contains(painted));
    // It stands at the start of its place.
    if (direction == Qt::LeftToRight) {
        QVERIFY(painted.left() - place.left() <= 1);
    } else {
        QVERIFY(place.right() - painted.right() <= 1);
    }
}

void GroupBoxPaintTest::titleOfAColor()
{
    QStyleOptionGroupBox option = groupBox(blocks(3));
    option.textColor = Qt::green;
    const QImage green = picture(option);
    QVERIFY(containsColor(green, Qt::green));
    QVERIFY(!containsColor(green, Qt::red));
}

void GroupBoxPaintTest::longTitle_data()
{
    QTest::addColumn<bool>("isCheckable");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("title") << false << Qt::LeftToRight;
    QTest::newRow("checkable") << true << Qt::LeftToRight;
    QTest::newRow("right to left") << false << Qt::RightToLeft;
    QTest::newRow("checkable, right to left") << true << Qt::RightToLeft;
}

void GroupBoxPaintTest::longTitle()
{
    QFETCH(bool, isCheckable);
    QFETCH(Qt::LayoutDirection, direction);
    QStyleOptionGroupBox option = groupBox(blocks(60));
    option.subControls.setFlag(QStyle::SC_GroupBoxCheckBox, isCheckable);
    option.direction = direction;
    const QRect place = placeOf(option, QStyle::SC_GroupBoxLabel);
    QVERIFY(option.rect.adjusted(8, 0, -8, 0).contains(place));
    picture(option);
    QVERIFY(m_recorder.call("drawItemText").text.endsWith(QChar(0x2026)));
}

void GroupBoxPaintTest::checkBox_data()
{
    QTest::addColumn<int>("state");
    const int enabled = QStyle::State_Enabled;
    QTest::newRow("off") << (enabled | QStyle::State_Off);
    QTest::newRow("on") << (enabled | QStyle::State_On);
    QTest::newRow("hovered") << (enabled | QStyle::State_Off | QStyle::State_MouseOver);
    QTest::newRow("pressed") << (enabled | QStyle::State_Off | QStyle::State_Sunken);
    QTest::newRow("disabled") << int(QStyle::State_On);
}

void GroupBoxPaintTest::checkBox()
{
    QFETCH(int, state);
    QStyleOptionGroupBox option = groupBox(text("Title"));
    option.subControls |= QStyle::SC_GroupBoxCheckBox;
    option.state = QStyle::State(state);
    picture(option);
    QCOMPARE(m_recorder.call("PE_IndicatorCheckBox").state, QStyle::State(state));
}

void GroupBoxPaintTest::focus()
{
    QStyleOptionGroupBox option = groupBox(text("Title"));
    picture(option);
    QVERIFY(!m_recorder.elements().contains(text("PE_FrameFocusRect")));
    option.state |= QStyle::State_HasFocus;
    picture(option);
    QCOMPARE(m_recorder.call("PE_FrameFocusRect").rect, placeOf(option, QStyle::SC_GroupBoxLabel));
}

void GroupBoxPaintTest::frameKeepsItsFeatures()
{
    QStyleOptionGroupBox option = groupBox(QString());
    option.features = QStyleOptionFrame::Flat;
    const QRect painted = paintedRect(picture(option));
    QCOMPARE(painted.height(), 2);
    QCOMPARE(painted.width(), size.width());
}

void GroupBoxPaintTest::needsItsOption()
{
    QStyleOptionComplex option;
    option.rect = QRect(QPoint(), size);
    option.state = QStyle::State_Enabled;
    picture(option);
    QVERIFY(m_recorder.elements().isEmpty());
}

QTEST_MAIN(GroupBoxPaintTest)
#include "GroupBoxPaintTest.moc"
