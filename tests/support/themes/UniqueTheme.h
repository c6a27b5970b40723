#pragma once

#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QVariantMap>
#include <QtGui/QBrush>
#include <QtGui/QColor>
#include <QtGui/QFont>
#include <QtGui/QRgb>

/// A published theme in which every brush, colour and font of the catalogue tells its name.
class UniqueTheme
{
public:
    UniqueTheme();

    /// Returns the name under which \a brush is published; "none" for no brush.
    QString nameOf(const QBrush &brush) const;
    /// Returns the name under which \a color is published; empty when it is not.
    QString nameOf(const QColor &color) const;
    /// Returns the name of the brush or the colour that \a value holds; "unset" when it holds
    /// neither.
    QString nameOf(const QVariant &value) const;
    /// Returns the size name ("small" to "large") under which \a font is published.
    static QString sizeOf(const QFont &font);

    static constexpr int baseRadius = 5;
    static constexpr int mediumRadius = 9;

private:
    void add(const QString &group, const QString &name);

    QMap<QRgb, QString> m_names;
    QVariantMap m_brushes;
    QVariantMap m_colors;
};
