#include <QtCore/QMetaEnum>
#include <QtTest/QtTest>

#include <support/MessageRecorder.h>
#include <support/Text.h>
#include <support/geometry/FusionReference.h>
#include <support/geometry/WidgetSamples.h>

using TARN::BaseStyle;

namespace {

/// Tells whether the base style asks the widget without looking whether there is one.
bool needsWidget(QStyle::SubElement element)
{
    return element == QStyle::SE_TabBarScrollLeftButton ||
           element == QStyle::SE_TabBarScrollRightButton;
}

} // namespace

/// What is measured and placed as the base style does, and options that no row is made for.
class GeometryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void otherElementsAreTheBaseStyles_data();
    void otherElementsAreTheBaseStyles();
    void elementsTakeAnyOption();
    void otherControlsAreTheBaseStyles();
    void controlsTakeAnyOption();
    void otherContentsAreTheBaseStyles_data();
    void otherContentsAreTheBaseStyles();
    void contentsTakeAnyOption();
};

void GeometryTest::otherElementsAreTheBaseStyles_data()
{
    QTest::addColumn<QStyle::SubElement>("element");
    const auto elements = QMetaEnum::fromType<QStyle::SubElement>();
    QSet<int> seen;
    for (int index = 0; index < elements.keyCount(); ++index) {
        const auto element = QStyle::SubElement(elements.value(index));
        if (!FusionReference::isOwn(element) && !seen.contains(element)) {
            seen.insert(element);
            QTest::newRow(elements.key(index)) << element;
        }
    }
}

void GeometryTest::otherElementsAreTheBaseStyles()
{
    QFETCH(QStyle::SubElement, element);
    const BaseStyle style;
    const FusionReference reference;
    for (const Qt::LayoutDirection direction : bothDirections) {
        for (const WidgetSample &sample : widgetSamples(direction)) {
            const QStyleOption *option = sample.option.get();
            const QWidget *widget = sample.widget.get();
            QVERIFY2(style.subElementRect(element, option, widget) ==
                         reference.fusionRect(element, *option, widget),
                     sample.name);
            if (needsWidget(element)) {
                continue;
            }
            QVERIFY2(style.subElementRect(element, option, nullptr) ==
                         reference.fusionRect(element, *option, nullptr),
                     sample.name);
        }
    }
}

void GeometryTest::elementsTakeAnyOption()
{
    const BaseStyle style;
    const auto elements = QMetaEnum::fromType<QStyle::SubElement>();
    const auto samples = widgetSamples(Qt::LeftToRight);
    const QStyleOption plain;
    for (int index = 0; index < elements.keyCount(); ++index) {
        const auto element = QStyle::SubElement(elements.value(index));
        if (!FusionReference::isOwn(element)) {
            continue;
        }
        QVERIFY(!style.subElementRect(element, nullptr, nullptr).isValid());
        style.subElementRect(element, &plain, nullptr);
        for (const WidgetSample &sample : samples) {
            QVERIFY(!style.subElementRect(element, nullptr, sample.widget.get()).isValid());
            style.subElementRect(element, &plain, sample.widget.get());
            // Every widget with the option of every other.
            for (const WidgetSample &other : samples) {
                style.subElementRect(element, other.option.get(), sample.widget.get());
            }
        }
    }
}

void GeometryTest::otherControlsAreTheBaseStyles()
{
    const auto controls = QMetaEnum::fromType<QStyle::ComplexControl>();
    // The base style warns of parts that a control does not have.
    const MessageRecorder warnings;
    int compared = 0;
    for (const Qt::LayoutDirection direction : bothDirections) {
        for (const WidgetSample &sample : widgetSamples(direction)) {
            const auto *option =
                qstyleoption_cast<const QStyleOptionComplex *>(sample.option.get());
            for (int index = 0; option && index < controls.keyCount(); ++index) {
                const auto control = QStyle::ComplexControl(controls.value(index));
                if (!FusionReference::isOwn(control)) {
                    compareWithFusion(control, *option, sample.widget.get());
                    compareWithFusion(control, *option, nullptr);
                    ++compared;
                }
            }
        }
    }
    QVERIFY(compared > 50);
    QStyleOptionTitleBar titleBar;
    titleBar.rect = QRect(0, 0, 200, 20);
    titleBar.titleBarFlags = Qt::Window | Qt::WindowSystemMenuHint | Qt::WindowTitleHint |
                             Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint;
    compareWithFusion(QStyle::CC_TitleBar, titleBar, nullptr);
}

