#pragma once

#include <QtCore/QAbstractListModel>
#include <QtCore/QHash>
#include <QtCore/QSize>
#include <QtGui/QBrush>
#include <QtGui/QIcon>

namespace TARN::Gallery {

/// The names of the icons that can be asked for, each with its icon.
class IconModel : public QAbstractListModel
{
public:
    enum Role { NameRole = Qt::UserRole };

    explicit IconModel(QObject *parent = nullptr);

    /// Shows the icons in \a tint; with no brush, as they are drawn.
    void setTint(const QBrush &tint);

    /// Gives each icon and its name a room of \a size.
    void setCellSize(const QSize &size);

    /// Looks all icons up anew.
    void reload();

    [[nodiscard]] int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;

private:
    [[nodiscard]] QIcon icon(const QString &name) const;

    QStringList m_names;
    QBrush m_tint;
    QSize m_cellSize;
    mutable QHash<QString, QIcon> m_icons; ///< the look-up searches files each time
};

} // namespace TARN::Gallery
