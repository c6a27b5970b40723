#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QVector>

namespace TARN {

/// The tree of files in a resource file, read as the toolkit reads it, but without trusting it: the
/// toolkit follows every number in such a file to wherever it points.
///
/// The format: a header tells where the tree, the names and the contents begin. The tree is an
/// array of entries of one size, the first of which is the root folder; a folder tells how many
/// entries lie in it and the first of them, a file where its content begins. All numbers have their
/// highest byte first.
class ArchiveTree
{
public:
    enum Packing { Plain, Zlib, Zstd };

    struct File
    {
        QString path; ///< from the root, with a slash at its beginning
        Packing packing;
        QByteArray content; ///< as it is stored, a part of what the tree was read from
    };

    /// Reads \a archive, which has to exist as long as the files' contents are used.
    explicit ArchiveTree(const QByteArray &archive);

    /// Returns what is wrong with the archive; an empty text when it is sound. Otherwise there are
    /// no files.
    const QString &fault() const { return m_fault; }
    const QVector<File> &files() const { return m_files; }

private:
    struct Entry
    {
        QString path;
        quint32 index;
    };

    bool readHeader();
    void readEntries();
    void readEntry(const Entry &entry, QVector<Entry> &entries, QVector<bool> &isTaken);
    void readFile(const QString &path, quint16 flags, qint64 offset);
    void readFolder(const Entry &folder, qint64 offset, QVector<Entry> &entries,
                    QVector<bool> &isTaken);
    bool readName(qint64 offset, QString &name);

    /// Tells whether \a size bytes from \a offset on are there; a fault when not.
    bool has(qint64 offset, qint64 size);
    template <typename T>
    T number(qint64 offset) const;
    void fail(const QString &fault);

    const QByteArray &m_archive;
    QString m_fault;
    QVector<File> m_files;
    qint64 m_tree = 0;
    qint64 m_contents = 0;
    qint64 m_names = 0;
    qint64 m_entrySize = 0;
};

} // namespace TARN
