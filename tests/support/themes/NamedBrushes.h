#pragma once

#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QVariantMap>
#include <QtGui/QBrush>
#include <QtGui/QRgb>

/// Every brush name that can be asked for, each published with a colour of its own that tells it.
class NamedBrushes
{
public:
    NamedBrushes();

    /// Returns the name under which \a brush is published; "none" for no brush.
    QString nameOf(const QBrush &brush) const;

private:
    void add(const QString &name);

    QMap<QRgb, QString> m_names;
    QVariantMap m_brushes;
};
