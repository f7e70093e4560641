#include "host/outside/ground.h"

#include <algorithm>
#include <cmath>

#include "host/drawing/pixels.h"

namespace host::outside {
namespace {

constexpr double visibility_m = 26000.0;  // at which the haze over the ground leaves a third
constexpr double haze_height_m = 1600.0;  // above which there is a third of it
constexpr double farthest_m = 2.0e6;

constexpr double coarse_grain_m = 9.0, fine_grain_m = 0.35;  // texels

std::uint32_t fixed(double texels) {
  return static_cast<std::uint32_t>(static_cast<std::int64_t>(texels * 65536.0));
}

// A pixel's print on the ground is as much longer than wide as the distance exceeds the height. Texels
// somewhat longer than the mean of both keep what is near sharp and what is far from crawling.
double print_shape(double length_to_width) {
  const double mean = std::sqrt(length_to_width);
  return mean * std::sqrt(std::sqrt(mean));
}

// The level of a texture whose texels are about as large as the pixel's print on the ground.
unsigned level_for(const TextureLevels& texture, double texel_m, double print_m) {
  const int level = std::ilogb(std::max(print_m / texel_m * 1.41, 1.0));
  return std::min(static_cast<unsigned>(level), texture.count() - 1);
}

}  // namespace

Air::Air(const Sight& sight, const Camera& camera, const Daylight& light)
    : light_(light),
      nose_(simulation::Quaternion::from(sight.attitude).to_earth({1.0, 0.0, 0.06})),
      landing_lights_(sight.landing_lights) {
  const double height_m = std::max(-camera.eye_m().z - simulation::airfield_elevation_m, 1.0);
  const double thickness = haze_height_m / height_m * (1.0 - std::exp(-height_m / haze_height_m));
  thinning_per_m_ = thickness / visibility_m;
}

Haze Air::haze(double distance_m) const {
  const double kept = std::exp(-distance_m * thinning_per_m_);
  return {kept, light_.haze * (1.0 - kept)};
}

// Two lamps in the wings' roots: bright within some ten degrees of where they point, out to half a
// kilometre.
Rgb Air::light_on(const Vector& from_eye_m) const {
  constexpr double reach_m = 900.0, narrowness = 25.0, bright_to_m = 110.0;
  if (!landing_lights_) return light_.land;
  const double distance_m = length(from_eye_m);
  const double off = 1.0 - dot(from_eye_m, nose_) / std::max(distance_m, 1.0);
  if (distance_m > reach_m || off > 0.12) return light_.land;
  const double beam = 1.0 / (1.0 + off * narrowness);
  const double fall = bright_to_m / std::max(distance_m, bright_to_m);
  return light_.land + Rgb{1.0, 0.96, 0.86} * (0.7 * beam * beam * fall * fall);
}

Rgb Air::seen(const Rgb& colour, const Vector& from_eye_m) const {
  const Haze air = haze(length(from_eye_m));
  return colour * light_on(from_eye_m) * air.kept + air.added;
}

// A place of the ground and what its pixel sees of it.
struct Ground::Node {
  double north_m, east_m;
  double print_m;  ///< between a pixel's width and its depth on the ground
  std::array<double, 3> times, plus;
};

// The ways of a span and its shade.
struct Ground::Frame {
  Frame(const Node& start, const Node& end) : from(start), to(end) {
    const auto set = [](double first, double last, double one, std::int32_t& at, std::int32_t& step) {
      at = static_cast<std::int32_t>(first * one);
      step = (static_cast<std::int32_t>(last * one) - at) / span_pixels;
    };
    for (std::size_t c = 0; c < 3; ++c) {
      set(from.times[c], to.times[c], 65536.0, shade.times[c], shade.times_step[c]);
      set(from.plus[c], to.plus[c], 256.0, shade.plus[c], shade.plus_step[c]);
    }
  }

