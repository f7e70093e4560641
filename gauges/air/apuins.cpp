/// APU instrument (overhead): temperature above, speed below. Both are made up here, as is what the
/// other panels know of the APU's speed.
#include "module/catalogue.h"
#include "module/counters.h"
#include "module/variables.h"

namespace tarnvale {
namespace {

constexpr u32 rest = 10, full_scale = 1500;

constinit u32 speed = rest;
constinit u32 temperature = rest;
constinit u32 cooling_frames;

/// The other panels watch the APU only while it runs, and a speed right at a threshold leaves them as
/// they were.
void report_speed() {
  constexpr u32 self_sustaining = 1000, bleed_air = 1200;
  if (speed < bleed_air) aircraft.apu_at_speed = 0;
  if (speed > bleed_air) aircraft.apu_at_speed = 1;
  if (speed < self_sustaining) aircraft.apu_speed_above_1000 = 0;
  if (speed > self_sustaining) aircraft.apu_speed_above_1000 = 1;
}

/// Two steps a frame up to the governed speed, which the second one passes by one; a loaded generator
/// is governed a little higher. With the generator switched down nothing governs the APU: it runs up
/// by single steps, past the end of its scale. Stopped, it runs down by single steps.
void turn() {
  constexpr u32 governed = 1250, governed_on_line = 1300;
  if (aircraft.apu_running == 1 && aircraft.apu_master_switch == 1) {
    if (aircraft.apu_gen_switch == centre) speed = raised(speed, governed);
    if (aircraft.apu_gen_switch == up) speed = raised(speed, governed_on_line);
    ++speed;
  }
  if (aircraft.apu_running == 0) --speed;
}

f64 show_speed(Element*) {
  speed = held(speed, rest, full_scale);
  if (aircraft.apu_master_switch == 0) speed = rest;
  turn();
  if (aircraft.apu_running == 1) report_speed();
  if (aircraft.dc_power_on == 0) speed = rest;
  return speed;
}

/// Above this speed hot gas passes the probe, also on the way down after a stop.
constexpr u32 burning = 200;

void heat() {
  constexpr u32 idling = 1200, on_line = 1280;
  if (aircraft.apu_gen_switch == centre) {
    temperature = raised(temperature, idling);
  } else if (aircraft.apu_gen_switch == up) {
    temperature = raised(temperature, on_line);
  } else {
    ++temperature;
  }
}

/// A stopped APU that has run down cools slowly: one step every fourth frame, so that a hot one takes
/// four to five minutes to come back to rest.
void cool() {
  constexpr u32 frames_a_step = 4;
  if (++cooling_frames % frames_a_step == 0) temperature = lowered(temperature, rest);
}

f64 show_temperature(Element*) {
  temperature = held(temperature, rest, full_scale);
  if (aircraft.apu_master_switch == 0) temperature = rest;
  if (speed > burning) {
    heat();
  } else if (aircraft.apu_running == 0) {
    cool();
  }
  if (aircraft.dc_power_on == 0) temperature = rest;
  return temperature;
}

constexpr PanelPoint pivot{7, 2};
constexpr Scale<7> speed_scale{{{14, 139}, 0},         {{13, 137}, 10},   {{27, 89}, 1000},
                               {{67, 108}, 1200},      {{69, 118}, 1300}, {{68, 128}, 1400},
                               {{57, 144}, full_scale}};
constexpr Scale<6> temperature_scale{{{15, 60}, 0},    {{13, 58}, 10},   {{8, 30}, 400},
                                     {{45, 10}, 1000}, {{57, 14}, 1300}, {{63, 57}, full_scale}};

constinit Body body{
    apuins,
    {
        lighting_overlay(480),
        needle("APU speed", 470, {39, 118}, pivot, speed_scale, show_speed),
        needle("APU temperature", 470, {39, 39}, pivot, temperature_scale, show_temperature),
    },
};

}  // namespace

constinit Gauge apuins{{.name = "Apuins", .width_mm = 77, .background = 460}, body};

}  // namespace tarnvale
