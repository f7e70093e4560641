#include "resources/rows/dial.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <string>

#include "resources/kit/legend.h"
#include "resources/kit/records.h"
#include "resources/rows/draw.h"
#include "resources/rows/overloaded.h"

namespace artwork {
namespace {

constexpr double rim_inset = 5.6;  // from the bezel's outer edge to the marks
constexpr double limit_length = 5.5, limit_width = 1.6;

/// A figure as it is printed: "120", ".5".
std::string text_of(double value) {
  char text[32];
  std::snprintf(text, sizeof text, "%g", std::abs(value));
  return text[0] == '0' && text[1] == '.' ? text + 1 : text;
}

/// How far from the hub a box of these half sides may stand so that no corner leaves the circle.
double distance_within(double radius, double half_width, double half_height, double degrees) {
  const double x = std::abs(std::cos(radians(degrees))), y = std::abs(std::sin(radians(degrees)));
  const double s = x * half_width + y * half_height;
  const double over = half_width * half_width + half_height * half_height - radius * radius;
  return -s + std::sqrt(std::max(0.0, s * s - over));
}

/// One scale while it is printed.
struct Printer {
  const Canvas& canvas;
  const Element& needle;
  const Scale& scale;
  double rim;
  Colour ink;

  Point centre() const { return turning_point(needle); }
  double angle(double reading) const {
    return needle_angle(needle, (reading - scale.zero) * scale.per);
  }
  void mark(double reading, double length, double width) const {
    const double at = angle(reading);
    const Segment mark{polar(centre(), rim - length, at), polar(centre(), rim, at)};
    line(canvas, mark.from, mark.to, width, ink);
    canvas.note_mark(mark);
  }

  void operator()(const Band& band) const {
    const Path path = ring(centre(), rim - scale.band / 2, angle(band.from), angle(band.to));
    stroke(canvas, path, scale.band, band.colour);
  }
  void operator()(const Limit& limit) const {
    const double at = angle(limit.at);
    line(canvas, polar(centre(), rim - limit_length, at), polar(centre(), rim, at), limit_width,
         palette::range_red);
  }
  void operator()(const Arc& arc) const {
    stroke(canvas, ring(centre(), rim, angle(arc.from), angle(arc.to)), arc.width, ink);
  }
  void operator()(const Marks& marks) const {
    const long count = std::lround((marks.to - marks.from) / marks.step);
    for (long i = 0; i <= count; ++i) {
      mark(marks.from + static_cast<double>(i) * marks.step, marks.length, marks.width);
    }
  }
  void operator()(const MarksAt& marks) const {
    for (const double reading : marks.values) mark(reading, marks.length, marks.width);
  }
  void operator()(const Figures& row) const {
    const Lettering lettering{.size = row.size, .colour = ink};
    for (const Figure& figure : row.figures) {
      const double at = angle(figure.value) + figure.aside;
      const std::string text(figure.text.empty() ? text_of(figure.value) : figure.text);
      const TextExtent room = text_extent(canvas, text, lettering);
      const double out = distance_within(rim - row.inside, room.width / 2, room.height / 2 + 0.3, at);
      print(canvas, polar(centre(), out, at), text, lettering);
    }
  }
};

}  // namespace

Point middle_of(const GaugeHeader& gauge, const Dial& dial) {
  return hub_of(gauge, dial.scales[0].needle) + dial.off;
}

void draw_dial(const Board& board, const Dial& dial) {
  const DialFace face{middle_of(board.gauge, dial), dial.radius, dial.bezel};
  const auto print_face = [&](Colour ink) {
    for (const Scale& scale : dial.scales) {
      const double rim = scale.rim == 0 ? dial.radius - rim_inset : scale.rim;
      const Printer printer{board.canvas, part(board.gauge, scale.needle), scale, rim, ink};
      for (const Print& each : scale.print) std::visit(printer, each);
    }
    for (const Word& word : dial.words) {
      print(board.canvas, face.centre + word.by, word.text, {.size = word.size, .colour = ink});
    }
  };
  const bool one_pivot = dial.off.x == 0 && dial.off.y == 0;
  meter(board.canvas, face, board.lighting, print_face, one_pivot ? dial.boss : 0);
  if (one_pivot) return;
  for (const Scale& scale : dial.scales) {
    dial_hub(board.canvas, hub_of(board.gauge, scale.needle), dial.boss);
  }
}

}  // namespace artwork
