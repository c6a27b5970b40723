#pragma once

#include <QtGui/QFontMetrics>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtWidgets/QStyleOption>

#include <support/Text.h>
#include <support/themes/IconTheme.h>

// What the tests of menu entries paint, and how they find it in pictures.

inline constexpr QSize pictureSize(220, 40);
inline constexpr QRect itemRect(10, 8, 200, 25);
inline constexpr QPoint corner = QPoint(11, 9);

// None of them is a colour of the theme.
inline const QColor textColor(0x03, 0x90, 0x05);
inline const QColor highlightedTextColor(0x93, 0x05, 0x07);
inline const QColor disabledTextColor(0x73, 0x75, 0x77);
inline const QColor lineColor(0x09, 0x05, 0x97);

/// A text that fills whole pixels.
inline QString bar(int length = 1)
{
    return QString(length, QChar(0x2588));
}

inline QStyleOptionMenuItem itemOption(const QString &string,
                                       QStyle::State state = QStyle::State_Enabled)
{
    QStyleOptionMenuItem option;
    option.rect = itemRect;
    option.state = state;
    option.text = string;
    option.font = QFont(text("DejaVu Sans"), 9);
    option.fontMetrics = QFontMetrics(option.font);
    option.palette.setBrush(QPalette::Text, textColor);
    option.palette.setBrush(QPalette::HighlightedText, highlightedTextColor);
    option.palette.setBrush(QPalette::Disabled, QPalette::Text, disabledTextColor);
    option.palette.setBrush(QPalette::Midlight, lineColor);
    option.palette.setBrush(QPalette::Disabled, QPalette::Midlight, lineColor);
    return option;
}

inline QIcon squareIcon(const QColor &color = referenceForeground)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(color);
    return QIcon(pixmap);
}

/// Returns the rectangle around all pixels of \a color.
inline QRect rectOf(const QImage &picture, const QColor &color)
{
    QRect rect;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, y) == color) {
                rect |= QRect(x, y, 1, 1);
            }
        }
    }
    return rect;
}

/// Returns the rectangle around all pixels in which the pictures differ.
inline QRect differenceOf(const QImage &a, const QImage &b)
{
    QRect rect;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            if (a.pixel(x, y) != b.pixel(x, y)) {
                rect |= QRect(x, y, 1, 1);
            }
        }
    }
    return rect;
}

inline QRect mirrored(const QRect &rect)
{
    return QStyle::visualRect(Qt::RightToLeft, itemRect, rect);
}

Q_DECLARE_METATYPE(QStyleOptionMenuItem::MenuItemType)
