#include "style/brushes/BrushNames.h"

#include <style/BaseStyle.h>

#include <QtTest/QtTest>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDateTimeEdit>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QStyleOption>

#include <support/NamedWidget.h>
#include <support/Text.h>

namespace {

constexpr QStyle::State enabled = QStyle::State_Enabled;
constexpr QStyle::State hovered = QStyle::State_Enabled | QStyle::State_MouseOver;
constexpr QStyle::State sunken = QStyle::State_Enabled | QStyle::State_Sunken;
constexpr QStyle::State on = QStyle::State_Enabled | QStyle::State_On;

} // namespace

/// The brushes that are chosen for button-like inputs.
class InputBrushesTest : public QObject, private BrushNames
{
    Q_OBJECT

private Q_SLOTS:
    void calendarEdits()
    {
        QDateEdit edit;
        edit.setCalendarPopup(true);
        QCOMPARE(all(plain(hovered), &edit),
                 QStringList({text("InputUncheckedHoverBackgroundBrush"),
                              text("InputUncheckedHoverBorderBrush"),
                              text("ButtonUncheckedHoverForegroundBrush")}));
        edit.setProperty("Status", text("Primary"));
        QCOMPARE(border(plain(enabled), &edit), text("InputPrimaryUncheckedBorderBrush"));
        show(edit);
        edit.setFocus();
        QCOMPARE(border(plain(enabled), &edit), text("MainBrush"));
        edit.setFrame(false);
        QCOMPARE(border(plain(enabled), &edit), text("InputPrimaryUncheckedBackgroundBrush"));
    }

    void spinBoxes_data()
    {
        QTest::addColumn<QWidget *>("widget");
        auto *timeEdit = new QTimeEdit;
        timeEdit->setCalendarPopup(true);
        QTest::newRow("spin box") << static_cast<QWidget *>(new QSpinBox);
        QTest::newRow("date edit without calendar") << static_cast<QWidget *>(new QDateEdit);
        QTest::newRow("time edit") << static_cast<QWidget *>(timeEdit);
    }

    void spinBoxes()
    {
        QFETCH(QWidget *, widget);
        const QScopedPointer<QWidget> owner(widget);
        const QString resting = text("InputUncheckedBackgroundBrush");
        QCOMPARE(all(plain(enabled), widget),
                 QStringList({resting, resting, text("ButtonUncheckedForegroundBrush")}));
        QCOMPARE(all(plain(hovered), widget),
                 QStringList({resting, resting, text("ButtonUncheckedHoverForegroundBrush")}));
        widget->setProperty("Order", text("Primary"));
        QCOMPARE(border(plain(sunken), widget),
                 text("InputPrimaryUncheckedPressedBackgroundBrush"));
        QCOMPARE(background(plain(hovered), widget), resting);
        widget->setEnabled(false);
        QCOMPARE(background(plain(hovered), widget), resting + text("Disabled"));
    }

    void spinBoxKnownByNameOnly()
    {
        Named<QWidget> box("QAbstractSpinBox");
        const QString resting = text("InputUncheckedBackgroundBrush");
        QCOMPARE(all(plain(hovered), &box),
                 QStringList({resting, resting, text("ButtonUncheckedHoverForegroundBrush")}));
    }

    void comboBoxes()
    {
        QComboBox box;
        QCOMPARE(all(plain(hovered), &box), named("InputUncheckedHover"));
        box.setProperty("ButtonType", text("Primary"));
        QCOMPARE(all(plain(on), &box), named("InputPrimaryChecked"));
        box.setProperty("checkable", true);
        QCOMPARE(all(plain(on), &box), named("InputPrimaryChecked"));
        box.setFrame(false);
        QCOMPARE(border(plain(on), &box), text("InputPrimaryCheckedBackgroundBrush"));
    }

    void choosingBrushesCreatesNoList()
    {
        QComboBox box;
        const int children = box.children().size();
        all(plain(enabled), &box);
        QCOMPARE(box.children().size(), children);
    }

    void openComboBox()
    {
        QComboBox box;
        box.addItems({text("a"), text("b")});
        show(box);
        box.showPopup();
        QTRY_VERIFY(box.view()->isVisible());
        QCOMPARE(border(plain(enabled), &box), text("CardBorderBrush"));
        QCOMPARE(border(plain(QStyle::State_None), &box), text("CardBorderBrushDisabled"));
        box.setFrame(false);
        QCOMPARE(border(plain(enabled), &box), text("InputUncheckedBackgroundBrush"));
        box.setFrame(true);
        box.hidePopup();
        QTRY_VERIFY(!box.view()->isVisible());
        QCOMPARE(border(plain(enabled), &box), text("InputUncheckedBorderBrush"));
    }

    void editedComboBox()
    {
        QComboBox box;
        box.setEditable(true);
        QCOMPARE(border(plain(enabled), &box), text("InputUncheckedBorderBrush"));
        show(box);
        box.lineEdit()->setFocus();
        QVERIFY(box.lineEdit()->hasFocus());
        QCOMPARE(border(plain(enabled), &box), text("MainBrush"));
        box.setFrame(false);
        QCOMPARE(border(plain(enabled), &box), text("InputUncheckedBackgroundBrush"));
    }
};

QTEST_MAIN(InputBrushesTest)
#include "InputBrushesTest.moc"
