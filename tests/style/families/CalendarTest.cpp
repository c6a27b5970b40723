#include <common_utils/Contrast.h>
#include <style/BaseStyle.h>
#include <theme/BaseTheme.h>

#include <QtGui/QTextCharFormat>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCalendarWidget>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QStyleFactory>
#include <QtWidgets/QTableView>

#include <support/Text.h>
#include <support/painting/Pixels.h>

using TARN::BaseStyle;

namespace {

void apply(const QString &theme, bool isComplete = true)
{
    qApp->setProperty("appCompleteTheming", isComplete);
    TARN::BaseTheme(text(MOX_SHIPPED_THEMES "/") + theme).customize(qApp);
}

QColor dangerColor(bool enabled = true)
{
    return BaseStyle::getColor(text("StatusDangerColor"), enabled);
}

QColor weekEndColor(const QCalendarWidget &calendar, Qt::DayOfWeek day = Qt::Sunday)
{
    return calendar.weekdayTextFormat(day).foreground().color();
}

QWidget *navigationBar(const QCalendarWidget &calendar)
{
    return calendar.findChild<QWidget *>(text("qt_calendar_navigationbar"));
}

} // namespace

/// Calendars in the complete mode.
class CalendarTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void weekEndsAreInTheColorOfTheTheme();
    void weekEndsFadeWithTheCalendar();
    void weekEndsFollowTheTheme();
    void weekEndsOfTheProgramStay();
    void textsAreRead_data();
    void textsAreRead();
    void barIsThatOfTheWindow();
    void dayIsSelectedInOneColor();
    void calendarsAreWhatTheyWere();
    void calendarsStayAsTheyAreByDefault();
};

void CalendarTest::weekEndsAreInTheColorOfTheTheme()
{
    apply(text("Dark"));
    QCalendarWidget calendar;
    calendar.ensurePolished();
    QCOMPARE(weekEndColor(calendar, Qt::Saturday), dangerColor());
    QCOMPARE(weekEndColor(calendar, Qt::Sunday), dangerColor());
    QCOMPARE(calendar.weekdayTextFormat(Qt::Monday), QTextCharFormat());
}

void CalendarTest::weekEndsFadeWithTheCalendar()
{
    apply(text("Dark"));
    QWidget window;
    QCalendarWidget calendar(&window);
    window.show();
    window.setEnabled(false);
    QCOMPARE(weekEndColor(calendar), dangerColor(false));
    window.setEnabled(true);
    QCOMPARE(weekEndColor(calendar), dangerColor());
}

void CalendarTest::weekEndsFollowTheTheme()
{
    apply(text("Dark"));
    QCalendarWidget calendar;
    calendar.show();
    const QColor former = dangerColor();
    apply(text("Light"));
    QVERIFY(dangerColor() != former);
    QCOMPARE(weekEndColor(calendar), dangerColor());
}

void CalendarTest::weekEndsOfTheProgramStay()
{
    apply(text("Dark"));
    QTextCharFormat own;
    own.setForeground(Qt::green);
    QTextCharFormat bold;
    bold.setFontWeight(QFont::Bold);
    QCalendarWidget calendar;
    calendar.setWeekdayTextFormat(Qt::Saturday, own);
    calendar.setWeekdayTextFormat(Qt::Friday, bold);
    calendar.show();
    QCOMPARE(calendar.weekdayTextFormat(Qt::Saturday), own);
    QCOMPARE(calendar.weekdayTextFormat(Qt::Friday), bold);
    calendar.setWeekdayTextFormat(Qt::Sunday, own);
    calendar.setEnabled(false);
    QCOMPARE(calendar.weekdayTextFormat(Qt::Sunday), own);
    apply(text("Light"));
    QCOMPARE(calendar.weekdayTextFormat(Qt::Sunday), own);
    QCOMPARE(calendar.weekdayTextFormat(Qt::Saturday), own);
}

void CalendarTest::textsAreRead_data()
{
    QTest::addColumn<QString>("theme");
    QTest::addColumn<double>("least");
    QTest::newRow("Dark") << text("Dark") << 4.5;
    QTest::newRow("Light") << text("Light") << 4.5;
    QTest::newRow("HighContrast") << text("HighContrast") << 7.0;
}

