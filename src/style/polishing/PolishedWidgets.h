#pragma once

#include "style/polishing/Undo.h"

#include <QtCore/QHash>
#include <QtCore/QObject>

class QWidget;

namespace TARN {

/// The widgets of a style that get back what they were given when they leave it.
class PolishedWidgets
{
public:
    /// Remembers that \a undo takes back what \a widget was given, after what it was given before.
    void add(QWidget &widget, const Undo &undo);
    /// Takes back what \a widget was given.
    void takeBack(QWidget &widget);
    void takeBackAll();
    QList<QWidget *> all() const { return m_undos.keys(); }

private:
    QHash<QWidget *, Undo> m_undos;
    /// Hears of widgets that are destroyed.
    QObject m_context;
};

} // namespace TARN
