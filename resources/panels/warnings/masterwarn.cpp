/// Master warning and caution.
#include "resources/panels/warnings/annunciator.h"

namespace artwork::panels::masterwarn {

constexpr Size picture{24, 26};

void draw_warning(const Canvas& canvas, int image) {
  draw_annunciator(canvas, {lens::red, "MSTR\nWARN", 5.8}, image == 1);
}

void draw_caution(const Canvas& canvas, int image) {
  draw_annunciator(canvas, {lens::amber, "MSTR\nCAUT", 5.8}, image == 1);
}

constexpr Art art[] = {
    plate(32, {}),
    drawn_art("warning_light", picture, draw_warning),
    drawn_art("caution_light", picture, draw_caution),
};

constinit Unit unit{"Masterwarn", art};

}  // namespace artwork::panels::masterwarn
