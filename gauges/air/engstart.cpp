/// Engine start panel (overhead): the start master, a start switch for each engine, the selector that
/// turns one of the starters, and the light that says that the panel is ready for a start.
#include "module/catalogue.h"
#include "module/controls.h"
#include "module/holds.h"
#include "module/systems.h"

namespace tarnvale {
namespace {

/// The selector's positions.
enum Selected : u32 { nothing, engine2, engine1 };

/// The engine start switches' positions.
enum StartSwitch : u32 { off, armed, complete };

constinit HoldClock test_clock;
constinit u32 testing;

void press_start_master() {
  toggle<&Aircraft::start_master_switch>();
  if (aircraft.start_master_switch == 1) send(event::ignition_arm);
}

/// Lit (image 0) with the master on until both engines run.
f64 start_light(Element*) {
  const bool tested = hold_goes_on(test_clock, testing);
  const bool ready =
      aircraft.start_master_switch == 1 && (read(token::engine_1_core_speed) < running_percent ||
                                            read(token::engine_2_core_speed) < running_percent);
  return tested || ready ? 0 : 1;
}

/// Keeps the selected engine's starter turning: each frame one push for every whole percent of core
/// speed that the engine has passed, ten at most. An engine that runs by itself ends its start.
void turn_starter(u32 engine, u32& start_switch, f64 core_speed, u32 starter) {
  if (aircraft.start_air_available != 1 || aircraft.start_master_switch != 1) return;
  if (aircraft.start_selector != engine || start_switch != armed) return;
  for (int percent = 1; percent <= 10 && core_speed > percent; ++percent) send(starter);
  if (core_speed > running_percent) start_switch = complete;
}

f64 selector(Element*) {
  const f64 core_speed1 = read(token::engine_1_core_speed);
  const f64 core_speed2 = read(token::engine_2_core_speed);
  turn_starter(engine1, aircraft.eng1_start_switch, core_speed1, event::starter_1_engage);
  turn_starter(engine2, aircraft.eng2_start_switch, core_speed2, event::starter_2_engage);
  return aircraft.start_selector;
}

constinit Body body{
    engstart,
    {
        icon("Start selector", {260, 3}, {78, 64}, selector),
        icon("Engine 2 start switch", {2040, 3}, {157, 1}, shows<&Aircraft::eng2_start_switch>),
        icon("Engine 1 start switch", {2040, 3}, {114, 1}, shows<&Aircraft::eng1_start_switch>),
        lamp("Ready light", bitmap::round_light, {14, 12}, start_light),
        icon("Start master switch", bitmap::toggle_switch, {66, 1},
             shows<&Aircraft::start_master_switch>),
    },
    {
        click("Start master switch", {61, 1, 22, 42}, does<press_start_master>),
        click("Engine 1 start switch", {109, 1, 22, 42},
              advances<&Aircraft::eng1_start_switch, complete>),
        click("Engine 2 start switch", {152, 1, 22, 42},
              advances<&Aircraft::eng2_start_switch, complete>),
        click("Start selector off", {80, 52, 35, 28}, selects<&Aircraft::start_selector, nothing>),
        click("Start selector engine 1", {44, 52, 35, 28},
              selects<&Aircraft::start_selector, engine1, event::starter_1_engage>),
        click("Start selector engine 2", {116, 52, 35, 28},
              selects<&Aircraft::start_selector, engine2, event::starter_2_engage>),
        click("Ready light test", {14, 13, 25, 25}, tests<&test_clock, &testing>),
    },
};

}  // namespace

constinit Gauge engstart{{.name = "Engstart", .width_mm = 179, .background = 250}, body};

}  // namespace tarnvale
