#pragma once

#include <mox_common_theme_export.h>

#include <QtCore/QPointer>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QStyledItemDelegate>

namespace TARN {

/// The item delegate of combo boxes that have none of their own: entries are those of a
/// QStyledItemDelegate, and separators are drawn as thin lines across the whole list.
class MOX_COMMON_THEME_EXPORT ComboBoxDefaultItemDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// Makes a delegate that \a parent owns, for the list of \a combo, whose style and metrics it
    /// uses. \a combo may be destroyed before the delegate.
    ComboBoxDefaultItemDelegate(QObject *parent, QComboBox *combo);

    /// Tells whether the entry at \a index is a separator: its accessible description is
    /// "separator".
    static bool isSeparator(const QModelIndex &index);

    /// Makes the entry at \a index of \a model a separator. In a QStandardItemModel it can no
    /// longer be selected; other models have to see to that themselves.
    static void setSeparator(QAbstractItemModel *model, const QModelIndex &index);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

    /// Returns the combo box; null when it has been destroyed.
    QComboBox *comboBox() const;

private:
    QPointer<QComboBox> m_combo;
};

} // namespace TARN
