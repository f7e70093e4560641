/// The shared aircraft state: what one gauge decides and another shows or uses. Gauges meet here and
/// nowhere else. It lives as long as the module is loaded, belongs to the host's panel thread, and a
/// value written by one gauge is seen by the others on the same or the next frame.
///
/// Unless a comment says otherwise a variable is a flag (0 or 1), and every variable starts at 0.
#pragma once

#include "module/sound_requests.h"

namespace tarnvale {

struct Aircraft {
  // ---- Sound
  u32 sound_requests[sound_request_count]{};  ///< in sound order; above 0 asks for one playing
  u32 cabin_sign_left_on = 0;
  u32 cabin_sign_right_on = 0;

  // ---- Electrical power and lighting
  u32 dc_power_on = 0;         ///< mirrors the host's battery
  u32 avionics_master_on = 0;  ///< mirrors the host's avionics master
  u32 battery_panel_button_on = 0;
  u32 ext_power_switch = 0;
  u32 gen1_switch = 0;  ///< 0 centre, 1 up, 2 down
  u32 gen2_switch = 0;  ///< 0 centre, 1 up, 2 down
  u32 acpwr_button_left_on = 0;
  u32 acpwr_button_right_on = 0;
  u32 acpwr_switch_left_on = 0;
  u32 acpwr_switch_right_on = 0;
  u32 dc_meter_selector = 0;       ///< 0..7
  u32 ac_meter_selector = 0;       ///< 0..7: 1 APU, 2-4 generator 1, 5-6 generator 2, 7 external
  u32 emergency_light_switch = 0;  ///< 0..3
  u32 panel_lights_on = 0;  ///< mirrors the host's panel lights while the captain's panel is open
  u32 instrument_light_level = 0;  ///< 0 off, 1 dim, 2 bright

  // ---- Air systems, auxiliary power unit, ice protection, hydraulics
  u32 bleed_switch_upper_left = 0;
  u32 bleed_switch_upper_right = 0;
  u32 bleed_switch_lower_left = 0;
  u32 bleed_switch_lower_right = 0;
  u32 bleed_valve_top_left = 0;
  u32 bleed_valve_top_right = 0;
  u32 bleed_valve_mid_left = 0;
  u32 bleed_valve_mid_right = 0;
  u32 bleed_valve_bottom_left = 0;
  u32 bleed_valve_bottom_right = 0;
  u32 bleed_lineup_ok = 0;      ///< the valves are set for an engine start
  u32 duct_pressure_light = 0;  ///< 0 dark, 1 green, 2 amber
  u32 start_air_available = 0;
  u32 start_master_switch = 0;
  u32 start_selector = 0;     ///< 0 centre, 1 right (engine 2), 2 left (engine 1)
  u32 eng1_start_switch = 0;  ///< 0 down, 1 centre (armed), 2 up (start complete)
  u32 eng2_start_switch = 0;  ///< 0 down, 1 centre (armed), 2 up (start complete)
  u32 aircon_left_on = 0;
  u32 aircon_right_on = 0;
  u32 aircon_left_auto = 0;
  u32 aircon_right_auto = 0;
  u32 aircon_valve_left = 0;
  u32 aircon_valve_right = 0;
  u32 temp_selector_left = 0;   ///< 0..9
  u32 temp_selector_right = 0;  ///< 0..9
  u32 temp_override_switch = 0;
  u32 duct_left_temp_normal = 0;   ///< 0 hot
  u32 duct_right_temp_normal = 0;  ///< 0 hot
  u32 cabin_diff_pressure = 0;     ///< 10..100 in the needle's scale
  u32 apu_master_switch = 0;
  u32 apu_running = 0;
  u32 apu_gen_switch = 0;  ///< 0 centre, 1 up (on line), 2 down
  u32 apu_bleed_switch = 0;
  u32 apu_at_speed = 0;
  u32 apu_speed_above_1000 = 1;
  u32 engine_antiice_left = 0;   ///< 0..3; 1 and 3 on
  u32 engine_antiice_right = 0;  ///< 0..3; 1 and 3 on
  u32 antiice_upper_switch = 0;  ///< 0 centre, 1 up (left engine), 2 down (right engine)
  u32 wing_antiice_left = 0;
  u32 wing_antiice_right = 0;
  u32 pitot_heat_left = 0;
  u32 pitot_heat_right = 0;
  u32 windshield_switch = 1;
  u32 windshield_left_selector = 1;   ///< 0..3
  u32 windshield_right_selector = 1;  ///< 0..3
  u32 hyd_pump_upper_1 = 0;
  u32 hyd_pump_upper_2 = 0;
  u32 hyd_pump_upper_3 = 0;
  u32 hyd_pump_upper_4 = 0;
  u32 hyd_pump_lower_1 = 0;
  u32 hyd_pump_lower_2 = 0;
  u32 hyd_pump_lower_3 = 0;
  u32 hyd_pump_lower_4 = 0;

