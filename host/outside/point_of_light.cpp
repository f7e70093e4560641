#include "host/outside/point_of_light.h"

#include <algorithm>
#include <cmath>

namespace host::outside {
namespace {

std::uint32_t under_light(std::uint32_t pixel, const Rgb& colour, double brightness) {
  const double opacity = std::min(brightness, 1.0), glare = 255.0 * std::max(0.0, brightness - 1.0);
  const auto channel = [&](unsigned shift, double value) {
    const double was = pixel >> shift & 255;
    return static_cast<std::uint32_t>(
               std::min(was + (std::max(value, was) - was) * opacity + glare, 255.0))
           << shift;
  };
  return 0xFF000000u | channel(16, colour.r) | channel(8, colour.g) | channel(0, colour.b);
}

}  // namespace

void add_light(Picture picture, PicturePoint at, double radius_px, const Rgb& colour,
               double brightness) {
  const double reach = std::max(radius_px, 0.8) * 1.6;
  if (!(at.x > -reach && at.x < picture.width + reach && at.y > -reach &&
        at.y < picture.height + reach))
    return;
  const int left = std::max(0, static_cast<int>(at.x - reach)),
            top = std::max(0, static_cast<int>(at.y - reach));
  const int right = std::min(picture.width - 1, static_cast<int>(at.x + reach));
  const int bottom = std::min(picture.height - 1, static_cast<int>(at.y + reach));
  for (int y = top; y <= bottom; ++y)
    for (int x = left; x <= right; ++x) {
      const double dx = x + 0.5 - at.x, dy = y + 0.5 - at.y;
      const double rest = 1.0 - (dx * dx + dy * dy) / (reach * reach);
      if (rest <= 0.0) continue;
      std::uint32_t& pixel = picture.pixels[y * picture.stride + x];
      pixel = under_light(pixel, colour, brightness * rest * rest);
    }
}

}  // namespace host::outside
