#pragma once

class QBrush;

namespace TARN {

/// \name Brushes that are resolved once for the process
/// \{
/// Returns the brush of card borders, which outlines most of what is a surface of its own.
const QBrush &cardBorderBrush(bool enabled);
/// Returns the brush of grooves.
const QBrush &grooveBrush(bool enabled);
/// \}

} // namespace TARN
