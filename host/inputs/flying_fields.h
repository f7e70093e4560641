/// The names by which hands, weather and places are told: elevator = 0.1, wind_from = 340.
#pragma once

#include <span>
#include <vector>

#include "host/inputs/named_value.h"
#include "host/simulation/flight/air_data.h"
#include "host/simulation/flight/flight_controls.h"
#include "host/simulation/placement.h"

namespace host {

using NamedValues = std::vector<NamedValue>;

/// The record with what is named taken into it; all else stays as it is. Throw std::invalid_argument
/// for a name that is not known or a value out of its range.
simulation::FlightControls with_controls(const simulation::FlightControls& controls,
                                         std::span<const NamedValue> moved);
simulation::Weather with_weather(const simulation::Weather& weather,
                                 std::span<const NamedValue> changed);
simulation::InFlight place_of(std::span<const NamedValue> told);

/// Where every control stands, as with_controls() takes it.
NamedValues positions_of(const simulation::FlightControls& controls);

/// What is to be moved for the controls to stand as `to`.
NamedValues moves_between(const simulation::FlightControls& from, const simulation::FlightControls& to);

}  // namespace host
