#include "host/simulation/sound_sources.h"

#include <algorithm>
#include <cmath>

#include "host/simulation/aircraft.h"

namespace host::simulation {
namespace {

/// Pressure enough for the packs: the APU at speed, or an engine at idle.
bool bleed_air(const Aircraft& a) {
  constexpr double idle_percent = 45.0;
  const bool starting = a.engine_start.starters[0].engaged || a.engine_start.starters[1].engaged;
  const bool engine = std::ranges::any_of(
      a.engines, [](const Engine& e) { return e.lit && e.core_speed_percent > idle_percent; });
  return (a.apu.at_speed() || engine) && !starting && !a.air_controls.ram_air_open;
}

}  // namespace

SoundSources sound_sources(const Aircraft& a) {
  constexpr double least_volts = 90.0;
  const Surfaces& surfaces = a.airframe.surfaces;
  const auto& [bus1, bus2] = a.electrics.bus_volts;
  SoundSources s;
  s.equipment_powered = a.electrics.has_dc();
  s.alternating_current = std::max(bus1, bus2) > least_volts;
  s.packs_have_air = s.equipment_powered && bleed_air(a);
  s.apu_speed = a.apu.speed_percent / 100.0;
  for (std::size_t i = 0; i < a.engines.size(); ++i) {
    s.fan_speed[i] = a.engines[i].fan_speed_percent / 100.0;
    s.core_speed[i] = a.engines[i].core_speed_percent / 100.0;
  }
  s.airspeed_kt = calibrated_airspeed_kt(a.air.mach, a.air.pressure_hpa);
  s.gear = surfaces.gear;
  s.flap_deg = surfaces.flap_deg;
  s.speed_brake = std::max(surfaces.speed_brake, surfaces.lift_dumpers);
  s.buffeting = a.flight.buffeting;
  s.on_ground = a.flight.on_ground;
  s.ground_speed_mps = std::hypot(a.flight.velocity_mps.x, a.flight.velocity_mps.y);
  s.vertical_speed_fpm = a.flight.vertical_speed_fpm;
  s.altitude_ft = a.flight.altitude_ft;
  return s;
}

}  // namespace host::simulation