void GeometryTest::controlsTakeAnyOption()
{
    const BaseStyle style;
    const auto samples = widgetSamples(Qt::LeftToRight);
    const QStyleOptionComplex plain;
    std::vector<const QStyleOptionComplex *> options = {nullptr, &plain};
    for (const WidgetSample &sample : samples) {
        options.push_back(qstyleoption_cast<const QStyleOptionComplex *>(sample.option.get()));
    }
    for (const auto control : {QStyle::CC_SpinBox, QStyle::CC_ComboBox, QStyle::CC_ScrollBar,
                               QStyle::CC_Slider, QStyle::CC_GroupBox}) {
        for (const QStyleOptionComplex *option : options) {
            for (const QStyle::SubControl part : subControlBits) {
                style.subControlRect(control, option, part, nullptr);
                for (const WidgetSample &sample : samples) {
                    style.subControlRect(control, option, part, sample.widget.get());
                }
            }
        }
        QVERIFY(!style.subControlRect(control, nullptr, subControlBits[0], nullptr).isValid());
    }
}

void GeometryTest::otherContentsAreTheBaseStyles_data()
{
    QTest::addColumn<QStyle::ContentsType>("type");
    const auto types = QMetaEnum::fromType<QStyle::ContentsType>();
    for (int index = 0; index < types.keyCount(); ++index) {
        const auto type = QStyle::ContentsType(types.value(index));
        if (!FusionReference::isOwn(type)) {
            QTest::newRow(types.key(index)) << type;
        }
    }
}

void GeometryTest::otherContentsAreTheBaseStyles()
{
    QFETCH(QStyle::ContentsType, type);
    for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        for (const WidgetSample &sample : widgetSamples(direction)) {
            for (const QSize &contents : {QSize(7, 9), QSize(80, 61)}) {
                compareWithFusion(type, *sample.option, contents, sample.widget.get());
                compareWithFusion(type, *sample.option, contents, nullptr);
            }
        }
    }
    QStyleOptionMenuItem item;
    item.text = text("Item");
    item.tabWidth = 12;
    item.maxIconWidth = 16;
    compareWithFusion(type, item, QSize(80, 20), nullptr);
    item.menuItemType = QStyleOptionMenuItem::Separator;
    compareWithFusion(type, item, QSize(80, 20), nullptr);
}

void GeometryTest::contentsTakeAnyOption()
{
    const BaseStyle style;
    const auto types = QMetaEnum::fromType<QStyle::ContentsType>();
    const auto samples = widgetSamples(Qt::LeftToRight);
    const QStyleOption plain;
    const QSize contents(20, 30);
    for (int index = 0; index < types.keyCount(); ++index) {
        const auto type = QStyle::ContentsType(types.value(index));
        if (!FusionReference::isOwn(type)) {
            continue;
        }
        QVERIFY(style.sizeFromContents(type, nullptr, contents, nullptr).isValid());
        QVERIFY(style.sizeFromContents(type, &plain, contents, nullptr).isValid());
        for (const WidgetSample &sample : samples) {
            const QWidget *widget = sample.widget.get();
            QVERIFY(style.sizeFromContents(type, nullptr, contents, widget).isValid());
            QVERIFY(style.sizeFromContents(type, &plain, contents, widget).isValid());
            // Every widget with the option of every other.
            for (const WidgetSample &other : samples) {
                style.sizeFromContents(type, other.option.get(), contents, widget);
            }
        }
    }
}

QTEST_MAIN(GeometryTest)
#include "GeometryTest.moc"
