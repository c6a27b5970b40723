#include "theme/following/DocumentLinks.h"

#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

namespace TARN {

namespace {

struct Link
{
    int position;
    int length;
};

QVector<Link> linksOf(const QTextDocument &document, const QBrush &brush)
{
    QVector<Link> links;
    for (QTextBlock block = document.begin(); block != document.end(); block = block.next()) {
        for (auto it = block.begin(); it != block.end(); ++it) {
            const QTextFragment fragment = it.fragment();
            if (fragment.charFormat().isAnchor() && fragment.charFormat().foreground() == brush) {
                links.append({fragment.position(), fragment.length()});
            }
        }
    }
    return links;
}

} // namespace

void repaintLinks(QTextDocument &document, const QBrush &former, const QBrush &next)
{
    const QVector<Link> links = linksOf(document, former);
    if (links.isEmpty()) {
        return;
    }
    const bool modified = document.isModified();
    QTextCharFormat format;
    format.setForeground(next);
    QTextCursor cursor(&document);
    cursor.beginEditBlock();
    for (const Link &link : links) {
        cursor.setPosition(link.position);
        cursor.setPosition(link.position + link.length, QTextCursor::KeepAnchor);
        cursor.mergeCharFormat(format);
    }
    cursor.endEditBlock();
    document.setModified(modified);
}

void repaintDocumentLinks(const QBrush &former, const QBrush &next)
{
    if (former == next) {
        return;
    }
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (const QWidget *window : windows) {
        const QList<QTextDocument *> documents = window->findChildren<QTextDocument *>();
        for (QTextDocument *document : documents) {
            // In a document that can be edited the change would be a step to undo.
            if (!document->isUndoRedoEnabled()) {
                repaintLinks(*document, former, next);
            }
        }
    }
}

} // namespace TARN
