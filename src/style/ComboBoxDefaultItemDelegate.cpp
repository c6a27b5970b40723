#include "style/ComboBoxDefaultItemDelegate.h"

#include <QtGui/QStandardItemModel>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QStyleOption>

namespace TARN {

namespace {

QString separatorMark()
{
    return QStringLiteral("separator");
}

/// The line is as long as the list is wide, whatever the width of the entry.
QRect separatorRect(const QStyleOptionViewItem &option)
{
    QRect rect = option.rect;
    if (const auto *view = qobject_cast<const QAbstractItemView *>(option.widget)) {
        rect.setWidth(view->viewport()->width());
    }
    return rect;
}

} // namespace

ComboBoxDefaultItemDelegate::ComboBoxDefaultItemDelegate(QObject *parent, QComboBox *combo)
    : QStyledItemDelegate(parent)
    , m_combo(combo)
{
}

bool ComboBoxDefaultItemDelegate::isSeparator(const QModelIndex &index)
{
    return index.data(Qt::AccessibleDescriptionRole).toString() == separatorMark();
}

void ComboBoxDefaultItemDelegate::setSeparator(QAbstractItemModel *model, const QModelIndex &index)
{
    model->setData(index, separatorMark(), Qt::AccessibleDescriptionRole);
    if (const auto *standardModel = qobject_cast<QStandardItemModel *>(model)) {
        if (QStandardItem *item = standardModel->itemFromIndex(index)) {
            item->setFlags(item->flags() & ~(Qt::ItemIsSelectable | Qt::ItemIsEnabled));
        }
    }
}

void ComboBoxDefaultItemDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                        const QModelIndex &index) const
{
    if (!isSeparator(index)) {
        QStyledItemDelegate::paint(painter, option, index);
    } else if (m_combo) {
        QStyleOption line;
        line.rect = separatorRect(option);
        m_combo->style()->drawPrimitive(QStyle::PE_IndicatorToolBarSeparator, &line, painter,
                                        m_combo);
    }
}

QSize ComboBoxDefaultItemDelegate::sizeHint(const QStyleOptionViewItem &option,
                                            const QModelIndex &index) const
{
    if (!isSeparator(index) || !m_combo) {
        return QStyledItemDelegate::sizeHint(option, index);
    }
    const int extent =
        m_combo->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, m_combo);
    return {extent, extent};
}

QComboBox *ComboBoxDefaultItemDelegate::comboBox() const
{
    return m_combo;
}

} // namespace TARN
