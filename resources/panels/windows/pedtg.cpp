/// Label plate of the pedestal, shared with the selector strip, which covers it.
#include "resources/panels/windows/label_plate.h"

namespace artwork::panels::pedtg {

void draw_key(const Board& board) {
  const Box box = part_box(board.gauge, "close_pedestal_panel").grown(-5);
  label_key(board.canvas, box);
  print(board.canvas, box.centre() + Point{0, -1}, "PEDESTAL", {.size = 11});
  chevron(board.canvas, {box.x + 22, box.centre().y}, 7, true);
  chevron(board.canvas, {box.right() - 22, box.centre().y}, 7, true);
}

constexpr Item items[] = {Ornament{draw_key}};

constexpr Art art[] = {plate(56, items)};

constinit Unit unit{"Pedtg", art};

}  // namespace artwork::panels::pedtg
