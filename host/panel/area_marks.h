/// Outlines of click areas, to see where a gauge can be worked.
#pragma once

#include "host/drawing/painter.h"
#include "host/panel/hot_areas.h"

namespace host {

/// The colour of an area's outline, 0xFFRRGGBB.
std::uint32_t mark_color(const HotArea& area);

/// Where a box of a gauge that is drawn at `place` lies.
Rect mark_place(const Box& box, PanelSize gauge, const Rect& place);

/// Outlines the areas of a gauge that is drawn at `place`: green increases, red decreases, violet
/// drags, blue answers the right button alone, yellow is any other.
void draw_area_marks(Canvas& canvas, const HotAreas& areas, PanelSize gauge, const Rect& place);

}  // namespace host
