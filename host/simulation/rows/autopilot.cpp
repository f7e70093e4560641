#include "host/simulation/aircraft.h"
#include "host/simulation/table.h"

namespace host::simulation {
namespace {

template <bool AutopilotModes::*mode>
double engaged(const Aircraft& aircraft) {
  return on_off(aircraft.autopilot.*mode);
}

template <bool AutopilotModes::*mode>
void toggle(Aircraft& aircraft, std::uint32_t) {
  aircraft.autopilot.*mode = !(aircraft.autopilot.*mode);
}

/// Puts one mode on or off.
template <void (AutopilotModes::*hold)(bool), bool on>
void put(Aircraft& aircraft, std::uint32_t) {
  (aircraft.autopilot.*hold)(on);
}

template <bool on>
void put_altitude_hold(Aircraft& aircraft, std::uint32_t) {
  aircraft.autopilot.altitude_hold = on;
}

template <bool on>
void put_approach(Aircraft& aircraft, std::uint32_t) {
  const NavReceiver& nav = aircraft.nav[0];
  aircraft.autopilot.hold_approach(on, nav.localizer && nav.glide_slope);
}

/// One click of a knob.
template <void (Selections::*turn)(double), int by>
void click(Aircraft& aircraft, std::uint32_t) {
  (aircraft.selections.*turn)(by);
}

constexpr TokenRow tokens[] = {
    {{103, "autopilot", "0/1"}, engaged<&AutopilotModes::engaged>},
    {{106, "heading_hold", "0/1"},
     [](const Aircraft& a) { return on_off(a.autopilot.lateral == LateralMode::heading); }},
    {{107, "heading_bug", "degrees magnetic"},
     [](const Aircraft& a) { return a.selections.heading_bug_deg; }},
    {{108, "altitude_hold", "0/1"}, engaged<&AutopilotModes::altitude_hold>},
    {{109, "selected_altitude", "feet"}, [](const Aircraft& a) { return a.selections.altitude_ft; }},
    {{116, "selected_airspeed", "knots"}, [](const Aircraft& a) { return a.selections.airspeed_kt; }},
    {{120, "selected_vertical_speed", "feet/minute"},
     [](const Aircraft& a) { return a.selections.vertical_speed_fpm; }},
};

constexpr EventRow events[] = {
    {{0x1002C, "autopilot_toggle", ""}, toggle<&AutopilotModes::engaged>},
    {{0x10101, "yaw_damper_toggle", ""}, toggle<&AutopilotModes::yaw_damper_on>},
    {{0x1010D, "approach_arm_on", ""}, put<&AutopilotModes::arm_approach, true>},
    {{0x10115, "approach_arm_off", ""}, put<&AutopilotModes::arm_approach, false>},
    {{0x1010E, "approach_hold_on", ""}, put_approach<true>},
    {{0x10116, "approach_hold_off", ""}, put_approach<false>},
    {{0x1010F, "heading_hold_on", ""}, put<&AutopilotModes::hold_heading, true>},
    {{0x10117, "heading_hold_off", ""}, put<&AutopilotModes::hold_heading, false>},
    {{0x10110, "altitude_hold_on", ""}, put_altitude_hold<true>},
    {{0x10118, "altitude_hold_off", ""}, put_altitude_hold<false>},
    {{0x10113, "navigation_hold_on", ""}, put<&AutopilotModes::hold_navigation, true>},
    {{0x1011B, "navigation_hold_off", ""}, put<&AutopilotModes::hold_navigation, false>},
    {{0x10144, "autothrottle_arm_toggle", ""},
     [](Aircraft& a, std::uint32_t) { a.autopilot.toggle_autothrottle(); }},
    {{0x1022D, "airspeed_hold_on", ""}, put<&AutopilotModes::hold_airspeed, true>},
    {{0x1022E, "airspeed_hold_off", ""}, put<&AutopilotModes::hold_airspeed, false>},
    {{0x10157, "heading_bug_up", ""}, click<&Selections::turn_heading, 1>},
    {{0x10158, "heading_bug_down", ""}, click<&Selections::turn_heading, -1>},
    {{0x10164, "selected_altitude_up", ""}, click<&Selections::turn_altitude, 100>},
    {{0x10165, "selected_altitude_down", ""}, click<&Selections::turn_altitude, -100>},
    {{0x10166, "selected_vertical_speed_up", ""}, click<&Selections::turn_vertical_speed, 100>},
    {{0x10167, "selected_vertical_speed_down", ""}, click<&Selections::turn_vertical_speed, -100>},
    {{0x10168, "selected_speed_up", ""}, click<&Selections::turn_airspeed, 1>},
    {{0x10169, "selected_speed_down", ""}, click<&Selections::turn_airspeed, -1>},
    {{0x10355, "cabin_door_toggle", ""},
     [](Aircraft& a, std::uint32_t) { a.cabin_door_open = !a.cabin_door_open; }},
};

}  // namespace

constinit const SystemRows autopilot_rows{tokens, events};

}  // namespace host::simulation
