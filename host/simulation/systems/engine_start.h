/// Air starters and ignition of both engines.
#pragma once

#include <array>
#include <cstddef>

namespace host::simulation {

/// An air turbine on the core's gearbox.
///
/// The start panel asks for its valve. Where there is pressure in its duct it sees the core turn and
/// goes on asking, and with the tenth ask the valve latches; one ask alone is a selector turned over a
/// shut duct, and the valve closes again before the core has reached 2 %. The ground crew's automatic
/// start latches it at once. Latched it cranks by itself, until the engine runs, the valve loses its
/// current or the air, or its duty time is over.
struct Starter {
  bool engaged = false;
  double cranking_s = 0.0;

  /// Asks for the valve, or starts the duty time again. Nothing happens above cut-out speed.
  void engage(double core_speed_percent);
  void engage_by_ground_crew(double core_speed_percent);
  void update(double dt_s, double core_speed_percent, bool can_turn);

  /// The ground crew has brought its own air to the start.
  bool has_ground_air() const { return ground_air; }

 private:
  int asks = 0;
  double unasked_s = 0.0;
  bool ground_air = false;
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

/// Air pressure in the duct of an engine's starter: from the APU or across from the other engine; 0
/// where neither gives any.
double starter_air_psi(const EngineStartInputs& inputs, std::size_t engine);

}  // namespace host::simulation
