#include "TextRecorder.h"

QSize sizeOf(const QString &text, const QFontMetrics &metrics)
{
    return metrics.size(Qt::TextShowMnemonic, text);
}

QSize wrappedSizeOf(const QString &text, const QFontMetrics &metrics, int width)
{
    const QRect room(0, 0, width, QWIDGETSIZE_MAX);
    return metrics.boundingRect(room, Qt::TextWordWrap | Qt::TextShowMnemonic, text).size();
}

QFont boldened(QFont font)
{
    font.setBold(true);
    return font;
}

QSize roomFor(QStyle::SubElement element, const QStyleOption &option, const QWidget &widget)
{
    return (widget.style()->subElementRect(element, &option, &widget) & widget.rect()).size();
}

QSize roomFor(QStyle::ComplexControl control, QStyle::SubControl part,
              const QStyleOptionComplex &option, const QWidget &widget)
{
    const QRect rect = widget.style()->subControlRect(control, &option, part, &widget);
    return (rect & widget.rect()).size();
}

int metricOf(QStyle::PixelMetric metric, const QStyleOption &option, const QWidget &widget)
{
    return widget.style()->pixelMetric(metric, &option, &widget);
}

int iconWidth(const QIcon &icon, const QSize &size)
{
    return icon.isNull() ? 0 : icon.actualSize(size).width() + iconSpacing;
}
