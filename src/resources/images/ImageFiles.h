#pragma once

#include <QtCore/QRegularExpression>
#include <QtCore/QSize>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtGui/QCursor>
#include <QtGui/QIcon>
#include <QtGui/QPixmap>

/// Icons, pictures and cursors by the names of their files. ThemeResources tells how each is found
/// and what a name that is not found gives.
namespace TARN::ImageFiles {

/// \name The QDir search paths
/// \{
const QString &iconsPrefix();
const QString &cursorsPrefix();
const QString &themeResourcesPrefix();
/// \}

QIcon icon(const QString &name);
QStringList iconNames(const QRegularExpression &filter);
QPixmap pixmap(const QString &name, const QSize &size);
QCursor cursor(const QString &name);

} // namespace TARN::ImageFiles
