#include <algorithm>
#include <cmath>

#include "host/simulation/aircraft.h"
#include "host/simulation/table.h"

namespace host::simulation {
namespace {

constexpr double parking_brake_full = 32767.0;
constexpr double control_full = 16384.0;
constexpr double gear_down = 16383.0;

/// 256 to a metre a second, so that 1 ft/min is 1.30048.
constexpr double climb_units_per_fpm = 256.0 / feet_per_minute_per_mps;

// The attitude's signs are those in which a horizon moves: its picture goes down when the nose goes up,
// and turns left when the aircraft banks right. The bank pointer turns with it.
double nose_down_deg(const Aircraft& aircraft) {
  return 0.0 - aircraft.flight.attitude.pitch_rad * degrees_per_radian;
}
double left_bank_deg(const Aircraft& aircraft) {
  return 0.0 - aircraft.flight.attitude.bank_rad * degrees_per_radian;
}

// A ball rolls to where the cabin's weight is felt: 2 pixels a degree, 15 at the ends of the tube.
double slip_ball_pixels(const Aircraft& aircraft) {
  const Vector& felt = aircraft.flight.specific_force_mps2;
  const double lean_deg = std::atan2(-felt.y, std::max(-felt.z, 1.0)) * degrees_per_radian;
  return std::clamp(2.0 * lean_deg, -15.0, 15.0);
}

constexpr TokenRow tokens[] = {
    {{60, "on_ground", "0/1"}, [](const Aircraft& a) { return on_off(a.flight.on_ground); }},
    {{65, "vertical_speed", "1/256 metres/second"},
     [](const Aircraft& a) { return climb_units_per_fpm * a.flight.vertical_speed_fpm; }},
    {{69, "slip_ball", "pixels, right positive"}, slip_ball_pixels},
    {{77, "pitch", "degrees, down positive"}, nose_down_deg},
    {{78, "attitude_pitch", "degrees, up positive"},
     [](const Aircraft& a) { return -nose_down_deg(a); }},
    {{79, "bank_pointer", "degrees, left positive"}, left_bank_deg},
    {{80, "attitude_bank", "degrees, left positive"}, left_bank_deg},
    {{81, "heading", "degrees magnetic"},
     [](const Aircraft& a) { return magnetic_heading_deg(a.flight); }},
    {{128, "throttle_1", "0..16384"},
     [](const Aircraft& a) { return control_full * std::clamp(a.controls.throttle[0], 0.0, 1.0); }},
    {{323, "parking_brake", "0 released, 32767 set"},
     [](const Aircraft& a) { return a.controls.parking_brake_set ? parking_brake_full : 0.0; }},
    {{328, "flap_position", "0..16384"},
     [](const Aircraft& a) { return control_full * a.airframe.surfaces.flap_deg / full_flap_deg; }},
    {{332, "nose_gear_position", "0..16383"},
     [](const Aircraft& a) { return gear_down * a.airframe.surfaces.gear[0]; }},
    {{614, "radio_altitude", "metres"},
     [](const Aircraft& a) { return a.flight.height_ft * metres_per_foot; }},
};

constexpr EventRow events[] = {
    {{0x100D8, "parking_brake_toggle", ""},
     [](Aircraft& a, std::uint32_t) { a.controls.parking_brake_set = !a.controls.parking_brake_set; }},
};

}  // namespace

constinit const SystemRows flight_rows{tokens, events};

}  // namespace host::simulation
