#include "resources/kit/legend.h"

#include <algorithm>
#include <cmath>

#include "resources/kit/type.h"

namespace artwork {
namespace {

constexpr double capital = 0.7;  // height of the capitals in the font's size

/// The room that the line takes; its baseline and left edge are on the device grid.
Box print_line(const Canvas& canvas, Point at, std::string_view text, const Lettering& lettering,
               Anchor anchor) {
  const double width = set_width(canvas, text, lettering);
  const double left = canvas.snapped(anchor == Anchor::left     ? at.x
                                     : anchor == Anchor::centre ? at.x - width / 2
                                                                : at.x - width);
  const double height = lettering.size * capital;
  const double baseline = canvas.snapped(at.y + height / 2);
  set_colour(canvas, lettering.colour);
  set_line(canvas, {left, baseline}, text, lettering);
  return {left, baseline - height, width, height};
}

/// A box of turned words as it lies on the whole picture.
Box on_picture(const Canvas& canvas, Box room) {
  double left = 1e9, top = 1e9, right = -1e9, bottom = -1e9;
  for (const Point corner : {Point{room.x, room.y}, Point{room.right(), room.y},
                             Point{room.x, room.bottom()}, Point{room.right(), room.bottom()}}) {
    double x = corner.x, y = corner.y;
    cairo_user_to_device(canvas.cr(), &x, &y);
    left = std::min(left, x), right = std::max(right, x);
    top = std::min(top, y), bottom = std::max(bottom, y);
  }
  const double scale = canvas.hairline();
  return {left * scale, top * scale, (right - left) * scale, (bottom - top) * scale};
}

template <class Draw>
void for_each_line(Point at, std::string_view text, const Lettering& lettering, Draw draw) {
  int lines = 1;
  for (const char c : text) lines += c == '\n';
  double y = at.y - (lines - 1) * line_pitch(lettering) / 2;
  for (std::size_t from = 0; from <= text.size(); y += line_pitch(lettering)) {
    const std::size_t to = std::min(text.find('\n', from), text.size());
    draw(Point{at.x, y}, text.substr(from, to - from));
    from = to + 1;
  }
}

}  // namespace

TextExtent text_extent(const Canvas& canvas, std::string_view text, const Lettering& lettering) {
  double width = 0;
  int lines = 0;
  for_each_line({}, text, lettering, [&](Point, std::string_view row) {
    width = std::max(width, set_width(canvas, row, lettering));
    ++lines;
  });
  return {width, lettering.size * capital + (lines - 1) * line_pitch(lettering)};
}

void print(const Canvas& canvas, Point at, std::string_view text, const Lettering& lettering,
           Anchor anchor) {
  for_each_line(at, text, lettering, [&](Point place, std::string_view row) {
    canvas.note_words(on_picture(canvas, print_line(canvas, place, row, lettering, anchor)));
  });
}

void engrave(const Canvas& canvas, Point at, std::string_view text, const Lettering& lettering,
             Anchor anchor) {
  const double edge = canvas.hairline();
  const double strength = canvas.density() == 1 ? 0.6 : 1;
  const auto edging = [&](double by, Colour colour) {
    Lettering cut = lettering;
    cut.colour = colour;
    for_each_line(at + Point{by, by}, text, cut, [&](Point place, std::string_view row) {
      print_line(canvas, place, row, cut, anchor);
    });
  };
  edging(-edge, faded(palette::black, 0.6 * strength));
  edging(edge, faded(palette::white, 0.26 * strength));
  print(canvas, at, text, lettering, anchor);
}

}  // namespace artwork
