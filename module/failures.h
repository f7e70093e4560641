/// What an element shows while a system of the aircraft has failed. Keys are the host's.
#pragma once

#include "interface/panel_interface.h"

namespace tarnvale::failure {

inline constexpr u32 key_attitude = 2;          ///< the gyros of the attitude indicators
inline constexpr u32 key_airspeed = 6;          ///< the pitot tubes
inline constexpr u32 key_altimeter = 7;         ///< the static ports
inline constexpr u32 key_compass = 8;           ///< the gyro compass
inline constexpr u32 key_direction_finder = 9;  ///< the ADF receiver
inline constexpr u32 key_fuel_quantity = 10;    ///< the tanks' gauging
inline constexpr u32 key_vertical_speed = 12;
inline constexpr u32 key_receiver_1 = 14;  ///< navigation
inline constexpr u32 key_receiver_2 = 15;
inline constexpr u32 key_standby_compass = 19;
inline constexpr u32 key_electrical = 20;  ///< no electrical power at the panel
inline constexpr u32 key_avionics = 21;    ///< no power on the avionics bus

inline constexpr FailureEntry end_of_table{0, 0, 0};

/// What a part does without power.
enum Loss {
  never,    ///< works by hand: goes on
  dark,     ///< lamps, lighting and electrical read-outs
  at_rest,  ///< electrical meters and indicators: the needle falls to 0
};

inline constexpr FailureEntry dark_table[] = {{key_electrical, FAILURE_HIDE, 0}, end_of_table};
inline constexpr FailureEntry at_rest_table[] = {{key_electrical, FAILURE_ZERO, 0}, end_of_table};

constexpr const FailureEntry* table_of(Loss loss) {
  return loss == dark ? dark_table : loss == at_rest ? at_rest_table : nullptr;
}

/// What else makes a part fail: the table of one that goes dark without power, and of one that falls to
/// rest.
struct System {
  FailureEntry dark[4];
  FailureEntry at_rest[4];
};

/// An instrument that stops where it is when what it measures with fails.
constexpr System stops_with(u32 key) {
  return {{{key_electrical, FAILURE_HIDE, 0}, {key, FAILURE_FREEZE, 0}, end_of_table},
          {{key_electrical, FAILURE_ZERO, 0}, {key, FAILURE_FREEZE, 0}, end_of_table}};
}

/// A radio that falls to zero with its bus and with its own failure.
constexpr System falls_with(u32 key) {
  return {{{key_electrical, FAILURE_HIDE, 0}, {key_avionics, FAILURE_ZERO, 0}, {key, FAILURE_ZERO, 0}},
          {{key_electrical, FAILURE_ZERO, 0}, {key_avionics, FAILURE_ZERO, 0}, {key, FAILURE_ZERO, 0}}};
}

inline constexpr System attitude = stops_with(key_attitude);
inline constexpr System airspeed = stops_with(key_airspeed);
inline constexpr System altimeter = stops_with(key_altimeter);
inline constexpr System compass = stops_with(key_compass);
inline constexpr System fuel_quantity = stops_with(key_fuel_quantity);
inline constexpr System vertical_speed = stops_with(key_vertical_speed);
inline constexpr System standby_compass = stops_with(key_standby_compass);
inline constexpr System direction_finder = falls_with(key_direction_finder);
inline constexpr System receiver_1 = falls_with(key_receiver_1);
inline constexpr System receiver_2 = falls_with(key_receiver_2);

/// A radio without a failure of its own.
inline constexpr System avionics = {
    {{key_electrical, FAILURE_HIDE, 0}, {key_avionics, FAILURE_ZERO, 0}, end_of_table},
    {{key_electrical, FAILURE_ZERO, 0}, {key_avionics, FAILURE_ZERO, 0}, end_of_table}};

}  // namespace tarnvale::failure
