/// The ship's batteries, taken as one: two nickel-cadmium units of 20 cells and 40 Ah each.
#pragma once

namespace host::simulation {

struct Battery {
  double charge_ratio = 0.95;  ///< 0 flat .. 1 full; a parked aircraft has lost a little
  double amperes = 0.0;        ///< charging positive, discharging negative

  /// Volts at the terminals under the present current.
  double volts() const;

  /// What a 28 V bus pushes into it: high while empty, a trickle when full.
  double charging_amperes() const;

  void update(double dt_s, double new_amperes);
};

}  // namespace host::simulation
