#include "host/outside/surface_painter.h"

#include <algorithm>

#include "host/drawing/pixels.h"

namespace host::outside {
namespace {

constexpr double nearest_m = 0.4;

}  // namespace

std::uint32_t packed(const Rgb& colour) {
  const auto channel = [](double value) {
    return static_cast<std::uint32_t>(std::clamp(value, 0.0, 255.0) + 0.5);
  };
  return 0xFF000000u | channel(colour.r) << 16 | channel(colour.g) << 8 | channel(colour.b);
}

// Keeps what lies on the side of a plane through the eye to which its normal points.
void SurfacePainter::cut(const Vector& plane) {
  rest_.clear();
  for (std::size_t i = 0; i < polygon_.size(); ++i) {
    const Vector& a = polygon_[i];
    const Vector& b = polygon_[i + 1 < polygon_.size() ? i + 1 : 0];
    const double from = dot(a, plane), to = dot(b, plane);
    if (from >= 0.0) rest_.push_back(a);
    if ((from < 0.0) != (to < 0.0)) rest_.push_back(a + (b - a) * (from / (from - to)));
  }
  polygon_.swap(rest_);
}

std::span<const PicturePoint> SurfacePainter::projected(std::span<const Vector> corners) {
  polygon_.clear();
  for (const Vector& corner : corners) polygon_.push_back(camera_.in_camera(corner));
  points_.clear();
  if (std::ranges::all_of(polygon_, [](const Vector& p) { return p.x < nearest_m; })) return points_;
  const double focal = camera_.focal_px(), left = camera_.centre().x, top = camera_.centre().y;
  for (const Vector& plane : {Vector{left, focal, 0.0}, Vector{camera_.width() - left, -focal, 0.0},
                              Vector{top, 0.0, focal}, Vector{camera_.height() - top, 0.0, -focal}})
    cut(plane);
  // The four sides leave a pyramid in front of the eye; its tip is what remains too near.
  for (const Vector& point : polygon_)
    if (point.x > 1e-6) points_.push_back(camera_.project(point));
  return points_;
}

void SurfacePainter::paint(std::span<const Vector> corners, std::uint32_t colour) {
  const auto row = [&](int x, int y) { return picture_.pixels + y * picture_.stride + x; };
  coverage_.each_row(
      projected(corners),
      [&](int y, int x, std::span<const float> shares) {
        std::uint32_t* out = row(x, y);
        for (const float share : shares) {
          const auto opacity = static_cast<std::uint32_t>(share * 255.0f + 0.5f);
          *out = over(*out, faded(colour, opacity));
          ++out;
        }
      },
      [&](int y, int x, int count) { std::fill_n(row(x, y), count, colour); });
}

}  // namespace host::outside
