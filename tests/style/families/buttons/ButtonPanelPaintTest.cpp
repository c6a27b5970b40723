#include <QtTest/QtTest>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyleOption>

#include <support/Text.h>
#include <support/painting/CallRecorder.h>
#include <support/themes/PaintTheme.h>

namespace {

constexpr QStyle::State enabled = QStyle::State_Enabled | QStyle::State_Active;
constexpr QStyle::State hovered = enabled | QStyle::State_MouseOver;
constexpr QStyle::State sunken = enabled | QStyle::State_Sunken;
constexpr QStyle::State on = enabled | QStyle::State_On;

constexpr QSize pictureSize(120, 40);
constexpr QRect buttonRect(10, 5, 100, 30);
constexpr QPoint onFace(60, 9);
constexpr QPoint onBorder(10, 20);
constexpr QPoint inCorner(10, 5);

QStyleOptionButton buttonOption(QStyle::State state,
                                QStyleOptionButton::ButtonFeatures features = {})
{
    QStyleOptionButton option;
    option.rect = buttonRect;
    option.state = state;
    option.features = features;
    return option;
}

} // namespace

Q_DECLARE_METATYPE(QStyleOptionButton::ButtonFeatures)

/// The faces of buttons, and when push buttons show them.
class ButtonPanelPaintTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void colors_data();
    void colors();
    void disabledWidget();
    void straight();
    void rounded();
    void circular();
    void outline_data();
    void outline();
    void frameless();
    void framelessOutlineAtRest();
    void errorIndicator_data();
    void errorIndicator();
    void menuPartSharesALine_data();
    void menuPartSharesALine();
    void narrowButtonKeepsItsWidth();
    void defaultFrame();
    void defaultFrameNeedsItsOption();
    void circularDefaultFrame();
    void bevelParts_data();
    void bevelParts();
    void bevelOfAKind_data();
    void bevelOfAKind();
    void menuArrow_data();
    void menuArrow();

private:
    PaintTheme m_theme;
    CallRecorder m_recorder;

    QImage panel(const QStyleOption &option, const QWidget *widget = nullptr,
                 QStyle::PrimitiveElement element = QStyle::PE_PanelButtonCommand)
    {
        return m_recorder.picture(element, option, widget, pictureSize);
    }
    void drawBevel(const QStyleOption &option, const QWidget *widget = nullptr)
    {
        m_recorder.picture(QStyle::CE_PushButtonBevel, option, widget, pictureSize);
    }
    QString at(const QImage &picture, const QPoint &pixel) const
    {
        return m_theme.nameAt(picture, pixel);
    }
};

void ButtonPanelPaintTest::colors_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("stem");

    QTest::newRow("rest") << int(enabled) << text("ButtonUnchecked");
    QTest::newRow("hovered") << int(hovered) << text("ButtonUncheckedHover");
    QTest::newRow("pressed") << int(sunken) << text("ButtonUncheckedPressed");
    QTest::newRow("checked") << int(on) << text("ButtonChecked");
}

void ButtonPanelPaintTest::colors()
{
    QFETCH(int, state);
    QFETCH(QString, stem);
    const QPushButton button;
    const QWidget *const none = nullptr;

    for (const auto element : {QStyle::PE_PanelButtonCommand, QStyle::PE_PanelButtonBevel}) {
        for (const QWidget *widget : {static_cast<const QWidget *>(&button), none}) {
            const QImage picture = panel(buttonOption(QStyle::State(state)), widget, element);
            QCOMPARE(at(picture, onFace), stem + text("BackgroundBrush"));
            QCOMPARE(at(picture, onBorder), stem + text("BorderBrush"));
            QCOMPARE(at(picture, {109, 34}), stem + text("BorderBrush"));
            QCOMPARE(picture.pixelColor(9, 20), QColor(Qt::black));
        }
    }
}

