#pragma once

class QEvent;
class QWidget;

namespace TARN {

class AltKey;

/// Follows what happens to \a widget: tints its icon when it is painted, and the week-ends of a
/// calendar when it is enabled or disabled; tells \a altKey of Alt.
void watch(QWidget &widget, const QEvent &event, AltKey &altKey);

} // namespace TARN
