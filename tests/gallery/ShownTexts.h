#pragma once

#include <QtCore/QSize>
#include <QtCore/QString>
#include <QtCore/QVector>

class QWidget;

/// A text that a widget shows, and the room that its style gives it.
struct ShownText
{
    const QWidget *widget;
    const char *kind; ///< what shows it, such as "push button" or "tab"
    QString text;
    QSize needed;
    QSize room;

    bool isClipped() const
    {
        return needed.width() > room.width() || needed.height() > room.height();
    }

    /// Tells the text, where it stands and what it lacks.
    QString description() const;
};

/// Returns the texts of \a widget and of the visible widgets in it. Left out is what scrolls or
/// elides by design: the user's own text in line and text edits, items of views, and the titles of
/// docks and sub-windows.
QVector<ShownText> shownTexts(const QWidget &widget);
