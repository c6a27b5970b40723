#pragma once

#include <QtCore/QVector>

namespace TARN {

/// An element that the toolkit asks a style to paint.
struct StyleElement
{
    const char *name; ///< as the toolkit spells it
    int element;      ///< of the enumeration that the list is for
    bool isPainted;   ///< by the style; otherwise the element is left to the base style
    bool isPaintedInCompleteMode;
};

namespace Catalogue {

/// \name All elements that the toolkit knows, each at its own index
/// \{
const QVector<StyleElement> &primitives();
const QVector<StyleElement> &controls();
const QVector<StyleElement> &complexControls();
/// \}

} // namespace Catalogue

} // namespace TARN
