/// PULL UP light. Its unlit face lies over the plate's dark lens, and over the lit one.
#include "resources/panels/warnings/annunciator.h"
#include "resources/rows/board.h"

namespace artwork::panels::pullup {

constexpr Size picture{28, 52};
constexpr Lens lens{lens::red, "PULL\nUP", 7};

void draw_dark_lens(const Board& board) {
  lamp_lens(board.canvas, annunciator_lens(whole(picture)), {lens.colour}, false);
}

void draw_light(const Canvas& canvas, int image) {
  if (image == 1) return draw_annunciator(canvas, lens, true);
  draw_annunciator_rim(canvas, lens);
}

void draw_below_slope(const Canvas& canvas, int image) {
  draw_annunciator(canvas, {lens::amber, "BLW\nG/S", 7}, image == 1);
}

void draw_wind_shear(const Canvas& canvas, int image) {
  draw_annunciator(canvas, {lens::red, "WIND\nSHR", 7}, image == 1);
}

constexpr Item items[] = {Ornament{draw_dark_lens}};

constexpr Art art[] = {
    plate(picture.height, items),
    drawn_art("warning_light", picture, draw_light),
    drawn_art(spare(14020, 2), picture, draw_below_slope),
    drawn_art(spare(14030, 2), picture, draw_wind_shear),
};

constinit Unit unit{"Pullup", art};

}  // namespace artwork::panels::pullup
