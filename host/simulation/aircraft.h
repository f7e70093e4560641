/// The aircraft: the state of all its systems, and one step of time through them.
#pragma once

#include <array>

#include "host/simulation/autopilot/modes.h"
#include "host/simulation/autopilot/selections.h"
#include "host/simulation/base/clock.h"
#include "host/simulation/flight/air_data.h"
#include "host/simulation/flight/airframe.h"
#include "host/simulation/flight/flight_controls.h"
#include "host/simulation/flight/flight_state.h"
#include "host/simulation/flight/trim.h"
#include "host/simulation/navigation/flight_director.h"
#include "host/simulation/navigation/receivers.h"
#include "host/simulation/placement.h"
#include "host/simulation/program_windows.h"
#include "host/simulation/systems/air_controls.h"
#include "host/simulation/systems/apu.h"
#include "host/simulation/systems/cabin.h"
#include "host/simulation/systems/electrics.h"
#include "host/simulation/systems/engine.h"
#include "host/simulation/systems/engine_start.h"
#include "host/simulation/systems/failures.h"
#include "host/simulation/systems/fuel.h"
#include "host/simulation/systems/lights.h"

namespace host::simulation {

struct Aircraft {
  Clock clock;
  FlightControls controls;
  FlightState flight;
  Airframe airframe;
  Turbulence turbulence;
  /// Under the wheels until the crew first sets the parking brake; they hold the aircraft altogether.
  bool chocks_in = true;
  /// By the ground crew, and its engines have not turned since: an automatic start finds them at idle, and
  /// with the battery all power goes.
  bool handed_over = false;
  AirData air;
  AirControls air_controls;
  Lights lights;
  FuelControls fuel;
  EngineStart engine_start;
  std::array<Engine, 2> engines;
  Apu apu;
  Electrics electrics;
  std::array<NavReceiver, 2> nav;
  AdfReceiver adf;
  int marker = 0;                       ///< as marker_overhead()
  bool hsi_on_area_navigation = false;  ///< instead of receiver 1
  Selections selections;
  AutopilotModes autopilot;
  FlightDirector flight_director;
  bool cabin_door_open = false;
  Cabin cabin;
  ProgramWindows windows;
  Failures failures;

  /// Parked, everything off. From 10 to 120 steps a second; 60 is what the cockpit runs with.
  explicit Aircraft(int steps_per_second = usual_steps_per_second);

  /// Runs one step.
  void step();

  /// What the automatic start does: battery, fuel levers, ignition and both starters.
  void start_both_engines();

  /// Puts both engines at a warm idle with battery and avionics on, as after a start some
  /// minutes ago.
  void make_ready();

  /// What the automatic start leads to: at once where the aircraft has just been handed over.
  void start_automatically();

  /// The ground crew's part: a ground unit feeds the aircraft, and the auxiliary power unit is at speed.
  void connect_ground_power();

  /// As the start page finds it: battery, avionics and auxiliary power unit on, fuel levers open.
  void hand_over();

  /// Lines it up on the runway as it is, at rest, without chocks, the parking brake set.
  void place_on_runway();

  /// Puts it into trimmed, straight and level flight, made ready, boost pumps on. Returns false where it cannot fly so;
  /// it is then as near to it as it comes.
  bool place_in_flight(const InFlight& where);

 private:
  void fly(double dt_s);
  AirframeInputs surroundings() const;
  EngineInputs engine_inputs(std::size_t engine) const;
  void put_in_the_air(const InFlight& where);
  Trim trim_for(const InFlight& where);
  void start_engines_at_once(double thrust_n);
  void update_systems(double dt_s);
  void follow_handing_over();
  void update_engine_start(double dt_s);
  void update_engines(double dt_s);
  void update_fuel(double dt_s);
  void update_electrics(double dt_s);
  void update_navigation(double dt_s);
};

}  // namespace host::simulation
