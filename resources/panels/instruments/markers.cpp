/// Marker beacon lights: outer blue, middle amber, inner white. A picture is the lens that shines; the dark
/// ones are the plate's.
#include "resources/art.h"
#include "resources/kit/lamp.h"
#include "resources/rows/board.h"

namespace artwork::panels::markers {

constexpr Lens lenses[] = {{lens::blue, "O", 9}, {lens::amber, "M", 9}, {lens::white, "I", 9}};

constexpr Box frame_of(int marker) { return {2.5, 3.0 + 21 * marker, 18, 20}; }

void draw_dark_lenses(const Board& board) {
  for (int marker = 0; marker < 3; ++marker) {
    const Box frame = frame_of(marker);
    lamp_housing(board.canvas, frame);
    lamp_lens(board.canvas, frame.grown(-2), lenses[marker], false);
  }
}

void draw_light(const Canvas& canvas, int image) {
  const Box frame = frame_of(image);
  soft(canvas, rounded(frame, 1.8), faded(lenses[image].colour, 0.4), lamp_spill * 0.5);
  lamp_housing(canvas, frame);
  lamp_lens(canvas, frame.grown(-2), lenses[image], true);
}

constexpr Item items[] = {Ornament{draw_dark_lenses}};

constexpr Art art[] = {
    plate(68, items),
    drawn_art("marker_light", {23, 68}, draw_light),
};

constinit Unit unit{"Markers", art};

}  // namespace artwork::panels::markers
