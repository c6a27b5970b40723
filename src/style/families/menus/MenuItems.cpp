#include "style/families/menus/MenuItems.h"

#include "catalogue/Names.h"
#include "resources/ThemeColorHelper.h"
#include "style/asking/OptionState.h"
#include "style/asking/Properties.h"
#include "style/brushes/ButtonBrushChoice.h"
#include "style/drawing/Icons.h"
#include "style/drawing/Marks.h"
#include "style/drawing/Palettes.h"
#include "style/drawing/Shapes.h"
#include "style/families/menus/MenuSurfaces.h"
#include "style/text/Mnemonic.h"
#include "style/text/Paragraph.h"

#include <QtGui/QPainter>
#include <QtWidgets/QComboBox>

namespace TARN::Menus {

namespace {

// The measures of an entry, which the base style makes 37 pixels wider than its contents and its
// column, 12 more for the arrow of a menu and 20 more for a shortcut.
constexpr int edge = 5;
constexpr int arrowExtent = 12;
constexpr int shortcutGap = 12;
/// The menu measures its shortcuts in whole pixels, which a text may exceed by part of one.
constexpr int shortcutExcess = 1;
constexpr int endOfText = 2 * edge;
constexpr int endOfTextWithArrow = arrowExtent + 2 * edge - 2;

/// Paints one entry of a menu. The columns for marks and icons are the same in all its entries.
class EntryPainter
{
public:
    EntryPainter(const QStyleOptionMenuItem &option, const PaintRequest &request);

    void paint() const;

private:
    bool isSeparator() const { return m_option.menuItemType == QStyleOptionMenuItem::Separator; }
    bool isSubMenu() const { return m_option.menuItemType == QStyleOptionMenuItem::SubMenu; }
    bool isChecked() const { return m_option.checked || has(m_option, QStyle::State_On); }
    bool isMarked() const;
    bool hasMarkColumn() const;

    QBrush iconBrush() const;
    QIcon::Mode iconMode() const;
    QRect visual(const QRect &rect) const;
    QRect column(int left, int width) const;
    int markExtent() const;
    QSize iconSize() const;
    int iconColumn() const;
    int textColumn() const;

    void drawSurface() const;
    void drawSeparator() const;
    int drawSectionTitle() const;
    void drawMark() const;
    void drawIcon() const;
    void drawTexts() const;
    void drawText(const QString &text, const QFont &font, const QRect &logicalRoom,
                  Mnemonic mnemonic) const;
    void drawArrow() const;