void CalendarTest::textsAreRead()
{
    QFETCH(QString, theme);
    QFETCH(double, least);
    apply(theme);
    QCalendarWidget calendar;
    calendar.show();
    const auto *days = calendar.findChild<QTableView *>();
    QVERIFY(days);
    const QColor ground = days->palette().color(QPalette::Base);
    const QColor heading = days->palette().color(QPalette::AlternateBase);
    const double weekEnd = TARN::Helpers::contrastRatio(dangerColor(), ground);
    QVERIFY(weekEnd >= least);
    QVERIFY(TARN::Helpers::contrastRatio(dangerColor(), heading) >= least);
    const double faint = TARN::Helpers::contrastRatio(
        dangerColor(false), days->palette().color(QPalette::Disabled, QPalette::Base));
    QVERIFY(faint >= 2);
    QVERIFY(faint <= weekEnd * 2 / 3);
    const QWidget *bar = navigationBar(calendar);
    QVERIFY(bar);
    QVERIFY(TARN::Helpers::contrastRatio(bar->palette().color(QPalette::HighlightedText),
                                         bar->palette().color(bar->backgroundRole())) >= least);
}

void CalendarTest::barIsThatOfTheWindow()
{
    apply(text("Dark"));
    QCalendarWidget calendar;
    calendar.show();
    const QWidget *bar = navigationBar(calendar);
    const QImage picture = navigationBar(calendar)->grab().toImage();
    QCOMPARE(picture.pixelColor(picture.width() / 4, 1),
             calendar.palette().color(QPalette::Window));
    // What is typed into it is selected as everywhere.
    const auto *year = bar->findChild<QSpinBox *>();
    QVERIFY(year);
    QCOMPARE(year->palette().color(QPalette::HighlightedText),
             QApplication::palette().color(QPalette::HighlightedText));
}

void CalendarTest::dayIsSelectedInOneColor()
{
    apply(text("Dark"));
    QCalendarWidget calendar;
    calendar.setSelectedDate({2024, 3, 13});
    calendar.resize(400, 300);
    calendar.show();
    const auto *days = calendar.findChild<QTableView *>();
    const QImage picture = days->viewport()->grab().toImage();
    const QColor selection = days->palette().color(
        days->hasFocus() ? QPalette::Active : QPalette::Inactive, QPalette::Highlight);
    QVERIFY(containsColor(picture, selection));
    const QRect day = extentOf(picture, selection);
    QVERIFY(day.width() > 20);
    QCOMPARE(picture.pixelColor(day.topLeft()), picture.pixelColor(day.bottomRight()));
}

void CalendarTest::calendarsAreWhatTheyWere()
{
    QApplication::setStyle(QStyleFactory::create(text("fusion")));
    QCalendarWidget calendar;
    calendar.ensurePolished();
    const QTextCharFormat format = calendar.weekdayTextFormat(Qt::Sunday);
    const QPalette::ColorRole role = navigationBar(calendar)->backgroundRole();
    apply(text("Dark"));
    calendar.show();
    calendar.setEnabled(false);
    QVERIFY(calendar.weekdayTextFormat(Qt::Sunday) != format);
    QApplication::setStyle(QStyleFactory::create(text("fusion")));
    QCOMPARE(calendar.weekdayTextFormat(Qt::Sunday), format);
    QCOMPARE(navigationBar(calendar)->backgroundRole(), role);
    QVERIFY(!navigationBar(calendar)->testAttribute(Qt::WA_SetPalette));
    QVERIFY(!calendar.findChild<QSpinBox *>()->testAttribute(Qt::WA_SetPalette));
}

void CalendarTest::calendarsStayAsTheyAreByDefault()
{
    apply(text("Dark"), false);
    QCalendarWidget calendar;
    calendar.show();
    calendar.setEnabled(false);
    QCOMPARE(weekEndColor(calendar), QColor(Qt::red));
    QCOMPARE(navigationBar(calendar)->backgroundRole(), QPalette::Highlight);
}

QTEST_MAIN(CalendarTest)
#include "CalendarTest.moc"
