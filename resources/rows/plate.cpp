#include "resources/rows/plate.h"

#include "resources/kit/knob.h"
#include "resources/kit/legend.h"
#include "resources/kit/metal.h"
#include "resources/kit/records.h"
#include "resources/kit/window.h"
#include "resources/rows/draw.h"

namespace artwork {
namespace {

/// What the plate has of the parts that stand on it.
void fit_parts(const Board& board) {
  for (const Element* element : parts(board.gauge)) {
    const Bitmap* bitmap = find_bitmap(element->resource_id);
    if (bitmap == nullptr) continue;
    const Point at = place(*element);
    fit(board.canvas, bitmap->art->picture,
        {at.x, at.y, static_cast<double>(bitmap->size.width),
         static_cast<double>(bitmap->size.height)});
  }
}

double clear_of(const Board& board, std::string_view name) {
  const Element& element = part(board.gauge, name);
  const Bitmap* bitmap = find_bitmap(element.resource_id);
  return bitmap == nullptr ? 0 : words_distance(bitmap->art->picture, bitmap->size);
}

/// Draws one item of a plate.
struct Fitter {
  const Board& board;
  const Canvas& canvas = board.canvas;

  Point at(const Spot& spot) const { return where(board, spot); }
  /// In the middle of a device pixel's row, so that the line is sharp.
  double level(double y) const { return canvas.snapped(y) + 0.5; }

  void operator()(const Legend& legend) const {
    Point spot = at(legend.spot);
    if (legend.clear != 0) spot.y += legend.clear * clear_of(board, legend.spot.part);
    engrave(canvas, spot, legend.text, {.size = legend.size}, legend.anchor);
  }
  void operator()(const Positions& words) const {
    const Point spot = at(words.spot);
    engrave(canvas, {spot.x, spot.y - words.reach}, words.up, {}, words.anchor);
    engrave(canvas, spot, words.centre, {}, words.anchor);
    engrave(canvas, {spot.x, spot.y + words.reach}, words.down, {}, words.anchor);
  }
  void operator()(const FlowKey& key) const {
    constexpr double bar = 5, pitch = 7.8, words = 8;
    const Lettering lettering{.size = 6.5};
    const Point in_line = at(key.spot), across = in_line + Point{0, pitch};
    const double x = canvas.snapped(in_line.x + bar / 2) + 0.5;
    engraved_line(canvas, {x, in_line.y - bar / 2}, {x, in_line.y + bar / 2});
    engraved_line(canvas, {in_line.x, level(across.y)}, {in_line.x + bar, level(across.y)});
    engrave(canvas, in_line + Point{words, 0}, key.in_line, lettering, Anchor::left);
    engrave(canvas, across + Point{words, 0}, key.across, lettering, Anchor::left);
  }
  void operator()(const Screw& row) const { screw(canvas, at(row.spot), row.radius, row.turned); }
  void operator()(const CornerScrews& row) const { corner_screws(canvas, row.inset, row.radius); }
  void operator()(const Line& row) const {
    const Point from = at(row.from);
    const double y = level(from.y);
    engraved_line(canvas, {from.x, y}, {at(row.to).x, y});
  }
  void operator()(const Bracket& row) const {
    const Point from = at(row.from);
    engraved_bracket(canvas, from, at(row.to).x - from.x, row.rise);
  }
  void operator()(const Window& row) const { display_window(canvas, part_box(board.gauge, row.text)); }
  void operator()(const FixedButton& row) const {
    fixed_button(canvas, at(row.spot), row.radius, row.cap);
  }
  void operator()(const FixedKnob& row) const {
    knob_seat(canvas, at(row.spot), row.seat);
    pointer_knob(canvas, at(row.spot), row.radius, row.mark);
  }
  void operator()(const Recess& row) const {
    const Box from = part_box(board.gauge, row.from), to = part_box(board.gauge, row.to);
    const Box field{from.x - 2, from.y - 2, to.right() - from.x + 4, to.bottom() - from.y + 4};
    sunk_field(canvas, field, 2.5, palette::mould_dark);
  }
  void operator()(const Opening& row) const {
    opening(canvas, at(row.spot), row.size, row.corner, board.lighting);
  }
  void operator()(const Face& row) const {
    case_face(canvas, row.box, row.corner, board.lighting);
    inscribe(canvas, board.lighting, [&](Colour ink) { row.print(board, ink); });
  }
  void operator()(const DrumFrame& row) const {
    const Box from = part_box(board.gauge, row.from), to = part_box(board.gauge, row.to);
    drum_frame(canvas, {from.x, from.y, to.right() - from.x, from.height}, board.lighting);
  }
  void operator()(const Ornament& row) const { row.draw(board); }
  void operator()(const Dial& dial) const { draw_dial(board, dial); }
};

}  // namespace

void draw_plate(const Board& board, std::span<const Item> items) {
  painted_plate(board.canvas);
  fit_parts(board);
  const Fitter fitter{board};
  for (const Item& item : items) std::visit(fitter, item);
}

void shade_openings(const Board& board, std::span<const Item> items) {
  for (const Item& item : items) {
    const auto* row = std::get_if<Opening>(&item);
    if (row == nullptr) continue;
    opening_shade(board.canvas, where(board, row->spot), row->size, row->corner);
  }
}

}  // namespace artwork
