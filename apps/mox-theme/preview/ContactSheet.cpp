#include "preview/ContactSheet.h"

#include "preview/SheetLayout.h"
#include "text/Literals.h"

#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLayout>
#include <QtWidgets/QWidget>

#include <Settling.h>
#include <pages/PageTable.h>

namespace TARN::ThemeTool {

namespace {

using Gallery::Page;

// What the gallery's window leaves to a page; pages that would like more need not have it.
constexpr QSize LargestPage(1310, 790);

constexpr int Gap = 56;     // around the sheet and between what stands on it
constexpr int TitleGap = 8; // between a title, its line, and the page
constexpr double Aspect = 1.4;
constexpr double HeadingScale = 3;
constexpr double TitleScale = 1.6;

QFont scaledFont(double scale, bool bold)
{
    QFont font = QApplication::font();
    font.setPointSizeF(font.pointSizeF() * scale);
    font.setBold(bold);
    return font;
}

QFont headingFont()
{
    return scaledFont(HeadingScale, true);
}

QFont titleFont()
{
    return scaledFont(TitleScale, true);
}

// What stands above a page.
int titleHeight()
{
    return QFontMetrics(titleFont()).height() + 2 * TitleGap + 1;
}

QSize naturalSize(const QWidget &page)
{
    QSize size =
        page.sizeHint().boundedTo(LargestPage).expandedTo(page.layout()->totalMinimumSize());
    if (page.hasHeightForWidth()) {
        size.setHeight(qMax(size.height(), page.heightForWidth(size.width())));
    }
    return size;
}

// The pages stand in an active window, as they do in front of a user.
QVector<QWidget *> createPages(QWidget &stage)
{
    QVector<QWidget *> widgets;
    for (const Page &page : Gallery::pages()) {
        QWidget *widget = page.create();
        widget->setParent(&stage);
        // Only what has been shown knows its size.
        widget->show();
        QCoreApplication::sendPostedEvents();
        widget->hide();
        widgets.append(widget);
    }
    return widgets;
}

QVector<QRect> arrangedPages(const QVector<QWidget *> &widgets)
{
    const int above = titleHeight();
    QVector<QSize> cells;
    for (const QWidget *widget : widgets) {
        cells.append(naturalSize(*widget) + QSize(0, above));
    }
    const QPoint origin(Gap, 2 * Gap + QFontMetrics(headingFont()).height());
    QVector<QRect> areas;
    for (const QRect &place : arrangeInColumns(cells, Gap, Aspect)) {
        areas.append(place.translated(origin).adjusted(0, above, 0, 0));
    }
    return areas;
}

QPixmap picture(QWidget &page, const QSize &size)
{
    page.resize(size);
    page.show();
    // No page is the one that is used at the moment.
    if (QWidget *focused = page.window()->focusWidget()) {
        focused->clearFocus();
    }
    Gallery::settle(page);
    const QPixmap result = page.grab();
    page.hide();
    return result;
}

// The title is as wide as what the page holds.
void drawTitle(QPainter &painter, const Page &page, const QRect &contents)
{
    const QRect line(contents.left(), contents.top() - TitleGap - 1, contents.width(), 1);
    painter.fillRect(line, QApplication::palette().brush(QPalette::Midlight));

    const int baseline = line.top() - TitleGap - QFontMetrics(titleFont()).descent();
    painter.setFont(titleFont());
    painter.drawText(line.left(), baseline, page.title);
    painter.setFont(QApplication::font());
    const int familyWidth = painter.fontMetrics().horizontalAdvance(page.family);
    painter.drawText(line.right() + 1 - familyWidth, baseline, page.family);
}

QImage emptySheet(const QVector<QRect> &areas)
{
    QRect whole;
    for (const QRect &area : areas) {
        whole |= area;
    }
    return {whole.right() + 1 + Gap, whole.bottom() + 1 + Gap, QImage::Format_RGB32};
}

} // namespace

ContactSheet::ContactSheet(const QString &heading)
{
    QApplication::setCursorFlashTime(0);
    QWidget stage;
    stage.resize(LargestPage);
    stage.show();
    const QVector<QWidget *> widgets = createPages(stage);
    m_pageAreas = arrangedPages(widgets);
    m_image = emptySheet(m_pageAreas);

    QPainter painter(&m_image);
    painter.fillRect(m_image.rect(), QApplication::palette().brush(QPalette::Window));
    painter.setPen(QApplication::palette().color(QPalette::WindowText));
    painter.setFont(headingFont());
    painter.drawText(m_image.rect().adjusted(Gap, Gap, -Gap, 0), Qt::AlignLeading | Qt::AlignTop,
                     heading);
    for (int i = 0; i < widgets.size(); ++i) {
        const QRect area = m_pageAreas.at(i);
        QMargins sides = widgets.at(i)->layout()->contentsMargins();
        sides.setTop(0);
        drawTitle(painter, Gallery::pages().at(i), area.marginsRemoved(sides));
        painter.drawPixmap(area, picture(*widgets.at(i), area.size()));
    }
}

} // namespace TARN::ThemeTool
