/// Levers, guards and knobs as data. Each row is all positions of one control.
#pragma once

#include "resources/kit/geometry.h"
#include "resources/kit/styles.h"
#include "resources/rows/list.h"

namespace artwork {

/// A toggle lever, an image for each of its throws. The plate has its washer.
struct Lever {
  Point hub = {};  ///< where it turns within its picture; {}: in the middle
  double reach = 14;
  double ball = 3.3;
  bool sideways = false;  ///< down is left, up is right
  double polish = 17;     ///< how far fingers have polished the plate
  double mount = 8.6;     ///< radius of the washer
  double nut = 6;
  List<Throw, 4> throws = {};
};

enum class Grip { bar, pointer };

/// Ticks on the plate at a knob's positions, from one distance to another outside its rim.
struct Ticks {
  double from = 0;
  double to = 0;
};

/// A rotary knob, an image for each position. The plate has its seat and its ticks.
struct Knob {
  double radius;
  double seat = 1.5;  ///< by which its seat is wider
  Grip grip = Grip::bar;
  Point hub = {};  ///< where it turns within its picture; {}: in the middle
  Ticks ticks = {};
  List<double, 12> marks = {};  ///< degrees clockwise from straight up
};

/// A push switch with a flow bar: across, in line.
struct FlowSwitch {
  Point hub;
  double radius;
  double seat;
};

/// A red guard: closed, open. Its picture stands over that of a guarded control.
struct Guard {};

/// The lever in the well under a guard: off, on. Off is on the plate, and the picture empty.
struct GuardedLever {};

/// The rotary knob in the well under a guard, of several positions; the first is on the plate.
struct GuardedKnob {
  int positions = 4;
};

}  // namespace artwork
