#pragma once

#include <QtCore/QString>

class QDomDocument;
class QIODevice;

namespace TARN {

/// How the reading of a theme file went; what the readers' getStatus() returns.
enum ReaderStatus {
    ReadFine = 0,
    CannotOpen = 1,
    /// Not well-formed, or well-formed with a faulty entry.
    Faulty = 2
};

/// Parses the file at \a path into \a document, without namespace processing.
///
/// Returns CannotOpen for what cannot be opened as a regular file, and leaves \a document alone.
/// Returns Faulty for what is not well-formed; \a document then holds what was read before the
/// fault, or nothing when the parser could not be trusted with the file (see isSafeXml()).
ReaderStatus readXmlFile(const QString &path, QDomDocument &document);

/// The same for what \a device, which is open, holds from where it stands.
ReaderStatus readXml(QIODevice &device, QDomDocument &document);

/// What a theme file holds besides its document, for those who tell people about it.
struct XmlSource
{
    QString text;  ///< what the parser saw
    QString fault; ///< in the parser's words; empty when the text is well-formed
    int line = 0;  ///< where the fault is, from 1; 0 when it is nowhere in particular
    int column = 0;
};

/// The same as without \a source, which is filled with what is known of the file.
ReaderStatus readXmlFile(const QString &path, QDomDocument &document, XmlSource &source);

} // namespace TARN
