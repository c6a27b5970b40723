#pragma once

#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QTemporaryDir>
#include <QtGui/QColor>
#include <QtGui/QIcon>
#include <QtGui/QRgb>

/// An icon theme, in use as long as it lives, whose icons are squares of one colour each.
class IconTheme
{
public:
    IconTheme();
    IconTheme(const IconTheme &) = delete;
    IconTheme &operator=(const IconTheme &) = delete;
    ~IconTheme();

    /// Adds the icon \a name, in a colour that no other icon has.
    void add(const QString &name);
    /// Adds the icon \a name in \a color.
    void add(const QString &name, const QColor &color);
    /// Returns the name of the icon of this theme that \a icon looks like; empty when there is
    /// none.
    QString nameOf(const QIcon &icon) const;

private:
    QTemporaryDir m_directory;
    QStringList m_formerPaths;
    QString m_formerName;
    QMap<QRgb, QString> m_names;
};

/// The colour that tinting replaces in an icon.
extern const QColor referenceForeground;

/// Returns the colour in the middle of \a icon.
QColor colorOf(const QIcon &icon, QIcon::Mode mode = QIcon::Normal);
