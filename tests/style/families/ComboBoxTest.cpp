#include <style/BaseStyle.h>
#include <style/ComboBoxDefaultItemDelegate.h>

#include <QtTest/QtTest>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QStyledItemDelegate>

#include <memory>
#include <support/ComboBoxes.h>
#include <support/Text.h>
#include <support/geometry/FusionReference.h>

using TARN::BaseStyle;
using TARN::ComboBoxDefaultItemDelegate;

/// The sizes and rectangles of combo boxes, and the delegates that they are given.
class ComboBoxTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void parts_data();
    void parts();
    void partsOfAnotherOption();
    void arrowCanBeChanged();
    void size();
    void delegate();
    void ownDelegateIsKept();
    void dyingStyleLeavesADelegate();
    void dyingStyleLeavesOtherDelegatesAlone();
    void comboBoxDiesBeforeItsStyle();
    void newStyleTakesOverDelegates();
    void comboBoxOfAnotherStyle();

private:
    BaseStyle m_style;
};

void ComboBoxTest::parts_data()
{
    QTest::addColumn<bool>("editable");
    QTest::addColumn<QRect>("rect");
    QTest::addColumn<QRect>("editField");
    QTest::addColumn<QRect>("arrow");
    const auto rect = [](int left, int top, int right, int bottom) {
        return QRect(QPoint(left, top), QPoint(right, bottom));
    };
    const QRect usual(0, 0, 100, 30);
    const QRect low(0, 0, 100, 8);
    QTest::newRow("list") << false << usual << rect(2, 0, 88, 29) << rect(74, 0, 99, 29);
    QTest::newRow("editable") << true << usual << rect(1, 1, 72, 28) << rect(74, 0, 99, 29);
    QTest::newRow("low list") << false << low << rect(2, 0, 88, 7) << rect(92, 0, 99, 7);
    QTest::newRow("low, editable") << true << low << rect(1, 1, 94, 6) << rect(92, 0, 99, 7);
}

void ComboBoxTest::parts()
{
    QFETCH(bool, editable);
    QFETCH(QRect, rect);
    QFETCH(QRect, editField);
    QFETCH(QRect, arrow);
    const BaseStyle style;
    const FusionReference reference;
    QStyleOptionComboBox option;
    option.rect = rect;
    option.editable = editable;
    const QComboBox comboBox;
    const QWidget *widgets[] = {&comboBox, nullptr};
    for (const QWidget *widget : widgets) {
        const auto part = [&](QStyle::SubControl control) {
            return style.subControlRect(QStyle::CC_ComboBox, &option, control, widget);
        };
        for (const Qt::LayoutDirection direction : bothDirections) {
            option.direction = direction;
            QCOMPARE(part(QStyle::SC_ComboBoxEditField), editField);
            QCOMPARE(part(QStyle::SC_ComboBoxArrow), arrow);
            for (const auto other : {QStyle::SC_ComboBoxFrame, QStyle::SC_ComboBoxListBoxPopup}) {
                QCOMPARE(part(other),
                         reference.fusionRect(QStyle::CC_ComboBox, option, other, widget));
            }
        }
    }
}

void ComboBoxTest::partsOfAnotherOption()
{
    const BaseStyle style;
    QStyleOptionComplex plain;
    plain.rect = QRect(0, 0, 100, 30);
    const auto part = [&](QStyle::SubControl control) {
        return style.subControlRect(QStyle::CC_ComboBox, &plain, control, nullptr);
    };
    QCOMPARE(part(QStyle::SC_ComboBoxEditField), plain.rect);
    QCOMPARE(part(QStyle::SC_ComboBoxArrow), QRect(QPoint(74, 0), QPoint(99, 29)));
}

void ComboBoxTest::arrowCanBeChanged()
{
    const ChangedStyle style({{QStyle::PM_MenuButtonIndicator, 40}});
    QStyleOptionComboBox option;
    option.rect = QRect(0, 0, 100, 30);
    const auto part = [&](QStyle::SubControl control) {
        return style.subControlRect(QStyle::CC_ComboBox, &option, control, nullptr);
    };
    QCOMPARE(part(QStyle::SC_ComboBoxEditField).right(), 60);
    QCOMPARE(part(QStyle::SC_ComboBoxArrow).left(), 64);
}

