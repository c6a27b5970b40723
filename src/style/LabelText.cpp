#include "style/LabelText.h"

#include "resources/ProcessCache.h"
#include "style/MnemonicText.h"

#include <QtCore/QCache>
#include <QtGui/QGuiApplication>
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

using KeptLines = QCache<LineKey, std::shared_ptr<const Line>>;

KeptLines &keptLines()
{
    using Lines = ProcessCached<std::unique_ptr<KeptLines>>;
    // Fonts are not to be taken down after the application, so the lines are left to the end of
    // the process.
    static auto *lines = [] {
        auto *kept = new Lines([] { return std::make_unique<KeptLines>(keptLineCount); });
        // Glyphs are numbers within a font, and the same font may now be another one.
        QObject::connect(qGuiApp, &QGuiApplication::fontDatabaseChanged, qGuiApp,
                         [kept] { kept->value()->clear(); });
        return kept;
    }();
    return *lines->value();
}

std::shared_ptr<const Line> keptLine(const LineKey &key)
{
    KeptLines &lines = keptLines();
    if (const auto *kept = lines.object(key)) {
        return *kept;
    }
    auto line = std::make_shared<const Line>(key);
    lines.insert(key, new std::shared_ptr<const Line>(line));
    return line;
}

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

constexpr int plainFlags = Qt::AlignHorizontal_Mask | Qt::AlignVertical_Mask | Qt::TextSingleLine |
                           Qt::TextDontClip | Qt::TextShowMnemonic | Qt::TextHideMnemonic;

} // namespace

bool drawLabelText(QPainter &painter, const QRect &rect, int flags, const QString &text)
{
    if ((flags & ~plainFlags) != 0 || (flags & Qt::AlignJustify) != 0 || !painter.device() ||
        !isPlainLine(text) || !hasOneKey(text, flags)) {
        return false;
    }
    const Qt::LayoutDirection direction = painter.layoutDirection();
    const std::shared_ptr<const Line> line = keptLine(
        {text, painter.font(), painter.device()->logicalDpiY(), direction, mnemonicOf(flags)});
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

} // namespace TARN
