#include <common_utils/Contrast.h>
#include <theme/BaseTheme.h>

#include <QtGui/QPainter>
#include <QtGui/QStandardItemModel>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QColumnView>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QItemDelegate>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QStyledItemDelegate>
#include <QtWidgets/QTreeWidget>

#include <algorithm>
#include <support/Text.h>
#include <support/painting/Pixels.h>

using TARN::Helpers::contrastRatio;

namespace {

void apply(const QString &theme)
{
    qApp->setProperty("appCompleteTheming", true);
    TARN::BaseTheme(text(MOX_SHIPPED_THEMES "/") + theme).customize(qApp);
}

/// What has to be told apart at least.
struct Demands
{
    double text;
    double glyph;
};

Demands demandsOf(const QString &theme)
{
    return theme == text("HighContrast") ? Demands{7, 4.5} : Demands{4.5, 3};
}

enum class State { Active, Inactive, Disabled };

void bringInto(QWidget &view, State state)
{
    view.setEnabled(state != State::Disabled);
    view.show();
    QApplication::setActiveWindow(&view);
    state == State::Active ? view.setFocus() : view.clearFocus();
}

/// Returns the colour in \a rect of \a picture that differs most from \a ground.
QColor inkOn(const QColor &ground, const QImage &picture, const QRect &rect)
{
    QColor ink = ground;
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        for (int x = rect.left(); x <= rect.right(); ++x) {
            const QColor color = picture.pixelColor(x, y);
            if (contrastRatio(color, ground) > contrastRatio(ink, ground)) {
                ink = color;
            }
        }
    }
    return ink;
}

/// What is seen of a selected item.
struct SeenItem
{
    QColor ground;
    QColor text;
};

/// Returns what is seen of the first of three items, which is selected.
template <typename Delegate>
SeenItem selectedItem(State state)
{
    QListWidget list;
    list.setItemDelegate(new Delegate(&list));
    list.addItems({blocks(3), blocks(3), blocks(3)});
    list.setCurrentRow(0);
    list.resize(200, 120);
    bringInto(list, state);
    const QRect rect = list.visualItemRect(list.item(0));
    const QImage picture = list.viewport()->grab().toImage();
    const QColor ground = picture.pixelColor(rect.right() - 10, rect.center().y());
    return {ground, inkOn(ground, picture, rect.adjusted(2, 2, -80, -2))};
}

void addThemes()
{
    QTest::addColumn<QString>("theme");
    for (const char *theme : {"Dark", "Light", "HighContrast"}) {
        QTest::newRow(theme) << text(theme);
    }
}

/// Tells whether \a picture has dashes of \a color along the upper edge of \a rect.
bool hasDashes(const QImage &picture, const QRect &rect, const QColor &color)
{
    int count = 0;
    for (int x = rect.left(); x <= rect.right(); ++x) {
        count += areAlike(picture.pixelColor(x, rect.top()), color) ? 1 : 0;
    }
    return count > 10 && count < rect.width();
}

} // namespace

/// The selections of item views in the complete mode, and what is drawn on them.
class SelectionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textsAreReadOnSelections_data() { addThemes(); }
    void textsAreReadOnSelections();
    void delegatesSelectInOneColor_data() { addThemes(); }
    void delegatesSelectInOneColor();
    void branchesAreSeen_data() { addThemes(); }
    void branchesAreSeen();
    void arrowsOfColumnsAreSeen_data() { addThemes(); }
    void arrowsOfColumnsAreSeen();
    void colorsOfTheProgramAreUsed();
    void focusIsSeenWhereNothingIsSelected();
    void listsOfComboBoxesShowNoFocus();
    void dropPlacesAreSeenBesideSelections();
    void viewsGiveBackTheirColors();
};

