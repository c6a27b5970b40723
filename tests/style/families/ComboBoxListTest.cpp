#include <style/BaseStyle.h>
#include <theme/BaseTheme.h>

#include <QtTest/QtTest>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QApplication>
#include <QtWidgets/QFontComboBox>

#include <support/Text.h>
#include <support/painting/Pixels.h>

using TARN::BaseStyle;

namespace {

void apply(bool isComplete)
{
    qApp->setProperty("appCompleteTheming", isComplete);
    TARN::BaseTheme(text(MOX_SHIPPED_THEMES "/Dark")).customize(qApp);
}

QColor themeColor(const char *name)
{
    return BaseStyle::getColor(text(name), true);
}

/// Returns the list of \a comboBox as it pops up, in its frame.
QImage openedList(QComboBox &comboBox)
{
    comboBox.show();
    comboBox.showPopup();
    const QImage picture = comboBox.view()->parentWidget()->grab().toImage();
    comboBox.hidePopup();
    return picture;
}

} // namespace

/// The lists of combo boxes in the complete mode.
class ComboBoxListTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:

    void listsLookAsByDefault();
    void groundIsSeenBelowFonts();
    void colorsOfTheProgramAreUsed();
};

void ComboBoxListTest::listsLookAsByDefault()
{
    QImage pictures[2];
    for (const bool isComplete : {false, true}) {
        apply(isComplete);
        QComboBox comboBox;
        comboBox.addItems({QString(), QString(), QString()});
        comboBox.insertSeparator(2);
        pictures[int(isComplete)] = openedList(comboBox);
    }
    QCOMPARE(pictures[1], pictures[0]);
    QCOMPARE(pictures[1].pixelColor(0, 10), themeColor("BackgroundSubLevel1Color"));
    QCOMPARE(pictures[1].pixelColor(1, 1), themeColor("MainColor"));
}

void ComboBoxListTest::groundIsSeenBelowFonts()
{
    apply(true);
    QFontComboBox comboBox;
    const QImage picture = openedList(comboBox);
    QVERIFY(containsColor(picture, themeColor("BackgroundUpLevel1Color")));
    QVERIFY(containsColor(picture, themeColor("MainColor")));
}

void ComboBoxListTest::colorsOfTheProgramAreUsed()
{
    apply(true);
    QComboBox comboBox;
    comboBox.addItems({QString(), QString(), QString()});
    QPalette palette;
    palette.setColor(QPalette::Base, Qt::yellow);
    palette.setColor(QPalette::Highlight, Qt::green);
    comboBox.view()->setPalette(palette);
    const QImage picture = openedList(comboBox);
    QVERIFY(containsColor(picture, Qt::yellow));
    QVERIFY(containsColor(picture, Qt::green));
    QVERIFY(!containsColor(picture, themeColor("MainColor")));
}

QTEST_MAIN(ComboBoxListTest)
#include "ComboBoxListTest.moc"
