#include "host/simulation/aircraft.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace host::simulation {
namespace {

/// Core speed of an engine that has lit, at which its oil pressure starts the flight recorder.
constexpr double recorder_starts_percent = 40.0;

}  // namespace

Aircraft::Aircraft(int steps_per_second) {
  clock.steps_per_second = steps_per_second;
  tune_radios();
  airframe.surfaces.settle(controls);
  airframe.stand_at(on_runway_axes(stand_along_m, stand_right_m), runway_true_deg * radians_per_degree,
                    mass_properties(fuel.load()));
  airframe.report(flight);
  air.update(flight);
  for (Engine& engine : engines) {
    engine.gas_temperature_celsius = air.temperature_celsius;
    engine.oil_temperature_celsius = air.temperature_celsius;
  }
  brakes.temperature_celsius.fill(air.temperature_celsius);
  hydraulics.settle(core_speeds_percent(), airframe.surfaces);
  update_systems(0.0);
  standby_compass.settle(flight);
}

void Aircraft::tune_radios() {
  const auto khz = [](double mhz) { return static_cast<int>(std::lround(mhz * 1000.0)); };
  nav[0].tuning.active_khz = khz(landing_system().frequency_mhz);
  nav[1].tuning.active_khz = nav[0].tuning.standby_khz = khz(vor_stations()[0].frequency_mhz);
  nav[1].tuning.standby_khz = khz(vor_stations()[1].frequency_mhz);
  adf.tuning.tenths_khz = static_cast<int>(std::lround(ndb_station().frequency_khz * 10.0));
}

void Aircraft::step() {
  ++clock.steps;
  failures.update(clock.step_s());
  controls = controls.limited();
  fly(clock.step_s());
  update_systems(clock.step_s());
  update_fuel(clock.step_s());
  update_navigation(clock.step_s());
  update_warnings(clock.step_s());
  track.follow(flight.position_m);
}

AirframeInputs Aircraft::surroundings() const {
  AirframeInputs inputs;
  inputs.mass = mass_properties(fuel.load());
  inputs.thrust_n = {engines[0].thrust_n, engines[1].thrust_n};
  inputs.brake = brakes.torque_ratio();
  inputs.antiskid = brakes.antiskid_on;
  inputs.density_kg_per_m3 = air.density_kg_per_m3;
  inputs.sound_mps = air.sound_mps;
  inputs.wind_mps = air.weather.wind.velocity_mps();
  inputs.gust_mps = turbulence.gust_mps;
  return inputs;
}

/// Armed, the dumpers run out as soon as wheels carry the aircraft and both throttles are closed. In
/// the air a lock keeps them in.
FlightControls Aircraft::governed_controls() {
  constexpr double closed_ratio = 0.01;
  const bool closed = controls.throttle[0] < closed_ratio && controls.throttle[1] < closed_ratio;
  if (controls.lift_dumpers_armed && flight.on_ground && closed) controls.lift_dumpers_out = true;
  FlightControls governed = controls;
  governed.lift_dumpers_out = controls.lift_dumpers_out && flight.on_ground;
  return governed;
}

TugInputs Aircraft::tug_inputs() const {
  constexpr double at_rest_mps = 0.1, idle = 0.02, pressed = 0.05;
  const auto& [left, right] = controls.brake;
  const bool pedals = left > pressed || right > pressed;
  return {
      .standing = flight.on_ground && length(flight.velocity_mps) < at_rest_mps,
      .brakes_on = controls.parking_brake_set || pedals,
      .no_more_needed =
          controls.parking_brake_set || controls.throttle[0] > idle || controls.throttle[1] > idle,
  };
}

/// Held by the tug, by the chocks, or free.
void Aircraft::stand_or_roll(double dt_s) {
  tug.update(dt_s, tug_inputs());
  const MassProperties mass = mass_properties(fuel.load());
  if (tug.coupled) {
    chocks_in = false;
    return airframe.roll(dt_s, -tug.speed_mps, tug.yaw_rad_per_s(), mass);
  }
  if (chocks_in && controls.parking_brake_set) {
    chocks_in = false;
    airframe.stand_at(airframe.position_m, airframe.attitude.angles().heading_rad, mass);
  }
  if (chocks_in) return;
  turbulence.update(dt_s, flight.on_ground ? 0.0 : air.weather.wind.gust_mps, flight.true_airspeed_mps);
  airframe.update(dt_s, surroundings());
}

void Aircraft::fly(double dt_s) {
  trim_drives.update(dt_s, controls);
  const auto gear_was = airframe.surfaces.gear;
  airframe.surfaces.update(dt_s, governed_controls(), autopilot.servos.deflections, flight.on_ground);
  if (failures[System::gear]) airframe.surfaces.gear = gear_was;
  update_brakes(dt_s);
  stand_or_roll(dt_s);
  airframe.report(flight);
}

void Aircraft::follow_handing_over() {
  if (!electrics.battery_on) {
    apu = {};
    fuel.boost_pump_on = {};
  }
  const bool turning = engines[0].core_speed_percent > 1.0 || engines[1].core_speed_percent > 1.0;
  handed_over = electrics.battery_on && !turning;
}

void Aircraft::update_systems(double dt_s) {
  air.update(flight, {.pitot_blocked = failures[System::airspeed],
                      .static_blocked = failures[System::altimeter]});
  if (handed_over) follow_handing_over();
  if (!electrics.has_dc() || failures[System::apu]) apu.stop();
  apu.update(dt_s);
  update_engine_start(dt_s);
  update_engines(dt_s);
  update_electrics(dt_s);
  const bool engine_runs = engines[0].core_speed_percent > recorder_starts_percent ||
                           engines[1].core_speed_percent > recorder_starts_percent;
  flight_recorder.update(dt_s, electrics.has_dc(), engine_runs, flight.on_ground);
  update_hydraulics(dt_s);
}

