#include <QtCore/QMetaEnum>
#include <QtTest/QtTest>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QTableView>

#include <support/Components.h>
#include <support/Text.h>
#include <support/geometry/FusionReference.h>
#include <support/geometry/WidgetSamples.h>

using TARN::BaseStyle;

namespace {

QStyleOptionViewItem itemOption(Qt::LayoutDirection direction)
{
    QStyleOptionViewItem option;
    option.rect = QRect(10, 20, 200, 30);
    option.direction = direction;
    option.features = QStyleOptionViewItem::HasCheckIndicator |
                      QStyleOptionViewItem::HasDecoration | QStyleOptionViewItem::HasDisplay;
    option.decorationSize = QSize(16, 16);
    option.text = text("Item");
    return option;
}

constexpr Qt::LayoutDirection bothDirections[] = {Qt::LeftToRight, Qt::RightToLeft};

/// Tells whether the base style asks the widget without looking whether there is one.
bool needsWidget(QStyle::SubElement element)
{
    return element == QStyle::SE_TabBarScrollLeftButton ||
           element == QStyle::SE_TabBarScrollRightButton;
}

constexpr QStyle::SubElement itemElements[] = {
    QStyle::SE_ItemViewItemCheckIndicator,
    QStyle::SE_ItemViewItemDecoration,
    QStyle::SE_ItemViewItemText,
};

} // namespace

/// The rectangles of sub-elements, but for those of tabs.
class GeometryTest : public QObject
{
    Q_OBJECT

private:
    static void compareCheckBoxRect(QStyle::SubElement element);
    /// Compares every rectangle of an item with that of the base style.
    void compareItemsWithFusion(const QWidget *widget, const QStyleOption &option);

private Q_SLOTS:
    void checkBoxIndicator_data();
    void checkBoxIndicator();
    void checkBoxContents_data();
    void checkBoxContents();
    void checkBoxMetricsCanBeChanged();
    void cascadingListItems();
    void comboBoxListItems();
    void itemsOfOtherViews();
    void absentPartsOfItemsStayAbsent();
    void listViewPaddingIsReadOnce();
    void otherElementsAreTheBaseStyles_data();
    void otherElementsAreTheBaseStyles();
    void nothingCrashes();
};

void GeometryTest::checkBoxIndicator_data()
{
    QTest::addColumn<bool>("isSwitch");
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QRect>("expected");
    const QRect high(0, 0, 100, 30);
    const QRect moved(10, 20, 100, 21);
    const QRect low(0, 0, 100, 10);
    const auto left = Qt::LeftToRight;
    const auto right = Qt::RightToLeft;
    QTest::newRow("check box") << false << high << left << QRect(0, 8, 14, 14);
    QTest::newRow("check box, mirrored") << false << high << right << QRect(86, 8, 14, 14);
    QTest::newRow("switch") << true << high << left << QRect(0, 7, 28, 15);
    QTest::newRow("switch, mirrored") << true << high << right << QRect(72, 7, 28, 15);
    QTest::newRow("moved") << false << moved << left << QRect(10, 23, 14, 14);
    QTest::newRow("moved, mirrored") << false << moved << right << QRect(96, 23, 14, 14);
    QTest::newRow("moved switch") << true << moved << left << QRect(10, 23, 28, 15);
    QTest::newRow("moved switch, mirrored") << true << moved << right << QRect(82, 23, 28, 15);
    QTest::newRow("low") << false << low << left << QRect(0, -2, 14, 14);
}

void GeometryTest::checkBoxIndicator()
{
    compareCheckBoxRect(QStyle::SE_CheckBoxIndicator);
}

void GeometryTest::checkBoxContents_data()
{
    QTest::addColumn<bool>("isSwitch");
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QRect>("expected");
    const QRect origin(0, 0, 100, 30);
    const QRect moved(10, 20, 100, 21);
    const auto left = Qt::LeftToRight;
    const auto right = Qt::RightToLeft;
    QTest::newRow("check box") << false << origin << left << QRect(19, 0, 80, 30);
    QTest::newRow("check box, mirrored") << false << origin << right << QRect(1, 0, 80, 30);
    QTest::newRow("switch") << true << origin << left << QRect(33, 0, 66, 30);
    QTest::newRow("switch, mirrored") << true << origin << right << QRect(1, 0, 66, 30);
    QTest::newRow("moved") << false << moved << left << QRect(29, 20, 80, 21);
    QTest::newRow("moved, mirrored") << false << moved << right << QRect(11, 20, 80, 21);
    QTest::newRow("moved switch, mirrored") << true << moved << right << QRect(11, 20, 66, 21);
}

void GeometryTest::checkBoxContents()
{
    compareCheckBoxRect(QStyle::SE_CheckBoxContents);
}

void GeometryTest::compareCheckBoxRect(QStyle::SubElement element)
{
    QFETCH(bool, isSwitch);
    QFETCH(QRect, rect);
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(QRect, expected);
    const BaseStyle style;
    QCheckBox checkBox;
    checkBox.setProperty("switch", isSwitch);
    QStyleOptionButton button;
    button.rect = rect;
    button.direction = direction;
    QCOMPARE(style.subElementRect(element, &button, &checkBox), expected);
    QStyleOption plain;
    plain.rect = rect;
    plain.direction = direction;
    QCOMPARE(style.subElementRect(element, &plain, &checkBox), expected);
    if (!isSwitch) {
        QCOMPARE(style.subElementRect(element, &plain, nullptr), expected);
    }
}

