/// Label plate of the throttle panel.
#include "resources/panels/windows/label_plate.h"

namespace artwork::panels::thrtg {

void draw_key(const Board& board) {
  const Box box = part_box(board.gauge, "close_throttle_panel").grown(-4);
  label_key(board.canvas, box);
  print(board.canvas, box.centre(), "THROTTLES", {.size = 10});
  chevron(board.canvas, {box.x + 17, box.centre().y}, 6, true);
  chevron(board.canvas, {box.right() - 17, box.centre().y}, 6, true);
}

constexpr Item items[] = {Ornament{draw_key}};

constexpr Art art[] = {plate(44, items)};

constinit Unit unit{"Thrtg", art};

}  // namespace artwork::panels::thrtg
