#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

/// A resource file of one file.
struct ResourceFile
{
    enum Flags { Plain = 0, Zlib = 1, Zstd = 4 };

    QString path; ///< from the root, without a slash at its beginning
    QByteArray content;
    Flags flags = Plain;

    QByteArray toBytes() const;
};
