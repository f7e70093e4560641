/// The host's token variables and key events that the gauges use, by role.
#pragma once

#include "interface/panel_interface.h"

namespace tarnvale {

/// Host token variables: numbers of the host's, read with read().
namespace token {
// Clock and lights
inline constexpr u32 clock_seconds = 604;       ///< a running clock, seconds
inline constexpr u32 panel_lights = 10;         ///< 0/1; every gauge's day and night pictures
inline constexpr u32 strobe_lights = 11;        ///< 0/1
inline constexpr u32 landing_lights = 14;       ///< 0/1
inline constexpr u32 beacon_lights = 368;       ///< 0/1
inline constexpr u32 navigation_lights = 369;   ///< 0/1
inline constexpr u32 taxi_lights = 619;         ///< 0/1
inline constexpr u32 recognition_lights = 620;  ///< 0/1
// Electrics
inline constexpr u32 battery = 364;     ///< 0/1
inline constexpr u32 avionics = 740;    ///< 0/1
inline constexpr u32 dc_amperes = 750;  ///< amperes, battery discharge negative
inline constexpr u32 dc_volts = 752;    ///< DC volts source; 66 is the meter's mid-scale
inline constexpr u32 gen1_meter = 761;  ///< left generator, right-hand meters' scale
inline constexpr u32 gen1_load = 762;   ///< left generator load, percent, 0..125
inline constexpr u32 gen2_meter = 763;
inline constexpr u32 gen2_load = 764;
inline constexpr u32 apu_load = 766;    ///< APU generator load, percent, 0..125
inline constexpr u32 gen1_drive = 147;  ///< left generator drive speed, 0..16384
inline constexpr u32 gen2_drive = 182;
// Engines
inline constexpr u32 eng1_core_speed = 625;  ///< N2, percent
inline constexpr u32 eng2_core_speed = 644;
// Flight
inline constexpr u32 altitude = 74;          ///< aircraft altitude, feet
inline constexpr u32 vertical_speed = 65;    ///< feet a minute
inline constexpr u32 pressure_setting = 75;  ///< shown as four digits by the cabin controller
}  // namespace token

/// Host key events: numbers of the host's, sent with send().
namespace event {
// Electrics
inline constexpr u32 battery_toggle = 0x10346;
inline constexpr u32 alternators_toggle = 0x102C2;
inline constexpr u32 alternator1_toggle = 0x1033B;
inline constexpr u32 alternator2_toggle = 0x1033C;
inline constexpr u32 alternator3_toggle = 0x1033D;
inline constexpr u32 avionics_toggle = 0x102F5;
// Lights; each flips its token
inline constexpr u32 panel_lights_toggle = 0x100D6;
inline constexpr u32 landing_lights_toggle = 0x100D7;
inline constexpr u32 strobe_lights_toggle = 0x10018;
inline constexpr u32 beacon_lights_toggle = 0x102BF;
inline constexpr u32 navigation_lights_toggle = 0x102C0;
inline constexpr u32 taxi_lights_toggle = 0x1034B;
inline constexpr u32 recognition_lights_toggle = 0x10348;
// Engine start
inline constexpr u32 start_master_on = 0x100EE;
inline constexpr u32 starter1 = 0x102FC;
inline constexpr u32 starter2 = 0x102FD;
// Auxiliary power unit
inline constexpr u32 apu_start = 0x10490;
inline constexpr u32 apu_stop = 0x10491;
inline constexpr u32 apu_master = 0x10492;
// Air and ice
inline constexpr u32 ram_air_toggle = 0x10519;
inline constexpr u32 cabin_altitude_button = 0x101F8;
inline constexpr u32 engine_antiice_on = 0x101ED;
inline constexpr u32 engine_antiice_off = 0x101EE;
}  // namespace event

/// Panel windows of the host.
namespace window {
inline constexpr u32 captain_day = 20;
inline constexpr u32 first_officer_day = 21;
inline constexpr u32 captain_night = 27;
inline constexpr u32 first_officer_night = 28;
}  // namespace window

}  // namespace tarnvale
