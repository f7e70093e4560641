#include "resources/rows/moving.h"

#include <cmath>
#include <string>

#include "resources/kit/legend.h"
#include "resources/kit/needle.h"
#include "resources/kit/records.h"
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
  const Point at = middle_of(pivot);
  blade(canvas, {.pivot = at,
                 .length = needle.length,
                 .tail = needle.tail,
                 .half_width = needle.half_width,
                 .colour = needle.colour});
  if (needle.cap > 0) needle_cap(canvas, at, needle.cap);
}

void draw_bug(const Canvas& canvas, const Bug& bug, PanelPoint pivot) {
  const Point at = middle_of(pivot);
  const double tip = at.x + (bug.inward ? bug.from : bug.to),
               rim = at.x + (bug.inward ? bug.to : bug.from);
  const double shoulder = tip + (rim - tip) * 0.6;
  const auto wedge = [&](double by) {
    const Point corners[] = {{tip, at.y},
                             {shoulder, at.y - bug.half_width + by},
                             {rim, at.y - bug.half_width + by},
                             {rim, at.y + bug.half_width - by},
                             {shoulder, at.y + bug.half_width - by}};
    return polygon(corners);
  };
  fill(canvas, wedge(0), mixed(bug.colour, palette::black, 0.55));
  fill(canvas, wedge(0.5), bug.colour);
}

void draw_flag(const Canvas& canvas, const Flag& flag, int image) {
  const Box slot = whole(canvas.size()), field = slot.grown(-1);
  fill(canvas, rounded(slot, 1.4), palette::mould_dark);
  stroke(canvas, rounded(slot.grown(-0.4), 1.2), 0.7, faded(palette::steel, 0.6));
  if (flag.in_view != InView::always && image != static_cast<int>(flag.in_view)) {
    set_linear(canvas, {0, field.y}, {0, field.bottom()},
               {{0, palette::well}, {1, palette::mould_dark}});
    fill(canvas, rounded(field, 0.8));
    // The flag's edge stays in sight at the end of its slot.
    return fill(canvas, rounded({field.x, field.bottom() - 1.2, field.width, 1.2}, 0.4),
                mixed(palette::flag_red, palette::black, 0.6));
  }
  set_linear(canvas, {0, field.y}, {0, field.bottom()},
             {{0, mixed(palette::flag_red, palette::white, 0.2)},
              {0.4, palette::flag_red},
              {1, mixed(palette::flag_red, palette::black, 0.25)}});
  fill(canvas, rounded(field, 0.8));
  print(canvas, slot.centre(), flag.text, {.size = flag.text_size, .colour = palette::white});
}