void ButtonPanelPaintTest::disabledWidget()
{
    QPushButton button;
    button.setEnabled(false);
    const QImage picture = panel(buttonOption(QStyle::State_None), &button);

    QCOMPARE(at(picture, onFace), text("ButtonUncheckedBackgroundBrushDisabled"));
    QCOMPARE(at(picture, onBorder), text("ButtonUncheckedBorderBrushDisabled"));
}

void ButtonPanelPaintTest::straight()
{
    QCOMPARE(at(panel(buttonOption(enabled)), inCorner), text("ButtonUncheckedBorderBrush"));
}

void ButtonPanelPaintTest::rounded()
{
    const PaintTheme rounded(PaintTheme::Radii{0, 6, 0, 0});
    const QImage picture = panel(buttonOption(enabled));

    QCOMPARE(picture.pixelColor(inCorner), QColor(Qt::black));
    QCOMPARE(rounded.nameAt(picture, onFace), text("ButtonUncheckedBackgroundBrush"));
}

void ButtonPanelPaintTest::circular()
{
    QPushButton button;
    button.setProperty("circular", true);
    QStyleOptionButton option = buttonOption(enabled);
    option.rect = QRect(10, 5, 30, 30);
    const QImage picture = panel(option, &button);

    // A circle of radius 15 is 4 pixels from the corners of its square.
    QCOMPARE(picture.pixelColor(10, 5), QColor(Qt::black));
    QCOMPARE(picture.pixelColor(13, 8), QColor(Qt::black));
    QCOMPARE(picture.pixelColor(36, 31), QColor(Qt::black));
    QCOMPARE(at(picture, {25, 20}), text("ButtonUncheckedBackgroundBrush"));
    QCOMPARE(at(picture, {16, 12}), text("ButtonUncheckedBackgroundBrush"));
}

void ButtonPanelPaintTest::outline_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("face");
    QTest::addColumn<QString>("border");

    QTest::newRow("rest") << int(enabled) << QString() << text("ButtonUncheckedBackgroundBrush");
    QTest::newRow("hovered") << int(hovered) << text("ButtonUncheckedHoverBackgroundBrush")
                             << text("ButtonUncheckedHoverBackgroundBrush");
    QTest::newRow("pressed") << int(sunken) << text("ButtonUncheckedPressedBackgroundBrush")
                             << text("ButtonUncheckedPressedBackgroundBrush");
    QTest::newRow("checked") << int(on) << text("ButtonCheckedBackgroundBrush")
                             << text("ButtonCheckedBackgroundBrush");
    QTest::newRow("checked and hovered")
        << int(on | QStyle::State_MouseOver) << text("ButtonCheckedHoverBackgroundBrush")
        << text("ButtonUncheckedHoverBackgroundBrush");
    QTest::newRow("disabled under the mouse")
        << int(QStyle::State_MouseOver) << QString() << text("ButtonUncheckedBackgroundBrush");
}

void ButtonPanelPaintTest::outline()
{
    QFETCH(int, state);
    QFETCH(QString, face);
    QFETCH(QString, border);
    QPushButton button;
    button.setProperty("outline", true);
    const QImage picture = panel(buttonOption(QStyle::State(state)), &button);

    QCOMPARE(at(picture, onFace), face);
    QCOMPARE(at(picture, onBorder), border);
}

void ButtonPanelPaintTest::frameless()
{
    QPushButton button;
    button.setProperty("frameless", true);
    const QImage picture = panel(buttonOption(enabled), &button);

    QCOMPARE(m_theme.namesIn(picture), QStringList{text("ButtonUncheckedBackgroundBrush")});
    QCOMPARE(at(picture, inCorner), text("ButtonUncheckedBackgroundBrush"));
}

void ButtonPanelPaintTest::framelessOutlineAtRest()
{
    QPushButton button;
    button.setProperty("frameless", true);
    button.setProperty("outline", true);

    QCOMPARE(m_theme.namesIn(panel(buttonOption(enabled), &button)), QStringList());
}

