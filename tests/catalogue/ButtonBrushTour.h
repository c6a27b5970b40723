#pragma once

/// Asks for the button brushes of every kind of widget in every kind, state and form, enabled and
/// disabled.
void tourButtonBrushes();
