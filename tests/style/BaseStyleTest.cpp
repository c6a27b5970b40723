#include <style/BaseStyle.h>

#include <QtTest/QtTest>
#include <QtWidgets/QStyleFactory>
#include <QtWidgets/QStyleOption>

#include <support/Text.h>
#include <support/Variables.h>

using TARN::BaseStyle;

namespace {

constexpr QStyle::State enabled = QStyle::State_Enabled;
constexpr QStyle::State hovered = QStyle::State_Enabled | QStyle::State_MouseOver;

} // namespace

Q_DECLARE_METATYPE(QStyle::State)

/// The style object: its palette, its look-ups and its classifiers.
class BaseStyleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject()
    {
        const BaseStyle style;
        QCOMPARE(style.metaObject()->className(), "TARN::BaseStyle");
        const int index = style.metaObject()->indexOfEnumerator("TARN_PixelMetric");
        QVERIFY(index >= 0);
        const QMetaEnum metrics = style.metaObject()->enumerator(index);
        QCOMPARE(metrics.keyCount(), 1);
        QCOMPARE(metrics.key(0), "TARN_PM_ListViewPadding");
        QCOMPARE(uint(metrics.value(0)), 0xf0000001U);
        QCOMPARE(style.metaObject()
                     ->property(style.metaObject()->indexOfProperty("palette"))
                     .notifySignal()
                     .name(),
                 QByteArray("paletteChanged"));
    }

    void baseIsFusion()
    {
        const BaseStyle style;
        QCOMPARE(text(style.baseStyle()->metaObject()->className()), text("QFusionStyle"));
        const QScopedPointer<QStyle> fusion(QStyleFactory::create(text("fusion")));
        QCOMPARE(style.getPalette(), fusion->standardPalette());
        QCOMPARE(style.standardPalette(), fusion->standardPalette());
    }

    void paletteChangesOnlyToAnother()
    {
        BaseStyle style;
        QSignalSpy spy(&style, &BaseStyle::paletteChanged);
        style.setPalette(style.getPalette());
        QCOMPARE(spy.size(), 0);

        const QPalette palette(Qt::red, Qt::blue);
        style.setPalette(palette);
        QCOMPARE(spy.size(), 1);
        QCOMPARE(spy[0][0].value<QPalette>(), palette);
        QCOMPARE(style.standardPalette(), palette);
        QCOMPARE(style.property("palette").value<QPalette>(), palette);

        QPalette polished(Qt::green);
        style.polish(polished);
        QCOMPARE(polished, palette);

        QVERIFY(style.setProperty("palette", QVariant(QPalette(Qt::yellow))));
        QCOMPARE(spy.size(), 2);
        QVERIFY(QMetaObject::invokeMethod(&style, "setPalette", Q_ARG(QPalette, palette)));
        QCOMPARE(style.getPalette(), palette);
    }

    void borderPalettes()
    {
        const BaseStyle style;
        QPalette palette(QColor(120, 130, 140));
        palette.setColor(QPalette::Light, QColor(100, 110, 120));
        palette.setColor(QPalette::Midlight, QColor(90, 80, 70));
        palette.setColor(QPalette::Dark, QColor(60, 50, 40));
        palette.setColor(QPalette::Disabled, QPalette::Light, QColor(1, 1, 1));
        QCOMPARE(style.lightOutlineBrush(palette), palette.midlight());
        QCOMPARE(&style.lightOutlineBrush(palette), &palette.midlight());

        const QPalette shade = style.generateShadeBorderPalette(palette);
        const QPalette window = style.generateWinBorderPalette(palette);
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            QCOMPARE(shade.color(group, QPalette::Light), QColor(100, 110, 120).lighter(115));
            QCOMPARE(shade.color(group, QPalette::Dark), QColor(60, 50, 40).darker(115));
            QCOMPARE(shade.color(group, QPalette::Midlight),
                     palette.color(group, QPalette::Midlight));
            QCOMPARE(window.color(group, QPalette::Light), QColor(100, 110, 120).lighter(115));
            QCOMPARE(window.color(group, QPalette::Midlight), QColor(90, 80, 70).darker(115));
            QCOMPARE(window.color(group, QPalette::Dark), QColor(60, 50, 40).lighter(115));
            QCOMPARE(window.color(group, QPalette::Window), palette.color(group, QPalette::Window));
        }
    }

    void lookUpsAppendDisabled()
    {
        publishVariables(
            {{text("brushes"), brushGroup({{text("MainBrush"), text("#010101")},
                                           {text("MainBrushDisabled"), text("#020202")},
                                           {text("DisabledMainBrush"), text("#030303")}})},
             {text("colors"), colorGroup({{text("MainColor"), text("#040404")},
                                          {text("MainColorDisabled"), text("#050505")}})}});
        QCOMPARE(BaseStyle::getBrush(text("MainBrush"), true).color(), QColor(1, 1, 1));
        QCOMPARE(BaseStyle::getBrush(text("MainBrush"), false).color(), QColor(2, 2, 2));
        QCOMPARE(BaseStyle::getBrush(text("Unknown"), false), QBrush());
        QCOMPARE(BaseStyle::getColor(text("MainColor"), true), QColor(4, 4, 4));
        QCOMPARE(BaseStyle::getColor(text("MainColor"), false), QColor(5, 5, 5));
        QVERIFY(!BaseStyle::getColor(text("Unknown"), true).isValid());
    }

    void keptBrushes()
    {
        const QVariantMap brushes =
            brushGroup({{text("CardBorderBrush"), text("#010101")},
                        {text("CardBorderBrushDisabled"), text("#020202")},
                        {text("GrooveBackgroundBrush"), text("#030303")},
                        {text("GrooveBackgroundBrushDisabled"), text("#040404")}});
        publishVariables({{text("brushes"), brushes}});
        const BaseStyle style;
        QCOMPARE(BaseStyle::getBorderBrush(true).color(), QColor(1, 1, 1));
        QCOMPARE(BaseStyle::getBorderBrush(false).color(), QColor(2, 2, 2));
        QCOMPARE(style.grooveBackgroundBrush(true).color(), QColor(3, 3, 3));
        QCOMPARE(style.grooveBackgroundBrush(false).color(), QColor(4, 4, 4));
        QCOMPARE(&BaseStyle::getBorderBrush(true), &BaseStyle::getBorderBrush(true));
        const BaseStyle other;
        QCOMPARE(&style.grooveBackgroundBrush(false), &other.grooveBackgroundBrush(false));
    }

    void buttonStates_data()
    {
        QTest::addColumn<QStyle::State>("state");
        QTest::addColumn<int>("expected");
        QTest::addColumn<int>("expectedFlat");
        const QStyle::State on = QStyle::State_On;
        const QStyle::State sunken = QStyle::State_Sunken;
        const QStyle::State over = QStyle::State_MouseOver;
        QTest::newRow("rest") << enabled << 0 << 0;
        QTest::newRow("disabled") << QStyle::State(QStyle::State_None) << 0 << 0;
        QTest::newRow("disabled and checked") << on << 1 << 1;
        QTest::newRow("disabled under the mouse") << over << 0 << 0;
        QTest::newRow("checked") << (enabled | on) << 1 << 1;
        QTest::newRow("pressed") << (enabled | sunken) << 1 << 1;
        QTest::newRow("hovered") << hovered << 2 << 0;
        QTest::newRow("hovered and checked") << (hovered | on) << 1 << 1;
        QTest::newRow("hovered and pressed") << (hovered | sunken) << 1 << 1;
    }

    void buttonStates()
    {
        QFETCH(QStyle::State, state);
        QFETCH(int, expected);
        QFETCH(int, expectedFlat);
        const BaseStyle style;
        QStyleOption plain;
        plain.state = state;
        QCOMPARE(style.getButtonBackgroundState(plain), expected);
        QStyleOptionButton button;
        button.state = state;
        QCOMPARE(style.getButtonBackgroundState(button), expected);
        button.features = QStyleOptionButton::Flat;
        QCOMPARE(style.getButtonBackgroundState(button), expectedFlat);
    }

    void tabStates_data()
    {
        QTest::addColumn<QStyle::State>("state");
        QTest::addColumn<int>("expected");
        const QStyle::State keyboard = QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
        QTest::newRow("rest") << enabled << 1;
        QTest::newRow("disabled") << QStyle::State(QStyle::State_None) << 1;
        QTest::newRow("disabled under the mouse") << QStyle::State(QStyle::State_MouseOver) << 1;
        QTest::newRow("hovered") << hovered << 2;
        QTest::newRow("keyboard focus") << (enabled | keyboard) << 2;
        QTest::newRow("focus alone") << (enabled | QStyle::State_HasFocus) << 1;
        QTest::newRow("keyboard alone") << (enabled | QStyle::State_KeyboardFocusChange) << 1;
        QTest::newRow("selected") << (hovered | QStyle::State_Selected) << 0;
        QTest::newRow("selected and disabled") << QStyle::State(QStyle::State_Selected) << 0;
    }

    void tabStates()
    {
        QFETCH(QStyle::State, state);
        QFETCH(int, expected);
        QStyleOptionTab option;
        option.state = state;
        QCOMPARE(BaseStyle().getTabBackgroundState(option), expected);
    }

    void buttonBrushesStartEmpty()
    {
        const BaseStyle::ButtonBrushes brushes;
        QCOMPARE(brushes.background.style(), Qt::NoBrush);
        QCOMPARE(brushes.border.style(), Qt::NoBrush);
        QCOMPARE(brushes.foreground.style(), Qt::NoBrush);
        const auto none = BaseStyle::buttonBrushes(nullptr, nullptr);
        QCOMPARE(none.background.style(), Qt::NoBrush);
    }

    void altIsUp()
    {
        const BaseStyle style;
        const QWidget widget;
        QVERIFY(!style.altDown());
        QVERIFY(!style.hasSeenAlt(&widget));
    }
};

QTEST_MAIN(BaseStyleTest)
#include "BaseStyleTest.moc"
