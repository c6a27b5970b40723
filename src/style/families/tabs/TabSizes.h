#pragma once

#include "style/asking/Requests.h"

#include <QtCore/QRect>

namespace TARN {
class Polishing;
}

/// The sizes, rectangles and fonts of tabs.
namespace TARN::Tabs {

QRect tabBarRect(const SubElementRequest &request);
QRect rightButtonRect(const SubElementRequest &request);
QRect textRect(const SubElementRequest &request);
QSize tabSize(const ContentsRequest &request);

/// Gives tabs their font, where nothing takes it back.
void polishFont(Polishing &polishing);
/// Gives tabs that have a size of their own the font for it.
void polishSizedFont(Polishing &polishing);
/// Returns the font of tabs that have none.
QFont applicationFont();

} // namespace TARN::Tabs
