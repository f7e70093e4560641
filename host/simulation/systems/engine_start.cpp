#include "host/simulation/systems/engine_start.h"

#include <algorithm>

namespace host::simulation {
namespace {

// Past this the engine carries itself and the starter's clutch lets go.
constexpr double cut_out_percent = 42.0;
constexpr double duty_time_s = 180.0;

constexpr int asks_to_latch = 10;
constexpr double longest_pause_s = 0.4;  // between two asks

constexpr double apu_psi = 40.0;
constexpr double crossbleed_psi = 38.0;
constexpr double ground_unit_psi = 36.0;

// Core speed that the starter reaches alone: 27.7 % on the ground unit, 28.8 % on the APU, a
// little above the 25 % at which the start panel takes the cranking for done.
double crank_speed(double air_psi) { return 18.0 + 0.27 * air_psi; }

}  // namespace

void Starter::engage(double core_speed_percent) {
  if (core_speed_percent >= cut_out_percent) return;
  engaged = true;
  ++asks;
  cranking_s = unasked_s = 0.0;
}

void Starter::engage_by_ground_crew(double core_speed_percent) {
  engage(core_speed_percent);
  ground_air = engaged;
}

void Starter::update(double dt_s, double core_speed_percent, bool can_turn) {
  if (!engaged) return;
  cranking_s += dt_s;
  unasked_s += dt_s;
  const bool latched = ground_air || asks >= asks_to_latch;
  const bool held = latched ? cranking_s < duty_time_s : unasked_s < longest_pause_s;
  if (!can_turn || core_speed_percent >= cut_out_percent || !held) *this = {};
}

double starter_air_psi(const EngineStartInputs& inputs, std::size_t engine) {
  constexpr double running_percent = 50.0;
  if (inputs.apu_at_speed) return apu_psi;
  return inputs.core_speed_percent[1 - engine] > running_percent ? crossbleed_psi : 0.0;
}

void EngineStart::update(double dt_s, const EngineStartInputs& inputs) {
  for (std::size_t i = 0; i < starters.size(); ++i) {
    const double ground_psi = starters[i].has_ground_air() && inputs.on_ground ? ground_unit_psi : 0.0;
    const double air_psi = std::max(starter_air_psi(inputs, i), ground_psi);
    starters[i].update(dt_s, inputs.core_speed_percent[i], inputs.has_dc && air_psi > 0.0);
    crank_speed_percent[i] = starters[i].engaged ? crank_speed(air_psi) : 0.0;
  }
  if (inputs.core_speed_percent[0] > cut_out_percent &&
      inputs.core_speed_percent[1] > cut_out_percent) {
    ignition_armed = false;
  }
}

}  // namespace host::simulation
