#include "host/hands/flight_inputs.h"

#include <algorithm>
#include <cmath>

namespace host {
namespace {

using simulation::FlightControls;

constexpr double most_flaps = static_cast<double>(simulation::flap_detents_deg.size() - 1);

constexpr std::array<ControlRow, control_count> rows{{
    {Control::elevator, "elevator", "Elevator", -1, 1},
    {Control::aileron, "aileron", "Ailerons", -1, 1},
    {Control::rudder, "rudder", "Rudder", -1, 1},
    {Control::pitch_trim, "pitch_trim", "Pitch trim", -1, 1},
    {Control::aileron_trim, "aileron_trim", "Aileron trim", -1, 1},
    {Control::rudder_trim, "rudder_trim", "Rudder trim", -1, 1},
    {Control::throttle_1, "throttle_1", "Throttle 1", 0, 1},
    {Control::throttle_2, "throttle_2", "Throttle 2", 0, 1},
    {Control::flaps, "flaps", "Flap lever", 0, most_flaps},
    {Control::gear, "gear", "Gear lever", 0, 1},
    {Control::speed_brake, "speed_brake", "Speed brake", 0, 1},
    {Control::lift_dumpers, "lift_dumpers", "Lift dumpers", 0, 1},
    {Control::brake_left, "brake_left", "Left brake", 0, 1},
    {Control::brake_right, "brake_right", "Right brake", 0, 1},
    {Control::tiller, "tiller", "Tiller", -1, 1},
    {Control::parking_brake, "parking_brake", "Parking brake", 0, 1},
}};

// The ratio behind a control; null for levers that have places.
template <typename Controls>
auto ratio_of(Controls& c, Control control) -> decltype(&c.elevator) {
  switch (control) {
    case Control::elevator: return &c.elevator;
    case Control::aileron: return &c.aileron;
    case Control::rudder: return &c.rudder;
    case Control::pitch_trim: return &c.pitch_trim;
    case Control::aileron_trim: return &c.aileron_trim;
    case Control::rudder_trim: return &c.rudder_trim;
    case Control::throttle_1: return &c.throttle[0];
    case Control::throttle_2: return &c.throttle[1];
    case Control::speed_brake: return &c.speed_brake;
    case Control::brake_left: return &c.brake[0];
    case Control::brake_right: return &c.brake[1];
    case Control::tiller: return &c.tiller;
    default: return nullptr;
  }
}

void move(FlightControls& c, Control control, double position) {
  if (double* ratio = ratio_of(c, control)) {
    *ratio = position;
    return;
  }
  const bool on = position >= 0.5;
  if (control == Control::flaps) c.flap_detent = static_cast<std::size_t>(std::lround(position));
  if (control == Control::gear) c.gear_down = on;
  if (control == Control::lift_dumpers) c.lift_dumpers_out = on;
  if (control == Control::parking_brake) c.parking_brake_set = on;
}

}  // namespace

const ControlRow& row_of(Control control) { return rows[static_cast<std::size_t>(control)]; }

void FlightInputs::set(Control control, double position) {
  const ControlRow& row = row_of(control);
  const double within = position == position ? std::clamp(position, row.least, row.most) : 0.0;
  positions_[static_cast<std::size_t>(control)] = std::round(within * 4096.0) / 4096.0;
}

bool FlightInputs::empty() const {
  return std::ranges::none_of(positions_, [](const auto& position) { return position.has_value(); });
}

double position_of(const FlightControls& c, Control control) {
  if (const double* ratio = ratio_of(c, control)) return *ratio;
  switch (control) {
    case Control::flaps: return static_cast<double>(c.flap_detent);
    case Control::gear: return c.gear_down;
    case Control::lift_dumpers: return c.lift_dumpers_out;
    default: return c.parking_brake_set;
  }
}

void apply(const FlightInputs& inputs, FlightControls& controls) {
  for (const ControlRow& row : rows)
    if (const auto position = inputs.get(row.control)) move(controls, row.control, *position);
}

}  // namespace host
