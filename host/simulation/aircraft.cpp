#include "host/simulation/aircraft.h"

namespace host::simulation {

Aircraft::Aircraft() {
  air.update(flight);
  for (Engine& engine : engines) {
    engine.gas_temperature_celsius = air.temperature_celsius;
    engine.oil_temperature_celsius = air.temperature_celsius;
  }
  update_systems(0.0);
}

void Aircraft::step() {
  ++clock.steps;
  update_systems(step_s);
}

void Aircraft::update_systems(double dt_s) {
  air.update(flight);
  if (!electrics.has_dc()) apu.stop();
  apu.update(dt_s);
  update_engine_start(dt_s);
  update_engines(dt_s);
  update_electrics(dt_s);
}

void Aircraft::update_engine_start(double dt_s) {
  engine_start.update(
      dt_s, {
                .core_speed_percent = {engines[0].core_speed_percent, engines[1].core_speed_percent},
                .has_dc = electrics.has_dc(),
                .apu_at_speed = apu.at_speed(),
                .on_ground = flight.on_ground,
            });
}

void Aircraft::update_engines(double dt_s) {
  for (std::size_t i = 0; i < engines.size(); ++i) {
    engines[i].update(dt_s, {
                                .fuel_lever_open = fuel.lever_open[i],
                                .ignition = engine_start.ignition(i) && electrics.has_dc(),
                                .crank_speed_percent = engine_start.crank_speed_percent[i],
                                .throttle_ratio = throttle_ratio[i],
                                .antiice_bleed = air_controls.engine_antiice_on,
                                .air_temperature_celsius = air.temperature_celsius,
                                .air_pressure_hpa = air.pressure_hpa,
                            });
  }
}

void Aircraft::update_electrics(double dt_s) {
  electrics.update(
      dt_s, {
                .core_speed_percent = {engines[0].core_speed_percent, engines[1].core_speed_percent},
                .apu_at_speed = apu.at_speed(),
                .apu_cranking = apu.cranking(),
                .on_ground = flight.on_ground,
                .engine_antiice = air_controls.engine_antiice_on,
                .lights_on = lights.count_on(),
            });
}

void Aircraft::start_both_engines() {
  electrics.battery_on = true;
  engine_start.ignition_armed = true;
  fuel.lever_open = {true, true};
  for (std::size_t i = 0; i < engines.size(); ++i) {
    engine_start.starters[i].engage(engines[i].core_speed_percent);
  }
}

void Aircraft::make_ready() {
  constexpr int warm_up_steps = 600 * steps_per_second;
  electrics.avionics_on = true;
  start_both_engines();
  for (int i = 0; i < warm_up_steps; ++i) update_systems(step_s);
}

}  // namespace host::simulation
