#pragma once

#include "check/model/Place.h"

#include <readers/xml/XmlFile.h>

#include <QtCore/QVector>
#include <QtXml/QDomDocument>
#include <QtXml/QDomElement>

namespace TARN::ThemeTool {

class FindingList;

/// One of a theme's XML files as the library reads it, and where its elements stand.
class ThemeFile
{
public:
    explicit ThemeFile(const QString &path);

    /// Whether the library reads anything of the file.
    bool isFine() const { return m_status == ReadFine; }

    /// Reports why the file is not fine, when it is not.
    void reportFault(FindingList &findings) const;

    /// Returns the outermost element, whatever its name.
    QDomElement root() const { return m_document.documentElement(); }

    /// Stands for the file as a whole.
    Place place() const { return {m_path, 0, 0}; }

    /// Returns where the start tag of \a element begins; the whole file when it is null.
    Place place(const QDomElement &element) const;

private:
    void findLines();

    QString m_path;
    QDomDocument m_document;
    XmlSource m_source;
    int m_status;
    QVector<int> m_lineStarts;
};

} // namespace TARN::ThemeTool
