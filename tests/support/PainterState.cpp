#include "support/PainterState.h"

#include <support/Text.h>

void setUnusualState(QPainter *painter)
{
    painter->setPen(QPen(Qt::darkGreen, 3, Qt::DashLine, Qt::RoundCap, Qt::MiterJoin));
    painter->setBrush(QBrush(Qt::cyan, Qt::Dense4Pattern));
    painter->setBrushOrigin(3, 5);
    painter->setBackground(Qt::magenta);
    painter->setBackgroundMode(Qt::OpaqueMode);
    painter->setFont(QFont(QStringLiteral("DejaVu Sans"), 17, QFont::Bold));
    painter->setWindow(0, 0, 120, 120);
    painter->translate(2, 1);
    painter->setClipRect(QRect(1, 1, 90, 90));
    painter->setRenderHint(QPainter::TextAntialiasing, false);
    painter->setCompositionMode(QPainter::CompositionMode_SourceAtop);
    painter->setOpacity(0.75);
    painter->setLayoutDirection(Qt::RightToLeft);
}

PainterState::PainterState(const QPainter &painter)
    : m_pen(painter.pen())
    , m_brush(painter.brush())
    , m_brushOrigin(painter.brushOrigin())
    , m_font(painter.font())
    , m_hints(painter.renderHints())
    , m_transform(painter.deviceTransform())
    , m_window(painter.window())
    , m_viewport(painter.viewport())
    , m_hasClipping(painter.hasClipping())
    , m_clip(painter.clipPath())
    , m_opacity(painter.opacity())
    , m_compositionMode(painter.compositionMode())
    , m_backgroundMode(painter.backgroundMode())
    , m_background(painter.background())
    , m_direction(painter.layoutDirection())
{
}

QStringList PainterState::differences(const QPainter &painter) const
{
    const PainterState other(painter);
    QStringList names;
    const auto compare = [&names](bool isEqual, const char *name) {
        if (!isEqual) {
            names.append(text(name));
        }
    };
    compare(m_pen == other.m_pen, "pen");
    compare(m_brush == other.m_brush, "brush");
    compare(m_brushOrigin == other.m_brushOrigin, "brush origin");
    compare(m_font == other.m_font, "font");
    compare(m_hints == other.m_hints, "render hints");
    compare(m_transform == other.m_transform, "transform");
    compare(m_window == other.m_window, "window");
    compare(m_viewport == other.m_viewport, "viewport");
    compare(m_hasClipping == other.m_hasClipping && m_clip == other.m_clip, "clip");
    compare(m_opacity == other.m_opacity, "opacity");
    compare(m_compositionMode == other.m_compositionMode, "composition mode");
    compare(m_backgroundMode == other.m_backgroundMode, "background mode");
    compare(m_background == other.m_background, "background");
    compare(m_direction == other.m_direction, "layout direction");
    return names;
}