void ButtonPanelPaintTest::errorIndicator_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("color");

    QTest::newRow("enabled") << int(enabled) << text("StatusDangerColor");
    QTest::newRow("disabled") << int(QStyle::State_None) << text("StatusDangerColorDisabled");
}

void ButtonPanelPaintTest::errorIndicator()
{
    QFETCH(int, state);
    QFETCH(QString, color);
    QPushButton button;
    button.setProperty("drawErrorIndicator", false);
    QVERIFY(!m_theme.shows(panel(buttonOption(QStyle::State(state)), &button), color));

    button.setProperty("drawErrorIndicator", true);
    const QImage picture = panel(buttonOption(QStyle::State(state)), &button);
    QCOMPARE(at(picture, onBorder), color);
    QVERIFY(m_theme.shows(picture.copy(80, 8, 28, 24), color));
    QVERIFY(!m_theme.shows(picture.copy(12, 8, 28, 24), color));
}

void ButtonPanelPaintTest::menuPartSharesALine_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QRect>("part");
    QTest::addColumn<int>("sharedColumn");

    QTest::newRow("left to right") << Qt::LeftToRight << QRect(60, 0, 12, 30) << 59;
    QTest::newRow("right to left") << Qt::RightToLeft << QRect(0, 0, 12, 30) << 12;
}

void ButtonPanelPaintTest::menuPartSharesALine()
{
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(QRect, part);
    QFETCH(int, sharedColumn);
    QPushButton button;
    button.resize(72, 30);
    QStyleOptionButton option = buttonOption(enabled);
    option.direction = direction;
    option.rect = part;
    QCOMPARE(at(panel(option, &button), {sharedColumn, 15}), text("ButtonUncheckedBorderBrush"));

    // A part of another width stays where it is.
    option.rect = QRect(30, 0, 13, 30);
    QCOMPARE(panel(option, &button).pixelColor(29, 15), QColor(Qt::black));
    QCOMPARE(panel(option, &button).pixelColor(43, 15), QColor(Qt::black));
}

void ButtonPanelPaintTest::narrowButtonKeepsItsWidth()
{
    QPushButton button;
    button.resize(12, 30);
    QStyleOptionButton option = buttonOption(enabled);
    option.rect = QRect(30, 0, 12, 30);

    QCOMPARE(panel(option, &button).pixelColor(29, 15), QColor(Qt::black));
}

void ButtonPanelPaintTest::defaultFrame()
{
    const QPushButton button;
    const QStyleOptionButton option = buttonOption(enabled, QStyleOptionButton::DefaultButton);
    const QImage picture = panel(option, &button, QStyle::PE_FrameDefaultButton);

    QCOMPARE(m_theme.namesIn(picture), QStringList{text("ButtonDefaultBorderBrush")});
    QCOMPARE(at(picture, inCorner), text("ButtonDefaultBorderBrush"));
    QCOMPARE(picture.pixelColor(onFace), QColor(Qt::black));
}

void ButtonPanelPaintTest::defaultFrameNeedsItsOption()
{
    QStyleOption option;
    option.rect = buttonRect;
    option.state = enabled;

    QCOMPARE(m_theme.namesIn(panel(option, nullptr, QStyle::PE_FrameDefaultButton)), QStringList());
}

void ButtonPanelPaintTest::circularDefaultFrame()
{
    QPushButton button;
    button.setProperty("circular", true);
    const QImage picture = panel(buttonOption(enabled), &button, QStyle::PE_FrameDefaultButton);

    QCOMPARE(picture.pixelColor(inCorner), QColor(Qt::black));
    QVERIFY(picture.pixelColor(onBorder) != QColor(Qt::black));
}

