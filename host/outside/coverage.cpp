#include "host/outside/coverage.h"

#include <algorithm>
#include <cmath>

namespace host::outside {

Coverage::Coverage(int width, int height)
    : width_(width),
      height_(height),
      sums_(static_cast<std::size_t>(width + 2) * static_cast<std::size_t>(height)),
      falling_(static_cast<std::size_t>(height), Zone{width + 2, -1}),
      rising_(falling_),
      shares_(static_cast<std::size_t>(width + 2)) {}

void Coverage::add(std::span<const PicturePoint> polygon) {
  top_ = height_;
  bottom_ = -1;
  const auto inside = [&](PicturePoint p) {
    return PicturePoint{std::clamp(p.x, 0.0, double(width_)), std::clamp(p.y, 0.0, double(height_))};
  };
  for (std::size_t i = 0; i < polygon.size(); ++i)
    add_edge(inside(polygon[i]), inside(polygon[i + 1 < polygon.size() ? i + 1 : 0]));
}

// Downward edges add coverage to everything right of them, upward ones take it away again.
void Coverage::add_edge(PicturePoint a, PicturePoint b) {
  if (a.y == b.y) return;
  const double sign = a.y < b.y ? 1.0 : -1.0;
  if (sign < 0.0) std::swap(a, b);
  const double slope = (b.x - a.x) / (b.y - a.y);
  const int first = static_cast<int>(a.y),
            last = std::min(static_cast<int>(std::ceil(b.y)), height_) - 1;
  top_ = std::min(top_, first);
  bottom_ = std::max(bottom_, last);
  for (int y = first; y <= last; ++y) {
    const double from = std::max(a.y, double(y)), to = std::min(b.y, y + 1.0);
    const double x0 = a.x + (from - a.y) * slope, x1 = a.x + (to - a.y) * slope;
    add_to_row(y, sign * (to - from), std::clamp(std::min(x0, x1), 0.0, double(width_)),
               std::clamp(std::max(x0, x1), 0.0, double(width_)));
  }
}

// The part of an edge that lies in one row: each pixel gets the area between the edge and its right
// side, as a difference from the pixel before.
void Coverage::add_to_row(int y, double height, double left, double right) {
  float* row = &sums_[static_cast<std::size_t>(y) * static_cast<std::size_t>(width_ + 2)];
  const int first = static_cast<int>(left),
            end = std::max(first + 1, static_cast<int>(std::ceil(right)));
  Zone& zone = (height > 0.0 ? falling_ : rising_)[static_cast<std::size_t>(y)];
  zone = {std::min(zone.first, first), std::max(zone.last, end)};
  if (end == first + 1) {
    const double beyond = 0.5 * (left + right) - first;
    row[first] += static_cast<float>(height * (1.0 - beyond));
    row[end] += static_cast<float>(height * beyond);
    return;
  }
  const double per_pixel = height / (right - left);
  double reached = 0.0;  // coverage of the pixel before
  for (int x = first; x <= end; ++x) {
    const double crossed = std::clamp(x + 1.0 - left, 0.0, right - left);
    const double before = std::clamp(x - left, 0.0, right - left);
    // Full height behind the edge; inside its reach the mean over the pixel.
    const double mean = x >= end ? height
                                 : per_pixel * (0.5 * (crossed + before) * (crossed - before) +
                                                crossed * (x + 1.0 - left - crossed));
    row[x] += static_cast<float>(mean - reached);
    reached = mean;
  }
}

// Adds the differences up, and clears them for the next polygon.
std::span<const float> Coverage::take_sums(int y, int first, int last, float& sum) {
  float* row = &sums_[static_cast<std::size_t>(y) * static_cast<std::size_t>(width_ + 2)];
  float* shares = &shares_[static_cast<std::size_t>(first)];
  for (int x = first; x <= last; ++x) {
    sum += row[x];
    row[x] = 0.0f;
    shares[x - first] = std::min(std::abs(sum), 1.0f);
  }
  return {shares, static_cast<std::size_t>(std::max(0, std::min(last, width_ - 1) - first + 1))};
}

Coverage::Row Coverage::take_row(int y) {
  Zone left = falling_[static_cast<std::size_t>(y)], right = rising_[static_cast<std::size_t>(y)];
  falling_[static_cast<std::size_t>(y)] = rising_[static_cast<std::size_t>(y)] = {width_ + 2, -1};
  if (right.first < left.first) std::swap(left, right);
  Row row;
  if (left.last < 0) return row;
  constexpr float all = 0.998f;
  float sum = 0.0f;
  row.left_x = left.first;
  if (right.last < 0 || right.first <= left.last + 1) {
    row.left = take_sums(y, left.first, std::max(left.last, right.last), sum);
    return row;
  }
  row.left = take_sums(y, left.first, left.last, sum);
  if (std::abs(sum) < all) {  // at the polygon's upper and lower ends
    take_sums(y, left.last + 1, right.last, sum);
    row.left = {row.left.data(),
                static_cast<std::size_t>(std::min(right.last, width_ - 1) - left.first + 1)};
    return row;
  }
  row.inside_x = left.last + 1;
  row.inside = right.first - row.inside_x;
  row.right_x = right.first;
  row.right = take_sums(y, right.first, right.last, sum);
  return row;
}

}  // namespace host::outside
