#pragma once

#include "states/ElementState.h"

#include <catalogue/Elements.h>

#include <QtCore/QSize>
#include <QtWidgets/QStyleOption>

#include <functional>
#include <memory>

class QWidget;

namespace TARN::Gallery {

enum class ElementTable { Primitives, Controls, ComplexControls };

/// An element of one of the style's tables.
struct ElementId
{
    ElementId(QStyle::PrimitiveElement primitive)
        : table(ElementTable::Primitives)
        , element(primitive)
    {
    }
    ElementId(QStyle::ControlElement control)
        : table(ElementTable::Controls)
        , element(control)
    {
    }
    ElementId(QStyle::ComplexControl control)
        : table(ElementTable::ComplexControls)
        , element(control)
    {
    }

    ElementTable table;
    int element;
};

/// Returns the rows of \a table.
const QVector<StyleElement> &rowsOf(ElementTable table);

/// Returns the element's name as the toolkit spells it.
QString elementName(const ElementId &id);

/// An option; whoever makes it knows its type, and how to delete it.
using ElementOption = std::shared_ptr<QStyleOption>;

/// One way in which an element is painted, in all states in which it can be.
struct ElementSample
{
    ElementId id;
    const char *title; ///< unique in its family
    ElementStates states;
    /// Creates the widget on whose behalf the element is painted. Its topmost parent is the
    /// caller's.
    std::function<QWidget *()> createWidget;
    /// Creates the option that describes the widget, with the sub-control under the mouse, if it
    /// has any, as the active one. The rectangle is the sample's unless the option has another.
    std::function<ElementOption(const QWidget &)> createOption;
    QSize size = {100, 30};
};

/// The samples of one widget family.
struct ElementFamily
{
    QLatin1String id; ///< unique; lower-case words joined by dashes
    QLatin1String title;
    QVector<ElementSample> samples;
};

/// Returns the samples of all elements that can be shown, by family. Needs the application object.
const QVector<ElementFamily> &elementFamilies();

} // namespace TARN::Gallery
