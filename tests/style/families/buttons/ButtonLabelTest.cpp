#include "style/families/buttons/ButtonSample.h"

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyleOption>

#include <support/Text.h>
#include <support/painting/CallRecorder.h>
#include <support/painting/Pixels.h>
#include <support/themes/PaintTheme.h>

using TARN::BaseStyle;

namespace {

constexpr QStyle::State enabled = QStyle::State_Enabled | QStyle::State_Active;
constexpr QStyle::State hovered = enabled | QStyle::State_MouseOver;

constexpr QStyle::State sunken = enabled | QStyle::State_Sunken;
constexpr QStyle::State on = enabled | QStyle::State_On;

/// A proxy that tells whether mnemonics are to be underlined.
class MnemonicsRecorder : public CallRecorder
{
public:
    explicit MnemonicsRecorder(bool areUnderlined)
        : m_areUnderlined(areUnderlined)
    {
    }

    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returnData) const override
    {
        return hint == SH_UnderlineShortcut
                   ? int(m_areUnderlined)
                   : CallRecorder::styleHint(hint, option, widget, returnData);
    }

private:
    bool m_areUnderlined;
};

} // namespace

Q_DECLARE_METATYPE(QStyleOptionButton::ButtonFeatures)

/// The labels of push buttons.
class ButtonLabelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void labelColors_data();
    void labelColors();
    void labelOfDisabledWidget();
    void labelOfRestingOutlineButton_data();
    void labelOfRestingOutlineButton();
    void labelTintsItsIcon();
    void labelTintsItsIconWhereTheTextHasItsColor();
    void labelPlaces_data();
    void labelPlaces();
    void longLabelKeepsItsIcon();
    void mnemonics_data();
    void mnemonics();

private:
    PaintTheme m_theme;
    CallRecorder m_recorder;

    QImage control(QStyle::ControlElement element, const QStyleOption &option,
                   const QWidget *widget = nullptr)
    {
        return m_recorder.picture(element, option, widget, pictureSize);
    }
    QRect rectOf(const char *element) const { return m_recorder.call(element).rect; }
};

void ButtonLabelTest::labelColors_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("name");

    QTest::newRow("rest") << int(enabled) << text("ButtonUncheckedForegroundBrush");
    QTest::newRow("hovered") << int(hovered) << text("ButtonUncheckedHoverForegroundBrush");
    QTest::newRow("pressed") << int(sunken) << text("ButtonUncheckedPressedForegroundBrush");
    QTest::newRow("checked") << int(on) << text("ButtonCheckedForegroundBrush");
}

void ButtonLabelTest::labelColors()
{
    QFETCH(int, state);
    QFETCH(QString, name);
    const QPushButton button;
    QStyleOptionButton option = buttonOption(QStyle::State(state));
    option.text = blocks(3);

    QCOMPARE(m_theme.namesIn(control(QStyle::CE_PushButtonLabel, option, &button)),
             QStringList{name});
    QVERIFY(m_theme.shows(control(QStyle::CE_PushButton, option, &button), name));
}

void ButtonLabelTest::labelOfDisabledWidget()
{
    QPushButton button;
    button.setEnabled(false);
    QStyleOptionButton option = buttonOption(QStyle::State_None);
    option.text = blocks(3);
    const QString name = text("ButtonUncheckedForegroundBrushDisabled");

    QCOMPARE(m_theme.namesIn(control(QStyle::CE_PushButtonLabel, option, &button)),
             QStringList{name});
    option.palette.setCurrentColorGroup(QPalette::Disabled);
    QVERIFY(m_theme.shows(control(QStyle::CE_PushButton, option, &button), name));
}

void ButtonLabelTest::labelOfRestingOutlineButton_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("name");

    QTest::newRow("enabled") << int(enabled) << text("ForegroundColor");
    QTest::newRow("disabled") << int(QStyle::State_None) << text("ForegroundColorDisabled");
}

void ButtonLabelTest::labelOfRestingOutlineButton()
{
    QFETCH(int, state);
    QFETCH(QString, name);
    QPushButton button;
    button.setProperty("outline", true);
    QStyleOptionButton option = buttonOption(QStyle::State(state));
    option.text = blocks(3);
    QCOMPARE(m_theme.namesIn(control(QStyle::CE_PushButtonLabel, option, &button)),
             QStringList{name});

    // What disabled icons look like is the application's style's to say.
    QApplication::setStyle(new BaseStyle);
    QVERIFY(m_theme.shows(
        control(QStyle::CE_PushButtonLabel, iconOption(QStyle::State(state)), &button), name));
}

