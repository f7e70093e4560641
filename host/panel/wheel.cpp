#include "host/panel/wheel.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "host/panel/pointer.h"

namespace host {
namespace {

const WheelTurn* turn_of(const CockpitGauge& gauge, const HotArea& area) {
  const auto index = static_cast<std::size_t>(&area - gauge.areas.areas().data());
  const auto turns_it = [&](const WheelTurn& turn) {
    return std::ranges::count(turn.areas, index) > 0;
  };
  const auto found = std::ranges::find_if(gauge.words.turns, turns_it);
  return found == gauge.words.turns.end() ? nullptr : &*found;
}

const HotArea* area_under(const CockpitGauge& gauge, PanelPoint point) {
  return gauge.areas.at(point, MOUSE_LEFT | MOUSE_RIGHT);
}

void click(const CockpitGauge& gauge, std::size_t index, std::uint32_t button) {
  const HotArea& area = gauge.areas.areas()[index];
  area.fire(area.box.middle(), button);
}

void click_notches(const CockpitGauge& gauge, const WheelTurn& turn, int notches) {
  const std::optional<AreaClick>& each = notches > 0 ? turn.up : turn.down;
  if (!each) return;
  for (int i = 0; i < std::abs(notches); ++i) click(gauge, each->area, each->button);
}

// The stop that its part shows; none while it shows something else.
std::optional<std::size_t> present_stop(const CockpitGauge& gauge, const WheelTurn& turn) {
  const ElementState* state = gauge.run.showing(turn.part);
  if (!state) return std::nullopt;
  const auto found = std::ranges::find_if(
      turn.stops, [&](const WheelStop& stop) { return stop.image == std::trunc(state->values[0]); });
  if (found == turn.stops.end()) return std::nullopt;
  return static_cast<std::size_t>(found - turn.stops.begin());
}

// One area for all stops goes round with every click.
void go_to_stop(const CockpitGauge& gauge, const WheelTurn& turn, std::size_t from, std::size_t to) {
  const auto& stops = turn.stops;
  const bool round = std::ranges::all_of(
      stops, [&](const WheelStop& stop) { return stop.area == stops.front().area; });
  const std::size_t clicks = round ? (to + stops.size() - from) % stops.size() : from != to;
  for (std::size_t i = 0; i < clicks; ++i) click(gauge, stops[to].area, MOUSE_LEFT);
}

void turn_to_stop(const CockpitGauge& gauge, const WheelTurn& turn, int notches) {
  const auto from = present_stop(gauge, turn);
  if (!from) return;
  const auto last = static_cast<std::int64_t>(turn.stops.size()) - 1;
  const auto wanted = static_cast<std::int64_t>(*from) + notches;
  go_to_stop(gauge, turn, *from, static_cast<std::size_t>(std::clamp<std::int64_t>(wanted, 0, last)));
}

}  // namespace

bool turn_wheel(const CockpitGauge& gauge, PanelPoint point, int notches) {
  const HotArea* area = area_under(gauge, point);
  const WheelTurn* turn = area && notches != 0 ? turn_of(gauge, *area) : nullptr;
  if (!turn) return Pointer::wheel(gauge.areas, point, notches);
  turn->stops.empty() ? click_notches(gauge, *turn, notches) : turn_to_stop(gauge, *turn, notches);
  return true;
}

bool takes_wheel(const CockpitGauge& gauge, const HotArea& area) {
  return turn_of(gauge, area) || gauge.areas.wheel(area.box.middle(), true);
}

}  // namespace host
