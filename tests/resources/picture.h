/// Looking at pictures, by the names of their parts.
#pragma once

#include <algorithm>
#include <string>

#include "resources/bitmap_table.h"
#include "resources/kit/paint.h"
#include "resources/kit/records.h"

namespace artwork_test {

using namespace artwork;

inline const Bitmap& bitmap(std::string_view gauge_name, std::string_view part_name, int image = 0) {
  return *find_bitmap(part(gauge(gauge_name), part_name).resource_id + image);
}

inline const Bitmap& plate_of(const GaugeHeader& gauge) {
  return *find_bitmap(gauge.element_list[0]->resource_id);
}

inline double luminance(std::uint32_t pixel) {
  return 0.3 * (pixel >> 16 & 0xFF) + 0.6 * (pixel >> 8 & 0xFF) + 0.1 * (pixel & 0xFF);
}

/// Calls `look(pixel, x, y)` for the device pixels in a box of device pixels.
template <class Look>
void for_each_pixel(const Canvas& canvas, Box box, Look look) {
  const Pixels pixels = canvas.pixels();
  for (int y = std::max(0, static_cast<int>(box.y)); y < std::min<double>(pixels.height, box.bottom());
       ++y) {
    for (int x = std::max(0, static_cast<int>(box.x)); x < std::min<double>(pixels.width, box.right());
         ++x) {
      look(pixels.at(x, y), x, y);
    }
  }
}

inline double mean_luminance(const Canvas& canvas, Box box) {
  double sum = 0, count = 0;
  for_each_pixel(canvas, box, [&](std::uint32_t pixel, int, int) { sum += luminance(pixel), ++count; });
  return sum / count;
}

inline Box device_box(const Canvas& canvas) {
  const Pixels pixels = canvas.pixels();
  return {0, 0, static_cast<double>(pixels.width), static_cast<double>(pixels.height)};
}

inline bool same(const Canvas& a, const Canvas& b) {
  bool equal = true;
  for_each_pixel(a, device_box(a), [&](std::uint32_t pixel, int x, int y) {
    equal = equal && pixel == b.pixels().at(x, y);
  });
  return equal;
}

/// The room that two boxes share.
inline double shared_room(const Box& a, const Box& b) {
  const double across = std::min(a.right(), b.right()) - std::max(a.x, b.x);
  const double down = std::min(a.bottom(), b.bottom()) - std::max(a.y, b.y);
  return across <= 0 || down <= 0 ? 0 : across * down;
}

inline std::string text(const Box& box) {
  const auto number = [](double value) { return std::to_string(static_cast<int>(value)); };
  return number(box.x) + ',' + number(box.y) + " (" + number(box.width) + " wide)";
}

}  // namespace artwork_test
