#pragma once

#include "style/asking/Mode.h"
#include "style/asking/Requests.h"

/// What the style paints itself, and what it leaves to its base style.
namespace TARN {

/// Paints an element and tells whether it did: an option of another type than the element needs is
/// the base style's.
///
/// The painter's pen, brush, brush origin and render hints need not be put back; whoever changes
/// anything else brackets that with save() and restore().
using PaintRule = bool (*)(const PaintRequest &request);

/// \name The rule for an element; null when the base style paints it
/// \{
PaintRule paintRule(QStyle::PrimitiveElement element, Mode mode);
PaintRule paintRule(QStyle::ControlElement element, Mode mode);
PaintRule paintRule(QStyle::ComplexControl control, Mode mode);
/// \}

/// Paints by \a rule and puts the painter's pen, brush and render hints back. In the complete mode
/// a widget whose palette differs from \a own, the style's, is painted in the colours of its own.
bool paint(PaintRule rule, const PaintRequest &request, Mode mode, const QPalette &own);

} // namespace TARN
