#pragma once

#include <QtGui/QBrush>
#include <QtGui/QFont>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtGui/QPen>
#include <QtGui/QTransform>

/// Gives \a painter a state in which nothing has its default value; what is painted stays
/// visible.
void setUnusualState(QPainter *painter);

/// What QPainter::save() keeps.
struct PainterState
{
    explicit PainterState(const QPainter &painter);

    bool operator==(const PainterState &other) const;

    QPen pen;
    QBrush brush;
    QPoint brushOrigin;
    QBrush background;
    Qt::BGMode backgroundMode;
    QFont font;
    QTransform transform;
    QPainterPath clip;
    bool hasClipping;
    QPainter::RenderHints hints;
    QPainter::CompositionMode compositionMode;
    qreal opacity;
    Qt::LayoutDirection layoutDirection;
    QRect window;
    QRect viewport;
};
