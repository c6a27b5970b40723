#include <style/BaseStyle.h>

#include <QtTest/QtTest>
#include <QtWidgets/QColumnView>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QListView>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QTableView>
#include <QtWidgets/QTreeWidget>

#include <support/Components.h>
#include <support/PaletteChanges.h>
#include <support/Text.h>
#include <support/geometry/FusionReference.h>
#include <support/themes/UniqueTheme.h>

using TARN::BaseStyle;

namespace {

constexpr const char *itemViewProperties[] = {"highlightItemsOnMouseHover", "drawItemsSeparators",
                                              "drawChildIndicatorInListView", "hideFocusRect"};

/// Returns an item view by its class name.
QAbstractItemView *makeView(const QString &className)
{
    if (className == text("QListView")) {
        return new QListView;
    }
    if (className == text("QListWidget")) {
        return new QListWidget;
    }
    if (className == text("QTreeView")) {
        return new QTreeView;
    }
    if (className == text("QTreeWidget")) {
        return new QTreeWidget;
    }
    if (className == text("QTableView")) {
        return new QTableView;
    }
    if (className == text("QHeaderView")) {
        return new QHeaderView(Qt::Horizontal);
    }
    return new QColumnView;
}

/// Returns those item-view properties of \a view that are true.
QStringList setProperties(const QAbstractItemView &view)
{
    QStringList names;
    for (const char *name : itemViewProperties) {
        if (view.property(name).toBool()) {
            names << text(name);
        }
    }
    return names;
}

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

constexpr QStyle::SubElement itemElements[] = {
    QStyle::SE_ItemViewItemCheckIndicator,
    QStyle::SE_ItemViewItemDecoration,
    QStyle::SE_ItemViewItemText,
};

} // namespace

/// What polishing does to item views.
class ItemViewTest : public QObject
{
    Q_OBJECT

private:
    UniqueTheme m_theme;
    BaseStyle m_style;

    QString baseName(const QWidget &widget, QPalette::ColorGroup group) const
    {
        return m_theme.nameOf(widget.palette().brush(group, QPalette::Base));
    }

private Q_SLOTS:
    void itemViewPalette_data();
    void itemViewPalette();
    void itemViewItems_data();
    void itemViewItems();
    void customItemViewPalette();
    void customItemDelegate();
    void customItemViewBothWays();
    void unpolishTakesNothingBack();
    void cascadingListItems();
    void comboBoxListItems();
    void itemsOfOtherViews();
    void absentPartsOfItemsStayAbsent();
    void listViewPaddingIsReadOnce();
    void sizeOfItems();

private:
    /// Compares every rectangle of an item with that of the base style.
    void compareItemsWithFusion(const QWidget *widget, const QStyleOption &option);
};

void ItemViewTest::cascadingListItems()
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

void ItemViewTest::comboBoxListItems()
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

void ItemViewTest::itemsOfOtherViews()
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

void ItemViewTest::compareItemsWithFusion(const QWidget *widget, const QStyleOption &option)
{
    const BaseStyle style;
    const FusionReference reference;
    for (const QStyle::SubElement element : itemElements) {
        QCOMPARE(style.subElementRect(element, &option, widget),
                 reference.fusionRect(element, option, widget));
    }
}

void ItemViewTest::absentPartsOfItemsStayAbsent()
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

void ItemViewTest::listViewPaddingIsReadOnce()
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

void ItemViewTest::sizeOfItems()
{
    const BaseStyle style;
    const FusionReference reference;
    const QListView list;
    QStyleOptionViewItem option;
    option.features = QStyleOptionViewItem::HasDisplay;
    const auto type = QStyle::CT_ItemViewItem;
    const QWidget *widgets[] = {&list, nullptr};
    for (const QWidget *widget : widgets) {
        for (const int size : {8, 60}) {
            option.font.setPixelSize(size);
            option.fontMetrics = QFontMetrics(option.font);
            option.text = text("Item");
            const QSize fusion = reference.fusionSize(type, option, QSize(), widget);
            QCOMPARE(fusion.height() < 26, size == 8);
            QCOMPARE(style.sizeFromContents(type, &option, QSize(), widget),
                     QSize(fusion.width(), qMax(fusion.height(), 26)));
        }
    }
    const QStyleOption plain;
    QCOMPARE(style.sizeFromContents(type, &plain, QSize(10, 10), nullptr).height(), 26);
}

