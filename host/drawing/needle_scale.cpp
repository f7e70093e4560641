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

}  // namespace

NeedleScale::NeedleScale(PanelPoint position, std::span<const NonlinearityPoint> points) {
  for (const NonlinearityPoint& point : points) {
    if (!std::isfinite(point.value)) continue;
    const double last = marks_.empty() ? 0 : marks_.back().angle;
    const bool somewhere = point.point.x != position.x || point.point.y != position.y;
    const double turn = somewhere ? std::remainder(direction(position, point.point) - last, 360.0) : 0;
    marks_.push_back({point.value, last + turn});
  }
  if (marks_.empty()) marks_.push_back({0, 0});
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
