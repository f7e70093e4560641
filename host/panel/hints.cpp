#include "host/panel/hints.h"

#include <algorithm>

#include "host/panel/read_outs.h"

namespace host {
namespace {

std::size_t index_of(const CockpitGauge& gauge, const HotArea& area) {
  return static_cast<std::size_t>(&area - gauge.areas.areas().data());
}

std::string_view heading_of(std::string_view text) { return text.substr(0, text.find(": ")); }

// What is said of the whole control that an area is a part of; empty where it is all of it.
std::string_view words_of_control(const CockpitGauge& gauge, std::size_t index) {
  const auto area = std::ranges::find(gauge.names.areas, index, &Named::index);
  if (area == gauge.names.areas.end()) return {};
  for (const Named& part : gauge.names.parts)
    if (area->name.starts_with(part.name + "_")) return gauge.words.part(part.index);
  return {};
}

// "Mode selector: what it flies by" and, below it, "one position towards NAV", which is said of the
// area as "Mode selector: one position towards NAV".
Hint hint_of(const CockpitGauge& gauge, const HotArea& area) {
  std::string words = words_of(gauge, area);
  if (words.empty()) return {};
  const std::string_view control = words_of_control(gauge, index_of(gauge, area));
  const std::string heading(heading_of(control));
  const bool goes_on = words.starts_with(heading + ": ") || words.starts_with(heading + ", ");
  if (!goes_on || words == control) return {std::move(words), way_to_work(area)};
  return {std::string(control), words.substr(heading.size() + 2)};
}

std::string other_click(const CockpitGauge& gauge, const HotArea& right) {
  const std::string_view other = gauge.names.area_words(index_of(gauge, right));
  return other.empty() ? "" : "Right click: " + std::string(other);
}

// A refusal that names no button is of the one that an area answers first.
bool is_of(const Refusal& refusal, std::size_t index, const HotArea& area, std::uint32_t button) {
  const std::uint32_t first = area.flags & MOUSE_LEFT ? MOUSE_LEFT : MOUSE_RIGHT;
  const std::uint32_t wanted = refusal.click.button ? refusal.click.button : first;
  return refusal.click.area == index && wanted == button;
}

}  // namespace

std::string way_to_work(const HotArea& area) {
  if (area.flags & MOUSE_DRAG) return "Drag";
  if (!(area.flags & MOUSE_RIGHT)) return {};
  return area.flags & MOUSE_LEFT ? "Left and right click" : "Right click";
}

std::string words_of(const CockpitGauge& gauge, const HotArea& area) {
  const std::size_t index = index_of(gauge, area);
  if (const std::string_view text = gauge.words.area(index); !text.empty()) return std::string(text);
  if (const std::string_view own = gauge.areas.tooltip(area.box.middle()); !own.empty())
    return std::string(own);
  return std::string(gauge.names.area_words(index));
}

Hint hint_at(const CockpitGauge& gauge, const BitmapStore& bitmaps, PanelPoint point) {
  const HotArea* left = gauge.areas.at(point, MOUSE_LEFT);
  const HotArea* right = gauge.areas.at(point, MOUSE_RIGHT);
  if (left && right && left != right) return {words_of(gauge, *left), other_click(gauge, *right)};
  if (left || right) return hint_of(gauge, left ? *left : *right);
  if (const auto part = part_under(gauge, bitmaps, point))
    return {std::string(gauge.words.part(*part)), {}};
  return {std::string(gauge.areas.tooltip(point)), {}};
}

Hint refusal_at(const Cockpit& cockpit, const CockpitGauge& gauge, PanelPoint point,
                std::uint32_t button) {
  const HotArea* area = gauge.areas.at(point, button);
  if (!area) return {};
  for (const Refusal& refusal : gauge.words.refusals)
    if (is_of(refusal, index_of(gauge, *area), *area, button) && holds(refusal.lacking, cockpit))
      return {refusal.text, {}, true};
  return {};
}

}  // namespace host