    const QStyleOptionMenuItem &m_option;
    const PaintRequest &m_request;
    QPainter &m_painter;
    const QWidget *m_widget;
    bool m_isHighlighted;
    bool m_isComboBoxEntry;
};

EntryPainter::EntryPainter(const QStyleOptionMenuItem &option, const PaintRequest &request)
    : m_option(option)
    , m_request(request)
    , m_painter(*request.painter)
    , m_widget(request.widget)
    , m_isHighlighted(isHighlighted(option))
    , m_isComboBoxEntry(isSet(request.widget, Property::ComboBoxPopupItem) ||
                        qobject_cast<const QComboBox *>(request.widget))
{
}

void EntryPainter::paint() const
{
    drawSurface();
    if (isSeparator()) {
        drawSeparator();
        drawCoveredOutline(m_request);
        return;
    }
    drawCoveredOutline(m_request);
    if (isMarked()) {
        drawMark();
    }
    if (!m_option.icon.isNull()) {
        drawIcon();
    }
    if (!m_option.text.isEmpty()) {
        drawTexts();
    }
    if (isSubMenu()) {
        drawArrow();
    }
}

/// Tells whether the entry is marked as checked. The current entry of a combo box needs no mark,
/// unless its model has check states of its own.
bool EntryPainter::isMarked() const
{
    return hasMarkColumn() && m_option.checkType != QStyleOptionMenuItem::NotCheckable &&
           isChecked();
}

/// Tells whether there is room for marks, as there also is in a menu that has nothing else before
/// its texts.
bool EntryPainter::hasMarkColumn() const
{
    if (m_isComboBoxEntry) {
        return (m_option.state & (QStyle::State_On | QStyle::State_Off)) != 0;
    }
    return m_option.menuHasCheckableItems || m_option.maxIconWidth == 0 ||
           m_option.checkType != QStyleOptionMenuItem::NotCheckable;
}

/// Returns the brush that tints the icon: that of a button at rest, for a check mark tells what is
/// checked; where such a button could not be seen, that of the text.
QBrush EntryPainter::iconBrush() const
{
    if (m_isHighlighted || !isEnabled(m_option)) {
        return textBrush(m_option);
    }
    QStyleOption atRest(m_option);
    atRest.state = QStyle::State_Enabled;
    const QBrush brush = buttonBrushes(&atRest, m_widget).foreground;
    return brush.style() == Qt::NoBrush ? textBrush(m_option) : brush;
}

/// Icons that take no tint may have a picture of their own to be seen on the highlight.
QIcon::Mode EntryPainter::iconMode() const
{
    if (!isEnabled(m_option)) {
        return QIcon::Disabled;
    }
    return m_isHighlighted ? QIcon::Selected : QIcon::Normal;
}

QRect EntryPainter::visual(const QRect &rect) const
{
    return QStyle::visualRect(m_option.direction, m_option.rect, rect);
}

/// Returns the part of the entry that begins at \a left, counted from its leading edge.
QRect EntryPainter::column(int left, int width) const
{
    const QRect &rect = m_option.rect;
    return visual(QRect(rect.left() + left, rect.top(), width, rect.height()));
}

int EntryPainter::markExtent() const
{
    return qMin(m_request.proxy().pixelMetric(QStyle::PM_IndicatorWidth, &m_option, m_widget),
                m_request.proxy().pixelMetric(QStyle::PM_SmallIconSize, &m_option, m_widget));
}

QSize EntryPainter::iconSize() const
{
    if (const auto *comboBox = qobject_cast<const QComboBox *>(m_widget)) {
        return comboBox->iconSize();
    }
    const int extent = m_request.proxy().pixelMetric(QStyle::PM_SmallIconSize, &m_option, m_widget);
    return {extent, extent};
}

int EntryPainter::iconColumn() const
{
    return hasMarkColumn() ? edge + markExtent() : edge;
}

int EntryPainter::textColumn() const
{
    const bool hasColumn = hasMarkColumn() || m_option.maxIconWidth > 0;
    return iconColumn() + m_option.maxIconWidth + (hasColumn ? edge : 0);
}

void EntryPainter::drawSurface() const
{
    if (m_isHighlighted && !isSeparator()) {
        m_painter.fillRect(m_option.rect, themeColor(ColorName::MainColor, true));
    } else if (m_widget) {
        m_painter.fillRect(m_option.rect, themeBrush(BrushName::BackgroundSubLevel1Brush,
                                                     isSurfaceEnabled(m_request)));
    }
}

/// Draws a line across the entry, after its title if it has one.
void EntryPainter::drawSeparator() const
{
    const int start = m_option.text.isEmpty() ? 0 : drawSectionTitle();
    const QRect &rect = m_option.rect;
    const QRect line(rect.left() + start, rect.center().y(), rect.width() - start, 1);
    if (!line.isEmpty()) {
        m_painter.fillRect(visual(line), lightOutlineBrush(m_option.palette));
    }
}

/// Draws the title of a section. Returns where the line after it begins.
int EntryPainter::drawSectionTitle() const
{
    const QFont font = m_painter.font();
    m_painter.setFont(m_option.font);
    const int width = m_option.fontMetrics.horizontalAdvance(m_option.text);
    const QRect room(m_option.rect.adjusted(edge, 0, -edge, 0));
    m_request.proxy().drawItemText(
        &m_painter, room,
        static_cast<int>(QStyle::visualAlignment(m_option.direction, Qt::AlignLeft)) |
            Qt::AlignVCenter | Qt::TextSingleLine,
        m_option.palette, isEnabled(m_option), m_option.text, QPalette::Text);
    m_painter.setFont(font);
    return qMin(width, room.width()) + 2 * edge;
}

void EntryPainter::drawMark() const
{
    const int extent = markExtent();
    const QRect square = QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter,
                                             QSize(extent, extent), column(edge, extent));
    if (m_option.checkType == QStyleOptionMenuItem::Exclusive) {
        drawRadioMark(m_painter, square, textBrush(m_option));
    } else {
        drawCheckMark(m_painter, square, textBrush(m_option));
    }
}

void EntryPainter::drawIcon() const
{
    const QSize size = iconSize();
    const QRect rect =
        QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, size,
                            column(iconColumn(), qMax(m_option.maxIconWidth, size.width())));
    TARN::drawIcon(m_painter, rect,
                   ThemeColorHelper::getModifiedIconWithForegroundBrush(m_option.icon, iconBrush()),
                   iconMode(), isChecked() ? QIcon::On : QIcon::Off);
}