  // ---- Flight instruments
  u32 adi_flag_test_active = 0;
  u32 nav1_test_active = 0;
  u32 nav2_test_active = 0;
  u32 nav1_timer_now = 0;  ///< seconds
  u32 nav2_timer_now = 0;  ///< seconds
  u32 rmi_left_selector = 0;
  u32 radalt_test_active = 0;

  // ---- Autopilot and flight director
  u32 ap_master_on = 0;        ///< mirrors the host's autopilot master
  u32 ap_mode_selector = 0;    ///< 0..5, named in autopilot_modes.h
  u32 ap_sel2_hold_on = 0;     ///< mirrors the host's heading hold
  u32 ap_sel3_arm_on = 0;      ///< the approach is armed
  u32 ap_mode_button_on = 0;   ///< mirrors the host's altitude hold
  u32 apset_button_a_on = 0;   ///< autothrottle armed
  u32 apset_button_b_on = 0;   ///< airspeed hold; only while the autothrottle is armed
  u32 apcon_switch_a_on = 0;   ///< Mach trim
  u32 apcon_switch_b_on = 0;   ///< stabiliser trim
  u32 apcon_switch_c_on = 0;   ///< cabin door open
  u32 apcourse_switch_on = 0;  ///< area navigation drives the horizontal situation indicator
  u32 cat2_speed_test_active = 0;

  // ---- Radios and cabin call
  u32 nav1_timer_deadline = 0;  ///< seconds
  u32 nav2_timer_deadline = 0;  ///< seconds
  u32 nav_aux_switch = 0;       ///< one switch state on all three navigation heads
  u32 nav_test_switch = 0;      ///< 0 centre, 1 upper, 2 lower; shared likewise
  u32 transponder_mode = 0;     ///< 0 off, 1..3
  u32 fo_callouts_enabled = 0;
  u32 cabin_announcements_on = 0;
  u32 ground_power_connected = 0;

  // ---- Engines, fuel and fire
  u32 fuel_pump1_switch = 0;
  u32 fuel_pump2_switch = 0;
  u32 fuel_aux_switch_left = 0;
  u32 fuel_aux_switch_right = 0;
  u32 fuel_crossfeed_switch = 0;
  u32 fuel_computer_power = 0;
  u32 fuel_selector_left = 0;   ///< 0 pointer up, 1 left, 2 right
  u32 fuel_selector_right = 0;  ///< 0 pointer up, 1 left, 2 right
  u32 fire_test_active = 0;
  u32 fire_test_clock = 0;     ///< seconds
  u32 fire_test_deadline = 0;  ///< seconds

  // ---- Warnings and recorders
  u32 dh_light_on = 0;
  f64 dh_setting_ft = 0.0;    ///< 0..500 in steps of 10
  u32 dh_setting_ft_int = 0;  ///< kept in step with dh_setting_ft
  u32 gpws_switch_on = 0;
  u32 gpws_test_active = 0;
  u32 stall_warning_switch_on = 0;
  u32 stall_test_active = 0;
  u32 flight_recorder_button_on = 0;

  // ---- Flight controls and ground handling
  u32 speedbrake_armed = 0;
  u32 lift_dump_armed = 0;
  u32 lift_dump_deployed = 0;
  u32 brake_control_switch_on = 1;
  u32 pedestal_selector_switch = 0;  ///< 0 centre, 1 left, 2 right
  u32 ttc_switch_on = 1;
  u32 stabind_vertical_on = 0;
  u32 stabind_horizontal_on = 0;
  u32 stabind_needle_on = 0;
};

extern constinit Aircraft aircraft;

/// Asks for one playing of a sound. Asking again before it has been played changes nothing.
inline void request(SoundRequest sound) { aircraft.sound_requests[sound] = 1; }

/// Takes back a request that has not been played yet.
inline void withdraw(SoundRequest sound) { aircraft.sound_requests[sound] = 0; }

}  // namespace tarnvale
