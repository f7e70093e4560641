/// The brake section of the left throttle pedestal: the brake-control switch with its test, and two
/// pairs of dials for brake and accumulator pressures.
#pragma once

#include "module/catalogue.h"
#include "module/controls.h"
#include "module/holds.h"

namespace tarnvale {

/// The switch, and its test on a standing aircraft with the parking brake released.
struct BrakePanel {
  u32& switch_on;
  u32 test_active = 0;
  HoldClock clock{};
};

constexpr bool may_test(f64 parking_brake, f64 speed_kt) {
  constexpr f64 standing_kt = 20.0;
  return parking_brake == 0.0 && speed_kt < standing_kt;
}

/// The left button switches, the right one tests what is switched on.
template <auto panel>
void work_brake_control(u32 mouse_flags) {
  if (is_left(mouse_flags)) {
    flip(panel->switch_on);
    send(event::brake_control_toggle);
  }
  if (is_right(mouse_flags) && panel->switch_on == 1 &&
      may_test(read(token::parking_brake), read(token::indicated_airspeed))) {
    start_hold(panel->clock, panel->test_active);
  }
  request(toggle_click_sound_request);
}

template <auto panel>
f64 brake_control_image(Element*) {
  return hold_goes_on(panel->clock, panel->test_active) ? 1 : panel->switch_on;
}

template <auto panel>
f64 brake_test_light(Element*) {
  return hold_goes_on(panel->clock, panel->test_active);
}

/// A brake's pressure as its sensor reports it, in steps: released, applied, hard; the test shows its
/// own.
template <auto panel, u32 brake, u32 released>
f64 brake_pressure(Element*) {
  constexpr f64 applied_from = 10000, hard_from = 30000;
  constexpr u32 tested = 120, applied = 200, hard = 220;
  if (aircraft.dc_power_on == 0) return 0;
  if (panel->test_active == 1) return tested;
  const f64 at = read(brake);
  if (at >= hard_from) return hard;
  return at >= applied_from ? applied : released;
}

/// Accumulators hold their charge; the sensors need DC.
inline f64 accumulator_pressure(Element*) { return aircraft.dc_power_on == 1 ? 3200 : 0; }

inline constexpr i32 accumulator_needle = 10320, brake_needle = 4040;
inline constexpr PanelPoint accumulator_pivot{6, 5}, brake_pivot{1, 1};

namespace brake_scale {
inline constexpr Scale<2> lower_accumulator{{{129, 127}, 0}, {{182, 126}, 4000}};
inline constexpr Scale<2> lower_right{{{101, 131}, 0}, {{97, 90}, 300}};
inline constexpr Scale<2> lower_left{{{55, 131}, 0}, {{59, 90}, 300}};
inline constexpr Scale<2> upper_accumulator{{{135, 52}, 0}, {{188, 52}, 4000}};
inline constexpr Scale<2> upper_right{{{108, 54}, 0}, {{103, 13}, 300}};
inline constexpr Scale<2> upper_left{{{61, 54}, 0}, {{65, 13}, 300}};
}  // namespace brake_scale

template <auto panel>
constexpr Rows<9> brake_rows() {
  constexpr u32 released_upper = 160, released_lower = 150;
  constexpr u32 left = token::left_brake, right = token::right_brake;
  return {
      lighting_overlay(4240),
      icon("Brake control switch", bitmap::toggle_switch, {208, 115}, brake_control_image<panel>),
      lamp("Brake test light", bitmap::test_lamp, {234, 52}, brake_test_light<panel>),
      needle("Lower accumulator pressure", accumulator_needle, {156, 111}, accumulator_pivot,
             brake_scale::lower_accumulator, accumulator_pressure),
      // The scales of right brakes run counterclockwise.
      needle("Lower right brake pressure", brake_needle, {84, 112}, brake_pivot,
             brake_scale::lower_right, brake_pressure<panel, right, released_lower>)
          .shorter_way(),
      needle("Lower left brake pressure", brake_needle, {72, 112}, brake_pivot, brake_scale::lower_left,
             brake_pressure<panel, left, released_lower>),
      needle("Upper accumulator pressure", accumulator_needle, {162, 36}, accumulator_pivot,
             brake_scale::upper_accumulator, accumulator_pressure),
      needle("Upper right brake pressure", brake_needle, {89, 34}, brake_pivot,
             brake_scale::upper_right, brake_pressure<panel, right, released_upper>)
          .shorter_way(),
      needle("Upper left brake pressure", brake_needle, {81, 34}, brake_pivot, brake_scale::upper_left,
             brake_pressure<panel, left, released_upper>),
  };
}

template <auto panel>
constexpr Area brake_control_area() {
  return click("Brake control switch", {203, 112, 22, 46}, does<work_brake_control<panel>>,
               Press::either);
}

}  // namespace tarnvale
