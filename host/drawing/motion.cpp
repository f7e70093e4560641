#include "host/drawing/motion.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace host {
namespace {

constexpr double farthest = 1e6;  // canvas pixels

}  // namespace

int pixel_steps(double pixels) {
  return static_cast<int>(std::lround(std::clamp(pixels, -farthest, farthest) * steps_per_pixel));
}

int turn_steps(double reach) {
  const double steps_per_degree = 2 * std::numbers::pi * reach * steps_per_pixel / 360;
  return 360 * static_cast<int>(std::clamp(std::ceil(steps_per_degree), 1.0, 2880.0));
}

int turn_step(double degrees, int steps) {
  const double part = std::remainder(degrees, 360.0) / 360.0;
  const int step = static_cast<int>(std::lround(part * steps));
  return (step + steps) % steps;
}

double mixed(double before, double now, double blend) {
  if (!std::isfinite(before) || !std::isfinite(now)) return now;
  return before + (now - before) * blend;
}

double mixed_angle(double before, double now, double blend) {
  if (!std::isfinite(before) || !std::isfinite(now)) return now;
  return now - std::remainder(now - before, 360.0) * (1 - blend);
}

std::optional<int> pushed_steps(const Moment& moment, int axis, double scale, double zoom) {
  if (scale == 0) return 0;
  const double value = mixed(moment.before.values[axis], moment.now.values[axis], moment.blend);
  if (!std::isfinite(value * scale)) return std::nullopt;
  return pixel_steps(value * scale * zoom);
}

}  // namespace host
