#include "style/text/Paragraph.h"

#include "style/text/KeptTexts.h"

#include <QtGui/QFontInfo>
#include <QtGui/QFontMetrics>
#include <QtGui/QGlyphRun>
#include <QtGui/QPainter>
#include <QtGui/QRawFont>
#include <QtGui/QTextLayout>
#include <QtWidgets/QStyle>

namespace TARN {

bool operator==(const ParagraphSetting &a, const ParagraphSetting &b)
{
    return a.room == b.room && a.alignment == b.alignment && a.elideMode == b.elideMode &&
           a.direction == b.direction && a.isWrapped == b.isWrapped && a.isLabel == b.isLabel &&
           a.mnemonic == b.mnemonic && a.pixelSize == b.pixelSize && a.text == b.text &&
           a.font == b.font;
}

uint qHash(const ParagraphSetting &setting, uint seed)
{
    // Fonts take long to hash, and one text is rarely drawn in many.
    return ::qHash(setting.text, seed) + 31U * static_cast<uint>(setting.room.width());
}

namespace {

constexpr QChar ellipsis(0x2026);

std::unique_ptr<QTextLayout> makeLayout(const ParagraphSetting &setting, const MnemonicText &label)
{
    QTextOption option;
    option.setWrapMode(setting.isWrapped ? QTextOption::WordWrap : QTextOption::ManualWrap);
    option.setTextDirection(setting.direction);
    option.setAlignment(QStyle::visualAlignment(setting.direction, setting.alignment));
    auto layout = std::make_unique<QTextLayout>(label.text, setting.font);
    layout->setTextOption(option);
    layout->setCacheEnabled(true);
    underline(*layout, label);
    return layout;
}

/// Returns \a label with what can be read of its text. The ellipsis may have taken its key.
MnemonicText elided(const MnemonicText &label, const QString &visible)
{
    const int end = label.underlined + 1;
    return {visible, label.text.leftRef(end) == visible.leftRef(end) ? label.underlined : -1};
}

QString elidedLine(const ParagraphSetting &setting, const QString &line)
{
    // The flag takes the text as it is: an item's text has no shorter variants.
    return QFontMetrics(setting.font)
        .elidedText(line, setting.elideMode, setting.room.width(), Qt::TextLongestVariant);
}

/// Returns what is to be laid out of \a label. Of a line of more characters than its room has
/// pixels that is what there is room for.
MnemonicText readablePart(const ParagraphSetting &setting, const MnemonicText &label)
{
    if (!setting.isLabel || setting.isWrapped || label.text.size() <= setting.room.width() ||
        label.text.contains(QChar::LineSeparator)) {
        return label;
    }
    return elided(label, elidedLine(setting, label.text));
}

/// Breaks the text into lines of \a width. A \a height above 0 ends that where the next line, taken
/// to be as high as the one before, would not fit. Returns the index of the line at which it ended
/// before the text did; otherwise -1.
int breakLines(QTextLayout &layout, int width, int height)
{
    int lastLine = -1;
    qreal bottom = 0;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        line.setPosition({0, bottom});
        bottom += line.height();
        if (height > 0 && bottom + line.height() > height) {
            const int index = layout.lineCount() - 1;
            lastLine = layout.createLine().isValid() ? index : -1;
            break;
        }
    }
    layout.endLayout();
    return lastLine;
}

/// Finds what can be read of a text that is broken into lines.
class VisibleText
{
public:
    VisibleText(const ParagraphSetting &setting, const QTextLayout &layout, int lastLine)
        : m_setting(setting)
        , m_layout(layout)
        , m_lastLine(lastLine)
        , m_top(QStyle::alignedRect(Qt::LayoutDirectionAuto, setting.alignment,
                                    layout.boundingRect().size().toSize(),
                                    QRect(QPoint(0, 0), setting.room))
                    .top())
        , m_start(m_top)
    {
        qreal bottom = m_top;
        for (int i = 0; i < layout.lineCount() && !m_isComplete; ++i) {
            bottom += layout.lineAt(i).height();
            addLine(i, bottom);
        }
    }

