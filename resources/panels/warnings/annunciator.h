/// Annunciators of the warning panels: a lens in a narrow frame, wide enough for words in a small picture.
#pragma once

#include "resources/art.h"
#include "resources/kit/lamp.h"

namespace artwork::panels {

inline constexpr double annunciator_margin = 0.8, annunciator_frame = 1.5;

constexpr Box annunciator_lens(Box picture) {
  return picture.grown(-annunciator_margin - annunciator_frame);
}

inline void draw_annunciator(const Canvas& canvas, const Lens& lens, bool lit) {
  const Box picture = whole(canvas.size()), frame = picture.grown(-annunciator_margin);
  if (lit) soft(canvas, rounded(frame, 1.8), faded(lens.colour, 0.7), annunciator_margin);
  lamp_housing(canvas, frame);
  lamp_lens(canvas, annunciator_lens(picture), lens, lit);
}

/// The same unlit, but for its lens, which the plate has: it lies over others that may be lit.
inline void draw_annunciator_rim(const Canvas& canvas, const Lens& lens) {
  const Box picture = whole(canvas.size()), frame = picture.grown(-annunciator_margin);
  set_slope(canvas, frame, {{0, palette::mould_dark}, {0.5, palette::mould}, {1, palette::steel}});
  stroke(canvas, rounded(frame.grown(-annunciator_frame / 2), 1.8), annunciator_frame);
  print(canvas, picture.centre(), lens.text,
        {.size = lens.text_size, .colour = mixed(lens.colour, palette::black, 0.22)});
}

}  // namespace artwork::panels
