#pragma once

#include <QtCore/QStringList>
#include <QtGui/QBrush>
#include <QtGui/QFont>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtGui/QPen>
#include <QtGui/QTransform>

/// Gives \a painter a state in which nothing has its default value; what is painted stays
/// visible.
void setUnusualState(QPainter *painter);

/// What a painter is set to: what QPainter::save() keeps.
class PainterState
{
public:
    explicit PainterState(const QPainter &painter);

    /// Returns the names of what \a painter is set to differently.
    QStringList differences(const QPainter &painter) const;

private:
    QPen m_pen;
    QBrush m_brush;
    QPoint m_brushOrigin;
    QFont m_font;
    QPainter::RenderHints m_hints;
    QTransform m_transform;
    QRect m_window;
    QRect m_viewport;
    bool m_hasClipping;
    QPainterPath m_clip;
    qreal m_opacity;
    QPainter::CompositionMode m_compositionMode;
    Qt::BGMode m_backgroundMode;
    QBrush m_background;
    Qt::LayoutDirection m_direction;
};
