#include "host/panel/area_marks.h"

#include <algorithm>
#include <cmath>

#include "host/drawing/pixels.h"

namespace host {
namespace {

std::uint32_t color_of(const HotArea& area) {
  if (area.cursor == CURSOR_INCREASE) return 0xFF35E07Au;
  if (area.cursor == CURSOR_DECREASE) return 0xFFFF5B50u;
  if (area.flags & MOUSE_DRAG) return 0xFFD07BFFu;
  if (!(area.flags & MOUSE_LEFT)) return 0xFF54A8FFu;
  return 0xFFFFD84Au;
}

void outline(Canvas& canvas, const Rect& box, int line, std::uint32_t color) {
  const int right = box.x + box.width, bottom = box.y + box.height;
  for (const Rect& side :
       {Rect{box.x, box.y, box.width, line}, Rect{box.x, bottom - line, box.width, line},
        Rect{box.x, box.y, line, box.height}, Rect{right - line, box.y, line, box.height}})
    fill_pixels(surface_of(canvas), intersection(side, whole_of(canvas)), color);
}

}  // namespace

void draw_area_marks(Canvas& canvas, const HotAreas& areas, PanelSize gauge, const Rect& place) {
  const double zoom = static_cast<double>(place.width) / std::max(1, gauge.width);
  const auto pixels = [&](std::int64_t length) {
    return static_cast<int>(std::lround(static_cast<double>(length) * zoom));
  };
  const int line = std::max(1, static_cast<int>(zoom));
  for (const HotArea& area : areas.areas())
    outline(canvas,
            {place.x + pixels(area.box.x), place.y + pixels(area.box.y), pixels(area.box.width),
             pixels(area.box.height)},
            line, color_of(area));
}

}  // namespace host
