#pragma once

#include <QtCore/QRect>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtGui/QImage>

#include <map>

/// Many small pictures on one sheet, each known by a name of its own. A sheet is kept as one file,
/// which is as small as it can be without losing a colour, and in which the names stand too.
class PictureSheet
{
public:
    /// Adds \a picture at the end of the last row.
    void add(const QString &name, const QImage &picture);
    /// Has the next picture begin a new row.
    void endRow();

    bool isEmpty() const { return m_pictures.empty(); }

    bool save(const QString &path) const;
    /// Returns the sheet in the file at \a path; an empty one when there is none.
    static PictureSheet load(const QString &path);

    /// Returns one line for each picture that is not as on the \a expected sheet.
    QStringList differences(const PictureSheet &expected) const;

    /// Returns a sheet that shows the pixels of the pictures that are not as on the \a expected
    /// sheet.
    PictureSheet markedDifferences(const PictureSheet &expected) const;

private:
    struct Entry
    {
        QImage picture;
        QPoint position;
    };

    QImage arranged() const;

    std::map<QString, Entry> m_pictures;
    QPoint m_next;
    int m_rowHeight = 0;
};
