/// The label plates that put a panel away or take one out: a raised key with a word and an arrow.
#pragma once

#include "resources/art.h"
#include "resources/kit/legend.h"
#include "resources/kit/metal.h"
#include "resources/rows/board.h"

namespace artwork::panels {

/// A wide black key, raised above the plate, lit from above left.
inline void label_key(const Canvas& canvas, Box box, double corner = 4) {
  const Path key = rounded(box, corner);
  fill(canvas, rounded(box.grown(1.5), corner + 1.5), palette::well);
  cast_shadow(canvas, key, 1.2, 0.5);
  set_linear(canvas, {box.x, box.y}, {box.x, box.bottom()},
             {{0, palette::mould_light}, {0.14, palette::mould}, {1, palette::mould_dark}});
  fill(canvas, key);
  line(canvas, {box.x + corner, box.y + 0.6}, {box.right() - corner, box.y + 0.6}, 0.8,
       faded(palette::white, 0.28));
}

/// A chevron: down where the panel goes away, up where one comes.
inline void chevron(const Canvas& canvas, Point centre, double reach, bool down,
                    Colour ink = palette::legend) {
  const double rise = down ? reach * 0.55 : -reach * 0.55;
  const Point corners[] = {{centre.x - reach, centre.y - rise / 2},
                           {centre.x, centre.y + rise / 2},
                           {centre.x + reach, centre.y - rise / 2}};
  line(canvas, corners[0], corners[1], 1.6, ink);
  line(canvas, corners[1], corners[2], 1.6, ink);
}

}  // namespace artwork::panels
