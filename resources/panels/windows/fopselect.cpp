/// Seat key of the first officer's panel.
#include "resources/panels/windows/label_plate.h"

namespace artwork::panels::fopselect {

void draw_key(const Board& board) {
  const Box box = part_box(board.gauge, "open_captains_panel").grown(-6);
  label_key(board.canvas, box);
  const Point c = box.centre();
  line(board.canvas, {box.x + 8, c.y}, {box.x + 15, c.y - 6}, 1.6, palette::legend);
  line(board.canvas, {box.x + 8, c.y}, {box.x + 15, c.y + 6}, 1.6, palette::legend);
  print(board.canvas, {c.x + 6, c.y}, "CAPT\nPANEL", {.size = 10});
}

constexpr Item items[] = {Ornament{draw_key}};

constexpr Art art[] = {plate(50, items)};

constinit Unit unit{"Fopselect", art};

}  // namespace artwork::panels::fopselect
