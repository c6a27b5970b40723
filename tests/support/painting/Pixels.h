#pragma once

#include <QtCore/QRect>
#include <QtGui/QColor>
#include <QtGui/QIcon>
#include <QtGui/QImage>

/// Returns a picture of one colour.
QImage plainPicture(const QSize &size, const QColor &color = Qt::black);

/// Returns a square icon of one colour, that from which icons are tinted.
QIcon squareIcon();
QIcon squareIcon(const QColor &color);

/// Returns a text of \a count characters that fill whole pixels: each shows the colour of the text.
QString blocks(int count = 1);

/// Returns the smallest rectangle that holds all pixels of \a color.
QRect extentOf(const QImage &picture, const QColor &color);
/// Returns the smallest rectangle that holds all pixels that are not of the colour \a ground.
QRect paintedRect(const QImage &picture, const QColor &ground = Qt::black);

/// Returns how many pixels are of \a color.
int countOf(const QImage &picture, const QColor &color);
/// Tells whether a pixel is of \a color.
bool containsColor(const QImage &picture, const QColor &color);

/// Tell whether the colours look the same: pixels on the edge of round shapes are slightly mixed.
bool areAlike(const QColor &one, const QColor &other);
bool areAlike(const QImage &one, const QImage &other);
