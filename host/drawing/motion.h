/// Values between two frames, and the steps in which motion is told apart.
#pragma once

#include <optional>

#include "host/drawing/element_painter.h"

namespace host {

inline constexpr int steps_per_pixel = 16;

/// Canvas pixels in steps; limited to a distance that no canvas reaches.
int pixel_steps(double pixels);
inline double step_pixels(int steps) { return static_cast<double>(steps) / steps_per_pixel; }

/// How many steps a full turn needs so that a point `reach` canvas pixels from the pivot moves by
/// no more than one pixel step. Whole degrees are whole steps.
int turn_steps(double reach);

/// An angle in degrees as one of `steps` steps of a turn, 0 to steps − 1.
int turn_step(double degrees, int steps);

/// Between two values that need not be numbers: `now` where they cannot be mixed.
double mixed(double before, double now, double blend);

/// The same for angles in degrees, the short way round.
double mixed_angle(double before, double now, double blend);

/// How far value number `axis` pushes an image of `scale` background pixels a unit; none when it
/// asks for a place that is not a number. A scale of 0 means no motion.
std::optional<int> pushed_steps(const Moment& moment, int axis, double scale, double zoom);

/// A needle's value in a frame: as far as its speed limit has let it come.
inline double needle_value(const ElementState& state) {
  return state.reached.value_or(state.values[0]);
}

}  // namespace host
