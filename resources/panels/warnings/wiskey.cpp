/// Standby compass: a black case with a window, behind which the card floats. The lubber line is the plate's
/// and shows through a slit in the window.
#include "resources/art.h"
#include "resources/kit/metal.h"
#include "resources/kit/window.h"
#include "resources/rows/board.h"

namespace artwork::panels::wiskey {

/// What carries the case to the windscreen's frame: a bar across the plate behind it.
void draw_bracket(const Canvas& canvas, Box plate) {
  const Box bar{plate.x + 1, plate.y + 12, plate.width - 2, 20};
  cast_shadow(canvas, rounded(bar, 2), 1.2, 0.6);
  set_linear(canvas, {0, bar.y}, {0, bar.bottom()},
             {{0, palette::mould_light}, {0.2, palette::mould}, {1, palette::mould_dark}});
  fill(canvas, rounded(bar, 2));
}

void draw_case(const Canvas& canvas, Box body) {
  cast_shadow(canvas, rounded(body, 6), 1.6, 0.7);
  set_slope(canvas, body,
            {{0, palette::mould_light}, {0.35, palette::mould}, {1, palette::mould_dark}});
  fill(canvas, rounded(body, 6));
  set_slope(canvas, body,
            {{0, faded(palette::white, 0.45)},
             {0.4, faded(palette::white, 0.06)},
             {1, faded(palette::black, 0.6)}});
  stroke(canvas, rounded(body.grown(-0.4), 5.6), 0.8);
}

void draw_compass(const Board& board) {
  const Canvas& canvas = board.canvas;
  const Box plate = whole(canvas.size()), window = part_box(board.gauge, "compass_card");
  draw_bracket(canvas, plate);
  draw_case(canvas, {window.x - 4, plate.y + 0.6, window.width + 8, plate.height - 1.8});
  fill(canvas, rounded(window.grown(0.8), 4), palette::well);
  const double x = window.centre().x;
  line(canvas, {x, window.y}, {x, window.bottom()}, 2, palette::bug);
}

constexpr Item items[] = {
    Ornament{draw_compass},     Screw{{2.6, 22}, 24, 1.6},   Screw{{-2.6, 22}, 67, 1.6},
    Screw{{20, -3.2}, 40, 1.4}, Screw{{-20, -3.2}, 82, 1.4},
};

constexpr Art art[] = {
    plate(46, items),
    compass_strip_art("compass_card", {479, 38}, {.figure_size = 13}),
    mask_art("compass_card", {55, 38}, {.corner = 4, .slit = 1, .round = true}),
};

constinit Unit unit{"Wiskey", art};

}  // namespace artwork::panels::wiskey
