#include "icons/ContactSheet.h"

#include "icons/Drawing.h"
#include "icons/Rendering.h"

#include <QtGui/QPainter>

namespace TARN::Artwork {

namespace {

constexpr int Margin = 8;
constexpr int TextHeight = 26;

QImage inked(QByteArray svg, const QColor &ink, int side)
{
    return rendered(svg.replace("#E5EEF4", ink.name().toLatin1()), side);
}

QSize cellSize(const SheetLook &look)
{
    return look.large ? QSize(2 * 64 + 3 * Margin, 64 + TextHeight + 2 * Margin)
                      : QSize(72, 32 + TextHeight);
}

void drawName(QPainter *painter, const QString &name, const QRect &cell, const SheetLook &look)
{
    QFont font = painter->font();
    font.setPixelSize(look.large ? 11 : 8);
    painter->setFont(font);
    painter->setPen(look.ink);
    // Names break at their dots.
    QString text = name;
    text.replace(QLatin1Char('.'), QStringLiteral(".\u200b"));
    painter->drawText(cell.adjusted(2, cell.height() - TextHeight, -2, 0),
                      Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, text);
}

void drawIcon(QPainter *painter, const QString &name, const QByteArray &svg, const QRect &cell,
              const SheetLook &look)
{
    const int size = gridSize(name);
    if (!look.large) {
        const QImage image = inked(svg, look.ink, size);
        painter->drawImage(cell.center().x() - size / 2, cell.top() + (32 - size) / 2, image);
        return;
    }
    const QImage enlarged = inked(svg, look.ink, size).scaled(QSize(64, 64));
    painter->drawImage(cell.left() + Margin, cell.top() + Margin, enlarged);
    painter->drawImage(cell.left() + 64 + 2 * Margin, cell.top() + Margin,
                       inked(svg, look.ink, 64));
}

} // namespace

QImage contactSheet(const QMap<QString, QByteArray> &icons, const SheetLook &look)
{
    const QSize cell = cellSize(look);
    const int rows = (icons.size() + look.columns - 1) / look.columns;
    QImage sheet(look.columns * cell.width() + 2 * Margin, rows * cell.height() + 2 * Margin,
                 QImage::Format_RGB32);
    sheet.fill(look.background);
    QPainter painter(&sheet);
    int index = 0;
    for (auto icon = icons.begin(); icon != icons.end(); ++icon, ++index) {
        const QRect place(QPoint(Margin + index % look.columns * cell.width(),
                                 Margin + index / look.columns * cell.height()),
                          cell);
        drawIcon(&painter, icon.key(), icon.value(), place, look);
        drawName(&painter, icon.key(), place, look);
    }
    return sheet;
}

} // namespace TARN::Artwork