void ButtonLabelTest::labelTintsItsIcon()
{
    const QPushButton button;
    const QString tint = text("ButtonUncheckedHoverForegroundBrush");

    QCOMPARE(m_theme.namesIn(control(QStyle::CE_PushButtonLabel, iconOption(hovered), &button)),
             QStringList{tint});
    QVERIFY(m_theme.shows(control(QStyle::CE_PushButton, iconOption(hovered), &button), tint));
}

/// An application may have given its text the very brush that the theme has for it.
void ButtonLabelTest::labelTintsItsIconWhereTheTextHasItsColor()
{
    const QPushButton button;
    const QString tint = text("ButtonUncheckedForegroundBrush");
    QStyleOptionButton option = iconOption(enabled);
    option.palette.setBrush(QPalette::ButtonText, m_theme.brush(tint));
    QCOMPARE(m_theme.namesIn(control(QStyle::CE_PushButtonLabel, option, &button)),
             QStringList{tint});
}

void ButtonLabelTest::labelPlaces_data()
{
    QTest::addColumn<QStyleOptionButton::ButtonFeatures>("features");
    QTest::addColumn<QRect>("room");

    QTest::newRow("alone") << QStyleOptionButton::ButtonFeatures() << buttonRect;
    QTest::newRow("beside the arrow of a menu")
        << QStyleOptionButton::ButtonFeatures(QStyleOptionButton::HasMenu)
        << buttonRect.adjusted(0, 0, -12, 0);
}

void ButtonLabelTest::labelPlaces()
{
    QFETCH(QStyleOptionButton::ButtonFeatures, features);
    QFETCH(QRect, room);
    QStyleOptionButton option = iconOption(enabled, features);
    option.text = text("Text");
    control(QStyle::CE_PushButtonLabel, option);
    const QRect icon = rectOf("drawItemPixmap");
    const QRect label = rectOf("drawItemText");

    QCOMPARE(icon.size(), QSize(16, 16));
    QCOMPARE(icon.top() - room.top(), room.bottom() - icon.bottom());
    QCOMPARE(label.left(), icon.right() + 1 + 4);
    const int textWidth = option.fontMetrics.size(Qt::TextShowMnemonic, option.text).width();
    const int before = icon.left() - room.left();
    const int after = room.right() - (label.left() + textWidth - 1);
    QVERIFY(qAbs(before - after) <= 1);

    option.direction = Qt::RightToLeft;
    control(QStyle::CE_PushButtonLabel, option);
    QCOMPARE(rectOf("drawItemPixmap"), QStyle::visualRect(Qt::RightToLeft, buttonRect, icon));
    QCOMPARE(rectOf("drawItemText"), QStyle::visualRect(Qt::RightToLeft, buttonRect, label));

    option.icon = QIcon();
    option.direction = Qt::LeftToRight;
    control(QStyle::CE_PushButtonLabel, option);
    QCOMPARE(m_recorder.elements(), QStringList{text("drawItemText")});
    QCOMPARE(rectOf("drawItemText"), room);
}

void ButtonLabelTest::longLabelKeepsItsIcon()
{
    QStyleOptionButton option = iconOption(enabled);
    option.rect.setWidth(30);
    option.text = text("A text that is longer than its button");
    control(QStyle::CE_PushButtonLabel, option);

    QCOMPARE(rectOf("drawItemPixmap").left(), option.rect.left());
}

void ButtonLabelTest::mnemonics_data()
{
    QTest::addColumn<bool>("areUnderlined");

    QTest::newRow("underlined") << true;
    QTest::newRow("hidden") << false;
}

void ButtonLabelTest::mnemonics()
{
    QFETCH(bool, areUnderlined);
    MnemonicsRecorder recorder(areUnderlined);
    const auto pictureOf = [&recorder](const char *label) {
        QStyleOptionButton option = buttonOption(enabled);
        option.text = text(label);
        return recorder.picture(QStyle::CE_PushButtonLabel, option, nullptr, pictureSize);
    };

    QCOMPARE(pictureOf("&Text") != pictureOf("Text"), areUnderlined);
    QVERIFY(pictureOf("&&Text") != pictureOf("Text"));
}

QTEST_MAIN(ButtonLabelTest)
#include "ButtonLabelTest.moc"
