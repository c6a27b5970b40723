#pragma once

#include "style/asking/Requests.h"

#include <QtCore/QRect>

/// The headers of trees and tables, and the button in the corner between two of them.
namespace TARN::Headers {

/// How wide the arrow of a sorted section is.
inline constexpr int markSize = 8;

QRect labelRect(const SubElementRequest &request);
QRect arrowRect(const SubElementRequest &request);
QSize sectionSize(const ContentsRequest &request);

bool drawHeader(const PaintRequest &request);
bool drawSection(const PaintRequest &request);
bool drawLabel(const PaintRequest &request);
bool drawArrow(const PaintRequest &request);
bool drawEmptyArea(const PaintRequest &request);

} // namespace TARN::Headers
