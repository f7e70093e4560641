/// What can be heard of the aircraft in its cockpit at one moment.
#pragma once

#include <array>

namespace host::simulation {

struct Aircraft;

struct SoundSources {
  bool equipment_powered = false;      ///< by direct current: its fans run
  bool alternating_current = false;    ///< 400 Hz on a bus
  bool packs_have_air = false;         ///< from the APU or an engine, and no starter takes it
  double apu_speed = 0.0;              ///< 0..1
  std::array<double, 2> fan_speed{};   ///< N1, 0..1
  std::array<double, 2> core_speed{};  ///< N2, 0..1
  double airspeed_kt = 0.0;            ///< calibrated
  std::array<double, 3> gear{};        ///< nose, left, right: 0 up .. 1 locked
  double flap_deg = 0.0;               ///< 0..42
  double speed_brake = 0.0;            ///< 0..1, or the lift dumpers where they are further out
  bool buffeting = false;
  bool on_ground = true;  ///< a main wheel carries weight
  double ground_speed_mps = 0.0;
  double vertical_speed_fpm = 0.0;
  double altitude_ft = 0.0;
};

SoundSources sound_sources(const Aircraft& aircraft);

}  // namespace host::simulation
