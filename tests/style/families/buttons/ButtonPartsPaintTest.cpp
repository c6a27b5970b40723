#include <QtTest/QtTest>
#include <QtWidgets/QStyleOption>

#include <support/NamedWidget.h>
#include <support/Text.h>
#include <support/painting/CallRecorder.h>
#include <support/themes/PaintTheme.h>

Q_DECLARE_METATYPE(QStyle::PrimitiveElement)

namespace {

constexpr QSize size(60, 40);
constexpr QPoint centre(30, 20);

template <typename Option>
Option optionIn(QStyle::State state)
{
    Option option;
    option.rect = QRect(QPoint(), size);
    option.state = state;
    return option;
}

} // namespace

/// The frames and panels of buttons, as the style paints them when it paints everything.
class ButtonPartsPaintTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void buttonFrame_data();
    void buttonFrame();
    void toolButtonPanel_data();
    void toolButtonPanel();
    void dockButtonPanel();

private:
    QImage picture(QStyle::PrimitiveElement element, const QStyleOption &option,
                   const QWidget *widget = nullptr)
    {
        return m_recorder.picture(element, option, widget, size);
    }

    PaintTheme m_theme;
    CallRecorder m_recorder;
};

void ButtonPartsPaintTest::buttonFrame_data()
{
    QTest::addColumn<QStyle::PrimitiveElement>("element");
    QTest::newRow("push button") << QStyle::PE_FrameButtonBevel;
    QTest::newRow("tool button") << QStyle::PE_FrameButtonTool;
}

void ButtonPartsPaintTest::buttonFrame()
{
    QFETCH(QStyle::PrimitiveElement, element);
    auto option = optionIn<QStyleOption>(QStyle::State_Enabled);
    const QImage atRest = picture(element, option);
    QCOMPARE(m_theme.nameAt(atRest, {0, 20}), text("ButtonUncheckedBorderBrush"));
    QCOMPARE(atRest.pixelColor(centre), QColor(Qt::black));
    option.state |= QStyle::State_MouseOver;
    QCOMPARE(m_theme.nameAt(picture(element, option), {0, 20}),
             text("ButtonUncheckedHoverBorderBrush"));
}

void ButtonPartsPaintTest::toolButtonPanel_data()
{
    QTest::addColumn<QStyle::PrimitiveElement>("element");
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("face");
    const int enabled = QStyle::State_Enabled;
    const int autoRaise = QStyle::State_AutoRaise;
    for (const auto element : {QStyle::PE_PanelButtonTool, QStyle::PE_IndicatorButtonDropDown}) {
        const auto add = [element](const char *name, int state, const QString &face) {
            QTest::addRow("%s, %d", name, int(element)) << element << state << face;
        };
        add("at rest", enabled, text("ButtonUncheckedBackgroundBrush"));
        add("hovered", enabled | autoRaise | QStyle::State_MouseOver,
            text("ButtonUncheckedHoverBackgroundBrush"));
        add("pressed", enabled | autoRaise | QStyle::State_Sunken,
            text("ButtonUncheckedPressedBackgroundBrush"));
        add("disabled", 0, text("ButtonUncheckedBackgroundBrush"));
        add("disabled in a tool bar", autoRaise, QString());
    }
}

void ButtonPartsPaintTest::toolButtonPanel()
{
    QFETCH(QStyle::PrimitiveElement, element);
    QFETCH(int, state);
    QFETCH(QString, face);
    auto option = optionIn<QStyleOptionToolButton>(QStyle::State_Enabled);
    option.state = QStyle::State(state);
    QCOMPARE(m_theme.nameAt(picture(element, option), centre), face);
}

/// The buttons in the title of a dock have a face only while they are used.
void ButtonPartsPaintTest::dockButtonPanel()
{
    NamedWidget widget("QDockWidgetTitleButton");
    auto option = optionIn<QStyleOptionToolButton>(QStyle::State_Enabled);
    const auto faceIn = [&](QStyle::State state) {
        option.state = state;
        return m_theme.nameAt(picture(QStyle::PE_PanelButtonTool, option, &widget), centre);
    };
    QCOMPARE(faceIn(QStyle::State_Enabled), QString());
    QCOMPARE(faceIn(QStyle::State_Enabled | QStyle::State_MouseOver),
             text("ButtonUncheckedHoverBackgroundBrush"));
    QCOMPARE(faceIn(QStyle::State_Enabled | QStyle::State_Sunken),
             text("ButtonUncheckedPressedBackgroundBrush"));
    QCOMPARE(faceIn(QStyle::State_MouseOver), QString());
}

QTEST_MAIN(ButtonPartsPaintTest)
#include "ButtonPartsPaintTest.moc"
