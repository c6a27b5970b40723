#include "style/text/SingleLine.h"

#include "style/text/KeptTexts.h"
#include "style/text/Mnemonic.h"

#include <QtGui/QPainter>
#include <QtGui/QTextLayout>
#include <QtWidgets/QStyle>

#include <algorithm>
#include <memory>

namespace TARN {

namespace {

/// Everything that the glyphs of a line depend on. The size of a font's letters also depends on the
/// resolution of what is painted on, which fonts do not compare.
struct LineKey
{
    QString text;
    QFont font;
    int resolution;
    Qt::LayoutDirection direction;
    Mnemonic mnemonic;
};

bool operator==(const LineKey &a, const LineKey &b)
{
    return a.resolution == b.resolution && a.direction == b.direction && a.mnemonic == b.mnemonic &&
           a.text == b.text && a.font == b.font;
}

uint qHash(const LineKey &key, uint seed)
{
    // Fonts take long to hash, and one text is rarely drawn in many.
    return ::qHash(key.text, seed);
}

/// A line of text with its glyphs.
class Line
{
public:
    explicit Line(const LineKey &key);

    QSizeF size() const { return m_size; }
    void draw(QPainter &painter, const QRectF &rect, Qt::Alignment alignment) const;

private:
    std::unique_ptr<QTextLayout> m_layout;
    QSizeF m_size;
};

Line::Line(const LineKey &key)
{
    const MnemonicText label = readMnemonic(key.text, key.mnemonic);
    m_layout = std::make_unique<QTextLayout>(label.text, key.font);
    QTextOption option;
    option.setTextDirection(key.direction);
    option.setAlignment(Qt::AlignLeft);
    m_layout->setTextOption(option);
    m_layout->setCacheEnabled(true);
    underline(*m_layout, label);
    m_layout->beginLayout();
    QTextLine line = m_layout->createLine();
    // As wide as the painter takes lines that are not to be broken.
    constexpr qreal unbounded = 0x01000000;
    line.setLineWidth(unbounded);
    line.setPosition({0, 0});
    m_layout->endLayout();
    m_size = {line.naturalTextWidth(), line.ascent() + line.descent()};
}

void Line::draw(QPainter &painter, const QRectF &rect, Qt::Alignment alignment) const
{
    const QTextLine line = m_layout->lineAt(0);
    QPointF position = rect.topLeft();
    if (alignment & Qt::AlignRight) {
        position.rx() += rect.width() - line.horizontalAdvance();
    } else if (alignment & Qt::AlignHCenter) {
        position.rx() += (rect.width() - line.horizontalAdvance()) / 2;
    }
    if (alignment & Qt::AlignBottom) {
        position.ry() += rect.height() - m_size.height();
    } else if (alignment & Qt::AlignVCenter) {
        position.ry() += (rect.height() - m_size.height()) / 2;
    }
    line.draw(&painter, position);
}

QRectF boundsOf(const QSizeF &size, const QRectF &rect, Qt::Alignment alignment)
{
    QRectF bounds(rect.topLeft(), size);
    if (alignment & Qt::AlignRight) {
        bounds.moveRight(rect.right());
    } else if (alignment & Qt::AlignHCenter) {
        bounds.moveLeft(rect.left() + (rect.width() - size.width()) / 2);
    }
    if (alignment & Qt::AlignBottom) {
        bounds.moveBottom(rect.bottom());
    } else if (alignment & Qt::AlignVCenter) {
        bounds.moveTop(rect.top() + (rect.height() - size.height()) / 2);
    }
    return bounds;
}

// A line of a few words takes some two kilobytes with its glyphs.
constexpr int keptLineCount = 512;
/// What is longer is no label, and there will not be many like it.
constexpr int longestText = 256;

/// Tells whether every character is one that stands in a line. White space at the ends is not drawn
/// where it would be expected in all alignments.
bool isPlainLine(const QString &text)
{
    if (text.isEmpty() || text.size() > longestText || text.front().isSpace() ||
        text.back().isSpace()) {
        return false;
    }
    return std::all_of(text.cbegin(), text.cend(), [](QChar character) {
        const auto category = character.category();
        return category != QChar::Other_Control && category != QChar::Separator_Line &&
               category != QChar::Separator_Paragraph;
    });
}

Mnemonic mnemonicOf(int flags)
{
    if (flags & Qt::TextHideMnemonic) {
        return Mnemonic::Hidden;
    }
    return flags & Qt::TextShowMnemonic ? Mnemonic::Underlined : Mnemonic::None;
}

/// Tells whether \a text has one key at most. Of several, each is underlined.
bool hasOneKey(const QString &text, int flags)
{
    return (flags & (Qt::TextShowMnemonic | Qt::TextHideMnemonic)) == 0 ||
           text.count(QLatin1Char('&')) <= 1;
}

/// Tabs are no part of a plain line, so there is nothing to expand.
constexpr int plainFlags = Qt::AlignHorizontal_Mask | Qt::AlignVertical_Mask | Qt::TextSingleLine |
                           Qt::TextDontClip | Qt::TextShowMnemonic | Qt::TextHideMnemonic |
                           Qt::TextExpandTabs | Qt::TextForceLeftToRight | Qt::TextForceRightToLeft;

/// Returns the direction of a text, which labels ask for whatever that of the painter is.
Qt::LayoutDirection directionOf(const QPainter &painter, int flags)
{
    if ((flags & Qt::TextForceLeftToRight) != 0) {
        return Qt::LeftToRight;
    }
    return (flags & Qt::TextForceRightToLeft) != 0 ? Qt::RightToLeft : painter.layoutDirection();
}

} // namespace

bool drawSingleLine(QPainter &painter, const QRect &rect, int flags, const QString &text)
{
    if ((flags & ~plainFlags) != 0 || (flags & Qt::AlignJustify) != 0 || !painter.device() ||
        !isPlainLine(text) || !hasOneKey(text, flags)) {
        return false;
    }
    const Qt::LayoutDirection direction = directionOf(painter, flags);
    const auto line = keptText<Line, keptLineCount>(LineKey{
        text, painter.font(), painter.device()->logicalDpiY(), direction, mnemonicOf(flags)});
    const Qt::Alignment alignment = QStyle::visualAlignment(direction, Qt::Alignment(flags));
    const QRectF room(rect);
    if ((flags & Qt::TextDontClip) != 0 || room.contains(boundsOf(line->size(), room, alignment))) {
        line->draw(painter, room, alignment);
        return true;
    }
    painter.save();
    painter.setClipRect(room, Qt::IntersectClip);
    line->draw(painter, room, alignment);
    painter.restore();
    return true;
}

bool drawSingleLine(QPainter &painter, const QRect &rect, int flags, const QString &text,
                    const QPen &pen)
{
    const QPen former = painter.pen();
    painter.setPen(pen);
    const bool isDrawn = drawSingleLine(painter, rect, flags, text);
    painter.setPen(former);
    return isDrawn;
}

} // namespace TARN
