/// Engine start panel (overhead): the start master, a start switch for each engine, the selector that
/// turns one of the starters, and the light that says that the panel is ready for a start.
#include "module/catalogue.h"
#include "module/controls.h"
#include "module/host.h"

namespace tarnvale {
namespace {

/// The selector's positions.
enum Selected : u32 { nothing, engine2, engine1 };

/// The engine start switches' positions.
enum StartSwitch : u32 { off, armed, complete };

/// Above this core speed, in percent, an engine runs by itself.
constexpr f64 running_percent = 25.0;

constinit TestClock test_clock;
constinit u32 testing;

i32 press_start_master(PanelPoint, u32) {
  aircraft.start_master_switch = aircraft.start_master_switch == 0;
  if (aircraft.start_master_switch == 1) send(event::start_master_on);
  request(toggle_click_sound_request);
  return 0;
}

i32 centre_selector(PanelPoint, u32) {
  aircraft.start_selector = nothing;
  request(toggle_click_sound_request);
  return 0;
}

/// The selector gives its engine's starter one turn even when no start is armed.
template <u32 engine, u32 starter>
i32 selects(PanelPoint, u32) {
  aircraft.start_selector = engine;
  send(starter);
  request(toggle_click_sound_request);
  return 0;
}

/// Lit (image 0) with the master on until both engines run.
f64 start_light(Element*) {
  const bool tested = test_goes_on(test_clock, testing);
  const bool ready =
      aircraft.start_master_switch == 1 && (read(token::eng1_core_speed) < running_percent ||
                                            read(token::eng2_core_speed) < running_percent);
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
  const f64 core_speed1 = read(token::eng1_core_speed);
  const f64 core_speed2 = read(token::eng2_core_speed);
  turn_starter(engine1, aircraft.eng1_start_switch, core_speed1, event::starter1);
  turn_starter(engine2, aircraft.eng2_start_switch, core_speed2, event::starter2);
  return aircraft.start_selector;
}

}  // namespace

constinit Gauge<11, 7> engstart{
    Face{.name = "Engstart", .width_mm = 179, .background = 250},
    {
        icon(260, {78, 64}, 3, selector),
        icon(2040, {157, 1}, 3, shows<aircraft.eng2_start_switch>),
        icon(2040, {114, 1}, 3, shows<aircraft.eng1_start_switch>),
        lamp(2110, {14, 12}, start_light),
        icon(2130, {66, 1}, 2, shows<aircraft.start_master_switch>),
    },
    {
        click({61, 1, 22, 42}, press_start_master),
        click({109, 1, 22, 42}, advances<aircraft.eng1_start_switch, complete>),
        click({152, 1, 22, 42}, advances<aircraft.eng2_start_switch, complete>),
        click({80, 52, 35, 28}, centre_selector),
        click({44, 52, 35, 28}, selects<engine1, event::starter1>),
        click({116, 52, 35, 28}, selects<engine2, event::starter2>),
        click({14, 13, 25, 25}, tests<test_clock, testing>),
    },
};

}  // namespace tarnvale
