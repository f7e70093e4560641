/// Where a needle points: pure functions of its record and its value. The drawing turns needles by
/// them and the artwork prints its scales by them, so that the two cannot differ.
#pragma once

#include <vector>

#include "interface/panel_interface.h"

namespace host {

/// A needle's calibration as angles about its pivot. Without marks the value itself is the angle.
struct NeedleScale {
  struct Mark {
    double value;
    double angle;  ///< degrees clockwise from the right, carried on past a full turn
  };
  std::vector<Mark> marks;  ///< ascending values
  double turns = 0;         ///< of a scale that closes in itself, a clock's or an altimeter's; else 0
};

/// The scale of a needle element. From each point of its table to the next, in ascending order of
/// value, the needle goes as the record says. Points without a direction (on the pivot) or without a
/// place (a value that is not a number) are passed over.
NeedleScale needle_scale(const Element& needle);

/// Degrees clockwise from the right at a value, not reduced to one turn; beyond the ends of a table
/// the end points hold. Not a number where the value is not, and without a table where it is infinite.
double needle_angle(const NeedleScale& scale, double value);

/// The direction on the way from one value to the next, `blend` 0 to 1. Where a scale closes in
/// itself, and without a table, the needle goes the short way round and never swings back over the
/// whole scale. Where `before` has no direction it is the one of `now`.
double needle_angle_between(const NeedleScale& scale, double before, double now, double blend);

}  // namespace host