void SelectionTest::textsAreReadOnSelections()
{
    QFETCH(QString, theme);
    apply(theme);
    const SeenItem active = selectedItem<QStyledItemDelegate>(State::Active);
    const SeenItem inactive = selectedItem<QStyledItemDelegate>(State::Inactive);
    const SeenItem disabled = selectedItem<QStyledItemDelegate>(State::Disabled);
    const double least = std::min(contrastRatio(active.text, active.ground),
                                  contrastRatio(inactive.text, inactive.ground));
    QVERIFY2(least >= demandsOf(theme).text, qPrintable(QString::number(least)));
    const double faint = contrastRatio(disabled.text, disabled.ground);
    QVERIFY2(faint >= 2, qPrintable(QString::number(faint)));
    QVERIFY2(faint <= least * 2 / 3, qPrintable(QString::number(faint)));
    QVERIFY(active.ground != inactive.ground);
    QVERIFY(inactive.ground != disabled.ground);
}

void SelectionTest::delegatesSelectInOneColor()
{
    QFETCH(QString, theme);
    apply(theme);
    for (const State state : {State::Active, State::Inactive, State::Disabled}) {
        const SeenItem styled = selectedItem<QStyledItemDelegate>(state);
        const SeenItem plain = selectedItem<QItemDelegate>(state);
        QCOMPARE(plain.ground, styled.ground);
        QVERIFY(areAlike(plain.text, styled.text));
    }
}

void SelectionTest::branchesAreSeen()
{
    QFETCH(QString, theme);
    apply(theme);
    QTreeWidget tree;
    tree.setHeaderHidden(true);
    for (int i = 0; i < 2; ++i) {
        auto *item = new QTreeWidgetItem(&tree, {QString()});
        new QTreeWidgetItem(item, {QString()});
    }
    tree.setCurrentItem(tree.topLevelItem(0));
    tree.resize(200, 120);
    for (const State state : {State::Active, State::Inactive}) {
        bringInto(tree, state);
        const QImage picture = tree.viewport()->grab().toImage();
        for (int i = 0; i < 2; ++i) {
            const QRect item = tree.visualItemRect(tree.topLevelItem(i));
            const QRect branch(1, item.top() + 2, item.left() - 2, item.height() - 4);
            const QColor ground = picture.pixelColor(branch.topLeft());
            const double contrast = contrastRatio(inkOn(ground, picture, branch), ground);
            QVERIFY2(contrast >= demandsOf(theme).glyph, qPrintable(QString::number(contrast)));
        }
    }
}

void SelectionTest::arrowsOfColumnsAreSeen()
{
    QFETCH(QString, theme);
    apply(theme);
    QStandardItemModel model;
    auto *parent = new QStandardItem;
    parent->appendRow(new QStandardItem);
    model.appendRow(parent);
    QColumnView view;
    view.setModel(&model);
    view.resize(300, 100);
    for (const bool isEnabled : {true, false}) {
        view.setEnabled(isEnabled);
        view.show();
        auto *column = view.findChild<QListView *>();
        QVERIFY(column);
        column->setCurrentIndex(model.index(0, 0));
        const QRect item = column->visualRect(model.index(0, 0));
        const QImage picture = column->viewport()->grab().toImage();
        const QColor ground = picture.pixelColor(item.topLeft() + QPoint(2, 2));
        const QRect end(item.right() - 16, item.top() + 2, 14, item.height() - 4);
        const double contrast = contrastRatio(inkOn(ground, picture, end), ground);
        const double demand = isEnabled ? demandsOf(theme).glyph : 1.5;
        QVERIFY2(contrast >= demand, qPrintable(QString::number(contrast)));
    }
}

