#include "host/app/start.h"

#include <stdexcept>

#include "host/simulation/places.h"

namespace host {
namespace {

// In the air one looks out of the window, not up.
void open_for_flying(const Cockpit& cockpit, std::vector<Input>& inputs) {
  for (const WindowConfig& window : cockpit.config().windows)
    if (window.drawn && cockpit.panels().shows(window.ident))
      inputs.emplace_back(input::CloseWindow{window.ident});
  inputs.emplace_back(input::OpenWindow{captains_panel});
}

}  // namespace

void begin(AircraftModel& aircraft, const StartOptions& options) {
  if (options.hours) aircraft.set_time_of_day(*options.hours * 3600.0);
  start_at(aircraft, options.at);
}

std::vector<Input> beginning(const Cockpit& cockpit, const FlyOptions& options) {
  std::vector<Input> inputs;
  for (std::uint32_t ident : options.open) {
    if (!cockpit.panels().find(ident))
      throw std::runtime_error("--open: there is no window " + std::to_string(ident));
    inputs.emplace_back(input::OpenWindow{ident});
  }
  const bool on_stand = options.start.at == "stand";
  if (!on_stand && options.open.empty()) open_for_flying(cockpit, inputs);
  if (on_stand && options.open.empty()) inputs.emplace_back(input::BeginWithStartPage{});
  if (options.start.hours) inputs.emplace_back(input::SetTimeOfDay{*options.start.hours});
  if (!on_stand) inputs.emplace_back(input::StartAt{options.start.at});
  return inputs;
}

}  // namespace host
