/// Master warning and caution (glareshield). The warning calls the ground crew when the brake is
/// released with the ground unit still connected.
#include "module/catalogue.h"
#include "module/systems.h"

namespace tarnvale {
namespace {

/// The parking brake's token from which on the brake counts as set.
constexpr f64 brake_set = 30000;

bool free_to_roll_on_ground_power() {
  return aircraft.ground_power_connected == 1 && read(token::parking_brake) < brake_set;
}

bool held_on_ground_power() {
  return aircraft.ground_power_connected == 1 && read(token::parking_brake) >= brake_set;
}

f64 warning(Element*) {
  if (no_engine_runs()) return 1;
  if (free_to_roll_on_ground_power()) {
    request(gndwarn_sound_request);
    return 1;
  }
  if (held_on_ground_power()) withdraw(gndwarn_sound_request);
  return aircraft.adi_flag_test_active == 1;
}

f64 caution(Element*) {
  const bool no_start_armed = aircraft.eng1_start_switch == 0 && aircraft.eng2_start_switch == 0;
  return read(token::total_fuel) < low_fuel_gallons || free_to_roll_on_ground_power() ||
         aircraft.adi_flag_test_active == 1 || no_start_armed;
}

constinit Body body{
    masterwarn,
    {
        lamp("Caution light", 24040, {30, 3}, caution).flags(image_flag::transparent),
        lamp("Warning light", 24030, {4, 3}, warning).flags(image_flag::transparent),
    },
};

}  // namespace

constinit Gauge masterwarn{{.name = "Masterwarn", .width_mm = 58, .background = 24020}, body};

}  // namespace tarnvale
