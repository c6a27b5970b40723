#include "style/families/Frames.h"

#include "catalogue/Names.h"
#include "resources/ThemeResources.h"
#include "resources/kept/KeptValue.h"
#include "style/asking/Classes.h"
#include "style/asking/OptionState.h"
#include "style/asking/Properties.h"
#include "style/brushes/KeptBrushes.h"
#include "style/drawing/DashedOutline.h"
#include "style/drawing/Lines.h"
#include "style/drawing/Palettes.h"
#include "style/drawing/Shapes.h"

#include <QtGui/QPainter>
#include <QtWidgets/QFrame>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QWidget>

namespace TARN::Frames {

namespace {

/// Frames are drawn line by line: what is wider than that is no frame any more.
constexpr int greatestLineWidth = 256;

double rubberBandOpacity()
{
    static ProcessCached<double> opacity(
        [] { return ThemeResources::getOpacity(QStringLiteral("RubberBandOpacity")); });
    return opacity.value();
}

/// Tells whether something is drawn on a card, or on what lies directly on one.
bool isOverCard(const QWidget *widget)
{
    constexpr const char *card = "TARN::Components::CardWidget";
    return widget && (isA(widget, card) || isA(widget->parent(), card));
}

enum class Shadow { Plain, Raised, Sunken };

Shadow shadowOf(const QStyleOption &option)
{
    if (has(option, QStyle::State_Sunken)) {
        return Shadow::Sunken;
    }
    return has(option, QStyle::State_Raised) ? Shadow::Raised : Shadow::Plain;
}

/// Draws a border of \a width lines inside of \a rect and returns what it surrounds.
QRect drawBorder(QPainter &painter, QRect rect, int width, const QBrush &topLeft,
                 const QBrush &bottomRight)
{
    for (int i = 0; i < qMin(width, greatestLineWidth) && !rect.isEmpty(); ++i) {
        fillEdge(painter, rect, Qt::TopEdge, topLeft, Line::Exact);
        fillEdge(painter, rect, Qt::LeftEdge, topLeft, Line::Exact);
        fillEdge(painter, rect, Qt::BottomEdge, bottomRight, Line::Exact);
        fillEdge(painter, rect, Qt::RightEdge, bottomRight, Line::Exact);
        rect.adjust(1, 1, -1, -1);
    }
    return rect;
}

/// A frame without shadow is drawn in the colour that the application chose for its foreground.
void drawPlain(QPainter &painter, const QStyleOptionFrame &frame, const QWidget *widget)
{
    const QPalette::ColorRole role = widget ? widget->foregroundRole() : QPalette::WindowText;
    const QBrush &brush = frame.palette.brush(role);
    drawBorder(painter, frame.rect, frame.lineWidth, brush, brush);
}

/// Draws a ridge or a groove.
void drawBox(QPainter &painter, const QStyleOptionFrame &frame)
{
    const QPalette palette = shadeBorderPalette(frame.palette);
    const bool isSunken = shadowOf(frame) == Shadow::Sunken;
    const QBrush &first = isSunken ? palette.dark() : palette.light();
    const QBrush &second = isSunken ? palette.light() : palette.dark();
    QRect rect = drawBorder(painter, frame.rect, frame.lineWidth, first, second);
    rect = drawBorder(painter, rect, frame.midLineWidth, palette.mid(), palette.mid());
    drawBorder(painter, rect, frame.lineWidth, second, first);
}

void drawPanel(QPainter &painter, const QStyleOptionFrame &frame)
{
    const QPalette palette = shadeBorderPalette(frame.palette);
    const bool isSunken = shadowOf(frame) == Shadow::Sunken;
    drawBorder(painter, frame.rect, frame.lineWidth, isSunken ? palette.dark() : palette.light(),
               isSunken ? palette.light() : palette.dark());
}

/// Draws a panel whose outer and inner edge are one line each.
void drawWinPanel(QPainter &painter, const QStyleOptionFrame &frame)
{
    const QPalette palette = windowBorderPalette(frame.palette);
    if (shadowOf(frame) == Shadow::Sunken) {
        const QRect inside = drawBorder(painter, frame.rect, 1, palette.dark(), palette.light());
        drawBorder(painter, inside, 1, palette.shadow(), palette.midlight());
    } else {
        const QRect inside = drawBorder(painter, frame.rect, 1, palette.light(), palette.shadow());
        drawBorder(painter, inside, 1, palette.midlight(), palette.dark());
    }
}

/// Draws a frame that is a line across the middle of its rectangle. A line has no shadow.
void drawLine(QPainter &painter, const QStyleOptionFrame &frame)
{
    const QRect &rect = frame.rect;
    const bool isHorizontal = frame.frameShape == QFrame::HLine;
    const int width = qBound(1, frame.lineWidth, isHorizontal ? rect.height() : rect.width());
    const QRect line =
        isHorizontal
            ? QRect(rect.left(), rect.top() + (rect.height() - width) / 2, rect.width(), width)
            : QRect(rect.left() + (rect.width() - width) / 2, rect.top(), width, rect.height());
    painter.fillRect(line, cardBorderBrush(isEnabled(frame)));
}

using ShadedFrame = void (*)(QPainter &painter, const QStyleOptionFrame &frame);

/// Returns what draws frames with a shadow; null when the shape has none.
ShadedFrame shadedFrame(QFrame::Shape shape)
{
    switch (shape) {
    case QFrame::Box:
        return drawBox;
    case QFrame::Panel:
        return drawPanel;
    case QFrame::WinPanel:
        return drawWinPanel;
    default:
        return nullptr;
    }
}

} // namespace

bool drawFocusRect(const PaintRequest &request)
{
    if (!qstyleoption_cast<const QStyleOptionFocusRect *>(request.option)) {
        return false;
    }
    const bool byKeyboard = has(*request.option, QStyle::State_KeyboardFocusChange);
    if (!byKeyboard || isSet(request.widget, Property::HideFocusRect)) {
        return true;
    }
    drawDashedOutline(request.option->rect, request.option->palette.text(), *request.painter);
    return true;
}

bool drawRubberBand(const PaintRequest &request)
{
    const auto *band = qstyleoption_cast<const QStyleOptionRubberBand *>(request.option);
    if (!band) {
        return false;
    }
    const QColor &color = themeColor(ColorName::MainColor, isEnabled(*band));
    QColor face = color;
    face.setAlpha(int(qBound(0.0, rubberBandOpacity() * 255.0, 255.0)));
    if (isOverCard(request.widget)) {
        drawShape(*request.painter, onHalfPixel(band->rect), cornerRadius(CornerSize::Medium),
                  outlinePen(color), face);
        return true;
    }
    request.painter->fillRect(band->rect.adjusted(1, 1, -1, -1), face);
    fillFrame(*request.painter, band->rect, color);
    return true;
}

bool drawShapedFrame(const PaintRequest &request)
{
    const auto *frame = qstyleoption_cast<const QStyleOptionFrame *>(request.option);
    if (!frame) {
        return false;
    }
    if (frame->rect.isEmpty()) {
        return true;
    }
    QPainter &painter = *request.painter;
    const ShadedFrame drawShaded = shadedFrame(frame->frameShape);
    if (drawShaded && shadowOf(*frame) == Shadow::Plain) {
        drawPlain(painter, *frame, request.widget);
    } else if (drawShaded) {
        drawShaded(painter, *frame);
    } else if (frame->frameShape == QFrame::StyledPanel) {
        request.proxy().drawPrimitive(QStyle::PE_Frame, frame, &painter, request.widget);
    } else if (frame->frameShape != QFrame::NoFrame) {
        drawLine(painter, *frame);
    }
    return true;
}

bool drawFocusFrame(const PaintRequest &request)
{
    const QStyleOption &option = *request.option;
    const QBrush &brush = themeBrush(BrushName::MainBrush, isEnabled(option));
    const int lines = qMin(request.metric(QStyle::PM_FocusFrameHMargin),
                           request.metric(QStyle::PM_FocusFrameVMargin));
    drawBorder(*request.painter, option.rect, lines, brush, brush);
    return true;
}

} // namespace TARN::Frames
