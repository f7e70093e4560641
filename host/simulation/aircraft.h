/// The aircraft: the state of all its systems, and one step of time through them.
#pragma once

#include <array>

#include "host/simulation/base/clock.h"
#include "host/simulation/flight/air_data.h"
#include "host/simulation/flight/flight_state.h"
#include "host/simulation/program_windows.h"
#include "host/simulation/systems/air_controls.h"
#include "host/simulation/systems/apu.h"
#include "host/simulation/systems/electrics.h"
#include "host/simulation/systems/engine.h"
#include "host/simulation/systems/engine_start.h"
#include "host/simulation/systems/fuel.h"
#include "host/simulation/systems/lights.h"

namespace host::simulation {

struct Aircraft {
  Clock clock;
  FlightState flight;
  AirData air;
  AirControls air_controls;
  Lights lights;
  FuelControls fuel;
  std::array<double, 2> throttle_ratio{};  ///< 0 idle .. 1 take-off
  EngineStart engine_start;
  std::array<Engine, 2> engines;
  Apu apu;
  Electrics electrics;
  ProgramWindows windows;

  /// Parked, everything off.
  Aircraft();

  /// Runs one step of `step_s`.
  void step();

  /// What the automatic start does: battery, fuel levers, ignition and both starters.
  void start_both_engines();

  /// Puts both engines at a warm idle with battery and avionics on, as after a start some
  /// minutes ago.
  void make_ready();

 private:
  void update_systems(double dt_s);
  void update_engine_start(double dt_s);
  void update_engines(double dt_s);
  void update_electrics(double dt_s);
};

}  // namespace host::simulation
