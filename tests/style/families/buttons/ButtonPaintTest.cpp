#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyleOption>

#include <cmath>
#include <support/Text.h>
#include <support/painting/CallRecorder.h>
#include <support/themes/PaintTheme.h>

using TARN::BaseStyle;

namespace {

constexpr QStyle::State enabled = QStyle::State_Enabled | QStyle::State_Active;
constexpr QStyle::State hovered = enabled | QStyle::State_MouseOver;
constexpr QStyle::State sunken = enabled | QStyle::State_Sunken;
constexpr QStyle::State on = enabled | QStyle::State_On;

constexpr QSize pictureSize(120, 40);
constexpr QRect buttonRect(10, 5, 100, 30);

/// Returns a text that fills whole pixels.
QString blocks()
{
    return QString(3, QChar(0x2588));
}

/// Returns a square in the colour that is tinted.
QIcon squareIcon()
{
    QPixmap pixmap(16, 16);
    pixmap.fill(QColor(0xe5, 0xee, 0xf4));
    return QIcon(pixmap);
}

QStyleOptionButton buttonOption(QStyle::State state,
                                QStyleOptionButton::ButtonFeatures features = {})
{
    QStyleOptionButton option;
    option.rect = buttonRect;
    option.state = state;
    option.features = features;
    return option;
}

QStyleOptionButton iconOption(QStyle::State state, QStyleOptionButton::ButtonFeatures features = {})
{
    QStyleOptionButton option = buttonOption(state, features);
    option.icon = squareIcon();
    option.iconSize = QSize(16, 16);
    return option;
}

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

/// Push buttons: their labels, and how these come together with the bevels.
class ButtonPaintTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bevelPreparesTheOption();
    void bevelWithoutForeground();
    void preparedOptionIsTheCallersOwn();
    void wholeButton();
    void focus_data();
    void focus();
    void focusOfACircularButton();
    void focusInTheColorOfTheText();
    void labelColors_data();
    void labelColors();
    void labelOfDisabledWidget();
    void labelOfRestingOutlineButton_data();
    void labelOfRestingOutlineButton();
    void labelTintsItsIcon();
    void labelPlaces_data();
    void labelPlaces();
    void longLabelKeepsItsIcon();
    void mnemonics_data();
    void mnemonics();
    void needTheirOption_data();
    void needTheirOption();
    void oddRectangles_data();
    void oddRectangles();

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

void ButtonPaintTest::bevelPreparesTheOption()
{
    const QPushButton button;
    const QBrush before(Qt::magenta);
    QStyleOptionButton option = iconOption(hovered);
    option.palette.setCurrentColorGroup(QPalette::Inactive);
    option.palette.setBrush(QPalette::All, QPalette::ButtonText, before);
    option.palette.setBrush(QPalette::All, QPalette::WindowText, before);
    control(QStyle::CE_PushButtonBevel, option, &button);

    const QColor expected = m_theme.brush(text("ButtonUncheckedHoverForegroundBrush"));
    for (const auto role : {QPalette::ButtonText, QPalette::WindowText}) {
        QCOMPARE(option.palette.color(QPalette::Inactive, role), expected);
        QCOMPARE(option.palette.brush(QPalette::Active, role), before);
        QCOMPARE(option.palette.brush(QPalette::Disabled, role), before);
    }
    QCOMPARE(option.palette.currentColorGroup(), QPalette::Inactive);
    QCOMPARE(option.icon.pixmap(16, 16).toImage().pixelColor(8, 8), expected);
}

void ButtonPaintTest::bevelWithoutForeground()
{
    QPushButton button;
    button.setProperty("outline", true);
    QStyleOptionButton option = iconOption(enabled);
    const QPalette palette = option.palette;
    const qint64 icon = option.icon.cacheKey();
    control(QStyle::CE_PushButtonBevel, option, &button);

    QCOMPARE(option.palette, palette);
    QCOMPARE(option.icon.cacheKey(), icon);
}

void ButtonPaintTest::preparedOptionIsTheCallersOwn()
{
    QStyleOptionButton option = buttonOption(enabled);
    const BaseStyle &style = m_recorder.style();

    QCOMPARE(style.commonCallButtonText<QStyleOptionButton>(&option, nullptr),
             static_cast<const QStyleOptionButton *>(&option));
    QCOMPARE(option.palette.color(QPalette::ButtonText),
             m_theme.brush(text("ButtonUncheckedForegroundBrush")));
}

void ButtonPaintTest::wholeButton()
{
    const QPushButton button;
    QStyleOptionButton option = iconOption(enabled, QStyleOptionButton::HasMenu);
    option.text = text("Text");
    control(QStyle::CE_PushButton, option, &button);

    QCOMPARE(m_recorder.elements(),
             QStringList({text("CE_PushButtonBevel"), text("PE_PanelButtonCommand"),
                          text("PE_IndicatorArrowDown"), text("CE_PushButtonLabel"),
                          text("drawItemPixmap"), text("drawItemText")}));
    QCOMPARE(rectOf("CE_PushButtonBevel"), buttonRect);
    QCOMPARE(rectOf("PE_PanelButtonCommand"), buttonRect);
    QCOMPARE(rectOf("CE_PushButtonLabel"), buttonRect.adjusted(1, 1, -1, -1));
    // What the caller paints next matches the label.
    QCOMPARE(option.palette.color(QPalette::ButtonText),
             m_theme.brush(text("ButtonUncheckedForegroundBrush")));
}

void ButtonPaintTest::focus_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<bool>("isHanded");

