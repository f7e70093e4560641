#include "resources/rows/moving.h"

#include <cmath>
#include <string>

#include "resources/kit/legend.h"
#include "resources/kit/needle.h"
#include "resources/rows/draw.h"

namespace artwork {
namespace {

/// Where a value stands along a strip: its first reading lies in the middle of the first window, its
/// last in the middle of the last.
struct Strip {
  double length, window;
  const MovingAxis& axis;

  double position(double value) const {
    const double share = (value - axis.minimum) / (axis.maximum - axis.minimum);
    return window / 2 + share * (length - window);
  }
};

/// Calls `draw` with the number of each multiple of `step` that shows on the strip or beside it.
template <class Draw>
void for_each_step(const MovingAxis& axis, double step, Draw draw) {
  const double low = std::fmin(axis.minimum, axis.maximum),
               high = std::fmax(axis.minimum, axis.maximum);
  for (double k = std::floor(low / step) - 1; k <= std::ceil(high / step) + 1; ++k) draw(k);
}

/// The power of ten nearest to a tenth of the range.
double figure_step(const MovingAxis& axis) {
  return std::pow(10, std::round(std::log10(std::abs(axis.maximum - axis.minimum) / 10)));
}

/// The remainder that is never negative.
double wrapped(double value, double round) { return value - round * std::floor(value / round); }

void ground(const Canvas& canvas, Colour colour) {
  set_colour(canvas, colour);
  cairo_paint(canvas.cr());
}

std::string_view point_of_the_compass(int tens) {
  static const std::string tens_text[] = {"N", "3",  "6",  "E", "12", "15",
                                          "S", "21", "24", "W", "30", "33"};
  return tens_text[tens / 3];
}

}  // namespace

void draw_needle(const Canvas& canvas, const Needle& needle, PanelPoint pivot) {
  const Point at{static_cast<double>(pivot.x), static_cast<double>(pivot.y)};
  blade(canvas, {.pivot = at,
                 .length = needle.length,
                 .tail = needle.tail,
                 .half_width = needle.half_width,
                 .colour = needle.colour});
  if (needle.cap > 0) needle_cap(canvas, at, needle.cap);
}

void draw_drum(const Canvas& canvas, const Drum& drum, const MovingAxis& axis) {
  const Box box = whole(canvas.size());
  ground(canvas, drum.ground);
  const Strip strip{box.height, box.height / 10, axis};
  const double step = drum.step == 0 ? figure_step(axis) : drum.step;
  for_each_step(axis, step, [&](double k) {
    const double count = static_cast<double>(drum.figures.size());
    const auto figure = static_cast<std::size_t>(std::lround(wrapped(k, count)));
    print(canvas, {box.width / 2, strip.position(k * step)}, drum.figures.substr(figure, 1),
          {.size = drum.figure_size, .colour = drum.ink});
  });
}

void draw_tape(const Canvas& canvas, const Tape& tape, const MovingAxis& axis, double window) {
  const Box box = whole(canvas.size());
  ground(canvas, palette::face_dark);
  const Strip strip{box.width, window, axis};
  for_each_step(axis, tape.mark_step, [&](double k) {
    const double x = strip.position(k * tape.mark_step);
    line(canvas, {x, box.bottom() - 4}, {x, box.bottom()}, 0.9, palette::mark);
  });
  for_each_step(axis, tape.figure_step, [&](double k) {
    double figure = k * tape.figure_step / tape.per;
    if (tape.round > 0) figure = wrapped(figure, tape.round);
    print(canvas, {strip.position(k * tape.figure_step), (box.height - 4) / 2},
          std::to_string(std::lround(std::abs(figure))),
          {.size = tape.figure_size, .colour = palette::mark});
  });
}

void draw_mask(const Canvas& canvas, const Mask& mask) {
  fill(canvas, rounded(whole(canvas.size()), mask.corner), palette::white);
}

void draw_compass_card(const Canvas& canvas, const CompassCard& card) {
  const Point centre = whole(canvas.size()).centre();
  fill(canvas, circle(centre, card.radius), palette::face_dark);
  for (int degrees = 0; degrees < 360; degrees += 5) {
    const double length = degrees % 10 == 0 ? 6 : 3.5;
    line(canvas, polar(centre, card.radius - length - 1, degrees),
         polar(centre, card.radius - 1, degrees), degrees % 10 == 0 ? 1.2 : 0.8, palette::mark);
  }
  for (int tens = 0; tens < 36; tens += 3) {
    const Saved saved(canvas);
    cairo_translate(canvas.cr(), centre.x, centre.y);
    cairo_rotate(canvas.cr(), radians(10 * tens));
    print(canvas, {0, 8 + card.figure_size / 2 - card.radius}, point_of_the_compass(tens),
          {.size = card.figure_size, .colour = palette::mark});
  }
}

}  // namespace artwork
