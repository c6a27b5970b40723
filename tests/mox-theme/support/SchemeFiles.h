#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QString>
#include <QtCore/QStringList>

/// Returns the path of the test scheme \a name.
inline QString schemePath(const QString &name)
{
    return QStringLiteral(MOX_SCHEMES "/") + name;
}

/// Returns the content of the test scheme \a name; empty when there is none.
inline QByteArray schemeContent(const QString &name)
{
    QFile file(schemePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Returns the names of all test schemes.
inline QStringList schemeNames()
{
    return QDir(QStringLiteral(MOX_SCHEMES)).entryList(QDir::Files);
}
