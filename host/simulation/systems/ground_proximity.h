/// The ground proximity warning computer. It raises one warning for five modes, each an envelope of the
/// radio altitude h (feet, from 30 to 2,450) against what brings the ground nearer:
///
///   1 sink rate       h < 0.6035 s - 572, s the rate of descent in ft/min; from 10 ft on
///   2 closure         h < 0.7895 c - 1579 and h < 0.1968 c + 522, c the rate at which h shrinks in ft/min;
///                     up to 1,650 ft below 220 kt, rising to 2,450 ft at 310 kt; with landing flaps
///                     from 200 to 789 ft alone
///   3 altitude loss   after take-off and going around, gear or flaps not set for landing: more than
///                     5.4 ft + 0.092 h below the highest altitude reached
///   4 clearance       otherwise: gear up h < 500 ft up to 190 kt, gear down without landing flaps h < 245 ft
///                     up to 159 kt; above h < 8.333 V - 1083, 1,000 ft at most
///   5 glide slope     gear down, h < 1,000 ft: more than 1.3 dots below it, and below 150 ft 1.4 dots
///                     more for each 120 ft
///
/// The modes and the shape of their envelopes are those of RTCA DO-161A (1976); the figures are this
/// aircraft's own, in the range of its class. Take-off ends above 700 ft; below 245 ft with gear and
/// flaps for landing a go-around would begin, so it counts as one. The closure rate is smoothed over a
/// second, and an envelope has to stay broken for 0.8 s before it warns.
///
/// Check values: sinking at 1,500 ft/min warns below 333 ft, closing at 3,000 ft/min below 789 ft; at
/// 500 ft a loss of 51 ft; at 220 kt gear up below 750 ft.
#pragma once

#include <optional>

namespace host::simulation {

enum class ProximityMode { none, sink_rate, closure, altitude_loss, clearance, glide_slope };

/// What the envelopes are laid against.
struct ProximityPicture {
  double height_ft = 0.0;
  double sink_fpm = 0.0;
  double closure_fpm = 0.0;
  double altitude_loss_ft = 0.0;
  double airspeed_kt = 0.0;
  double dots_below_slope = 0.0;  ///< 0 without a slope
  bool taking_off = false;
  bool gear_down = false;
  bool landing_flaps = false;
};

/// The mode whose envelope is broken, the first of several.
ProximityMode broken_mode(const ProximityPicture& picture);

struct GroundProximityInputs {
  bool powered = false;
  bool on_ground = true;
  double height_ft = 0.0;    ///< radio altitude
  double altitude_ft = 0.0;  ///< barometric
  double vertical_speed_fpm = 0.0;
  double airspeed_kt = 0.0;
  bool gear_down = false;
  bool landing_flaps = false;
  std::optional<double> slope_deviation{};  ///< full scales of two dots, above positive; none received
};

struct GroundProximity {
  ProximityMode warning = ProximityMode::none;
  bool taking_off = false;

  void update(double dt_s, const GroundProximityInputs& inputs);

 private:
  void follow_phase(const GroundProximityInputs& inputs);
  void follow_ground(double dt_s, double height_ft);
  ProximityPicture picture(const GroundProximityInputs& inputs) const;

  double highest_altitude_ft_ = 0.0;  ///< of this take-off
  std::optional<double> last_height_ft_;
  double closure_fpm_ = 0.0;
  double broken_s_ = 0.0;
};

/// Flaps from this angle on are set for landing.
inline constexpr double landing_flap_deg = 25.0;

}  // namespace host::simulation
