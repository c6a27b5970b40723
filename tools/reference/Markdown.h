#pragma once

#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace TARN::Reference {

QString row(const QStringList &cells);
QString tableHead(const QStringList &titles);
QString code(const QString &text);

/// Makes a part of a page.
using MakePart = QString (*)();

/// Returns \a page, in which each line that is but a word between percent signs ("%FAMILIES%") is
/// replaced by the part of that name.
QString fillIn(const QString &page, const QMap<QString, MakePart> &parts);

} // namespace TARN::Reference
