#include "host/outside/camera.h"

#include <algorithm>
#include <cmath>

namespace host::outside {
namespace {

using simulation::radians_per_degree;

constexpr double usual_height_deg = 20.0, greatest_width_deg = 85.0;

// The nose lies below the captain's line of sight: more is seen below the line of flight than above.
constexpr double centre_height = 0.31;

double focal_length(int width, int height) {
  const auto length = [](int pixels, double degrees) {
    return 0.5 * pixels / std::tan(0.5 * degrees * radians_per_degree);
  };
  return std::max(length(height, usual_height_deg), length(width, greatest_width_deg));
}

}  // namespace

Camera::Camera(const Sight& sight, int width, int height)
    : width_(width),
      height_(height),
      eye_m_(sight.eye_m),
      focal_px_(focal_length(width, height)),
      centre_{0.5 * width, centre_height * height} {
  const auto attitude = simulation::Quaternion::from(sight.attitude);
  const double turn = sight.look.right_deg * radians_per_degree;
  const double raise = sight.look.up_deg * radians_per_degree;
  const Vector ahead{std::cos(turn) * std::cos(raise), std::sin(turn) * std::cos(raise),
                     -std::sin(raise)};
  const Vector aside{-std::sin(turn), std::cos(turn), 0.0};
  forward_ = attitude.to_earth(ahead);
  right_ = attitude.to_earth(aside);
  down_ = cross(forward_, right_);
  corner_ = forward_ * focal_px_ + right_ * -centre_.x + down_ * -centre_.y;
  per_dip_ = 1.0 / std::max(std::hypot(right_.z, down_.z), 1e-9);
}

// A pixel shows something of either side up to half a pixel beyond the horizon.
Columns Camera::beside_horizon(int y, double side) const {
  const double start = side * below_horizon(0.5, y + 0.5) + 0.5, step = side * right_.z * per_dip_;
  double first = 0.0, end = width_;
  if (step > 1e-12) first = std::max(first, std::ceil(-start / step));
  if (step < -1e-12) end = std::min(end, std::floor(-start / step) + 1.0);
  if (std::abs(step) <= 1e-12 && start <= 0.0) end = 0.0;
  return first < end ? Columns{static_cast<int>(first), static_cast<int>(end)} : Columns{0, 0};
}

}  // namespace host::outside
