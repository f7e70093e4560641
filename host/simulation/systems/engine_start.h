/// Air starters and ignition of both engines.
#pragma once

#include <array>
#include <cstddef>

namespace host::simulation {

/// An air turbine on the core's gearbox. Once its valve is open it cranks by itself, until the
/// engine runs, the valve loses its current or the air, or its duty time is over.
struct Starter {
  bool engaged = false;
  double cranking_s = 0.0;

  /// Opens the valve, or starts the duty time again. Nothing happens above cut-out speed.
  void engage(double core_speed_percent);
  void update(double dt_s, double core_speed_percent, bool can_turn);
};

struct EngineStartInputs {
  std::array<double, 2> core_speed_percent{};
  bool has_dc = false;
  bool apu_at_speed = false;
  bool on_ground = true;
};

struct EngineStart {
  bool ignition_armed = false;  ///< by the start master, until both engines run
  std::array<Starter, 2> starters;
  std::array<double, 2> crank_speed_percent{};  ///< 0 where no starter turns

  void update(double dt_s, const EngineStartInputs& inputs);

  /// The igniters spark with the starter, and without it while armed.
  bool ignition(std::size_t engine) const { return starters[engine].engaged || ignition_armed; }
};

/// Air pressure at an engine's starter: from the APU, across from the other engine, or from the
/// ground unit at the stand.
double starter_air_psi(const EngineStartInputs& inputs, std::size_t engine);

}  // namespace host::simulation