void ButtonPanelPaintTest::bevelParts_data()
{
    using Button = QStyleOptionButton;
    const QStringList nothing;
    const QStringList face{text("PE_PanelButtonCommand")};
    const QStringList frame{text("PE_FrameDefaultButton")};
    const QStringList arrow{text("PE_IndicatorArrowDown")};
    QTest::addColumn<Button::ButtonFeatures>("features");
    QTest::addColumn<int>("state");
    QTest::addColumn<QStringList>("elements");

    const auto add = [](const char *name, Button::ButtonFeatures features, QStyle::State state,
                        const QStringList &elements) {
        QTest::newRow(name) << features << int(state) << elements;
    };
    add("plain", Button::None, enabled, face);
    add("default", Button::DefaultButton, enabled, face);
    add("flat", Button::Flat, enabled, nothing);
    add("flat, hovered", Button::Flat, hovered, nothing);
    add("flat, pressed", Button::Flat, sunken, face);
    add("flat, checked", Button::Flat, on, face);
    add("flat, default", Button::Flat | Button::DefaultButton, enabled, face);
    add("flat, default of another window", Button::Flat | Button::DefaultButton,
        QStyle::State_Enabled, frame);
    add("flat, default, disabled", Button::Flat | Button::DefaultButton, QStyle::State_Active,
        frame);
    add("command link", Button::CommandLinkButton, enabled, nothing);
    add("command link, hovered", Button::CommandLinkButton, hovered, face);
    add("command link, pressed", Button::CommandLinkButton, sunken, face);
    add("command link, checked", Button::CommandLinkButton, on, face);
    add("command link, default", Button::CommandLinkButton | Button::DefaultButton, enabled, frame);
    add("with a menu", Button::HasMenu, enabled, face + arrow);
    add("flat, with a menu", Button::Flat | Button::HasMenu, enabled, arrow);
}

void ButtonPanelPaintTest::bevelParts()
{
    QFETCH(QStyleOptionButton::ButtonFeatures, features);
    QFETCH(int, state);
    QFETCH(QStringList, elements);
    const QPushButton button;
    drawBevel(buttonOption(QStyle::State(state), features), &button);

    QCOMPARE(m_recorder.elements(), elements);
}

void ButtonPanelPaintTest::bevelOfAKind_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("hasFace");

    QTest::newRow("highlighted") << QByteArray("highlighted") << QVariant(true) << true;
    QTest::newRow("not highlighted") << QByteArray("highlighted") << QVariant(false) << false;
    for (const char *property : {"Status", "Order", "ButtonType"}) {
        QTest::newRow(property) << QByteArray(property) << QVariant(text("Primary")) << true;
        QTest::newRow((QByteArray("empty ") + property).constData())
            << QByteArray(property) << QVariant(QString()) << false;
    }
}

void ButtonPanelPaintTest::bevelOfAKind()
{
    QFETCH(QByteArray, property);
    QFETCH(QVariant, value);
    QFETCH(bool, hasFace);
    QPushButton button;
    button.setProperty(property.constData(), value);
    drawBevel(buttonOption(enabled, QStyleOptionButton::Flat), &button);

    QCOMPARE(m_recorder.elements().contains(text("PE_PanelButtonCommand")), hasFace);
}

void ButtonPanelPaintTest::menuArrow_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QRect>("room");

    // Inside of the frame, and 2 pixels away from it.
    QTest::newRow("left to right") << Qt::LeftToRight << QRect(95, 6, 12, 28);
    QTest::newRow("right to left") << Qt::RightToLeft << QRect(13, 6, 12, 28);
}

void ButtonPanelPaintTest::menuArrow()
{
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(QRect, room);
    QStyleOptionButton option = buttonOption(enabled, QStyleOptionButton::HasMenu);
    option.direction = direction;
    drawBevel(option);

    QCOMPARE(m_recorder.call("PE_IndicatorArrowDown").rect, room);
}

QTEST_MAIN(ButtonPanelPaintTest)
#include "ButtonPanelPaintTest.moc"