    const QString &text() const { return m_text; }
    /// Returns where the first line that can be seen begins.
    qreal start() const { return m_start; }

private:
    void addLine(int index, qreal bottom)
    {
        const QTextLine line = m_layout.lineAt(index);
        if (bottom <= 0) {
            m_start += line.height();
            return;
        }
        const bool isTooWide = line.naturalTextWidth() > m_setting.room.width();
        const bool isCut = index == m_lastLine || (!isTooWide && isNextLineHidden(index, bottom));
        const QString text = m_layout.text().mid(line.textStart(), line.textLength());
        if (isTooWide || isCut) {
            addElided(text, isCut);
            if (index < m_layout.lineCount() - 1 && !m_text.endsWith(QChar::LineSeparator)) {
                m_text += QChar::LineSeparator;
            }
        } else {
            m_text += text;
        }
        m_isComplete = bottom >= m_setting.room.height() - 1 || index == m_lastLine;
    }

    /// Tells whether less than half of the next line can be seen.
    bool isNextLineHidden(int index, qreal bottom) const
    {
        if (index + 1 >= m_layout.lineCount()) {
            return false;
        }
        const qreal middle = bottom - m_top + m_layout.lineAt(index + 1).height() / 2;
        return static_cast<int>(middle) + m_top > m_setting.room.height();
    }

    void addElided(QString line, bool isCut)
    {
        if (isCut) {
            if (line.endsWith(QChar::LineSeparator)) {
                line.chop(1);
            }
            line += ellipsis;
        }
        m_text += elidedLine(m_setting, line);
    }

    const ParagraphSetting &m_setting;
    const QTextLayout &m_layout;
    int m_lastLine;
    int m_top;
    qreal m_start;
    QString m_text;
    bool m_isComplete = false;
};

/// Returns what the glyphs of \a run cover. The rectangle of a run is that of its advances: slanted
/// letters reach beyond it, and so do marks above capital letters.
QRectF inkOf(const QGlyphRun &run)
{
    // By that much outlines grow on their way to the grid of the pixels.
    constexpr qreal hinting = 1;
    const QRawFont font = run.rawFont();
    const QVector<quint32> glyphs = run.glyphIndexes();
    const QVector<QPointF> positions = run.positions();
    QRectF ink = run.boundingRect();
    for (int i = 0; i < glyphs.size(); ++i) {
        ink |= font.boundingRect(glyphs[i])
                   .translated(positions[i])
                   .adjusted(-hinting, -hinting, hinting, hinting);
    }
    return ink;
}

QRectF inkOf(const QTextLayout &layout)
{
    QRectF ink = layout.boundingRect();
    // Finding the glyphs of a text of both directions takes time that grows with its square.
    constexpr int longestText = 512;
    if (layout.text().size() > longestText) {
        constexpr qreal anywhere = 1 << 24;
        return ink.adjusted(-anywhere, -anywhere, anywhere, anywhere);
    }
    for (const QGlyphRun &run : layout.glyphRuns()) {
        ink |= inkOf(run);
    }
    return ink;
}

// A text of a few words takes some two kilobytes with its glyphs: all of them, at most four
// megabytes. It is more texts than a large screen shows.
constexpr int keptTextsCost = 2048;
constexpr int charactersPerCost = 32;

} // namespace

std::shared_ptr<const Paragraph> Paragraph::of(ParagraphSetting setting)
{
    setting.pixelSize = QFontInfo(setting.font).pixelSize();
    return keptText<Paragraph, keptTextsCost>(setting, 1 + setting.text.size() / charactersPerCost);
}

Paragraph::Paragraph(const ParagraphSetting &setting)
{
    const MnemonicText label = readablePart(setting, readMnemonic(setting.text, setting.mnemonic));
    m_layout = makeLayout(setting, label);
    // Of a text that is centred in too little height, the beginning is shown.
    const bool isCentred = setting.alignment.testFlag(Qt::AlignVCenter);
    const int lastLine =
        breakLines(*m_layout, setting.room.width(), isCentred ? setting.room.height() : 0);
    const VisibleText visible(setting, *m_layout, lastLine);
    m_top = visible.start();
    if (lastLine >= 0 || visible.text() != label.text) {
        m_layout = makeLayout(setting, elided(label, visible.text()));
        breakLines(*m_layout, setting.room.width(), 0);
    }
    m_ink = inkOf(*m_layout).translated(0, m_top);
}

Paragraph::~Paragraph() = default;

void Paragraph::draw(QPainter &painter, const QPoint &corner) const
{
    m_layout->draw(&painter, QPointF(corner.x(), corner.y() + m_top));
}

QString Paragraph::visibleText() const
{
    return m_layout->text();
}

} // namespace TARN
