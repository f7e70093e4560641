/// Strips behind windows: each figure stands where the record's range puts it.
#include <gtest/gtest.h>

#include <cmath>

#include "resources/rows/draw.h"
#include "tests/resources/picture.h"

namespace artwork_test {
namespace {

constexpr Size strip{10, 200};  // ten windows of 20
constexpr double window = 20;

/// A drum's picture on a record of that range.
Canvas drum(double minimum, double maximum) {
  Canvas canvas(strip, 1, 0);
  MovingAxis axis{};
  axis.minimum = minimum;
  axis.maximum = maximum;
  draw_drum(canvas, {.figure_size = 12}, axis, window);
  return canvas;
}

/// What shows in the window while the drum's value is `value`.
Canvas seen(const Canvas& drum, double minimum, double maximum, double value) {
  const double row = (value - minimum) / (maximum - minimum) * (strip.height - window);
  Canvas view({strip.width, static_cast<int>(window)}, 1, 0);
  cairo_set_source_surface(view.cr(), cairo_get_target(drum.cr()), 0, -std::round(row));
  cairo_paint(view.cr());
  return view;
}

/// The middle of what is printed in a view; the figure that fills it may differ by a pixel.
double middle_of_print(const Canvas& view) {
  double top = window, bottom = 0;
  for_each_pixel(view, {0, 3, 10, window - 6}, [&](std::uint32_t pixel, int, int y) {
    if (luminance(pixel) < 120) return;
    top = std::min<double>(top, y), bottom = std::max<double>(bottom, y + 1);
  });
  return (top + bottom) / 2;
}

struct Range {
  double minimum, maximum, step;
};

TEST(Drum, ShowsEachFigureInTheMiddleOfTheWindowAtItsValue) {
  for (const Range& r : {Range{-1, 9, 1}, {0, 9.9, 1}, {0, 99, 10}, {0, 1000, 100}}) {
    const Canvas picture = drum(r.minimum, r.maximum);
    for (double value = r.minimum; value <= r.maximum; value += r.step) {
      EXPECT_NEAR(middle_of_print(seen(picture, r.minimum, r.maximum, value)), window / 2, 1.1)
          << value << " of " << r.minimum << " to " << r.maximum;
    }
  }
}

TEST(Drum, GoesRoundToItsFirstFigure) {
  const Canvas units = drum(-1, 9);
  EXPECT_LE(mean_luminance(seen(units, -1, 9, -1), {0, 3, 10, 14}),
            mean_luminance(seen(units, -1, 9, 9), {0, 3, 10, 14}) + 1)
      << "a nine at both ends";
  EXPECT_TRUE(same(seen(drum(0, 1000), 0, 1000, 0), seen(drum(0, 1000), 0, 1000, 1000)));
  const Canvas tenths = drum(0, 9.9);
  double ink = 0;
  for_each_pixel(seen(tenths, 0, 9.9, 9.9), {0, window - 8, 10, 8},
                 [&](std::uint32_t pixel, int, int) { ink = std::max(ink, luminance(pixel)); });
  EXPECT_GT(ink, 120) << "the nought after the nine comes into sight";
}

TEST(Tape, MarksStandWhereTheWindowsMiddleMeetsTheirValue) {
  const Canvas canvas({220, 20}, 1, 0);
  MovingAxis axis{};
  axis.minimum = 0;
  axis.maximum = 180;
  draw_tape(canvas, {.mark_step = 10, .figure_step = 30, .figure_size = 8, .per = 10}, axis, 40);
  for (const int value : {0, 10, 90, 180}) {
    const double x = 20 + value;  // a pixel to one of it
    EXPECT_GT(mean_luminance(canvas, {x - 1, 17, 2, 2}), 60) << value;
    EXPECT_LT(mean_luminance(canvas, {x + 4, 17, 2, 2}), 30) << value;
  }
}

}  // namespace
}  // namespace artwork_test