    const QStyle::State byMouse = enabled | QStyle::State_HasFocus;
    QTest::newRow("none") << int(enabled) << false;
    QTest::newRow("by mouse") << int(byMouse) << true;
    QTest::newRow("by keyboard") << int(byMouse | QStyle::State_KeyboardFocusChange) << true;
}

void ButtonPaintTest::focus()
{
    QFETCH(int, state);
    QFETCH(bool, isHanded);
    const QPushButton button;
    const QStyleOptionButton option = buttonOption(QStyle::State(state));
    control(QStyle::CE_PushButton, option, &button);

    QCOMPARE(m_recorder.elements().contains(text("PE_FrameFocusRect")), isHanded);
    if (isHanded) {
        const PaintCall call = m_recorder.call("PE_FrameFocusRect");
        QCOMPARE(call.rect,
                 m_recorder.subElementRect(QStyle::SE_PushButtonFocusRect, &option, &button));
        QCOMPARE(int(call.state), state);
    }
}

void ButtonPaintTest::focusOfACircularButton()
{
    QPushButton button;
    button.setProperty("circular", true);
    QStyleOptionButton option = buttonOption(enabled | QStyle::State_HasFocus);
    option.rect = QRect(10, 5, 28, 28);
    control(QStyle::CE_PushButton, option, &button);

    // The corners of the line are inside of the circle.
    const QRect focus = rectOf("PE_FrameFocusRect");
    const QPointF middle = QRectF(option.rect).center();
    const QPointF corner = QPointF(focus.topLeft()) - middle;
    QVERIFY(std::hypot(corner.x(), corner.y()) < 14);
    QCOMPARE(QRectF(focus).center(), middle);
    QVERIFY(focus.width() >= 16);
}

void ButtonPaintTest::focusInTheColorOfTheText()
{
    const QPushButton button;
    QStyleOptionButton option =
        buttonOption(enabled | QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange,
                     QStyleOptionButton::DefaultButton);
    option.palette.setColor(QPalette::Text, Qt::magenta);

    QVERIFY(m_theme.shows(control(QStyle::CE_PushButton, option, &button),
                          text("ButtonDefaultForegroundBrush")));
}

void ButtonPaintTest::labelColors_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("name");

    QTest::newRow("rest") << int(enabled) << text("ButtonUncheckedForegroundBrush");
    QTest::newRow("hovered") << int(hovered) << text("ButtonUncheckedHoverForegroundBrush");
    QTest::newRow("pressed") << int(sunken) << text("ButtonUncheckedPressedForegroundBrush");
    QTest::newRow("checked") << int(on) << text("ButtonCheckedForegroundBrush");
}

void ButtonPaintTest::labelColors()
{
    QFETCH(int, state);
    QFETCH(QString, name);
    const QPushButton button;
    QStyleOptionButton option = buttonOption(QStyle::State(state));
    option.text = blocks();

    QCOMPARE(m_theme.namesIn(control(QStyle::CE_PushButtonLabel, option, &button)),
             QStringList{name});
    QVERIFY(m_theme.shows(control(QStyle::CE_PushButton, option, &button), name));
}

void ButtonPaintTest::labelOfDisabledWidget()
{
    QPushButton button;
    button.setEnabled(false);
    QStyleOptionButton option = buttonOption(QStyle::State_None);
    option.text = blocks();
    const QString name = text("ButtonUncheckedForegroundBrushDisabled");

    QCOMPARE(m_theme.namesIn(control(QStyle::CE_PushButtonLabel, option, &button)),
             QStringList{name});
    option.palette.setCurrentColorGroup(QPalette::Disabled);
    QVERIFY(m_theme.shows(control(QStyle::CE_PushButton, option, &button), name));
}