void Aircraft::update_engine_start(double dt_s) {
  engine_start.update(dt_s, {
                                .core_speed_percent = core_speeds_percent(),
                                .has_dc = electrics.has_dc(),
                                .apu_at_speed = apu.at_speed(),
                                .on_ground = flight.on_ground,
                            });
}

EngineInputs Aircraft::engine_inputs(std::size_t engine) const {
  return {
      .fuel_lever_open = fuel.lever_open[engine],
      .ignition = engine_start.ignition(engine) && electrics.has_dc(),
      .crank_speed_percent = engine_start.crank_speed_percent[engine],
      .fuel_available = fuel.at_engine[engine] && !failures.of(System::engine_1, engine),
      .throttle_ratio = controls.throttle[engine],
      .antiice_bleed = air_controls.engine_antiice_on,
      .air_temperature_celsius = air.temperature_celsius,
      .air_pressure_hpa = air.pressure_hpa,
      .mach = air.mach,
      .airspeed_kt = air.indicated_airspeed_kt,
      .in_flight = !flight.on_ground,
  };
}

void Aircraft::update_engines(double dt_s) {
  for (std::size_t i = 0; i < engines.size(); ++i) engines[i].update(dt_s, engine_inputs(i));
}

void Aircraft::update_brakes(double dt_s) {
  brakes.update(dt_s, {
                          .pedal = controls.brake,
                          .parking_brake_set = controls.parking_brake_set,
                          .energy_j = std::exchange(airframe.gear.braked_j, {}),
                          .air_temperature_celsius = air.temperature_celsius,
                          .slipstream_mps = airframe.surfaces.gear[1] * flight.true_airspeed_mps,
                      });
}

std::array<double, 2> Aircraft::core_speeds_percent() const {
  return {engines[0].core_speed_percent, engines[1].core_speed_percent};
}

void Aircraft::update_hydraulics(double dt_s) {
  hydraulics.update(dt_s, core_speeds_percent(), airframe.surfaces);
}

void Aircraft::update_fuel(double dt_s) {
  fuel.boost_pump_failed = {failures[System::boost_pump_1], failures[System::boost_pump_2]};
  fuel.update(dt_s, {
                        .flow_kg_per_h = {engines[0].fuel_flow_kg_per_h, engines[1].fuel_flow_kg_per_h},
                        .altitude_ft = flight.altitude_ft,
                        .has_dc = electrics.has_dc(),
                        .standing = flight.on_ground && length(flight.velocity_mps) < 0.1,
                    });
}

void Aircraft::update_electrics(double dt_s) {
  electrics.update(
      dt_s, {
                .core_speed_percent = core_speeds_percent(),
                .apu_at_speed = apu.at_speed(),
                .apu_cranking = apu.cranking(),
                .on_ground = flight.on_ground,
                .engine_antiice = air_controls.engine_antiice_on,
                .lights_on = lights.count_on(),
                .generator_failed = {failures[System::generator_1], failures[System::generator_2]},
                .all_failed = failures[System::electrical],
            });
}

bool Aircraft::has_avionics() const {
  return electrics.avionics_on && electrics.has_dc() && !failures[System::avionics];
}

Sensed Aircraft::sensed() const {
  return {flight,
          air,
          nav[0],
          airframe.surfaces.flap_deg,
          hsi_on_area_navigation,
          has_avionics(),
          !failures[System::attitude] && !failures[System::compass]};
}

void Aircraft::update_navigation(double dt_s) {
  const bool powered = has_avionics();
  for (std::size_t i = 0; i < nav.size(); ++i) {
    nav[i].update(flight, powered && !failures.of(System::receiver_1, i));
    if (failures[System::distance]) nav[i].distance_nm = -1.0;
  }
  adf.update(flight, powered && !failures[System::direction_finder]);
  marker = powered ? marker_overhead(flight) : 0;
  autopilot.update(dt_s, sensed(), controls);
}

std::array<std::string_view, 3> Aircraft::identifications_heard() const {
  std::array<std::string_view, 3> heard{nav[0].ident, nav[1].ident, adf.ident};
  for (std::size_t i = 0; i < heard.size(); ++i) {
    if (!audio.identification_on[i]) heard[i] = {};
  }
  return heard;
}

GroundProximityInputs Aircraft::ground_proximity_inputs() const {
  const Surfaces& surfaces = airframe.surfaces;
  GroundProximityInputs inputs{
      .powered = electrics.avionics_on && electrics.has_dc() && !failures[System::avionics],
      .on_ground = flight.on_ground,
      .height_ft = flight.height_ft,
      .altitude_ft = air.indicated_altitude_ft,
      .vertical_speed_fpm = flight.vertical_speed_fpm,
      .airspeed_kt = air.indicated_airspeed_kt,
      .gear_down = *std::ranges::min_element(surfaces.gear) >= 1.0,
      .landing_flaps = surfaces.flap_deg >= landing_flap_deg,
  };
  if (nav[0].glide_slope) inputs.slope_deviation = nav[0].slope_deviation;
  return inputs;
}

void Aircraft::update_warnings(double dt_s) {
  standby_compass.update(dt_s, flight);
  stall_warning.update(dt_s, {
                                 .powered = electrics.has_dc(),
                                 .on_ground = flight.on_ground,
                                 .angle_of_attack_rad = flight.angle_of_attack_rad,
                                 .flap_deg = airframe.surfaces.flap_deg,
                                 .mach = air.mach,
                                 .airspeed_kt = air.indicated_airspeed_kt,
                             });
  ground_proximity.update(dt_s, ground_proximity_inputs());
}

}  // namespace host::simulation
