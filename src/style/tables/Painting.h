#pragma once

#include "style/asking/Requests.h"

#include <mox_common_theme_export.h>

#include <QtCore/QVector>

/// What the style paints itself, and what it leaves to its base style.
namespace TARN {

/// Paints an element and tells whether it did: an option of another type than the element needs is
/// the base style's.
///
/// The painter's pen, brush, brush origin and render hints need not be put back; whoever changes
/// anything else brackets that with save() and restore().
using PaintRule = bool (*)(const PaintRequest &request);

struct PaintedElement
{
    int element;      ///< of the enumeration that the table is for
    const char *name; ///< as the toolkit spells it
    PaintRule paint;  ///< null when the element is left to the base style
};

/// \name The tables, in which every element that the toolkit knows stands at its own index
/// \{
MOX_COMMON_THEME_EXPORT const QVector<PaintedElement> &paintedPrimitives();
MOX_COMMON_THEME_EXPORT const QVector<PaintedElement> &paintedControls();
MOX_COMMON_THEME_EXPORT const QVector<PaintedElement> &paintedComplexControls();
/// \}

/// Returns the rule for \a element in one of the tables; null when the base style paints it.
inline PaintRule paintRule(const QVector<PaintedElement> &table, int element)
{
    return element >= 0 && element < table.size() ? table[element].paint : nullptr;
}

/// Paints by \a rule and puts the painter's pen, brush and render hints back.
bool paint(PaintRule rule, const PaintRequest &request);

} // namespace TARN