/// Draws the label and, in a column of its own, the shortcut.
void EntryPainter::drawTexts() const
{
    m_painter.setPen(outlinePen(textBrush(m_option)));
    const int end = isSubMenu() ? endOfTextWithArrow : endOfText;
    const QRect &rect = m_option.rect;
    QRect room(rect.left() + textColumn(), rect.top(), rect.width() - textColumn() - end,
               rect.height());
    const int tab = m_option.text.indexOf(QLatin1Char('\t'));
    if (tab >= 0) {
        const QRect shortcut(room.right() + 1 - m_option.tabWidth, room.top(),
                             m_option.tabWidth + shortcutExcess, room.height());
        drawText(m_option.text.mid(tab + 1), m_option.font, shortcut, Mnemonic::None);
        room.setRight(shortcut.left() - shortcutGap);
    }
    QFont font = m_option.font;
    if (m_option.menuItemType == QStyleOptionMenuItem::DefaultItem) {
        font.setBold(true);
    }
    drawText(m_option.text.left(tab), font, room,
             mnemonicFlags(m_request) == Qt::TextShowMnemonic ? Mnemonic::Underlined
                                                              : Mnemonic::Hidden);
}

void EntryPainter::drawText(const QString &text, const QFont &font, const QRect &logicalRoom,
                            Mnemonic mnemonic) const
{
    const QRect room = visual(logicalRoom);
    ParagraphSetting setting;
    setting.text = text;
    setting.font = font;
    setting.room = room.size();
    setting.elideMode = Qt::ElideMiddle;
    setting.direction = m_option.direction;
    setting.isLabel = true;
    setting.mnemonic = mnemonic;
    Paragraph::of(setting)->draw(m_painter, room.topLeft());
}

void EntryPainter::drawArrow() const
{
    QStyleOptionMenuItem arrow(m_option);
    arrow.rect =
        QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, QSize(arrowExtent, arrowExtent),
                            column(m_option.rect.width() - edge - arrowExtent, arrowExtent));
    arrow.state = m_option.state & (QStyle::State_Enabled | QStyle::State_Selected);
    arrow.palette.setBrush(QPalette::WindowText, textBrush(m_option));
    arrow.palette.setBrush(QPalette::ButtonText, textBrush(m_option));
    m_request.proxy().drawPrimitive(isRightToLeft(m_option) ? QStyle::PE_IndicatorArrowLeft
                                                            : QStyle::PE_IndicatorArrowRight,
                                    &arrow, &m_painter, m_widget);
}

} // namespace

bool drawItem(const PaintRequest &request)
{
    const auto *option = qstyleoption_cast<const QStyleOptionMenuItem *>(request.option);
    if (!option) {
        return false;
    }
    if (!option->rect.isEmpty()) {
        EntryPainter(*option, request).paint();
    }
    return true;
}

} // namespace TARN::Menus
