#include "pages/IconModel.h"

#include "samples/Literals.h"

#include <resources/ThemeColorHelper.h>
#include <resources/ThemeResources.h>

#include <QtCore/QRegularExpression>

namespace TARN::Gallery {

IconModel::IconModel(QObject *parent)
    : QAbstractListModel(parent)
{
    reload();
}

void IconModel::setTint(const QBrush &tint)
{
    m_tint = tint;
    m_icons.clear();
    Q_EMIT dataChanged(index(0), index(rowCount() - 1), {Qt::DecorationRole});
}

void IconModel::setCellSize(const QSize &size)
{
    m_cellSize = size;
    Q_EMIT dataChanged(index(0), index(rowCount() - 1), {Qt::SizeHintRole});
}

void IconModel::reload()
{
    beginResetModel();
    // A theme's own icons come first and may have names of other kinds.
    m_names = ThemeResources::getIcons(
        QRegularExpression(QStringLiteral(R"(^[a-z]+\.[a-z0-9.]+\.[a-z]+$)")));
    m_names.sort();
    m_icons.clear();
    endResetModel();
}

int IconModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_names.size();
}

QVariant IconModel::data(const QModelIndex &index, int role) const
{
    const QString name = m_names.value(index.row());
    switch (role) {
    case Qt::DecorationRole:
        return icon(name);
    case Qt::DisplayRole:
        // Lets a long name break behind its dots.
        return QString(name).replace(QLatin1Char('.'), ".\u200b"_s);
    case Qt::SizeHintRole:
        return m_cellSize;
    case Qt::TextAlignmentRole:
        return int(Qt::AlignHCenter | Qt::AlignTop);
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole:
    case NameRole:
        return name;
    default:
        return {};
    }
}

QIcon IconModel::icon(const QString &name) const
{
    auto found = m_icons.constFind(name);
    if (found == m_icons.constEnd()) {
        const QIcon drawn = ThemeResources::getIcon(name);
        found = m_icons.insert(
            name, m_tint.style() == Qt::NoBrush
                      ? drawn
                      : ThemeColorHelper::getModifiedIconWithForegroundBrush(drawn, m_tint));
    }
    return *found;
}

} // namespace TARN::Gallery
