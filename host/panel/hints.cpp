#include "host/panel/hints.h"

namespace host {
namespace {

std::string words_of(const CockpitGauge& gauge, const HotArea* area) {
  if (!area) return {};
  const auto index = static_cast<std::size_t>(area - gauge.areas.areas().data());
  return std::string(gauge.names.area_words(index));
}

}  // namespace

std::string way_to_work(const HotArea& area) {
  if (area.flags & MOUSE_DRAG) return "Drag";
  if (!(area.flags & MOUSE_RIGHT)) return {};
  return area.flags & MOUSE_LEFT ? "Left and right click" : "Right click";
}

Hint hint_at(const CockpitGauge& gauge, PanelPoint point) {
  if (const std::string_view own = gauge.areas.tooltip(point); !own.empty())
    return {std::string(own), {}};
  const HotArea* left = gauge.areas.at(point, MOUSE_LEFT);
  const HotArea* right = gauge.areas.at(point, MOUSE_RIGHT);
  if (!left || !right || left == right) {
    const HotArea* area = left ? left : right;
    const std::string words = words_of(gauge, area);
    return words.empty() ? Hint{} : Hint{words, way_to_work(*area)};
  }
  const std::string other = words_of(gauge, right);
  return {words_of(gauge, left), other.empty() ? "" : "Right click: " + other};
}

}  // namespace host