void ButtonPaintTest::labelOfRestingOutlineButton_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("name");

    QTest::newRow("enabled") << int(enabled) << text("ForegroundColor");
    QTest::newRow("disabled") << int(QStyle::State_None) << text("ForegroundColorDisabled");
}

void ButtonPaintTest::labelOfRestingOutlineButton()
{
    QFETCH(int, state);
    QFETCH(QString, name);
    QPushButton button;
    button.setProperty("outline", true);
    QStyleOptionButton option = buttonOption(QStyle::State(state));
    option.text = blocks();
    QCOMPARE(m_theme.namesIn(control(QStyle::CE_PushButtonLabel, option, &button)),
             QStringList{name});

    // What disabled icons look like is the application's style's to say.
    QApplication::setStyle(new BaseStyle);
    QVERIFY(m_theme.shows(
        control(QStyle::CE_PushButtonLabel, iconOption(QStyle::State(state)), &button), name));
}

void ButtonPaintTest::labelTintsItsIcon()
{
    const QPushButton button;
    const QString tint = text("ButtonUncheckedHoverForegroundBrush");

    QCOMPARE(m_theme.namesIn(control(QStyle::CE_PushButtonLabel, iconOption(hovered), &button)),
             QStringList{tint});
    QVERIFY(m_theme.shows(control(QStyle::CE_PushButton, iconOption(hovered), &button), tint));
}

void ButtonPaintTest::labelPlaces_data()
{
    QTest::addColumn<QStyleOptionButton::ButtonFeatures>("features");
    QTest::addColumn<QRect>("room");

    QTest::newRow("alone") << QStyleOptionButton::ButtonFeatures() << buttonRect;
    QTest::newRow("beside the arrow of a menu")
        << QStyleOptionButton::ButtonFeatures(QStyleOptionButton::HasMenu)
        << buttonRect.adjusted(0, 0, -12, 0);
}

void ButtonPaintTest::labelPlaces()
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

void ButtonPaintTest::longLabelKeepsItsIcon()
{
    QStyleOptionButton option = iconOption(enabled);
    option.rect.setWidth(30);
    option.text = text("A text that is longer than its button");
    control(QStyle::CE_PushButtonLabel, option);

    QCOMPARE(rectOf("drawItemPixmap").left(), option.rect.left());
}

void ButtonPaintTest::mnemonics_data()
{
    QTest::addColumn<bool>("areUnderlined");

    QTest::newRow("underlined") << true;
    QTest::newRow("hidden") << false;
}

void ButtonPaintTest::mnemonics()
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

void ButtonPaintTest::needTheirOption_data()
{
    QTest::addColumn<int>("element");

    QTest::newRow("button") << int(QStyle::CE_PushButton);
    QTest::newRow("bevel") << int(QStyle::CE_PushButtonBevel);
    QTest::newRow("label") << int(QStyle::CE_PushButtonLabel);
}

void ButtonPaintTest::needTheirOption()
{
    QFETCH(int, element);
    QStyleOption option;
    option.rect = buttonRect;
    option.state = enabled;
    const QImage picture = control(QStyle::ControlElement(element), option);

    QCOMPARE(m_recorder.elements(), QStringList());
    QCOMPARE(m_theme.namesIn(picture), QStringList());
}

void ButtonPaintTest::oddRectangles_data()
{
    constexpr int far = 1 << 24;
    QTest::addColumn<QRect>("rect");

    QTest::newRow("empty") << QRect();
    QTest::newRow("inside out") << QRect(20, 20, -10, -10);
    QTest::newRow("huge") << QRect(-far, -far, 2 * far, 2 * far);
    QTest::newRow("far away") << QRect(far, -far, 100, 30);
}

void ButtonPaintTest::oddRectangles()
{
    QFETCH(QRect, rect);
    QPushButton button;
    for (const bool isCircular : {false, true}) {
        button.setProperty("circular", isCircular);
        QStyleOptionButton option =
            iconOption(enabled | QStyle::State_HasFocus, QStyleOptionButton::HasMenu);
        option.rect = rect;
        option.text = text("Text");
        control(QStyle::CE_PushButton, option, &button);
        QVERIFY(m_recorder.elements().contains(text("CE_PushButtonLabel")));
    }
}

QTEST_MAIN(ButtonPaintTest)
#include "ButtonPaintTest.moc"
