/// The gust lock: a red T handle, flat in its seat or pulled and turned upright.
#include "resources/art.h"
#include "resources/kit/knob.h"
#include "resources/rows/board.h"

namespace artwork::panels::gustlock {

constexpr Size picture{21, 22};

Path grip(Point c, bool upright, double reach, double half) {
  const Point way = upright ? Point{0, reach} : Point{reach, 0};
  return capsule(c - way, c + way, half, half);
}

void draw_handle(const Canvas& canvas, int image) {
  const bool locked = image == 1;
  const Point c = whole(picture).centre() - (locked ? Point{0.8, 0.8} : Point{});
  const Path shape = grip(c, locked, 5, 3.2);
  cast_shadow(canvas, shape, locked ? 2.6 : 1, 0.75);
  set_linear(canvas, c - Point{5, 6}, c + Point{5, 6},
             {{0, palette::guard_light}, {0.45, palette::guard}, {1, palette::guard_dark}});
  fill(canvas, shape);
  stroke(canvas, grip(c, locked, 5, 2.8), 0.6, faded(palette::white, 0.3));
  fill(canvas, circle(c, 1.7), palette::steel_dark);
  fill(canvas, circle(c - Point{0.3, 0.4}, 1.1), palette::steel_light);
}

void draw_seat(const Board& board) { knob_seat(board.canvas, {10.5, 11}, 9); }

constexpr Item items[] = {Ornament{draw_seat}};

constexpr Art art[] = {
    plate(picture.height, items),
    drawn_art("gust_lock_handle", picture, draw_handle),
};

constinit Unit unit{"Gustlock", art};

}  // namespace artwork::panels::gustlock
