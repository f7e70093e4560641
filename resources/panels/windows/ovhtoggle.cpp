/// Label plate of the overhead: the aircraft from above, the overhead's own place marked.
#include <iterator>

#include "resources/panels/windows/label_plate.h"

namespace artwork::panels::ovhtoggle {

constexpr Colour ink = palette::legend;

/// Half of the outline, from the nose back; the other half mirrors it.
constexpr Point half[] = {{0, -72}, {5, -66}, {8, -56}, {8.5, -22}, {62, 16}, {62, 24}, {8.5, 8},
                          {8, 40},  {7, 52},  {26, 64}, {26, 70},   {3, 66},  {0, 72}};

Path outline(Point centre) {
  return [centre](cairo_t* cr) {
    cairo_move_to(cr, centre.x, centre.y + half[0].y);
    for (const Point& p : half) cairo_line_to(cr, centre.x + p.x, centre.y + p.y);
    for (auto p = std::rbegin(half); p != std::rend(half); ++p) {
      cairo_line_to(cr, centre.x - p->x, centre.y + p->y);
    }
    cairo_close_path(cr);
  };
}

void draw_engines(const Canvas& canvas, Point c) {
  for (const double side : {-1.0, 1.0}) {
    const Path pod = rounded({c.x + side * 14 - 4, c.y + 26, 8, 24}, 4);
    fill(canvas, pod, palette::mould_dark);
    stroke(canvas, pod, 1.6, ink);
  }
}

void draw_key(const Board& board) {
  const Box box = part_box(board.gauge, "close_overhead_panel").grown(-6);
  label_key(board.canvas, box, 6);
  const Point c = box.centre() + Point{0, -14};
  draw_engines(board.canvas, c);
  fill(board.canvas, outline(c), palette::mould_dark);
  stroke(board.canvas, outline(c), 1.8, ink);
  fill(board.canvas, rounded({c.x - 5, c.y - 60, 10, 7}, 2), palette::lamp_amber);
  print(board.canvas, {c.x, box.bottom() - 17}, "OVERHEAD", {.size = 13});
  chevron(board.canvas, {box.x + 24, box.bottom() - 17}, 8, true);
  chevron(board.canvas, {box.right() - 24, box.bottom() - 17}, 8, true);
}

constexpr Item items[] = {Ornament{draw_key}};

constexpr Art art[] = {plate(210, items).in_full_colour()};

constinit Unit unit{"Ovhtoggle", art};

}  // namespace artwork::panels::ovhtoggle
