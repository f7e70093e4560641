/// Attitude director indicator (main panel): the horizon with flight-director bars, glide slope,
/// rising runway, speed deviation, slip and the decision-height light; its flag can be tested.
#include "gauges/instruments/glide_slope.h"
#include "gauges/instruments/horizon.h"
#include "module/catalogue.h"
#include "module/controls.h"
#include "module/holds.h"
#include "module/systems.h"

namespace tarnvale {
namespace {

constinit HoldClock test_clock;

/// What the bars and the speed pointer go by, read before the values are taken and again before the
/// gauge is drawn.
struct Readings {
  f64 pitch, bank, flight_director, airspeed, selected_airspeed;
};
constinit Readings readings{};

void take_readings() {
  readings = {.pitch = read(token::pitch),
              .bank = read(token::attitude_bank),
              .flight_director = read(token::flight_director),
              .airspeed = read(token::indicated_airspeed),
              .selected_airspeed = read(token::selected_airspeed)};
}

/// In view without a running engine, and for a test.
f64 attitude_flag(Element*) {
  if (no_engine_runs()) return 1;
  return hold_goes_on(test_clock, aircraft.adi_flag_test_active);
}

void press_flag_test() {
  start_hold(test_clock, aircraft.adi_flag_test_active);
  request(click_sound_request);
}

f64 pitch_bar(Element* bar) {
  show_picture(*bar, readings.flight_director > 0);
  return limited(readings.pitch - bar->slider.y_source.value, -22, 22) * 2 / 3;
}

f64 bank_bar(Element* bar) {
  show_picture(*bar, readings.flight_director > 0);
  return limited(readings.bank - bar->slider.x_source.value, -15, 15);
}

/// The runway symbol lies to the side of the localizer, full to one side for each test position.
f64 runway_sideways(Element*) {
  if (aircraft.nav_test_switch == up) return 100;
  if (aircraft.nav_test_switch == down) return -100;
  return receives(receives_localizer) ? -read(token::localizer_deviation) : 0;
}

/// The runway comes into view at 75 metres and rises over the last 27.
f64 runway_rising(Element* symbol) {
  constexpr f64 in_view = 75, rising = 27;
  const f64 height = read(token::radio_altitude);
  show_picture(*symbol, !(height > in_view));
  return height <= rising ? rising - height : 0;
}

/// Points down when slow, by the speed that is missing.
f64 speed_deviation(Element* pointer) {
  show_picture(*pointer, true);
  return limited(readings.selected_airspeed - readings.airspeed, -12, 12);
}

f64 decision_height_light(Element*) {
  return aircraft.dh_light_on == 1 || aircraft.radalt_test_active == 1 ? 0 : -1;
}

f64 ball(Element* slider) { return limited(slider->slider.x_source.value, -15, 15); }

constexpr u32 starts_hidden = image_flag::transparent | IMAGE_HIDE_PICTURE;

constinit Body body{
    adi,
    rows(lighting_overlay(12170),
         all_failing_with(
             failure::attitude,
             {
                 lamp("Attitude flag", 12160, {68, 7}, attitude_flag),
                 sprite("Horizon", 12020, {0, 0}, {93, 120}, horizon_motion(2)),
                 slider("Flight director pitch bar", 12150, {66, 119},
                        {.x = {}, .y = {token::flight_director_pitch, pitch_bar, -2}})
                     .flags(starts_hidden),
                 slider("Flight director bank bar", 12140, {92, 83},
                        {.x = {token::flight_director_bank, bank_bar, 1.4}, .y = {}})
                     .flags(starts_hidden),
                 slider("Glide slope pointer", 12060, {160, 117},
                        {.x = {}, .y = {token::glide_slope_deviation, glide_slope_pointer, 0.22}}),
                 slider("Runway symbol", 12050, {87, 165}, {.x = {0, runway_sideways, -0.2}, .y = {}}),
                 slider("Rising runway", 12030, {81, 158}, {.x = {}, .y = {0, runway_rising, -0.921}})
                     .flags(starts_hidden),
                 icon("Glide slope flag", {12070, 1}, {159, 92}, glide_slope_flag),
                 needle("Bank pointer", 12080, {93, 120}, {3, 57})
                     .from(token::bank_pointer)
                     .flags(image_flag::transparent),
                 slider("Speed deviation pointer", 12090, {18, 118},
                        {.x = {}, .y = {0, speed_deviation, 1.2}})
                     .flags(starts_hidden),
                 lamp("Decision height light", {12040, 1}, {158, 50}, decision_height_light)
                     .from(token::marker_beacon),
                 slider("Slip ball", 12130, {88, 200}, {.x = {token::slip_ball, ball, 1}, .y = {}}),
                 icon("Slip ball lighting", 12120, {67, 197}, lit_at<&Aircraft::panel_lights_on>),
                 icon("Slip ball tube", {12110, 1}, {67, 197}).lit_flags(image_flag::transparent),
             })),
    {
        click("Attitude flag button", {67, 6, 50, 16}, does<press_flag_test>),
    },
};

}  // namespace

constinit Gauge adi{{.name = "Adi",
                     .width_mm = 183,
                     .background = 12010,
                     .services = {.tick = take_readings, .before_draw = take_readings}},
                    body};

}  // namespace tarnvale
