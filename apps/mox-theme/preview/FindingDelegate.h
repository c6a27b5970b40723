#pragma once

#include <QtWidgets/QStyledItemDelegate>

namespace TARN::ThemeTool {

/// What a finding's item holds besides its sentence (Qt::DisplayRole) and the icon of its severity
/// (Qt::DecorationRole).
enum FindingRole { RuleRole = Qt::UserRole, PlaceRole, SuggestionRole };

/// Paints a finding: its rule and place in one line, and below them its sentence and what to do
/// about it, in as many lines as the view's width asks for.
class FindingDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};

} // namespace TARN::ThemeTool
