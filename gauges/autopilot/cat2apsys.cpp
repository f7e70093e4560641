/// Category II approach panel (glareshield): a column of lamps for each pilot with what is armed
/// (amber) and captured (green), the watch over speed and altitude below, and buttons that test all of
/// it.
#include "module/autopilot_modes.h"
#include "module/catalogue.h"
#include "module/controls.h"
#include "module/holds.h"
#include "module/receivers.h"

namespace tarnvale {
namespace {

constexpr f64 dark = 0, armed = 1, captured = 2;
constexpr f64 out_of_limits = 1, within_limits = 2;

// ---- Tests

constinit HoldClock lamp_clock;  ///< of both lamp tests
constinit u32 green_test = 0, amber_test = 0;
constinit HoldClock speed_clock;

/// Both lamp tests at once show amber, except in the arm and speed lamps.
template <f64 (*shown)()>
f64 tested(Element*) {
  if (hold_goes_on(lamp_clock, amber_test)) return 1;
  return green_test == 1 ? 2 : shown();
}

// ---- Approach

bool approach_armed() { return aircraft.ap_sel3_arm_on == 1; }

/// What a beam's lamp says while the approach is armed in the right mode.
f64 beam(u32 received) {
  if (!receives(received)) return dark;
  return full_glide_slope_signal() ? captured : armed;
}

bool slope_wanted() {
  return aircraft.ap_mode_selector >= autopilot_mode::localizer && approach_armed();
}

f64 arm(Element*) {
  if (hold_goes_on(lamp_clock, green_test)) return 1;
  return slope_wanted() && beam(receives_glide_slope) == captured;
}

f64 localizer() {
  const bool wanted = aircraft.ap_mode_selector == autopilot_mode::localizer && approach_armed();
  return wanted ? beam(receives_localizer) : dark;
}

f64 glide_slope() { return slope_wanted() ? beam(receives_glide_slope) : dark; }

// ---- Speed and altitude

f64 watched_speed() {
  constexpr f64 most_off = 10;  // knots
  if (aircraft.apset_button_a_on != 1 || aircraft.apset_button_b_on != 1) return dark;
  const f64 speed = read(token::indicated_airspeed), selected = read(token::selected_airspeed);
  return speed < selected - most_off || speed > selected + most_off ? out_of_limits : within_limits;
}

/// Its own test warns only with the flaps up.
f64 speed(Element*) {
  hold_goes_on(speed_clock, aircraft.cat2_speed_test_active);
  if (hold_goes_on(lamp_clock, green_test)) return within_limits;
  if (amber_test == 1) return out_of_limits;
  if (aircraft.cat2_speed_test_active == 1)
    return read(token::flap_position) == 0 ? out_of_limits : dark;
  return watched_speed();
}

f64 altitude() {
  constexpr f64 most_off = 250;  // feet
  if (aircraft.ap_mode_button_on != 1) return dark;
  const f64 at = read(token::indicated_altitude), selected = read(token::selected_altitude);
  return selected - most_off < at && at < selected + most_off ? within_limits : out_of_limits;
}

constexpr Bitmaps arm_lens{14250, 2}, localizer_lens{14260, 3}, slope_lens{14270, 3};
constexpr i32 left = 15, right = 52;

constinit Body body{
    cat2apsys,
    {
        lamp("Left arm lamp", arm_lens, {left, 3}, arm),
        lamp("Right arm lamp", arm_lens, {right, 3}, arm),
        lamp("Left localizer lamp", localizer_lens, {left, 21}, tested<localizer>),
        lamp("Right localizer lamp", localizer_lens, {right, 21}, tested<localizer>),
        lamp("Left glide slope lamp", slope_lens, {left, 38}, tested<glide_slope>),
        lamp("Right glide slope lamp", slope_lens, {right, 38}, tested<glide_slope>),
        lamp("Speed lamp", {14280, 3}, {left, 56}, speed),
        lamp("Altitude lamp", {14290, 3}, {right, 56}, tested<altitude>),
    },
    {
        click("Green test button", {3, 66, 12, 14}, tests<&lamp_clock, &green_test>),
        click("Amber test button", {89, 65, 12, 14}, tests<&lamp_clock, &amber_test>),
        click("Speed lamp test", {16, 57, 33, 15},
              tests<&speed_clock, &Aircraft::cat2_speed_test_active>),
    },
};

}  // namespace

constinit Gauge cat2apsys{{.name = "Cat2apsys", .width_mm = 104, .background = 14240}, body};

}  // namespace tarnvale
