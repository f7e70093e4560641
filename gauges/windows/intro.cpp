/// Start page: puts the whole cockpit into one of three states (cold and dark, ready to start, running)
/// and opens the captain's or the first officer's panel.
///
/// The states write the switches of many panels at once and bring the host's own state along by the key
/// events of the same switches. Those events toggle, so each is sent only from the state that it has to
/// leave; state 1 alone sends its four in any case, and undoes what it did at a second click.
#include "module/body.h"
#include "module/catalogue.h"
#include "module/controls.h"
#include "module/systems.h"

namespace tarnvale {
namespace {

using A = Aircraft;

/// A switch of the cockpit as states 2 (ready to start) and 3 (running) leave it.
struct Setting {
  u32 Aircraft::*variable;
  i32 ready, running;
};

constexpr i32 left_alone = -1;

constexpr Setting settings[] = {
    // Cabin signs
    {&A::cabin_sign_right_on, 1, 1},
    {&A::cabin_sign_left_on, 1, 1},
    // Electrical power
    {&A::dc_meter_selector, 1, 1},
    {&A::ac_meter_selector, 2, 2},
    {&A::acpwr_button_left_on, 1, 1},
    {&A::acpwr_button_right_on, 1, 1},
    {&A::acpwr_switch_left_on, 1, 1},
    {&A::acpwr_switch_right_on, 1, 1},
    {&A::gen2_switch, 1, 1},
    {&A::gen1_switch, 1, 1},
    {&A::emergency_light_switch, 1, 1},
    {&A::battery_panel_button_on, 1, 1},
    // Bleed air and engine start
    {&A::bleed_switch_upper_left, 1, 1},
    {&A::bleed_switch_upper_right, 1, 1},
    {&A::bleed_lineup_ok, 1, 1},
    {&A::bleed_switch_lower_left, 1, 1},
    {&A::bleed_switch_lower_right, 1, 1},
    {&A::bleed_valve_top_left, 1, 1},
    {&A::bleed_valve_top_right, 1, 1},
    {&A::bleed_valve_mid_left, 1, 1},
    {&A::bleed_valve_mid_right, 1, 1},
    {&A::bleed_valve_bottom_left, 1, 1},
    {&A::bleed_valve_bottom_right, 1, 1},
    {&A::eng1_start_switch, left_alone, 2},
    {&A::eng2_start_switch, left_alone, 2},
    {&A::start_master_switch, 1, 0},
    {&A::start_air_available, 1, 1},
    {&A::duct_pressure_light, 1, 1},
    // Air conditioning
    {&A::aircon_left_on, 1, 1},
    {&A::aircon_right_on, 1, 1},
    {&A::aircon_left_auto, 1, 1},
    {&A::aircon_right_auto, 1, 1},
    {&A::aircon_valve_left, 1, 1},
    {&A::aircon_valve_right, 1, 1},
    // Auxiliary power unit
    {&A::apu_master_switch, 1, 1},
    {&A::apu_running, 1, 1},
    {&A::apu_gen_switch, 1, 0},
    {&A::apu_bleed_switch, 1, 0},
    {&A::apu_at_speed, 1, 0},
    // Ice protection
    {&A::engine_antiice_left, left_alone, 3},
    {&A::engine_antiice_right, left_alone, 3},
    {&A::pitot_heat_left, left_alone, 1},
    {&A::pitot_heat_right, left_alone, 1},
    {&A::windshield_switch, left_alone, 0},
    {&A::windshield_left_selector, left_alone, 0},
    {&A::windshield_right_selector, left_alone, 0},
    // Hydraulics
    {&A::hyd_pump_upper_1, 1, 1},
    {&A::hyd_pump_upper_2, 1, 1},
    {&A::hyd_pump_upper_3, 1, 1},
    {&A::hyd_pump_upper_4, 1, 1},
    {&A::hyd_pump_lower_1, 1, 1},
    {&A::hyd_pump_lower_2, 1, 1},
    {&A::hyd_pump_lower_3, 1, 1},
    {&A::hyd_pump_lower_4, 1, 1},
    // Pedestal
    {&A::apcon_switch_c_on, 0, 0},
    {&A::fo_callouts_enabled, left_alone, 1},
    {&A::cabin_announcements_on, left_alone, 1},
    {&A::transponder_mode, 1, 1},
    {&A::stall_warning_switch_on, left_alone, 1},
    {&A::gpws_switch_on, left_alone, 1},
    {&A::flight_recorder_button_on, 1, 1},
    // Fuel
    {&A::fuel_pump1_switch, 1, 1},
    {&A::fuel_pump2_switch, 1, 1},
    {&A::fuel_aux_switch_left, 1, 1},
    {&A::fuel_aux_switch_right, 1, 1},
    {&A::fuel_selector_left, 1, 1},
    {&A::fuel_selector_right, 1, 1},
    {&A::fuel_computer_power, 1, 1},
    // Throttle quadrant and trim
    {&A::brake_control_switch_on, 1, 1},
    {&A::ttc_switch_on, 1, 1},
    {&A::stabind_vertical_on, left_alone, 1},
    {&A::stabind_horizontal_on, left_alone, 1},
    {&A::stabind_needle_on, left_alone, 1},
};

template <i32 Setting::*state>
void set_switches() {
  for (const Setting& s : settings) {
    if (s.*state != left_alone) aircraft.*s.variable = static_cast<u32>(s.*state);
  }
}

void power_up(f64 battery, f64 avionics) {
  if (battery == 0.0) {
    aircraft.dc_power_on = 1;
    send(event::external_power_connect);
    send(event::battery_toggle);
  }
  if (avionics == 0.0) {
    aircraft.avionics_master_on = 1;
    send(event::avionics_toggle);
  }
}

/// Each fuel lever that stands there goes to the other end.
void move_fuel_levers_from(f64 position, f64 lever_1, f64 lever_2) {
  if (lever_1 == position) send(event::fuel_lever_1_toggle);
  if (lever_2 == position) send(event::fuel_lever_2_toggle);
}

void cold_and_dark() {
  for (u32 e : {event::battery_toggle, event::avionics_toggle, event::fuel_lever_1_toggle,
                event::fuel_lever_2_toggle}) {
    send(e);
  }
}

void ready_to_start() {
  const f64 battery = read(token::battery), avionics = read(token::avionics);
  const f64 lever_1 = read(token::fuel_lever_1), lever_2 = read(token::fuel_lever_2);
  send(event::beacon_lights_toggle);
  send(event::parking_brake_toggle);
  set_switches<&Setting::ready>();
  power_up(battery, avionics);
  move_fuel_levers_from(1.0, lever_1, lever_2);
}

void running() {
  const f64 battery = read(token::battery), avionics = read(token::avionics);
  const f64 core_1 = read(token::engine_1_core_speed), core_2 = read(token::engine_2_core_speed);
  const f64 lever_1 = read(token::fuel_lever_1), lever_2 = read(token::fuel_lever_2);
  for (u32 e : {event::navigation_lights_toggle, event::beacon_lights_toggle,
                event::strobe_lights_toggle, event::parking_brake_toggle}) {
    send(e);
  }
  set_switches<&Setting::running>();
  power_up(battery, avionics);
  move_fuel_levers_from(0.0, lever_1, lever_2);
  constexpr f64 turning_percent = 20;
  if (core_1 < turning_percent && core_2 < turning_percent) send(event::automatic_start);
}

template <auto start_state, u32 panel>
void begin() {
  start_state();
  open_window(panel);
}

constexpr i32 captains_column = 43, first_officers_column = 1056;
constexpr Box button(i32 x, i32 row) { return {x, 185 + 42 * row, 220, 36}; }

constinit Body body{
    intro,
    {
        click("Captain, cold and dark", button(captains_column, 0),
              does<begin<cold_and_dark, window::captain>>),
        click("Captain, ready to start", button(captains_column, 1),
              does<begin<ready_to_start, window::captain>>),
        click("Captain, running", button(captains_column, 2), does<begin<running, window::captain>>),
        click("First officer, cold and dark", button(first_officers_column, 0),
              does<begin<cold_and_dark, window::first_officer>>),
        click("First officer, ready to start", button(first_officers_column, 1),
              does<begin<ready_to_start, window::first_officer>>),
        click("First officer, running", button(first_officers_column, 2),
              does<begin<running, window::first_officer>>),
    },
};

}  // namespace

constinit Gauge intro{{.name = "Intro", .width_mm = 1280, .background = 24230}, body};

}  // namespace tarnvale
