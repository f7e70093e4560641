// How the aircraft gets into a state at once: started, handed over, put on the runway or into the air.
#include <cmath>

#include "host/simulation/aircraft.h"

namespace host::simulation {
namespace {

double true_heading_rad(const InFlight& where) {
  return (where.heading_deg + magnetic_variation_deg) * radians_per_degree;
}

}  // namespace

void Aircraft::arrive() {
  track = {};
  update_systems(0.0);
  autopilot.reset(sensed());
  update_navigation(0.0);
  standby_compass.settle(flight);
  stall_warning = {};
  ground_proximity = {};
  update_warnings(0.0);
}

void Aircraft::start_both_engines() {
  electrics.battery_on = true;
  engine_start.ignition_armed = true;
  fuel.lever_open = {true, true};
  for (std::size_t i = 0; i < engines.size(); ++i) {
    engine_start.starters[i].engage_by_ground_crew(engines[i].core_speed_percent);
  }
}

void Aircraft::make_ready() {
  constexpr int warm_up_s = 600;
  electrics.avionics_on = true;
  start_both_engines();
  for (int i = 0; i < warm_up_s * clock.steps_per_second; ++i) update_systems(clock.step_s());
}

void Aircraft::start_automatically() {
  fuel.boost_pump_on = {true, true};
  handed_over ? make_ready() : start_both_engines();
}

void Aircraft::connect_ground_power() {
  electrics.external_power = true;
  apu = {.running = true, .speed_percent = 100.0};
}

void Aircraft::hand_over() {
  electrics.battery_on = electrics.avionics_on = true;
  fuel.lever_open = fuel.boost_pump_on = {true, true};
  apu = {.running = true, .speed_percent = 100.0};
  handed_over = true;
  update_systems(0.0);
}

void Aircraft::place_on_runway() {
  chocks_in = false;
  tug = {};
  controls = controls.limited();
  controls.parking_brake_set = true;
  controls.gear_down = true;
  airframe.surfaces.settle(controls);
  hydraulics.settle(core_speeds_percent(), airframe.surfaces);
  brakes.pressure_ratio = {1.0, 1.0};
  airframe.stand_at(on_runway_axes(line_up_along_m, 0.0), runway_true_deg * radians_per_degree,
                    mass_properties(fuel.load()));
  airframe.report(flight);
  arrive();
}

void Aircraft::put_in_the_air(const InFlight& where) {
  chocks_in = false;
  tug = {};
  trim_drives = {};
  turbulence = {};
  controls = {};
  controls.flap_detent = where.flap_detent;
  controls.gear_down = where.gear_down;
  controls = controls.limited();
  airframe.surfaces.settle(controls);
  airframe.gear = {};
  airframe.main_wheel_down = false;
  airframe.put_at_altitude(on_runway_axes(where.along_m, where.right_m), where.altitude_ft);
  airframe.report(flight);
  air.update(flight);
}

Trim Aircraft::trim_for(const InFlight& where) {
  const double mach = where.mach > 0.0 ? where.mach : mach_at(where.airspeed_kt, air.pressure_hpa);
  const Trim trim = trim_level(airframe, surroundings(), mach * air.sound_mps, true_heading_rad(where));
  controls.pitch_trim = trim_for_stabiliser(trim.stabiliser_rad);
  airframe.report(flight);
  air.update(flight);
  return trim;
}

bool Aircraft::place_in_flight(const InFlight& where) {
  put_in_the_air(where);
  const Trim trim = trim_for(where);
  start_engines_at_once(trim.thrust_n);
  const double thrust_n = thrust_for_minutes(where);
  start_engines_at_once(thrust_n);
  arrive();
  return trim.found && std::abs(engines[0].thrust_n * 2.0 - thrust_n) < 1.0;
}

// Fuel burned is weight gone, and less weight needs less thrust: with the levers left alone it would
// climb ever faster. The crew therefore sets what the aircraft will need some minutes on; it sinks a
// little first and is back when ten minutes are over.
double Aircraft::thrust_for_minutes(const InFlight& where) const {
  constexpr double ahead_s = 260.0;
  AirframeInputs inputs = surroundings();
  FuelLoad load = fuel.load();
  for (double* tank_kg : {&load.left_kg, &load.right_kg}) {
    *tank_kg -= ahead_s / 3600.0 * engines[0].fuel_flow_kg_per_h;
  }
  inputs.mass = mass_properties(load);
  Airframe lighter = airframe;
  return trim_level(lighter, inputs, airframe.airspeed_mps, true_heading_rad(where)).thrust_n;
}

void Aircraft::start_engines_at_once(double thrust_n) {
  electrics.battery_on = electrics.avionics_on = true;
  fuel.lever_open = fuel.boost_pump_on = fuel.at_engine = {true, true};
  engine_start = {};
  double low = 0.0, high = 1.0;
  for (int halving = 0; halving < 50; ++halving) {
    controls.throttle.fill((low + high) / 2.0);
    engines[0].settle(engine_inputs(0));
    (engines[0].thrust_n * 2.0 < thrust_n ? low : high) = controls.throttle[0];
  }
  engines[1].settle(engine_inputs(1));
  hydraulics.settle(core_speeds_percent(), airframe.surfaces);
}

}  // namespace host::simulation
