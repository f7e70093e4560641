#include "host/outside/sky.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "host/outside/point_of_light.h"
#include "host/outside/texture_noise.h"

namespace host::outside {
namespace {

constexpr int cell = 16;  // pixels between two places where the sky's colour is worked out

// Colours in 256ths. Steps between them would show on a clear sky, so that each pixel is rounded its
// own way.
constexpr std::array<std::array<int, 4>, 4> rounding{
    {{8, 136, 40, 168}, {200, 72, 232, 104}, {56, 184, 24, 152}, {248, 120, 216, 88}}};

struct Fine {
  int r, g, b;
};

Fine fine(const Rgb& colour) {
  const auto channel = [](double value) {
    return static_cast<int>(std::clamp(value, 0.0, 254.0) * 256.0);
  };
  return {channel(colour.r), channel(colour.g), channel(colour.b)};
}

std::vector<Fine> corners(const Camera& camera, const Daylight& light, int columns, int rows) {
  std::vector<Fine> found;
  for (int row = 0; row < rows; ++row)
    for (int column = 0; column < columns; ++column) {
      const Vector direction = camera.direction(column * cell, row * cell);
      found.push_back(fine(sky_colour(direction * (1.0 / length(direction)), light)));
    }
  return found;
}

void paint_cell(std::uint32_t* out, int count, const Fine& left, const Fine& right, int y) {
  const auto& round = rounding[static_cast<std::size_t>(y & 3)];
  for (int i = 0; i < count; ++i) {
    const auto between = [&](int a, int b) {
      return static_cast<std::uint32_t>(a + (b - a) * i / cell +
                                        round[static_cast<std::size_t>(i & 3)]) >>
             8;
    };
    out[i] = 0xFF000000u | between(left.r, right.r) << 16 | between(left.g, right.g) << 8 |
             between(left.b, right.b);
  }
}

void paint_stars(Picture picture, const Camera& camera, const Daylight& light) {
  if (light.stars <= 0.0) return;
  for (std::uint32_t i = 0; i < 2200; ++i) {
    const double up = scattered(i, 1, 91), turn = 6.283185307 * scattered(i, 2, 91);
    const double level = std::sqrt(1.0 - up * up);
    const Vector at = camera.turned({level * std::cos(turn), level * std::sin(turn), -up});
    if (at.x < 0.1) continue;
    const double rare = scattered(i, 3, 91);
    const double bright = light.stars * (0.16 + 0.84 * std::pow(rare, 5.0)) * std::min(1.0, up * 8.0);
    add_light(picture, camera.project(at), 0.8 + 0.35 * rare * rare, {235, 240, 255}, bright);
  }
}

void paint_sun(Picture picture, const Camera& camera, const Daylight& light) {
  const Vector at = camera.turned(light.sun);
  if (at.x < 0.1 || light.sun_up_deg < -1.0) return;
  const double radius_px =
      0.0070 * camera.focal_px() / at.x;  // half again the true disc, as glare makes it
  const double low = std::clamp(light.sun_up_deg / 12.0, 0.0, 1.0);
  add_light(picture, camera.project(at), 1.6 * radius_px, mixed({255, 190, 110}, {255, 252, 240}, low),
            2.4);
}

}  // namespace

Rgb sky_colour(const Vector& direction, const Daylight& light) {
  const double up = std::max(0.0, -direction.z);
  const double level = std::hypot(direction.x, direction.y) * std::hypot(light.sun.x, light.sun.y);
  const double along =
      level > 1e-9 ? (direction.x * light.sun.x + direction.y * light.sun.y) / level : 0.0;
  const double toward_sun = (0.5 + 0.5 * along) * (0.5 + 0.5 * along);
  const Rgb low = mixed(light.horizon, light.sunward, toward_sun);
  const Rgb sky = mixed(low, light.zenith, 1.0 - std::exp(-up * 4.2));
  if (light.sun_up_deg < -2.0) return sky;
  const double off = 1.0 - std::min(1.0, dot(direction, light.sun));
  const double glow = 70.0 * std::exp(-off * 60.0) + 90.0 * std::exp(-off * 900.0);
  return sky +
         mixed({1.0, 0.72, 0.42}, {1.0, 0.98, 0.92}, std::clamp(light.sun_up_deg / 20.0, 0.0, 1.0)) *
             glow;
}

void paint_sky(Picture picture, const Camera& camera, const Daylight& light) {
  const int columns = camera.width() / cell + 2, rows = camera.height() / cell + 2;
  const std::vector<Fine> grid = corners(camera, light, columns, rows);
  for (int y = 0; y < camera.height(); ++y) {
    const Columns sky = camera.sky(y);
    const Fine* above = &grid[static_cast<std::size_t>(y / cell) * static_cast<std::size_t>(columns)];
    const Fine* below = above + columns;
    const auto at = [&](int column) {
      const auto between = [&](int a, int b) { return a + (b - a) * (y % cell) / cell; };
      return Fine{between(above[column].r, below[column].r), between(above[column].g, below[column].g),
                  between(above[column].b, below[column].b)};
    };
    for (int x = sky.first / cell * cell; x < sky.end; x += cell)
      paint_cell(picture.pixels + y * picture.stride + x, std::min(cell, camera.width() - x),
                 at(x / cell), at(x / cell + 1), y);
  }
  paint_stars(picture, camera, light);
  paint_sun(picture, camera, light);
}

}  // namespace host::outside
