#pragma once

#include <QtCore/QStringList>
#include <QtGui/QBrush>
#include <QtGui/QFont>
#include <QtGui/QPainter>
#include <QtGui/QPen>
#include <QtGui/QRegion>
#include <QtGui/QTransform>

/// What a painter is set to.
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
    bool m_hasClipping;
    QRegion m_clip;
    qreal m_opacity;
    QPainter::CompositionMode m_compositionMode;
    Qt::BGMode m_backgroundMode;
    QBrush m_background;
    Qt::LayoutDirection m_direction;
};
