/// Autopilot mode panel (glareshield): selected speed, mode selector, altitude hold.
#include "gauges/autopilot/selected_figures.h"
#include "module/autopilot_modes.h"
#include "module/catalogue.h"
#include "module/controls.h"
#include "module/receivers.h"

namespace tarnvale {
namespace {

// ---- Selector

/// What the host is told, and what is let go of, when the selector comes to a mode.
struct Entry {
  u32 event;  ///< 0: none
  bool drops_heading_hold, drops_approach;
};

/// By the selector's position.
constexpr Entry entries[] = {
    {event::navigation_hold_off, false, false},  // manual
    {0, true, true},                             // turbulence
    {0, false, true},                            // heading
    {event::navigation_hold_on, true, false},    // localizer
    {event::navigation_hold_off, false, false},  // glide slope
    {event::navigation_hold_on, true, true},     // navigation
};

void enter(const Entry& entry) {
  if (entry.event != 0) send(entry.event);
  if (entry.drops_heading_hold) aircraft.ap_sel2_hold_on = 0;
  if (entry.drops_approach) aircraft.ap_sel3_arm_on = 0;
}

/// Without the autopilot the selector turns and nothing follows.
void turn_to(u32 mode) {
  aircraft.ap_mode_selector = mode;
  if (aircraft.ap_master_on == 1) enter(entries[mode]);
}

void selector_down() {
  if (aircraft.ap_mode_selector > autopilot_mode::manual) turn_to(aircraft.ap_mode_selector - 1);
  request(click_sound_request);
}

void selector_up() {
  if (aircraft.ap_mode_selector < autopilot_mode::navigation) turn_to(aircraft.ap_mode_selector + 1);
  request(click_sound_request);
}

/// On a localizer with the approach armed, the knob goes on to the glide slope by itself when it is
/// received. The host is told at every showing for as long as the station has one.
f64 mode_and_capture(Element*) {
  const u32 mode = aircraft.ap_mode_selector;
  if (!receives(receives_glide_slope)) return mode;
  const bool captured =
      full_glide_slope_signal() && mode == autopilot_mode::localizer && aircraft.ap_sel3_arm_on == 1;
  send(captured ? event::approach_hold_on : event::approach_hold_off);
  if (!captured) return mode;
  aircraft.ap_sel2_hold_on = 0;
  return autopilot_mode::glide_slope;
}

// ---- Altitude hold

void switch_altitude_hold() {
  flip(aircraft.ap_mode_button_on);
  send(aircraft.ap_mode_button_on == 1 ? event::altitude_hold_on : event::altitude_hold_off);
  request(toggle_click_sound_request);
}

constinit Body body{
    apmode,
    rows(selected_figures({"Selected speed hundreds", "Selected speed tens", "Selected speed units"},
                          token::selected_airspeed, {27, 16}, 9),
         icon("Altitude hold switch", bitmap::toggle_switch, {169, 7},
              mirrors<token::altitude_hold, &Aircraft::ap_mode_button_on>),
         icon("Mode selector", {14150, 6}, {89, 16}, mode_and_capture)),
    {
        click("Mode selector down", {73, 17, 26, 42}, does<selector_down>),
        click("Mode selector up", {119, 17, 26, 42}, does<selector_up>),
        click("Altitude hold switch", {166, 6, 19, 43}, does<switch_altitude_hold>),
        decrease("Selected speed knob down", {17, 52, 22, 32}, turns_by_one<event::selected_speed_down>,
                 Press::left_held),
        increase("Selected speed knob up", {42, 52, 22, 32}, turns_by_one<event::selected_speed_up>,
                 Press::left_held),
    },
};

}  // namespace

constinit Gauge apmode{{.name = "Apmode", .width_mm = 203, .background = 14140}, body};

}  // namespace tarnvale
