#include "common_utils/PainterState.h"

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
    : pen(painter.pen())
    , brush(painter.brush())
    , brushOrigin(painter.brushOrigin())
    , background(painter.background())
    , backgroundMode(painter.backgroundMode())
    , font(painter.font())
    , transform(painter.deviceTransform())
    , clip(painter.clipPath())
    , hasClipping(painter.hasClipping())
    , hints(painter.renderHints())
    , compositionMode(painter.compositionMode())
    , opacity(painter.opacity())
    , layoutDirection(painter.layoutDirection())
    , window(painter.window())
    , viewport(painter.viewport())
{
}

bool PainterState::operator==(const PainterState &other) const
{
    return pen == other.pen && brush == other.brush && brushOrigin == other.brushOrigin &&
           background == other.background && backgroundMode == other.backgroundMode &&
           font == other.font && transform == other.transform && clip == other.clip &&
           hasClipping == other.hasClipping && hints == other.hints &&
           compositionMode == other.compositionMode && opacity == other.opacity &&
           layoutDirection == other.layoutDirection && window == other.window &&
           viewport == other.viewport;
}
