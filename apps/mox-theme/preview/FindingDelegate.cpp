#include "preview/FindingDelegate.h"

#include <QtGui/QPainter>
#include <QtGui/QTextLayout>
#include <QtWidgets/QApplication>
#include <QtWidgets/QListView>

#include <cmath>

namespace TARN::ThemeTool {

namespace {

constexpr int Margin = 8;
constexpr int IconSize = 16;
constexpr int LineGap = 3;
constexpr int PlaceGap = 16; // at least, between a rule and its place
constexpr double SuggestionOpacity = 0.75;

QFont ruleFont(QFont font)
{
    font.setBold(true);
    return font;
}

// The height of a line that begins with an icon.
int headHeight(const QFont &font)
{
    return qMax(IconSize, QFontMetrics(ruleFont(font)).height());
}

// Breaks the text into lines of the width and returns their height.
int layOut(QTextLayout &layout, int width)
{
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setTextDirection(QApplication::layoutDirection());
    option.setAlignment(Qt::AlignLeading);
    layout.setTextOption(option);
    double height = 0;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        line.setPosition(QPointF(0, height));
        height += line.height();
    }
    layout.endLayout();
    return static_cast<int>(std::ceil(height));
}

// The texts below the rule and the place.
QStringList paragraphs(const QModelIndex &index)
{
    QStringList texts{index.data(Qt::DisplayRole).toString(),
                      index.data(SuggestionRole).toString()};
    texts.removeAll(QString());
    return texts;
}

QRect contentsOf(const QRect &item)
{
    return item.adjusted(Margin, Margin, -Margin, -Margin);
}

QColor textColor(const QStyleOptionViewItem &option)
{
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    return option.palette.color(selected ? QPalette::HighlightedText : QPalette::Text);
}

void paintHead(QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &index,
               const QRect &head)
{
    const auto direction = option.direction;
    const QRect icon(head.left(), head.top() + (head.height() - IconSize) / 2, IconSize, IconSize);
    index.data(Qt::DecorationRole)
        .value<QIcon>()
        .paint(&painter, QStyle::visualRect(direction, head, icon));

    const QRect texts = head.adjusted(IconSize + Margin, 0, 0, 0);
    const QRect shown = QStyle::visualRect(direction, head, texts);
    const QString rule = index.data(RuleRole).toString();
    const QFontMetrics ruleMetrics(ruleFont(option.font));
    painter.setFont(ruleFont(option.font));
    painter.drawText(shown, Qt::AlignLeading | Qt::AlignVCenter | Qt::TextSingleLine,
                     ruleMetrics.elidedText(rule, Qt::ElideRight, texts.width()));

    const int room = texts.width() - ruleMetrics.horizontalAdvance(rule) - PlaceGap;
    painter.setFont(option.font);
    // Of a long path its end says most.
    painter.drawText(shown, Qt::AlignTrailing | Qt::AlignVCenter | Qt::TextSingleLine,
                     option.fontMetrics.elidedText(index.data(PlaceRole).toString(), Qt::ElideLeft,
                                                   qMax(0, room)));
}

} // namespace

void FindingDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                            const QModelIndex &index) const
{
    const QStyle *style = option.widget ? option.widget->style() : QApplication::style();
    painter->save();
    style->drawPrimitive(QStyle::PE_PanelItemViewItem, &option, painter, option.widget);
    painter->setPen(textColor(option));

    const QRect contents = contentsOf(option.rect);
    const QRect head(contents.topLeft(), QSize(contents.width(), headHeight(option.font)));
    painter->setLayoutDirection(option.direction);
    paintHead(*painter, option, index, head);

    int top = head.bottom() + 1 + LineGap;
    for (const QString &text : paragraphs(index)) {
        QTextLayout layout(text, option.font);
        const int height = layOut(layout, contents.width());
        layout.draw(painter, QPointF(contents.left(), top));
        top += height + LineGap;
        painter->setOpacity(SuggestionOpacity);
    }
    painter->restore();
}

QSize FindingDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const auto *view = qobject_cast<const QListView *>(option.widget);
    const int width = view ? view->viewport()->width() : option.rect.width();
    int height = 2 * Margin + headHeight(option.font);
    for (const QString &text : paragraphs(index)) {
        QTextLayout layout(text, option.font);
        height += LineGap + layOut(layout, width - 2 * Margin);
    }
    return {width, height};
}

} // namespace TARN::ThemeTool