void draw_drum(const Canvas& canvas, const Drum& drum, const MovingAxis& axis, double window) {
  const Box box = whole(canvas.size());
  ground(canvas, drum.ground);
  const Strip strip{box.height, window, axis};
  const double step = drum.step == 0 ? figure_step(axis) : drum.step;
  const double middle = (box.width - (drum.ticks > 0 ? 3.5 : 0)) / 2;
  for_each_step(axis, step, [&](double k) {
    if (drum.blank_below_zero && k < 0) {
      const Box blank{0, strip.position(k * step) - window / 2, box.width, window};
      return fill(canvas, rounded(blank, 0), palette::face_dark);
    }
    const double count = static_cast<double>(drum.figures.size());
    const auto figure = static_cast<std::size_t>(std::lround(wrapped(k, count)));
    const std::string text = std::string(drum.figures.substr(figure, 1)) + std::string(drum.tail);
    print(canvas, {middle, strip.position(k * step)}, text,
          {.size = drum.figure_size, .colour = drum.ink});
    for (int tick = 0; tick < drum.ticks; ++tick) {
      const double y = strip.position((k + static_cast<double>(tick) / drum.ticks) * step);
      line(canvas, {box.right() - (tick == 0 ? 4 : 2.6), y}, {box.right() - 0.6, y}, 0.7, drum.ink);
    }
  });
  // A seam between neighbours that stand edge to edge.
  for (const double x : {0.0, box.right()}) {
    line(canvas, {x, 0}, {x, box.height}, 1, faded(palette::black, 0.7));
  }
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

void draw_compass_strip(const Canvas& canvas, const CompassStrip& card, const MovingAxis& axis,
                        double window) {
  const Box box = whole(canvas.size());
  ground(canvas, palette::face_dark);
  const Strip strip{box.width, window, axis};
  constexpr int turn = 360;
  for_each_step(axis, 5, [&](double k) {
    const int heading = static_cast<int>(wrapped(turn - 5 * k, turn));
    const double x = strip.position(5 * k);
    const bool thirty = heading % 30 == 0, ten = heading % 10 == 0;
    const double length = ten ? 10 : 6, width = thirty ? 1.7 : ten ? 1.1 : 0.7;
    line(canvas, {x, box.bottom() - 2 - length}, {x, box.bottom() - 2}, width, palette::mark);
    if (!thirty) return;
    const double size = heading % 90 == 0 ? card.figure_size * 1.15 : card.figure_size;
    print(canvas, {x, (box.height - 12) / 2}, point_of_the_compass(heading / 10),
          {.size = size, .colour = palette::mark});
  });
}

void draw_mask(const Canvas& canvas, const Mask& mask) {
  const Box box = whole(canvas.size());
  const Colour seen = palette::white, gone = faded(seen, mask.round ? 0.25 : 1);
  set_linear(canvas, {0, 0}, {box.right(), 0}, {{0, gone}, {0.3, seen}, {0.7, seen}, {1, gone}});
  fill(canvas, rounded(box, mask.corner));
  if (mask.slit == 0) return;
  const Saved saved(canvas);
  cairo_set_operator(canvas.cr(), CAIRO_OPERATOR_CLEAR);
  fill(canvas, rounded({box.centre().x - mask.slit / 2, 0, mask.slit, box.height}, 0), seen);
}

void draw_compass_card(const Canvas& canvas, const CompassCard& card, Point about) {
  const Point centre = about + card.off;
  set_radial(canvas, centre, centre, card.radius,
             {{0, palette::face_light}, {0.75, palette::face_light}, {1, palette::face_dark}});
  fill(canvas, circle(centre, card.radius));
  const Saved saved(canvas);
  cairo_translate(canvas.cr(), centre.x, centre.y);
  for (int degrees = 0; degrees < 360; degrees += 5) {
    const bool thirty = degrees % 30 == 0, ten = degrees % 10 == 0;
    const double length = thirty ? 7.5 : ten ? 6 : 3.5, width = thirty ? 1.7 : ten ? 1.1 : 0.7;
    line(canvas, polar({}, card.radius - length, degrees), polar({}, card.radius - 0.5, degrees), width,
         palette::mark);
  }
  for (int tens = 0; tens < 36; tens += 3) {
    print(
        canvas, {0, 9.5 + 0.35 * card.figure_size - card.radius}, point_of_the_compass(tens),
        {.size = tens % 9 == 0 ? card.figure_size * 1.15 : card.figure_size, .colour = palette::mark});
    cairo_rotate(canvas.cr(), radians(30));
  }
}

namespace {

/// Lines on the ground that run to the point ahead.
void ground_lines(const Canvas& canvas, Point ahead, double depth) {
  for (const double spread : {-3.2, -1.5, -0.6, 0.6, 1.5, 3.2}) {
    line(canvas, ahead, {ahead.x + spread * depth, ahead.y + depth}, 0.8, faded(palette::black, 0.16));
  }
}

void pitch_line(const Canvas& canvas, const Ball& ball, Point at, double degrees) {
  const bool ten = std::fmod(degrees, 10) == 0, five = std::fmod(degrees, 5) == 0;
  const double half = ball.ladder / 2 * (ten ? 1 : five ? 0.55 : 0.25);
  const double width = ten ? 1.3 : five ? 1.1 : 0.8;
  line(canvas, {at.x - half, at.y}, {at.x + half, at.y}, width, palette::mark);
  if (!ten) return;
  const Lettering lettering{.size = ball.figure_size, .colour = palette::mark};
  const std::string text = std::to_string(std::lround(std::abs(degrees)));
  print(canvas, {at.x - half - 2, at.y}, text, lettering, Anchor::right);
  print(canvas, {at.x + half + 2, at.y}, text, lettering, Anchor::left);
}

}  // namespace

void draw_ball(const Canvas& canvas, const Ball& ball, Point centre) {
  constexpr double last = 50;  // degrees; beyond them the ball's end is dark
  const Box box = whole(canvas.size());
  const double reach = last * ball.per_degree;
  set_linear(
      canvas, centre, centre - Point{0, reach},
      {{0, palette::sky_light}, {0.35, palette::sky}, {0.8, palette::sky_dark}, {1, palette::well}});
  fill(canvas, rounded({0, 0, box.width, centre.y}, 0));
  set_linear(canvas, centre, centre + Point{0, reach},
             {{0, palette::earth_light},
              {0.3, palette::earth},
              {0.8, palette::earth_dark},
              {1, palette::well}});
  fill(canvas, rounded({0, centre.y, box.width, box.height - centre.y}, 0));
  ground_lines(canvas, centre, reach);
  for (double degrees = ball.mark_step; degrees <= 40; degrees += ball.mark_step) {
    pitch_line(canvas, ball, centre - Point{0, degrees * ball.per_degree}, degrees);
    pitch_line(canvas, ball, centre + Point{0, degrees * ball.per_degree}, degrees);
  }
  line(canvas, {0, centre.y}, {box.width, centre.y}, 1.8, palette::white);
  // It rounds away to both sides, and stays even along the way on which it rolls.
  const Colour dark = palette::well;
  set_linear(canvas, centre - Point{ball.seen, 0}, centre + Point{ball.seen, 0},
             {{0, faded(dark, 0.42)},
              {0.16, faded(dark, 0.15)},
              {0.38, faded(dark, 0)},
              {0.62, faded(dark, 0)},
              {0.84, faded(dark, 0.15)},
              {1, faded(dark, 0.42)}});
  fill(canvas, rounded(box, 0));
}

}  // namespace artwork
