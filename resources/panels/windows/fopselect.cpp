/// Seat key of the first officer's panel.
#include "resources/panels/windows/label_plate.h"

namespace artwork::panels::fopselect {

/// By night its words shine.
void draw_key(const Canvas& canvas, Box box, Colour ink) {
  label_key(canvas, box);
  const Point c = box.centre();
  line(canvas, {box.x + 8, c.y}, {box.x + 15, c.y - 6}, 1.6, ink);
  line(canvas, {box.x + 8, c.y}, {box.x + 15, c.y + 6}, 1.6, ink);
  print(canvas, {c.x + 6, c.y}, "CAPT\nPANEL", {.size = 10, .colour = ink});
}

void draw_fixed(const Board& board) {
  draw_key(board.canvas, part_box(board.gauge, "open_captains_panel").grown(-6), palette::legend);
}

void draw_lighting(const Canvas& canvas, int image) {
  draw_key(canvas, whole(canvas.size()).grown(-2), image == 1 ? palette::filament : palette::legend);
}

constexpr Item items[] = {Ornament{draw_fixed}};

constexpr Art art[] = {plate(50, items), drawn_art(spare(20250, 2), {84, 38}, draw_lighting)};

constinit Unit unit{"Fopselect", art};

}  // namespace artwork::panels::fopselect