  Walk walk(const TextureLevels& texture, double texel_m) const {
    const unsigned level = level_for(texture, texel_m, std::min(from.print_m, to.print_m));
    const double texels_per_m = 1.0 / (texel_m * static_cast<double>(1u << level));
    const std::uint32_t u = fixed(from.east_m * texels_per_m - 0.5);
    const std::uint32_t v = fixed(from.north_m * texels_per_m - 0.5);
    const auto step = [](std::uint32_t start, std::uint32_t end) {
      return static_cast<std::int32_t>(end - start) / span_pixels;
    };
    return {texture.level(level), u, v, step(u, fixed(to.east_m * texels_per_m - 0.5)),
            step(v, fixed(to.north_m * texels_per_m - 0.5))};
  }

  const Node &from, &to;
  Shade shade{};
};

Ground::Ground(const Camera& camera, const Air& air, double elevation_m)
    : camera_(camera),
      air_(air),
      map_(land_map()),
      height_m_(std::max(-camera.eye_m().z - elevation_m, 0.5)) {}

Ground::Node Ground::node(double x, double y) const {
  const Vector direction = camera_.direction(x, y);
  const double away =
      std::min(height_m_ / std::max(direction.z, 1e-9), farthest_m / camera_.focal_px());
  const Vector to = direction * away;
  const double distance_m = length(to);
  const Haze haze = air_.haze(distance_m);
  const Rgb times = air_.light_on(to) * haze.kept;
  return {camera_.eye_m().x + to.x,
          camera_.eye_m().y + to.y,
          away * print_shape(std::max(distance_m / height_m_, 1.0)),
          {times.r, times.g, times.b},
          {haze.added.r, haze.added.g, haze.added.b}};
}

void Ground::paint(std::uint32_t* pixels, std::ptrdiff_t stride, std::uint32_t* cover) const {
  for (int y = 0; y < camera_.height(); ++y, cover += camera_.width()) {
    const Columns columns = camera_.ground(y);
    if (columns.first < columns.end) paint_row(pixels + y * stride, cover, y, columns);
    std::fill_n(cover, camera_.width(), 0u);
  }
}

void Ground::paint_row(std::uint32_t* row, std::uint32_t* cover, int y, Columns columns) const {
  SpanPixels span, rest_of_cover{};
  Node from = node(columns.first + 0.5, y + 0.5);
  for (int x = columns.first; x < columns.end; x += span_pixels) {
    const Node to = node(x + 0.5 + span_pixels, y + 0.5);
    const int count = std::min(span_pixels, columns.end - x);
    const bool whole = x + span_pixels <= camera_.width();
    if (!whole) std::copy(cover + x, cover + camera_.width(), rest_of_cover.begin());
    shade(Frame(from, to), whole ? cover + x : rest_of_cover.data(), span);
    put(span, row, x, y, count);
    from = to;
  }
}

void Ground::shade(const Frame& frame, const std::uint32_t* cover, SpanPixels& out) const {
  std::uint32_t all = 0xFF000000u;
  for (int i = 0; i < span_pixels; ++i) all &= cover[i];
  const Walk coarse = frame.walk(map_.grain, coarse_grain_m),
             fine = frame.walk(map_.grain, fine_grain_m);
  if (all == 0xFF000000u)
    shade_covered(coarse, fine, cover, frame.shade, out);
  else
    shade_land(frame.walk(map_.land, map_.land.texel_m()), coarse, fine, cover, frame.shade, out);
}

// On the horizon itself ground and sky share a pixel.
void Ground::put(const SpanPixels& span, std::uint32_t* row, int x, int y, int count) const {
  const double here = camera_.below_horizon(x + 0.5, y + 0.5);
  const double there = camera_.below_horizon(x + count - 0.5, y + 0.5);
  if (std::min(here, there) >= 0.5) {
    std::copy_n(span.data(), count, row + x);
    return;
  }
  for (int i = 0; i < count; ++i) {
    const double share = std::clamp(camera_.below_horizon(x + i + 0.5, y + 0.5) + 0.5, 0.0, 1.0);
    const auto ground = static_cast<std::uint32_t>(share * 255.0);
    row[x + i] = faded(span[static_cast<std::size_t>(i)], ground) + faded(row[x + i], 255 - ground);
  }
}

}  // namespace host::outside
