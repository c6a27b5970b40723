#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QMetaType>
#include <QtCore/QString>
#include <QtCore/QVector>

/// One of the readers of a theme's files, as far as every file concerns it.
struct FileReader
{
    const char *name;
    /// The least that the reader takes for a faultless file, cut in two where more may stand.
    QByteArray begin;
    QByteArray end;
    int (*status)(const QString &path);
};

/// Returns the readers of all theme files.
const QVector<FileReader> &fileReaders();

/// Returns \a text with "{" and "}" replaced by the beginning and the end of a document that
/// \a reader takes.
QByteArray framed(QByteArray text, const FileReader &reader);

/// A document of one thing many times over: \a head, then \a unit again and again, then \a tail.
/// A "@" in the unit stands for a number that grows.
struct RepeatedDocument
{
    QByteArray head;
    QByteArray unit;
    QByteArray tail;

    /// Writes the document to \a path, for \a reader, about \a size bytes long. Returns whether
    /// that went well.
    bool write(const QString &path, const FileReader &reader, qint64 size) const;

private:
    /// Returns some units with their numbers from \a number on, which becomes the next one.
    QByteArray numbered(qint64 &number) const;
};
Q_DECLARE_METATYPE(RepeatedDocument)
