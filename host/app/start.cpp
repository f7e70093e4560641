#include "host/app/start.h"

#include <algorithm>

#include "host/inputs/crew.h"
#include "host/simulation/places.h"

namespace host {
namespace {

bool anything_open(const Desk& desk) {
  return std::ranges::any_of(desk.panels, [](const auto& panel) { return panel.second.open; });
}

void open_panels(const Cockpit& cockpit, const Desk& desk, std::vector<Input>& inputs) {
  for (const WindowConfig& window : cockpit.config().windows)
    if (window.drawn && cockpit.panels().shows(window.ident))
      inputs.emplace_back(input::CloseWindow{window.ident});
  for (const auto& [ident, panel] : desk.panels)
    if (panel.open && cockpit.panels().find(ident)) inputs.emplace_back(input::OpenWindow{ident});
}

}  // namespace

void begin(AircraftModel& aircraft, const StartOptions& options) {
  if (options.hours) aircraft.set_time_of_day(*options.hours * 3600.0);
  start_at(aircraft, options.at);
}

void begin(Cockpit& cockpit, const StartOptions& options) {
  if (options.hours) cockpit.aircraft().set_time_of_day(*options.hours * 3600.0);
  start_at(cockpit, options.at);
}

std::vector<Input> beginning(const Cockpit& cockpit, const StartOptions& start, const Desk& desk) {
  std::vector<Input> inputs;
  const bool on_stand = start.at == "stand";
  if (on_stand) inputs.emplace_back(input::BeginWithStartPage{});
  if (anything_open(desk)) open_panels(cockpit, desk, inputs);
  if (start.hours) inputs.emplace_back(input::SetTimeOfDay{*start.hours});
  if (!on_stand) inputs.emplace_back(input::StartAt{start.at});
  return inputs;
}

}  // namespace host
