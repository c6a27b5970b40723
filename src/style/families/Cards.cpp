#include "style/families/Cards.h"

#include "catalogue/Names.h"
#include "resources/ThemeResources.h"
#include "style/asking/OptionState.h"
#include "style/asking/Properties.h"
#include "style/brushes/KeptBrushes.h"
#include "style/drawing/Lines.h"
#include "style/drawing/Shapes.h"
#include "style/polishing/Polishing.h"

#include <QtGui/QPainter>
#include <QtWidgets/QFrame>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QWidget>

#include <utility>

namespace TARN::Cards {

namespace {

/// How opaque the headers and footers of cards are that can be expanded.
constexpr qreal expandableOpacity = 0.5;
/// How far a shape reaches beyond the edge at which it joins another part, so that the line
/// between them is not drawn twice.
constexpr qreal joinReach = 1.5;

enum class Part { None, Header, Contents, Footer };

Part partOf(const QWidget *widget)
{
    if (isSet(widget, Property::CardHeader)) {
        return Part::Header;
    }
    if (isSet(widget, Property::CardContents)) {
        return Part::Contents;
    }
    return isSet(widget, Property::CardFooter) ? Part::Footer : Part::None;
}

/// Tells whether \a property is true for a part, which it may have from its card.
bool isSetForPart(const QWidget &part, Property property)
{
    return isSet(&part, property) || isSet(part.parent(), property);
}

bool hasBorder(const QWidget &part)
{
    QVariant shape = propertyOf(&part, Property::Shape);
    if (!shape.isValid()) {
        shape = propertyOf(part.parent(), Property::Shape);
    }
    return !shape.isValid() || shape.value<QFrame::Shape>() != QFrame::NoFrame;
}

/// Where a part joins other ones. A card consists of header, contents and footer from top to
/// bottom; an inverted one from bottom to top.
struct Joins
{
    bool atTop = false;
    bool atBottom = false;
};

Joins joinsOf(const QWidget &widget, Part part)
{
    // A minimised card shows no contents.
    const bool hasContents = !isSet(widget.parent(), Property::Minimized);
    const bool hasHeader = isSetForPart(widget, Property::HeaderVisible);
    const bool hasFooter = isSetForPart(widget, Property::FooterVisible);
    Joins joins;
    joins.atTop = (part == Part::Contents && hasHeader) ||
                  (part == Part::Footer && (hasContents || hasHeader));
    joins.atBottom = (part == Part::Contents && hasFooter) ||
                     (part == Part::Header && (hasContents || hasFooter));
    if (isSetForPart(widget, Property::InvertedAppearance)) {
        std::swap(joins.atTop, joins.atBottom);
    }
    return joins;
}

Helpers::StraightCornerFlags straightCorners(const Joins &joins)
{
    Helpers::StraightCornerFlags corners;
    if (joins.atTop) {
        corners |= Helpers::StraightTopLeft | Helpers::StraightTopRight;
    }
    if (joins.atBottom) {
        corners |= Helpers::StraightBottomLeft | Helpers::StraightBottomRight;
    }
    return corners ? corners : Helpers::NoStraightCorner;
}

QBrush withOpacity(const QBrush &brush, qreal opacity)
{
    QBrush result = brush;
    if (brush.style() == Qt::SolidPattern) {
        QColor color = brush.color();
        color.setAlphaF(color.alphaF() * opacity);
        result.setColor(color);
    }
    return result;
}

QBrush faceOf(const QWidget &widget, Part part, bool enabled)
{
    if (part == Part::Contents) {
        return Qt::NoBrush;
    }
    const QBrush &face = themeBrush(BrushName::BackgroundUpLevel1Brush, enabled);
    return isSetForPart(widget, Property::Expandable) ? withOpacity(face, expandableOpacity) : face;
}

/// Returns the outline of a part, which is open where the part joins another one.
QRectF outlineOf(const QRect &rect, const Joins &joins, bool hasBorder)
{
    QRectF outline = hasBorder ? onHalfPixel(rect) : QRectF(rect);
    if (joins.atTop) {
        outline.setTop(rect.top() - joinReach);
    }
    if (joins.atBottom) {
        outline.setBottom(rect.bottom() + 1 + joinReach);
    }
    return outline;
}

/// Draws the lines between the parts, which are those of the header and of the footer.
void drawSeparator(QPainter &painter, const QRect &rect, const Joins &joins, const QBrush &brush)
{
    if (joins.atTop) {
        fillEdge(painter, rect, Qt::TopEdge, brush);
    }
    if (joins.atBottom) {
        fillEdge(painter, rect, Qt::BottomEdge, brush);
    }
}

} // namespace

void polishPart(Polishing &polishing)
{
    polishing.setAttribute(Qt::WA_StyledBackground);
}

void polishTitle(Polishing &polishing)
{
    const QFont minimizedFont = ThemeResources::getFont(QStringLiteral("base"));
    const QFont defaultFont = ThemeResources::getFont(QStringLiteral("medium"));
    polishing.setProperty(Property::CardTitleMinimizedFont, minimizedFont);
    polishing.setProperty(Property::CardTitleDefaultFont, defaultFont);
    polishing.setFont(isSet(polishing.widget().parent(), Property::Minimized) ? minimizedFont
                                                                              : defaultFont);
}

void polishSubtitle(Polishing &polishing)
{
    polishing.setBrushes(QPalette::WindowText, themeBrush(BrushName::ForegroundDisabledBrush, true),
                         themeBrush(BrushName::ForegroundDisabledBrush, false));
}

void polishCard(Polishing &polishing)
{
    polishing.setProperty(Property::BackgroundBrush,
                          themeBrush(BrushName::ForegroundMouseOverBrush, true));
    polishing.setProperty(Property::BackgroundBrushDisabled,
                          themeBrush(BrushName::ForegroundMouseOverBrush, false));
}

bool drawPart(const PaintRequest &request)
{
    const Part part = partOf(request.widget);
    if (part == Part::None) {
        return false;
    }
    const QWidget &widget = *request.widget;
    const QStyleOption &option = *request.option;
    QPainter &painter = *request.painter;
    const bool enabled = isEnabled(option);
    const bool bordered = hasBorder(widget);
    const Joins joins = joinsOf(widget, part);
    const int radius =
        isSetForPart(widget, Property::CardNoCornerRadius) ? 0 : cornerRadius(CornerSize::Medium);

    painter.save();
    painter.setClipRect(option.rect, Qt::IntersectClip);
    drawShape(painter, outlineOf(option.rect, joins, bordered), radius,
              bordered ? outlinePen(cardBorderBrush(enabled)) : QPen(Qt::NoPen),
              faceOf(widget, part, enabled), straightCorners(joins));
    painter.restore();
    if (part == Part::Header) {
        drawSeparator(painter, option.rect, joins,
                      themeColor(ColorName::BackgroundUpLevel2Color, enabled));
    } else if (part == Part::Footer && bordered) {
        drawSeparator(painter, option.rect, joins, cardBorderBrush(enabled));
    }
    return true;
}

} // namespace TARN::Cards