void ComboBoxTest::size()
{
    const BaseStyle style;
    const FusionReference reference;
    const QComboBox comboBox;
    QStyleOptionComboBox option;
    option.initFrom(&comboBox);
    const QStyleOptionButton button = buttonOption(option);
    const QWidget *widgets[] = {&comboBox, nullptr};
    for (const QWidget *widget : widgets) {
        for (const int height : {4, 16, 17, 30, 31}) {
            const int expected = style
                                     .sizeFromContents(QStyle::CT_PushButton, &button,
                                                       QSize(120, height - 1), widget)
                                     .height();
            const int width =
                reference.fusionSize(QStyle::CT_ComboBox, option, QSize(120, height), widget)
                    .width();
            QCOMPARE(
                style.sizeFromContents(QStyle::CT_ComboBox, &option, QSize(120, height), widget),
                QSize(width, expected));
        }
    }
}

void ComboBoxTest::delegate()
{
    QComboBox combo;
    combo.setStyle(&m_style);
    QVERIFY(combo.itemDelegate()->inherits("QComboBoxDelegate"));
    m_style.polish(&combo);
    auto *delegate = qobject_cast<ComboBoxDefaultItemDelegate *>(combo.itemDelegate());
    QVERIFY(delegate);
    QCOMPARE(delegate->parent(), &m_style);
    QCOMPARE(delegate->comboBox(), &combo);
    QCOMPARE(combo.view()->itemDelegate(), delegate);

    m_style.polish(&combo);
    QCOMPARE(combo.itemDelegate(), delegate);
}

void ComboBoxTest::ownDelegateIsKept()
{
    QComboBox combo;
    auto *delegate = new QStyledItemDelegate(&combo);
    combo.setItemDelegate(delegate);
    m_style.polish(&combo);
    QCOMPARE(combo.itemDelegate(), delegate);

    QComboBox other;
    auto *ownLine = new ComboBoxDefaultItemDelegate(&other, &other);
    other.setItemDelegate(ownLine);
    m_style.polish(&other);
    QCOMPARE(other.itemDelegate(), ownLine);
}

void ComboBoxTest::dyingStyleLeavesADelegate()
{
    QComboBox combo;
    combo.addItem(text("Only"));
    std::unique_ptr<BaseStyle> style(new BaseStyle);
    combo.setStyle(style.get());
    combo.ensurePolished();
    const QPointer<ComboBoxDefaultItemDelegate> former = delegateOf(combo);
    QVERIFY(former);
    QCOMPARE(former->parent(), style.get());
    combo.setStyle(nullptr);
    style.reset();
    QVERIFY(former.isNull());
    QVERIFY(delegateOf(combo));
    QCOMPARE(delegateOf(combo)->parent(), &combo);
    QVERIFY(opens(combo));
}

void ComboBoxTest::dyingStyleLeavesOtherDelegatesAlone()
{
    QComboBox combo;
    std::unique_ptr<BaseStyle> style(new BaseStyle);
    combo.setStyle(style.get());
    combo.ensurePolished();
    auto *own = new QStyledItemDelegate(&combo);
    combo.setItemDelegate(own);
    combo.setStyle(nullptr);
    style.reset();
    QCOMPARE(combo.itemDelegate(), own);
}

void ComboBoxTest::comboBoxDiesBeforeItsStyle()
{
    BaseStyle style;
    for (int round = 0; round < 3; ++round) {
        QComboBox combo;
        combo.setStyle(&style);
        combo.ensurePolished();
        QCOMPARE(delegateOf(combo)->parent(), &style);
    }
    QVERIFY(!style.findChildren<ComboBoxDefaultItemDelegate *>().isEmpty());
}

void ComboBoxTest::newStyleTakesOverDelegates()
{
    QComboBox combo;
    BaseStyle first;
    first.polish(&combo);
    combo.setStyle(&first);
    combo.ensurePolished();
    QCOMPARE(delegateOf(combo)->parent(), &first);
    BaseStyle second;
    second.polish(&combo);
    QCOMPARE(delegateOf(combo)->parent(), &second);
    QCOMPARE(delegateOf(combo)->comboBox(), &combo);
    combo.setStyle(nullptr);
}

// A theme that follows the native style finds combo boxes with the native style's delegate.
void ComboBoxTest::comboBoxOfAnotherStyle()
{
    QApplication::setStyle(text("fusion"));
    QComboBox *combo = makeComboBox(false);
    QWidget window;
    QHBoxLayout layout(&window);
    layout.addWidget(combo);
    window.show();
    QVERIFY(opens(*combo));
    QVERIFY(!delegateOf(*combo));
    auto *style = new BaseStyle;
    QApplication::setStyle(style);
    QVERIFY(delegateOf(*combo));
    QCOMPARE(delegateOf(*combo)->parent(), style);
}

QTEST_MAIN(ComboBoxTest)
#include "ComboBoxTest.moc"
