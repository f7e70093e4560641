#include "host/simulation/autopilot/flight_director.h"

namespace host::simulation {
namespace {

constexpr double usual_climb_fpm = 1500.0;

bool chosen_sideways(const AutopilotModes& modes) {
  return modes.engaged || modes.lateral != LateralMode::level;
}

bool chosen_up_and_down(const AutopilotModes& modes) {
  return modes.engaged || modes.approach || modes.altitude_hold;
}

LateralMode lateral_mode(const AutopilotModes& modes, const NavReceiver& nav) {
  if (chosen_sideways(modes)) return modes.lateral;
  return nav.localizer ? LateralMode::navigation : LateralMode::heading;
}

}  // namespace

void FlightDirector::start(const Sensed& sensed) {
  lateral.start(sensed);
  vertical.start(sensed);
}

void FlightDirector::update(double dt_s, AutopilotModes& modes, Selections& selections,
                            const Sensed& sensed) {
  lateral.update(dt_s, lateral_mode(modes, sensed.nav), sensed, selections.heading_bug_deg);
  if (chosen_up_and_down(modes) != chosen_up_and_down_) vertical.choose_again();
  chosen_up_and_down_ = chosen_up_and_down(modes);
  if (chosen_up_and_down_) {
    vertical.update(dt_s, modes, selections, sensed, lateral.on_course);
  } else {
    AutopilotModes usual = modes;
    usual.altitude_hold = usual.approach = true;
    Selections dialled = selections;
    dialled.vertical_speed_fpm = usual_climb_fpm;
    vertical.update(dt_s, usual, dialled, sensed, lateral.on_course && sensed.nav.localizer);
  }
  pitch_deg = vertical.pitch_rad * degrees_per_radian;
  bank_deg = lateral.bank_rad * degrees_per_radian;
}

}  // namespace host::simulation
