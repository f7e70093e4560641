#include "host/drawing/needle_scale.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "host/drawing/motion.h"

namespace host {
namespace {

double direction(PanelPoint from, PanelPoint to) {
  const double dx = double(to.x) - from.x, dy = double(to.y) - from.y;
  return std::atan2(dy, dx) * 180 / std::numbers::pi;
}

// Above this a table cannot have been meant clockwise: it would go round more than once.
constexpr double most_sweep = 363;

double clockwise(double degrees) { return degrees - 360 * std::floor(degrees / 360); }

}  // namespace

void NeedleScale::turn_all(bool clockwise_way) {
  for (std::size_t i = 1; i < marks_.size(); ++i) {
    const double turn = marks_[i].angle - marks_[i - 1].angle;
    marks_[i].angle = marks_[i - 1].angle + (clockwise_way ? clockwise(turn) : -clockwise(-turn));
  }
}

NeedleScale::NeedleScale(PanelPoint position, std::span<const NonlinearityPoint> points) {
  for (const NonlinearityPoint& point : points) {
    if (!std::isfinite(point.value)) continue;
    const bool somewhere = point.point.x != position.x || point.point.y != position.y;
    const double last = marks_.empty() ? 0 : marks_.back().angle;
    marks_.push_back({point.value, somewhere ? direction(position, point.point) : last});
  }
  if (marks_.empty()) marks_.push_back({0, 0});
  turn_all(true);
  if (marks_.back().angle - marks_.front().angle > most_sweep) turn_all(false);
  const double sweep = marks_.back().angle - marks_.front().angle;
  closed_ = std::abs(sweep) > 180 && std::abs(std::remainder(sweep, 360.0)) < 3;
  if (marks_.front().value > marks_.back().value) std::ranges::reverse(marks_);
  std::ranges::stable_sort(marks_, {}, &Mark::value);
}

double NeedleScale::angle(double value) const {
  const auto above = std::ranges::upper_bound(marks_, value, {}, &Mark::value);
  if (above == marks_.begin()) return marks_.front().angle;
  if (above == marks_.end()) return marks_.back().angle;
  const Mark& low = *(above - 1);
  return low.angle + (above->angle - low.angle) * ((value - low.value) / (above->value - low.value));
}

double NeedleScale::angle_between(double before, double now, double blend) const {
  if (!std::isfinite(before)) return angle(now);
  const double from = angle(before), to = angle(now);
  return closed_ ? mixed_angle(from, to, blend) : mixed(from, to, blend);
}

}  // namespace host
