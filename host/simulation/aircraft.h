/// The aircraft: the state of all its systems, and one step of time through them.
#pragma once

#include <array>

#include "host/simulation/autopilot/autopilot.h"
#include "host/simulation/base/clock.h"
#include "host/simulation/flight/air_data.h"
#include "host/simulation/flight/airframe.h"
#include "host/simulation/flight/flight_controls.h"
#include "host/simulation/flight/flight_state.h"
#include "host/simulation/flight/track.h"
#include "host/simulation/flight/trim.h"
#include "host/simulation/navigation/audio_selector.h"
#include "host/simulation/navigation/receivers.h"
#include "host/simulation/navigation/standby_compass.h"
#include "host/simulation/placement.h"
#include "host/simulation/program_windows.h"
#include "host/simulation/systems/air_controls.h"
#include "host/simulation/systems/apu.h"
#include "host/simulation/systems/brakes.h"
#include "host/simulation/systems/cabin.h"
#include "host/simulation/systems/electrics.h"
#include "host/simulation/systems/engine.h"
#include "host/simulation/systems/engine_start.h"
#include "host/simulation/systems/failures.h"
#include "host/simulation/systems/flight_recorder.h"
#include "host/simulation/systems/fuel.h"
#include "host/simulation/systems/ground_proximity.h"
#include "host/simulation/systems/hydraulics.h"
#include "host/simulation/systems/lights.h"
#include "host/simulation/systems/stall_warning.h"
#include "host/simulation/systems/trim_drives.h"
#include "host/simulation/systems/tug.h"

namespace host::simulation {

struct Aircraft {
  Clock clock;
  FlightControls controls;
  FlightState flight;
  Track track;
  Airframe airframe;
  Turbulence turbulence;
  TrimDrives trim_drives;
  /// Under the wheels until the crew first sets the parking brake or the tug comes; they hold the
  /// aircraft altogether.
  bool chocks_in = true;
  Tug tug;
  /// Handed over by the ground crew, and its engines have not turned since: an automatic start finds
  /// them at idle, and with the battery all power goes.
  bool handed_over = false;
  AirData air;
  AirControls air_controls;
  Lights lights;
  FuelControls fuel;
  EngineStart engine_start;
  std::array<Engine, 2> engines;
  Apu apu;
  Brakes brakes;
  Hydraulics hydraulics;
  Electrics electrics;
  std::array<NavReceiver, 2> nav;
  AdfReceiver adf;
  VhfTuning com{com_band, ground_khz, tower_khz};
  TransponderCode transponder;  ///< all noughts, as the panel's knobs stand
  AudioSelector audio;
  int marker = 0;                       ///< as marker_overhead() returns it
  bool hsi_on_area_navigation = false;  ///< instead of receiver 1
  Autopilot autopilot;
  StandbyCompass standby_compass;
  StallWarning stall_warning;
  GroundProximity ground_proximity;
  FlightRecorder flight_recorder;
  bool cabin_door_open = false;
  Cabin cabin;
  ProgramWindows windows;
  Failures failures;

  /// Parked, everything off. From 10 to 120 steps a second; 60 is what the cockpit runs with.
  explicit Aircraft(int steps_per_second = usual_steps_per_second);

  /// Runs one step.
  void step();

  /// The identifications that the crew hears: of receiver 1, receiver 2 and the direction finder. Empty
  /// where nothing is received or the crew does not listen.
  std::array<std::string_view, 3> identifications_heard() const;

  /// What the automatic start does: battery, fuel levers, ignition and both starters.
  void start_both_engines();

  /// The avionics bus carries current.
  bool has_avionics() const;

  /// What the autopilot's computers see.
  Sensed sensed() const;

  /// Puts both engines at a warm idle with battery and avionics on, as after a start some
  /// minutes ago.
  void make_ready();

  /// What the automatic start leads to: at once where the aircraft has just been handed over.
  void start_automatically();

  /// The ground crew's part: a ground unit feeds the aircraft, and the auxiliary power unit is at
  /// speed.
  void connect_ground_power();

  /// As the start page finds it: battery, avionics and auxiliary power unit on, fuel levers open.
  void hand_over();

  /// Lines it up on the runway as it is, at rest, without chocks, the parking brake set.
  void place_on_runway();

  /// Puts it into trimmed, straight and level flight, made ready, boost pumps on. Returns false where
  /// it cannot fly like that; it is then as near to it as it comes.
  bool place_in_flight(const InFlight& where);

 private:
  void tune_radios();
  void fly(double dt_s);
  FlightControls governed_controls();
  void stand_or_roll(double dt_s);
  TugInputs tug_inputs() const;
  AirframeInputs surroundings() const;
  EngineInputs engine_inputs(std::size_t engine) const;
  void put_in_the_air(const InFlight& where);
  Trim trim_for(const InFlight& where);
  double thrust_for_minutes(const InFlight& where) const;
  void start_engines_at_once(double thrust_n);
  void update_systems(double dt_s);
  void follow_handing_over();
  void update_engine_start(double dt_s);
  void update_engines(double dt_s);
  void update_brakes(double dt_s);
  void update_hydraulics(double dt_s);
  std::array<double, 2> core_speeds_percent() const;
  void update_fuel(double dt_s);
  void update_electrics(double dt_s);
  void update_navigation(double dt_s);
  void update_warnings(double dt_s);
  GroundProximityInputs ground_proximity_inputs() const;
  /// Brings everything that depends on the place up to date after the aircraft has been moved.
  void arrive();
};

}  // namespace host::simulation
