#include <style/BaseStyle.h>

#include <QtTest/QtTest>
#include <QtWidgets/QColumnView>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QTableView>
#include <QtWidgets/QTreeWidget>

#include <support/PaletteChanges.h>
#include <support/Text.h>
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

} // namespace

/// What polishing does to item views.
class ItemViewPolishTest : public QObject
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
    void itemViewPalette_data()
    {
        QTest::addColumn<QString>("className");
        for (const char *className : {"QListView", "QListWidget", "QTreeView", "QTreeWidget",
                                      "QTableView", "QHeaderView", "QColumnView"}) {
            QTest::newRow(className) << text(className);
        }
    }

    void itemViewPalette()
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

    void itemViewItems_data()
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

    void itemViewItems()
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

    void customItemViewPalette()
    {
        QListView view;
        view.setProperty("customItemViewPalette", true);
        const QPalette before = view.palette();
        m_style.polish(&view);
        QCOMPARE(view.palette(), before);
        QCOMPARE(setProperties(view).size(), 4);
        QVERIFY(view.testAttribute(Qt::WA_MouseTracking));
    }

    void customItemDelegate()
    {
        QListView view;
        view.setAttribute(Qt::WA_MouseTracking, false);
        view.setProperty("customItemDelegate", true);
        m_style.polish(&view);
        QCOMPARE(setProperties(view), QStringList());
        QVERIFY(!view.testAttribute(Qt::WA_MouseTracking));
        QCOMPARE(baseName(view, QPalette::Active), text("ItemViewBackgroundBrush"));
    }

    void customItemViewBothWays()
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

    void unpolishTakesNothingBack()
    {
        QListView view;
        m_style.polish(&view);
        m_style.unpolish(&view);
        QCOMPARE(baseName(view, QPalette::Active), text("ItemViewBackgroundBrush"));
        QCOMPARE(setProperties(view).size(), 4);
        QVERIFY(view.testAttribute(Qt::WA_MouseTracking));
    }
};

QTEST_MAIN(ItemViewPolishTest)
#include "ItemViewPolishTest.moc"
