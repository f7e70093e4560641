#include "host/gauge/needle_geometry.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace host {
namespace {

constexpr double not_a_number = std::numeric_limits<double>::quiet_NaN();

// Points are whole pixels, so the ends of a full circle rarely meet to the degree.
constexpr double closing_error = 3;

double direction(PanelPoint from, PanelPoint to) {
  const double dx = double(to.x) - from.x, dy = double(to.y) - from.y;
  return std::atan2(dy, dx) * 180 / std::numbers::pi;
}

double clockwise(double degrees) { return degrees - 360 * std::floor(degrees / 360); }

// Half a turn is as far either way; it is taken clockwise.
double shorter(double degrees) {
  const double way = std::remainder(degrees, 360.0);
  return way == -180 ? 180 : way;
}

std::vector<NeedleScale::Mark> directions(PanelPoint pivot, const NeedlePart& needle) {
  std::vector<NeedleScale::Mark> marks;
  for (u32 i = 0; i < needle.table_length; ++i) {
    const auto& [point, value] = needle.table[i];
    if (!std::isfinite(value) || (point.x == pivot.x && point.y == pivot.y)) continue;
    marks.push_back({value, direction(pivot, point)});
  }
  return marks;
}

double closed_turns(const std::vector<NeedleScale::Mark>& marks) {
  const double sweep = marks.back().angle - marks.front().angle;
  return std::abs(std::remainder(sweep, 360.0)) < closing_error ? std::abs(std::round(sweep / 360)) : 0;
}

// How far `value` lies between two others. In halves, as the distance of two doubles may be none.
double share(double low, double value, double high) {
  const double part = (value / 2 - low / 2) / (high / 2 - low / 2);
  return std::isfinite(part) ? part : 0;
}

}  // namespace

NeedleScale needle_scale(const Element& element) {
  const NeedlePart& needle = element.needle;
  if (needle.table == nullptr || needle.table_length == 0) return {};
  NeedleScale scale{directions(element.position, needle)};
  if (scale.marks.empty()) scale.marks.push_back({0, 0});
  std::ranges::stable_sort(scale.marks, {}, &NeedleScale::Mark::value);
  const auto way = needle.turn == TURN_SHORTER_WAY ? shorter : clockwise;
  for (std::size_t i = 1; i < scale.marks.size(); ++i)
    scale.marks[i].angle =
        scale.marks[i - 1].angle + way(scale.marks[i].angle - scale.marks[i - 1].angle);
  scale.turns = closed_turns(scale.marks);
  return scale;
}

double needle_angle(const NeedleScale& scale, double value) {
  if (scale.marks.empty()) return std::isfinite(value) ? value : not_a_number;
  if (std::isnan(value)) return not_a_number;
  const auto above = std::ranges::upper_bound(scale.marks, value, {}, &NeedleScale::Mark::value);
  if (above == scale.marks.begin()) return scale.marks.front().angle;
  if (above == scale.marks.end()) return scale.marks.back().angle;
  const NeedleScale::Mark& below = *(above - 1);
  return below.angle + (above->angle - below.angle) * share(below.value, value, above->value);
}

double needle_angle_between(const NeedleScale& scale, double before, double now, double blend) {
  const double from = needle_angle(scale, before), to = needle_angle(scale, now);
  if (!std::isfinite(from) || !std::isfinite(to)) return to;
  const double turns = scale.marks.empty() ? 1 : scale.turns;
  const double way = turns == 0 ? to - from : std::remainder(to - from, 360 * turns);
  return to - way * (1 - blend);
}

}  // namespace host
