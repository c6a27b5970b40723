#include "WidgetStates.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QHoverEvent>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QTabWidget>

namespace {

/// Returns the part of \a widget that the mouse is over.
QWidget &underMouse(QWidget &widget)
{
    if (auto *area = qobject_cast<QAbstractScrollArea *>(&widget)) {
        return *area->viewport();
    }
    if (auto *tabs = qobject_cast<QTabWidget *>(&widget)) {
        return *tabs->tabBar();
    }
    return widget;
}

/// Brings the mouse over \a widget without moving the pointer of the machine.
void hoverAt(QWidget &widget, const QPoint &position)
{
    constexpr QPoint outside(-1, -1);
    widget.setAttribute(Qt::WA_UnderMouse);
    for (const auto type : {QEvent::HoverEnter, QEvent::HoverMove}) {
        QHoverEvent event(type, position, outside);
        QCoreApplication::sendEvent(&widget, &event);
    }
}

void pressAt(QWidget &widget, const QPoint &position)
{
    hoverAt(widget, position);
    QMouseEvent event(QEvent::MouseButtonPress, position, widget.mapToGlobal(position),
                      Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
}

void stay(QWidget & /*widget*/) {}

void enterHover(QWidget &widget)
{
    QWidget &part = underMouse(widget);
    widget.setAttribute(Qt::WA_UnderMouse);
    hoverAt(part, part.rect().center());
}

void enterEntryHover(QWidget &widget)
{
    QAction *entry = widget.actions().constFirst();
    if (auto *menu = qobject_cast<QMenu *>(&widget)) {
        menu->setActiveAction(entry);
        return;
    }
    // A menu bar that is told its active entry opens the menu.
    const QPoint position = qobject_cast<QMenuBar *>(&widget)->actionGeometry(entry).center();
    QMouseEvent event(QEvent::MouseMove, position, widget.mapToGlobal(position), Qt::NoButton,
                      Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
}

void enterPressed(QWidget &widget)
{
    QWidget &part = underMouse(widget);
    pressAt(part, part.rect().center());
}

void enterStepPressed(QWidget &widget)
{
    constexpr int distanceFromEnd = 6;
    pressAt(widget, {widget.width() - distanceFromEnd, widget.height() / 4});
}

void enterChecked(QWidget &widget)
{
    widget.setProperty("checked", true);
}

void enterPartlyChecked(QWidget &widget)
{
    qobject_cast<QCheckBox *>(&widget)->setCheckState(Qt::PartiallyChecked);
}

void enterFocus(QWidget &widget)
{
    widget.window()->setAttribute(Qt::WA_KeyboardFocusChange);
    widget.setFocus(Qt::TabFocusReason);
}

void enterSelected(QWidget &widget)
{
    qobject_cast<QAbstractItemView *>(&widget)->selectAll();
}

void enterReadOnly(QWidget &widget)
{
    widget.setProperty("readOnly", true);
}

void enterDisabled(QWidget &widget)
{
    widget.setEnabled(false);
}

} // namespace

namespace States {

const WidgetState rest{"rest", stay};
const WidgetState hover{"hover", enterHover};
const WidgetState entryHover{"hover", enterEntryHover};
const WidgetState pressed{"pressed", enterPressed};
const WidgetState stepPressed{"pressed", enterStepPressed};
const WidgetState checked{"checked", enterChecked};
const WidgetState partlyChecked{"partly checked", enterPartlyChecked};
const WidgetState focus{"focus", enterFocus};
const WidgetState selected{"selected", enterSelected};
const WidgetState readOnly{"read-only", enterReadOnly};
const WidgetState disabled{"disabled", enterDisabled};

} // namespace States
