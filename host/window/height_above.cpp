#include "host/window/height_above.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace host {
namespace {

constexpr double least_panel_zoom = 0.7;
constexpr std::array<double, 5> shares{0.37, 0.32, 0.27, 0.22, 0.17};  // of the area, the best first
constexpr double greatest_share = 0.6;

int height_of(const Layout& layout, const LayoutArea& area) {
  int top = layout.height, bottom = 0;
  for (const Rect& place : layout.places) {
    top = std::min(top, place.y - area.caption);
    bottom = std::max(bottom, place.y + place.height);
  }
  return bottom - top + 2 * area.gap;
}

}  // namespace

int height_above(std::span<const PanelSize> panels, const LayoutArea& area, std::optional<double> zoom,
                 double scale) {
  for (const double share : shares) {
    LayoutArea below = area;
    below.height = static_cast<int>(std::lround(area.height * (1.0 - share)));
    const Layout layout = arrange(panels, below, zoom, 8.0);
    const int needed = height_of(layout, area);
    if (needed > below.height || (!zoom && layout.zoom < least_panel_zoom * scale)) continue;
    return std::min(area.height - needed, static_cast<int>(area.height * greatest_share));
  }
  return 0;
}

}  // namespace host
