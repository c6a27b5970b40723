#pragma once

class QBrush;
class QTextDocument;

namespace TARN {

/// Gives the links in \a document the brush \a next where they have the brush \a former.
void repaintLinks(QTextDocument &document, const QBrush &former, const QBrush &next);

/// Gives the links in the documents that living widgets show, and that nobody edits, the brush
/// \a next where they have the brush \a former. A document keeps the colour that the palette had
/// when its text was set.
void repaintDocumentLinks(const QBrush &former, const QBrush &next);

} // namespace TARN
