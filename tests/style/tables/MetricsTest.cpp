#include <style/BaseStyle.h>

#include <QtCore/QMetaEnum>
#include <QtTest/QtTest>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QWidget>

#include <support/TestedMode.h>
#include <support/Text.h>
#include <support/Variables.h>
#include <support/geometry/FusionReference.h>
#include <support/geometry/WidgetSamples.h>

using TARN::BaseStyle;

namespace {

struct FixedMetric
{
    QStyle::PixelMetric metric;
    int value;
};

constexpr FixedMetric fixedMetrics[] = {
    {QStyle::PM_MenuButtonIndicator, 12},   {QStyle::PM_ScrollBarExtent, 16},
    {QStyle::PM_SliderThickness, 15},       {QStyle::PM_SliderLength, 14},
    {QStyle::PM_SliderTickmarkOffset, 5},   {QStyle::PM_TabBarTabOverlap, 1},
    {QStyle::PM_TabBarTabVSpace, 10},       {QStyle::PM_TabBarBaseOverlap, 1},
    {QStyle::PM_TabBarTabShiftVertical, 0}, {QStyle::PM_ToolBarFrameWidth, 0},
    {QStyle::PM_ToolBarIconSize, 24},       {QStyle::PM_ToolTipLabelFrameWidth, 6},
    {QStyle::PM_CheckBoxLabelSpacing, 6},   {QStyle::PM_RadioButtonLabelSpacing, 6},
    {QStyle::PM_MessageBoxIconSize, 32},    {QStyle::PM_DockWidgetTitleBarButtonMargin, 3},
};

struct SwitchedMetric
{
    QStyle::PixelMetric metric;
    const char *property;
    int off;
    int on;
};

constexpr SwitchedMetric switchedMetrics[] = {
    {QStyle::PM_DockWidgetSeparatorExtent, "small", 6, 1},
    {QStyle::PM_SplitterWidth, "small", 6, 1},
    {QStyle::PM_IndicatorWidth, "switch", 14, 28},
    {QStyle::PM_IndicatorHeight, "switch", 14, 15},
};

constexpr QStyle::PixelMetric tabMetrics[] = {
    QStyle::PM_TabBarIconSize,
    QStyle::PM_TabCloseIndicatorWidth,
    QStyle::PM_TabCloseIndicatorHeight,
};

QSet<int> ownMetrics()
{
    QSet<int> metrics;
    for (const FixedMetric &row : fixedMetrics) {
        metrics.insert(row.metric);
    }
    for (const SwitchedMetric &row : switchedMetrics) {
        metrics.insert(row.metric);
    }
    for (const QStyle::PixelMetric metric : tabMetrics) {
        metrics.insert(metric);
    }
    if (testsCompleteMode()) {
        // That of the sort arrow, which keeps clear of the text.
        metrics.insert(QStyle::PM_HeaderMarkSize);
    }
    return metrics;
}

const QSet<int> ownHints = {
    QStyle::SH_EtchDisabledText, QStyle::SH_DitherDisabledText,
    QStyle::SH_ComboBox_Popup,   QStyle::SH_Table_GridLineColor,
    QStyle::SH_WindowFrame_Mask, QStyle::SH_DialogButtonBox_ButtonsHaveIcons,
};

QByteArray nameOf(const QMetaEnum &values, int index)
{
    return values.key(index);
}

void publishGridColors()
{
    publishVariables({{text("colors"),
                       colorGroup({{text("BackgroundSubLevel1Color"), text("#80010203")},
                                   {text("BackgroundSubLevel1ColorDisabled"), text("#040506")}})}});
}

QRgb gridColor(const QStyle &style, QStyle::State state)
{
    QStyleOption option;
    option.state = state;
    return QRgb(style.styleHint(QStyle::SH_Table_GridLineColor, &option));
}

} // namespace

