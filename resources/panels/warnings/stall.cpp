/// STALL light: the whole plate. Unlit, the lights leave the face in sight, and one another.
#include "resources/panels/warnings/annunciator.h"

namespace artwork::panels::stall {

constexpr Size picture{76, 34};
constexpr Lens lens{lens::red, "STALL", 14};

void draw_face(const Canvas& canvas, int) { draw_annunciator(canvas, lens, false); }

void draw_light(const Canvas& canvas, int image) {
  if (image == 1) return draw_annunciator(canvas, lens, true);
  draw_annunciator_rim(canvas, lens);
}

constexpr Art art[] = {
    plate(picture.height, {}),
    drawn_art("unlit_face", picture, draw_face),
    drawn_art("warning_light", picture, draw_light),
};

constinit Unit unit{"Stall", art};

}  // namespace artwork::panels::stall
