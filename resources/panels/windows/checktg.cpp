/// Kneeboard key: the corner of a clipboard with its list.
#include "resources/panels/windows/label_plate.h"

namespace artwork::panels::checktg {

/// A sheet with ticked lines.
void draw_sheet(const Canvas& canvas, Box sheet) {
  cast_shadow(canvas, rounded(sheet, 1.5), 1.2);
  set_slope(canvas, sheet, {{0, rgb(0xF4F1E4)}, {1, rgb(0xCFC9B4)}});
  fill(canvas, rounded(sheet, 1.5));
  for (int row = 0; row < 4; ++row) {
    const double y = sheet.y + 5.5 + 4.3 * row;
    line(canvas, {sheet.x + 6, y}, {sheet.right() - (row % 2 ? 6 : 3), y}, 1, rgb(0x5A5F63));
    line(canvas, {sheet.x + 2.2, y}, {sheet.x + 3.2, y + 1}, 0.8, palette::range_green);
    line(canvas, {sheet.x + 3.2, y + 1}, {sheet.x + 4.8, y - 1.2}, 0.8, palette::range_green);
  }
  fill(canvas, rounded({sheet.centre().x - 4, sheet.y - 2, 8, 3.6}, 1.2), palette::steel);
}

void draw_key(const Board& board) {
  const Box box = part_box(board.gauge, "open_close_kneeboard").grown(-4);
  label_key(board.canvas, box);
  draw_sheet(board.canvas, {box.x + 7, box.y + 3.5, 20, 20});
  print(board.canvas, {box.x + 61, box.centre().y}, "CHECK\nLIST", {.size = 9});
}

constexpr Item items[] = {Ornament{draw_key}};

constexpr Art art[] = {plate(42, items)};

constinit Unit unit{"Checktg", art};

}  // namespace artwork::panels::checktg