/// Pixel metrics and style hints.
class MetricsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { enterTestedMode(); }

    void fixedMetrics_data()
    {
        QTest::addColumn<int>("metric");
        QTest::addColumn<int>("value");
        const auto names = QMetaEnum::fromType<QStyle::PixelMetric>();
        for (const FixedMetric &row : ::fixedMetrics) {
            QTest::newRow(names.valueToKey(row.metric)) << int(row.metric) << row.value;
        }
    }

    void fixedMetrics()
    {
        QFETCH(int, metric);
        QFETCH(int, value);
        const BaseStyle style;
        const auto pixelMetric = QStyle::PixelMetric(metric);
        QCOMPARE(style.pixelMetric(pixelMetric), value);
        for (const WidgetSample &sample : widgetSamples(Qt::LeftToRight)) {
            sample.widget->setProperty("small", true);
            sample.widget->setProperty("switch", true);
            QCOMPARE(style.pixelMetric(pixelMetric, sample.option.get(), sample.widget.get()),
                     value);
        }
    }

    void switchedMetrics_data()
    {
        QTest::addColumn<int>("row");
        const auto names = QMetaEnum::fromType<QStyle::PixelMetric>();
        for (int row = 0; row < int(std::size(::switchedMetrics)); ++row) {
            QTest::newRow(names.valueToKey(::switchedMetrics[row].metric)) << row;
        }
    }

    void switchedMetrics()
    {
        QFETCH(int, row);
        const SwitchedMetric &expected = ::switchedMetrics[row];
        const BaseStyle style;
        QCOMPARE(style.pixelMetric(expected.metric), expected.off);
        QWidget widget;
        QCOMPARE(style.pixelMetric(expected.metric, nullptr, &widget), expected.off);
        widget.setProperty(expected.property, true);
        QCOMPARE(style.pixelMetric(expected.metric, nullptr, &widget), expected.on);
        widget.setProperty(expected.property, false);
        QCOMPARE(style.pixelMetric(expected.metric, nullptr, &widget), expected.off);

        // Nobody else's property counts, and not the parent's.
        QWidget other;
        other.setProperty(qstrcmp(expected.property, "small") == 0 ? "switch" : "small", true);
        QCOMPARE(style.pixelMetric(expected.metric, nullptr, &other), expected.off);
        widget.setProperty(expected.property, true);
        const QWidget child(&widget);
        QCOMPARE(style.pixelMetric(expected.metric, nullptr, &child), expected.off);
    }

    void tabMetricsFollowTheFont()
    {
        const BaseStyle style;
        for (const QStyle::PixelMetric metric : tabMetrics) {
            QCOMPARE(style.pixelMetric(metric), 16);
            QWidget widget;
            for (const int size : {7, 12, 31}) {
                QFont font = widget.font();
                font.setPointSize(size);
                widget.setFont(font);
                QCOMPARE(style.pixelMetric(metric, nullptr, &widget),
                         QFontMetrics(widget.font()).height());
            }
            QVERIFY(style.pixelMetric(metric, nullptr, &widget) > 31);
        }
    }

    void listViewPadding()
    {
        const auto metrics = QMetaEnum::fromType<BaseStyle::TARN_PixelMetric>();
        bool isKnown = false;
        const auto padding =
            QStyle::PixelMetric(uint(metrics.keyToValue("TARN_PM_ListViewPadding", &isKnown)));
        QVERIFY(isKnown);
        QCOMPARE(uint(padding), 4026531841U);
        const BaseStyle style;
        QCOMPARE(style.pixelMetric(padding), 5);
        for (const WidgetSample &sample : widgetSamples(Qt::RightToLeft)) {
            QCOMPARE(style.pixelMetric(padding, sample.option.get(), sample.widget.get()), 5);
            QCOMPARE(style.pixelMetric(padding, sample.option.get()), 5);
        }
    }

    void otherMetricsAreTheBaseStyles()
    {
        const BaseStyle style;
        const QProxyStyle plain(text("fusion"));
        const FusionReference reference;
        const auto metrics = QMetaEnum::fromType<QStyle::PixelMetric>();
        const auto samples = widgetSamples(Qt::LeftToRight);
        int compared = 0;
        for (int index = 0; index < metrics.keyCount(); ++index) {
            const auto metric = QStyle::PixelMetric(metrics.value(index));
            if (ownMetrics().contains(metric)) {
                continue;
            }
            QVERIFY2(style.pixelMetric(metric) == plain.pixelMetric(metric),
                     nameOf(metrics, index));
            for (const WidgetSample &sample : samples) {
                sample.widget->setProperty("small", true);
                sample.widget->setProperty("switch", true);
                const QStyleOption *option = sample.option.get();
                const QWidget *widget = sample.widget.get();
                // That space is what the style's own handle leaves of its own groove.
                const int expected = metric == QStyle::PM_SliderSpaceAvailable
                                         ? reference.fusionMetric(metric, option, widget)
                                         : plain.pixelMetric(metric, option, widget);
                QVERIFY2(style.pixelMetric(metric, option, widget) == expected,
                         nameOf(metrics, index) + " of a " + sample.name);
                ++compared;
            }
        }
        QVERIFY(compared > 1000);
    }

    void hintsThatAreOff_data()
    {
        QTest::addColumn<QStyle::StyleHint>("hint");
        QTest::newRow("etched text") << QStyle::SH_EtchDisabledText;
        QTest::newRow("dithered text") << QStyle::SH_DitherDisabledText;
        QTest::newRow("menu-like pop-up") << QStyle::SH_ComboBox_Popup;
        QTest::newRow("icons in dialogs") << QStyle::SH_DialogButtonBox_ButtonsHaveIcons;
    }

    void hintsThatAreOff()
    {
        QFETCH(QStyle::StyleHint, hint);
        const BaseStyle style;
        QCOMPARE(style.styleHint(hint), 0);
        for (const WidgetSample &sample : widgetSamples(Qt::LeftToRight)) {
            QCOMPARE(style.styleHint(hint, sample.option.get(), sample.widget.get()), 0);
        }
    }

    void gridLineColor()
    {
        publishGridColors();
        const BaseStyle style;
        QCOMPARE(gridColor(style, QStyle::State_Enabled), qRgba(1, 2, 3, 0x80));
        QCOMPARE(gridColor(style, QStyle::State_Enabled | QStyle::State_HasFocus),
                 qRgba(1, 2, 3, 0x80));
        QCOMPARE(gridColor(style, QStyle::State_None), qRgb(4, 5, 6));
        QCOMPARE(gridColor(style, QStyle::State_MouseOver), qRgb(4, 5, 6));
    }

    void gridLineColorWithoutAnOptionDoesNotCrash()
    {
        publishGridColors();
        const BaseStyle style;
        const QRgb color = QRgb(style.styleHint(QStyle::SH_Table_GridLineColor));
        QVERIFY(color == qRgba(1, 2, 3, 0x80) || color == qRgb(4, 5, 6));
    }

    void windowFrameMask()
    {
        const BaseStyle style;
        QStyleOptionTitleBar titleBar;
        titleBar.rect = QRect(0, 0, 100, 20);
        QStyleHintReturnMask mask;
        mask.region = QRegion(1, 2, 3, 4);
        QCOMPARE(style.styleHint(QStyle::SH_WindowFrame_Mask, &titleBar, nullptr, &mask), 1);
        QVERIFY(mask.region.isNull());
    }

    void windowFrameMaskNeedsOptionAndReturn()
    {
        const BaseStyle style;
        const QRegion region(1, 2, 3, 4);
        QStyleHintReturnMask mask;
        mask.region = region;
        const QStyleOption plain;
        const QStyleOptionComplex complex;
        QStyleOptionTitleBar tooOld;
        tooOld.version = 0;
        const QStyleOption *unsuitable[] = {nullptr, &plain, &complex, &tooOld};
        for (const QStyleOption *option : unsuitable) {
            QCOMPARE(style.styleHint(QStyle::SH_WindowFrame_Mask, option, nullptr, &mask), 1);
            QCOMPARE(mask.region, region);
            QCOMPARE(style.styleHint(QStyle::SH_WindowFrame_Mask, option), 1);
        }
        const QStyleOptionTitleBar titleBar;
        QCOMPARE(style.styleHint(QStyle::SH_WindowFrame_Mask, &titleBar), 1);
        QStyleHintReturnVariant variant;
        variant.variant = 7;
        QCOMPARE(style.styleHint(QStyle::SH_WindowFrame_Mask, &titleBar, nullptr, &variant), 1);
        QCOMPARE(variant.variant.toInt(), 7);
    }

    void otherHintsAreTheBaseStyles()
    {
        const BaseStyle style;
        const QProxyStyle plain(text("fusion"));
        const auto hints = QMetaEnum::fromType<QStyle::StyleHint>();
        const auto samples = widgetSamples(Qt::LeftToRight);
        int compared = 0;
        for (int index = 0; index < hints.keyCount(); ++index) {
            const auto hint = QStyle::StyleHint(hints.value(index));
            if (ownHints.contains(hint)) {
                continue;
            }
            QVERIFY2(style.styleHint(hint) == plain.styleHint(hint), nameOf(hints, index));
            for (const WidgetSample &sample : samples) {
                const QStyleOption *option = sample.option.get();
                const QWidget *widget = sample.widget.get();
                const int expected = plain.styleHint(hint, option, widget);
                QVERIFY2(style.styleHint(hint, option, widget) == expected,
                         nameOf(hints, index) + " of a " + sample.name);
                ++compared;
            }
        }
        QVERIFY(compared > 1000);
    }

    void otherHintsFillTheirReturn()
    {
        const BaseStyle style;
        const QProxyStyle plain(text("fusion"));
        QWidget widget;
        widget.resize(40, 30);
        const auto hint = QStyle::SH_FocusFrame_Mask;
        QStyleHintReturnMask mask;
        QStyleHintReturnMask expected;
        QCOMPARE(style.styleHint(hint, nullptr, &widget, &mask),
                 plain.styleHint(hint, nullptr, &widget, &expected));
        QCOMPARE(mask.region, expected.region);
        QVERIFY(!mask.region.isEmpty());
    }
};

QTEST_MAIN(MetricsTest)
#include "MetricsTest.moc"