void GeometryTest::checkBoxMetricsCanBeChanged()
{
    const ChangedStyle style({{QStyle::PM_IndicatorWidth, 20},
                              {QStyle::PM_IndicatorHeight, 10},
                              {QStyle::PM_CheckBoxLabelSpacing, 3}});
    QStyleOptionButton button;
    button.rect = QRect(0, 0, 100, 30);
    QCOMPARE(style.subElementRect(QStyle::SE_CheckBoxIndicator, &button, nullptr),
             QRect(0, 10, 20, 10));
    QCOMPARE(style.subElementRect(QStyle::SE_CheckBoxContents, &button, nullptr),
             QRect(22, 0, 77, 30));
}

void GeometryTest::cascadingListItems()
{
    const BaseStyle style;
    const FusionReference reference;
    TARN::Components::CascadingListViewPanel list;
    for (const Qt::LayoutDirection direction : bothDirections) {
        const QStyleOptionViewItem option = itemOption(direction);
        for (const QStyle::SubElement element : itemElements) {
            const QRect fusion = reference.fusionRect(element, option, &list);
            QVERIFY(fusion.isValid());
            const bool isText = element == QStyle::SE_ItemViewItemText;
            QCOMPARE(style.subElementRect(element, &option, &list),
                     fusion.adjusted(5, 0, isText ? -5 : 5, 0));
        }
    }
    list.setViewMode(QListView::IconMode);
    compareItemsWithFusion(&list, itemOption(Qt::LeftToRight));
}

void GeometryTest::comboBoxListItems()
{
    const BaseStyle style;
    const FusionReference reference;
    QComboBox comboBox;
    auto *list = qobject_cast<QListView *>(comboBox.view());
    QVERIFY(list);
    QVERIFY(list->inherits("QComboBoxListView"));
    for (const Qt::LayoutDirection direction : bothDirections) {
        const QStyleOptionViewItem option = itemOption(direction);
        for (const QStyle::SubElement element : itemElements) {
            const QRect fusion = reference.fusionRect(element, option, list);
            const bool isText = element == QStyle::SE_ItemViewItemText;
            QCOMPARE(style.subElementRect(element, &option, list),
                     fusion.translated(isText ? -1 : 0, 0));
        }
    }
    list->setViewMode(QListView::IconMode);
    compareItemsWithFusion(list, itemOption(Qt::LeftToRight));
}

void GeometryTest::itemsOfOtherViews()
{
    const QListView list;
    const QTableView table;
    const TARN::PeriodicTable::PeriodicTableView periodicTable;
    const QWidget *views[] = {&list, &table, &periodicTable, nullptr};
    for (const QWidget *view : views) {
        for (const Qt::LayoutDirection direction : bothDirections) {
            compareItemsWithFusion(view, itemOption(direction));
        }
    }
}

void GeometryTest::compareItemsWithFusion(const QWidget *widget, const QStyleOption &option)
{
    const BaseStyle style;
    const FusionReference reference;
    for (const QStyle::SubElement element : itemElements) {
        QCOMPARE(style.subElementRect(element, &option, widget),
                 reference.fusionRect(element, option, widget));
    }
}

void GeometryTest::absentPartsOfItemsStayAbsent()
{
    QStyleOptionViewItem option = itemOption(Qt::LeftToRight);
    option.features = QStyleOptionViewItem::HasDisplay;
    const BaseStyle style;
    const TARN::Components::CascadingListViewPanel list;
    for (const auto element :
         {QStyle::SE_ItemViewItemCheckIndicator, QStyle::SE_ItemViewItemDecoration}) {
        QVERIFY(!style.subElementRect(element, &option, &list).isValid());
    }
    compareItemsWithFusion(nullptr, option);
    const FusionReference reference;
    QCOMPARE(style.subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, &list),
             reference.fusionRect(QStyle::SE_ItemViewItemCheckIndicator, option, &list));
}

void GeometryTest::listViewPaddingIsReadOnce()
{
    const int padding = int(BaseStyle::TARN_PM_ListViewPadding);
    ChangedStyle first({{padding, 9}});
    // Any element will do for the first call.
    QStyleOptionButton button;
    button.rect = QRect(0, 0, 100, 30);
    first.subElementRect(QStyle::SE_PushButtonContents, &button, nullptr);
    first.setMetric(padding, 20);

    const BaseStyle second;
    const FusionReference reference;
    const TARN::Components::CascadingListViewPanel list;
    const QStyleOptionViewItem option = itemOption(Qt::LeftToRight);
    const auto element = QStyle::SE_ItemViewItemDecoration;
    const QRect expected = reference.fusionRect(element, option, &list).translated(9, 0);
    QCOMPARE(first.subElementRect(element, &option, &list), expected);
    QCOMPARE(second.subElementRect(element, &option, &list), expected);
}

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

void GeometryTest::nothingCrashes()
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

QTEST_MAIN(GeometryTest)
#include "GeometryTest.moc"