void SelectionTest::colorsOfTheProgramAreUsed()
{
    apply(text("Dark"));
    QPalette palette;
    palette.setColor(QPalette::Highlight, Qt::green);
    palette.setColor(QPalette::HighlightedText, Qt::blue);
    palette.setColor(QPalette::Base, Qt::yellow);
    QListWidget list;
    list.setPalette(palette);
    list.addItems({blocks(3), QString()});
    list.setCurrentRow(0);
    list.resize(200, 120);
    bringInto(list, State::Active);
    const QImage picture = list.viewport()->grab().toImage();
    const QRect first = list.visualItemRect(list.item(0));
    const QRect second = list.visualItemRect(list.item(1));
    QCOMPARE(picture.pixelColor(first.right() - 5, first.center().y()), QColor(Qt::green));
    QVERIFY(containsColor(picture, Qt::blue));
    QCOMPARE(picture.pixelColor(second.center()), QColor(Qt::yellow));
    QCOMPARE(picture.pixelColor(5, 115), QColor(Qt::yellow));
}

void SelectionTest::focusIsSeenWhereNothingIsSelected()
{
    apply(text("Dark"));
    QListWidget list;
    list.setSelectionMode(QAbstractItemView::ExtendedSelection);
    list.addItems({text("one"), text("two")});
    list.setCurrentRow(1);
    list.resize(200, 120);
    bringInto(list, State::Active);
    QStyleOptionViewItem option;
    option.initFrom(&list);
    option.rect = list.visualItemRect(list.item(1));
    option.text = text("two");
    option.features = QStyleOptionViewItem::HasDisplay;
    const QRect edge =
        list.style()->subElementRect(QStyle::SE_ItemViewItemFocusRect, &option, &list);
    const QColor color = list.palette().color(QPalette::Text);
    QVERIFY(!hasDashes(list.viewport()->grab().toImage(), edge, color));
    list.clearSelection();
    QVERIFY(hasDashes(list.viewport()->grab().toImage(), edge, color));
    list.clearFocus();
    QVERIFY(!hasDashes(list.viewport()->grab().toImage(), edge, color));
}

void SelectionTest::listsOfComboBoxesShowNoFocus()
{
    apply(text("Dark"));
    QComboBox comboBox;
    comboBox.addItem(text("one"));
    QListWidget list;
    comboBox.view()->ensurePolished();
    list.ensurePolished();
    QVERIFY(comboBox.view()->property("hideFocusRect").toBool());
    QVERIFY(!list.property("hideFocusRect").toBool());
}

void SelectionTest::dropPlacesAreSeenBesideSelections()
{
    apply(text("Dark"));
    QListWidget list;
    list.ensurePolished();
    const QColor selection = list.palette().color(QPalette::Active, QPalette::Highlight);
    QStyleOption option;
    option.initFrom(&list);
    for (const QRect &place : {QRect(10, 20, 60, 0), QRect(10, 10, 60, 26)}) {
        option.rect = place;
        QImage onGround = plainPicture({80, 50}, list.palette().color(QPalette::Base));
        QImage onSelection = plainPicture({80, 50}, selection);
        for (QImage *picture : {&onGround, &onSelection}) {
            const QImage before = *picture;
            QPainter painter(picture);
            qApp->style()->drawPrimitive(QStyle::PE_IndicatorItemViewItemDrop, &option, &painter,
                                         &list);
            painter.end();
            QVERIFY(*picture != before);
        }
        QVERIFY(containsColor(onGround, selection));
    }
}

void SelectionTest::viewsGiveBackTheirColors()
{
    apply(text("Dark"));
    QListWidget list;
    list.ensurePolished();
    const QPalette former = QApplication::palette("QListWidget");
    QVERIFY(list.palette().color(QPalette::Highlight) != former.color(QPalette::Highlight));
    qApp->style()->unpolish(&list);
    for (const auto role : {QPalette::Highlight, QPalette::HighlightedText, QPalette::Base,
                            QPalette::AlternateBase}) {
        QCOMPARE(list.palette().color(role), QApplication::palette(&list).color(role));
    }
    QVERIFY(!list.testAttribute(Qt::WA_SetPalette));
}

QTEST_MAIN(SelectionTest)
#include "SelectionTest.moc"
