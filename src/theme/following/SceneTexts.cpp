#include "theme/following/SceneTexts.h"

#include "theme/following/DocumentLinks.h"

#include <QtCore/QSet>
#include <QtGui/QTextDocument>
#include <QtWidgets/QApplication>
#include <QtWidgets/QGraphicsScene>
#include <QtWidgets/QGraphicsTextItem>
#include <QtWidgets/QGraphicsView>

namespace TARN {

namespace {

QSet<QGraphicsScene *> viewedScenes()
{
    QSet<QGraphicsScene *> scenes;
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets) {
        const auto *view = qobject_cast<QGraphicsView *>(widget);
        if (view && view->scene()) {
            scenes.insert(view->scene());
        }
    }
    return scenes;
}

/// Returns the colour that a new text has.
QColor newColor()
{
    return QApplication::palette("QWidgetTextControl").color(QPalette::Text);
}

/// Gives \a item, which is a text, the application's font in place of \a former.
template <typename Item>
void replaceFont(Item &item, const QFont &former)
{
    // A font of which something was chosen says so.
    if (item.font().resolve() == 0 && item.font() == former) {
        item.setFont(QFont());
    }
}

/// Gives the links in \a document the brush \a next where they have the brush \a former, unless
/// there is a step to undo, which would be lost.
void replaceLinks(QTextDocument &document, const QBrush &former, const QBrush &next)
{
    if (document.isUndoAvailable() || document.isRedoAvailable()) {
        return;
    }
    const bool enabled = document.isUndoRedoEnabled();
    document.setUndoRedoEnabled(false);
    repaintLinks(document, former, next);
    document.setUndoRedoEnabled(enabled);
}

} // namespace

SceneTexts::SceneTexts()
    : m_formerColor(newColor())
    , m_formerLink(QGuiApplication::palette().link())
{
}

void SceneTexts::follow() const
{
    const QSet<QGraphicsScene *> scenes = viewedScenes();
    for (const QGraphicsScene *scene : scenes) {
        const QList<QGraphicsItem *> items = scene->items();
        for (QGraphicsItem *item : items) {
            follow(*item);
        }
    }
}

void SceneTexts::follow(QGraphicsItem &item) const
{
    if (auto *simple = dynamic_cast<QGraphicsSimpleTextItem *>(&item)) {
        replaceFont(*simple, m_formerFont);
    } else if (auto *text = qobject_cast<QGraphicsTextItem *>(item.toGraphicsObject())) {
        replaceFont(*text, m_formerFont);
        if (text->defaultTextColor() == m_formerColor) {
            text->setDefaultTextColor(newColor());
        }
        replaceLinks(*text->document(), m_formerLink, QGuiApplication::palette().link());
    }
}

} // namespace TARN
