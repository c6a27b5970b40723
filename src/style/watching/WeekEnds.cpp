#include "style/watching/WeekEnds.h"

#include "catalogue/Names.h"
#include "style/polishing/Polishing.h"

#include <QtGui/QTextCharFormat>
#include <QtWidgets/QCalendarWidget>

namespace TARN {

namespace {

constexpr Qt::DayOfWeek weekEnd[] = {Qt::Saturday, Qt::Sunday};

/// Where a format keeps the brush that it was given here: a text that a program has given another
/// one is the program's.
constexpr int givenBrush = QTextFormat::UserProperty + 0x4d0;

QTextCharFormat toolkitsFormat()
{
    QTextCharFormat format;
    format.setForeground(QBrush(Qt::red));
    return format;
}

bool isTinted(const QTextCharFormat &format)
{
    return format.hasProperty(givenBrush) &&
           format.brushProperty(givenBrush) == format.foreground();
}

void tint(QCalendarWidget &calendar, Qt::DayOfWeek day, QTextCharFormat format)
{
    const QBrush brush = themeColor(ColorName::StatusDangerColor, calendar.isEnabled());
    format.setForeground(brush);
    format.setProperty(givenBrush, brush);
    calendar.setWeekdayTextFormat(day, format);
}

void takeBackTint(QCalendarWidget &calendar)
{
    for (const Qt::DayOfWeek day : weekEnd) {
        QTextCharFormat format = calendar.weekdayTextFormat(day);
        if (isTinted(format)) {
            format.clearProperty(givenBrush);
            format.setForeground(toolkitsFormat().foreground());
            calendar.setWeekdayTextFormat(day, format);
        }
    }
}

} // namespace

void tintWeekEnds(Polishing &polishing)
{
    auto &calendar = static_cast<QCalendarWidget &>(polishing.widget());
    for (const Qt::DayOfWeek day : weekEnd) {
        if (calendar.weekdayTextFormat(day) == toolkitsFormat()) {
            tint(calendar, day, toolkitsFormat());
        }
    }
    polishing.installEventFilter();
    polishing.addUndo([&calendar] { takeBackTint(calendar); });
}

void updateWeekEnds(QCalendarWidget &calendar)
{
    for (const Qt::DayOfWeek day : weekEnd) {
        const QTextCharFormat format = calendar.weekdayTextFormat(day);
        if (isTinted(format)) {
            tint(calendar, day, format);
        }
    }
}

} // namespace TARN
