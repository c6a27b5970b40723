#pragma once

#include "style/text/Mnemonic.h"

#include <QtCore/QPoint>
#include <QtCore/QRectF>
#include <QtCore/QSize>
#include <QtCore/QString>
#include <QtGui/QFont>

#include <memory>

class QPainter;
class QTextLayout;

namespace TARN {

/// A text, and everything that its look depends on but its colour and its place.
struct ParagraphSetting
{
    QString text; ///< lines end with QChar::LineSeparator
    QFont font;
    QSize room;
    Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignVCenter; ///< for left-to-right
    Qt::TextElideMode elideMode = Qt::ElideRight;
    Qt::LayoutDirection direction = Qt::LeftToRight;
    bool isWrapped = false;
    /// Whether the text is placed by what can be read of it alone, so that one that is far too long
    /// is elided before it is laid out, in half the time.
    bool isLabel = false;
    Mnemonic mnemonic = Mnemonic::None;
    /// The size of the font's letters in pixels. It also depends on the resolution that the font is
    /// meant for, which fonts do not compare. Paragraph::of() fills it in.
    int pixelSize = 0;
};

bool operator==(const ParagraphSetting &a, const ParagraphSetting &b);
uint qHash(const ParagraphSetting &setting, uint seed = 0);

/// A text laid out in its room: broken into lines, each elided where it is too wide, and the last
/// one that can be seen where it is not the last of all. It looks as the toolkit draws the text of
/// an item.
///
/// Finding the glyphs of a text takes several times longer than drawing them, so texts are kept
/// from one painting to the next; the ones that were not drawn for the longest time are dropped
/// first. The colour is not kept: a text is drawn with the painter's pen and under its
/// transformation, whatever they are.
class Paragraph
{
public:
    /// Returns the text laid out so; a kept one if there is one. To be called on the GUI thread.
    static std::shared_ptr<const Paragraph> of(ParagraphSetting setting);

    explicit Paragraph(const ParagraphSetting &setting);
    ~Paragraph();

    Paragraph(const Paragraph &) = delete;
    Paragraph &operator=(const Paragraph &) = delete;

    /// Draws the text with the pen of \a painter in the room whose top left corner is \a corner.
    void draw(QPainter &painter, const QPoint &corner) const;

    /// Returns where the text may leave marks, for a room at the origin. A text that is not elided,
    /// or that is higher than its room, leaves some outside of it; and so may any long one.
    const QRectF &ink() const { return m_ink; }

    /// Returns what can be read, with its ellipses.
    QString visibleText() const;

private:
    std::unique_ptr<QTextLayout> m_layout;
    qreal m_top = 0;
    QRectF m_ink;
};

} // namespace TARN
