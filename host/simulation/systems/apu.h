/// The auxiliary power unit: a small gas turbine with an electric starter, for air and current.
#pragma once

namespace host::simulation {

struct Apu {
  bool running = false;        ///< asked to run: started and not stopped since
  double speed_percent = 0.0;  ///< 0..100

  void start(bool has_dc) { running = running || has_dc; }
  void stop() { running = false; }

  void update(double dt_s);

  /// Its generator and its bleed air can be used.
  bool at_speed() const { return speed_percent > 95.0; }

  /// The electric starter turns it until it sustains itself.
  bool cranking() const { return running && speed_percent < 50.0; }
};

}  // namespace host::simulation