void ItemViewTest::itemViewPalette_data()
{
    QTest::addColumn<QString>("className");
    for (const char *className : {"QListView", "QListWidget", "QTreeView", "QTreeWidget",
                                  "QTableView", "QHeaderView", "QColumnView"}) {
        QTest::newRow(className) << text(className);
    }
}

void ItemViewTest::itemViewPalette()
{
    QFETCH(QString, className);
    const QScopedPointer<QAbstractItemView> view(makeView(className));
    const QPalette before = view->palette();
    m_style.polish(view.data());
    QCOMPARE(baseName(*view, QPalette::Active), text("ItemViewBackgroundBrush"));
    QCOMPARE(baseName(*view, QPalette::Inactive), text("ItemViewBackgroundBrush"));
    QCOMPARE(baseName(*view, QPalette::Disabled), text("ItemViewBackgroundBrushDisabled"));
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        QCOMPARE(changedRoles(group, before, view->palette()),
                 QList<QPalette::ColorRole>{QPalette::Base});
    }
}

void ItemViewTest::itemViewItems_data()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<bool>("tracksMouse");
    const QString list = text("highlightItemsOnMouseHover drawItemsSeparators "
                              "drawChildIndicatorInListView hideFocusRect");
    const QString tree = text("drawItemsSeparators hideFocusRect");
    const QString table = text("highlightItemsOnMouseHover hideFocusRect");
    const QString other = text("highlightItemsOnMouseHover drawItemsSeparators hideFocusRect");
    QTest::newRow("list") << text("QListView") << list << true;
    QTest::newRow("list widget") << text("QListWidget") << list << true;
    QTest::newRow("tree") << text("QTreeView") << tree << false;
    QTest::newRow("tree widget") << text("QTreeWidget") << tree << false;
    QTest::newRow("table") << text("QTableView") << table << true;
    QTest::newRow("header") << text("QHeaderView") << other << true;
    QTest::newRow("columns") << text("QColumnView") << other << true;
}

void ItemViewTest::itemViewItems()
{
    QFETCH(QString, className);
    QFETCH(QString, expected);
    QFETCH(bool, tracksMouse);
    const QScopedPointer<QAbstractItemView> view(makeView(className));
    view->setAttribute(Qt::WA_MouseTracking, false);
    m_style.polish(view.data());
    QCOMPARE(setProperties(*view).join(QLatin1Char(' ')), expected);
    QCOMPARE(view->testAttribute(Qt::WA_MouseTracking), tracksMouse);
}

void ItemViewTest::customItemViewPalette()
{
    QListView view;
    view.setProperty("customItemViewPalette", true);
    const QPalette before = view.palette();
    m_style.polish(&view);
    QCOMPARE(view.palette(), before);
    QCOMPARE(setProperties(view).size(), 4);
    QVERIFY(view.testAttribute(Qt::WA_MouseTracking));
}

void ItemViewTest::customItemDelegate()
{
    QListView view;
    view.setAttribute(Qt::WA_MouseTracking, false);
    view.setProperty("customItemDelegate", true);
    m_style.polish(&view);
    QCOMPARE(setProperties(view), QStringList());
    QVERIFY(!view.testAttribute(Qt::WA_MouseTracking));
    QCOMPARE(baseName(view, QPalette::Active), text("ItemViewBackgroundBrush"));
}

void ItemViewTest::customItemViewBothWays()
{
    QListView neither;
    neither.setProperty("customItemViewPalette", true);
    neither.setProperty("customItemDelegate", true);
    const QPalette before = neither.palette();
    m_style.polish(&neither);
    QCOMPARE(neither.palette(), before);
    QCOMPARE(setProperties(neither), QStringList());

    QListView both;
    both.setProperty("customItemViewPalette", false);
    both.setProperty("customItemDelegate", false);
    m_style.polish(&both);
    QCOMPARE(baseName(both, QPalette::Active), text("ItemViewBackgroundBrush"));
    QCOMPARE(setProperties(both).size(), 4);
}

void ItemViewTest::unpolishTakesNothingBack()
{
    QListView view;
    m_style.polish(&view);
    m_style.unpolish(&view);
    QCOMPARE(baseName(view, QPalette::Active), text("ItemViewBackgroundBrush"));
    QCOMPARE(setProperties(view).size(), 4);
    QVERIFY(view.testAttribute(Qt::WA_MouseTracking));
}

QTEST_MAIN(ItemViewTest)
#include "ItemViewTest.moc"
