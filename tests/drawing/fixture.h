/// A made gauge on a canvas of its own, for the drawing tests.
#pragma once

#include <gtest/gtest.h>

#include <ostream>

#include "host/drawing/painter.h"
#include "tests/drawing/made_bitmaps.h"
#include "tests/gauge/made_gauge.h"

namespace host {

constexpr std::uint32_t red = 0xFFFF0000, green = 0xFF00FF00, blue = 0xFF0000FF, grey = 0xFF404040;

/// A made gauge with its painter and its canvas, at a zoom.
class Scene {
 public:
  Scene(MadeGauge& gauge, const MadeBitmaps& bitmaps, double zoom = 1) {
    const PanelSize size = gauge_size(gauge.header, bitmaps);
    const Rect place{0, 0, static_cast<int>(size.width * zoom), static_cast<int>(size.height * zoom)};
    canvas = Canvas(place.width, place.height);
    painter = std::make_unique<GaugePainter>(gauge.header, bitmaps, place);
    for (const Element* element = gauge.header.element_list[0]; element; element = element->next[0])
      now.push_back({element, true, true, {}, {}, {}});
    before = now;
  }

  bool draw(double blend = 1) { return painter->draw(canvas, before, now, blend); }

  /// Sets an element's first value in both frames, so that it stands still.
  void set(std::size_t index, double value, int axis = 0) {
    before[index].values[axis] = now[index].values[axis] = value;
  }

  std::uint32_t at(int x, int y) const { return canvas.pixels[std::size_t(y) * canvas.width + x]; }

  /// The smallest rectangle around all pixels that differ from `colour`.
  Rect box_without(std::uint32_t colour) const {
    int left = canvas.width, top = canvas.height, right = 0, bottom = 0;
    for (int y = 0; y < canvas.height; ++y)
      for (int x = 0; x < canvas.width; ++x)
        if (at(x, y) != colour) {
          left = std::min(left, x), right = std::max(right, x + 1);
          top = std::min(top, y), bottom = std::max(bottom, y + 1);
        }
    return right == 0 ? Rect{} : Rect{left, top, right - left, bottom - top};
  }

  Canvas canvas;
  std::unique_ptr<GaugePainter> painter;
  std::vector<ElementState> before, now;
};

inline void PrintTo(const Rect& rect, std::ostream* out) {
  *out << rect.width << " x " << rect.height << " at (" << rect.x << ", " << rect.y << ")";
}

}  // namespace host
