/// A needle's calibration: which way it points at a value.
#pragma once

#include <span>
#include <vector>

#include "interface/panel_interface.h"

namespace host {

class NeedleScale {
 public:
  /// From the points as seen from the needle's position. From each point to the next in the table the
  /// needle turns clockwise, even past half a circle; a table that would so go round more than once is
  /// meant counterclockwise. A point on the position itself keeps the direction of the one before.
  NeedleScale(PanelPoint position, std::span<const NonlinearityPoint> points);

  /// Degrees clockwise from the right, not reduced to one turn; the ends hold. The value must be a
  /// number.
  double angle(double value) const;

  /// The direction between two values. On a scale that closes to a full circle, such as an
  /// altimeter's, the needle passes over its join and does not swing back.
  double angle_between(double before, double now, double blend) const;

 private:
  struct Mark {
    double value;
    double angle;
  };
  void turn_all(bool clockwise_way);
  std::vector<Mark> marks_;  // ascending values
  bool closed_ = false;
};

}  // namespace host
