#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

/// Returns what is wrong with the JSON text \a document by the JSON Schema in the file \a schema;
/// empty when nothing is.
QString schemaProblem(const QByteArray &document, const QString &schema);
