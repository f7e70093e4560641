/// What a person has moved since the last frame: the one way from hands to the aircraft.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

#include "host/simulation/flight/flight_controls.h"

namespace host {

/// The controls that hands and feet move; ranges and signs are those of FlightControls. Detents count
/// from 0, what is either so or so is 0 or 1.
enum class Control {
  elevator,
  aileron,
  rudder,
  pitch_trim,
  aileron_trim,
  rudder_trim,
  throttle_1,
  throttle_2,
  flaps,
  gear,
  speed_brake,
  lift_dumpers,
  brake_left,
  brake_right,
  tiller,
  parking_brake,
};
inline constexpr std::size_t control_count = 16;

struct ControlRow {
  Control control;
  std::string_view name;   ///< for files and flows
  std::string_view words;  ///< for a person
  double least, most;
};

const ControlRow& row_of(Control control);

/// New positions, in 4096ths so that a record can hold them to the bit. What has not been moved is
/// empty.
class FlightInputs {
 public:
  void set(Control control, double position);
  std::optional<double> get(Control control) const {
    return positions_[static_cast<std::size_t>(control)];
  }
  bool empty() const;
  bool operator==(const FlightInputs&) const = default;

 private:
  std::array<std::optional<double>, control_count> positions_;
};

double position_of(const simulation::FlightControls& controls, Control control);

/// Moves the controls that the inputs name and no others.
void apply(const FlightInputs& inputs, simulation::FlightControls& controls);

}  // namespace host
