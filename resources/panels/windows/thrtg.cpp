/// Label plate of the throttle panel.
#include "resources/panels/windows/label_plate.h"

namespace artwork::panels::thrtg {

/// By night its words shine.
void draw_key(const Canvas& canvas, Box box, Colour ink) {
  label_key(canvas, box);
  print(canvas, box.centre(), "THROTTLES", {.size = 10, .colour = ink});
  chevron(canvas, {box.x + 17, box.centre().y}, 6, true, ink);
  chevron(canvas, {box.right() - 17, box.centre().y}, 6, true, ink);
}

void draw_fixed(const Board& board) {
  draw_key(board.canvas, part_box(board.gauge, "close_throttle_panel").grown(-4), palette::legend);
}

void draw_lighting(const Canvas& canvas, int image) {
  draw_key(canvas, whole(canvas.size()).grown(-2), image == 1 ? palette::filament : palette::legend);
}

constexpr Item items[] = {Ornament{draw_fixed}};

constexpr Art art[] = {plate(44, items), drawn_art(spare(23230, 2), {140, 36}, draw_lighting)};

constinit Unit unit{"Thrtg", art};

}  // namespace artwork::panels::thrtg
