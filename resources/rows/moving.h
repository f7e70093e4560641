/// What turns and slides, as data: the records say about which point and over which range.
#pragma once

#include <string_view>

#include "resources/kit/geometry.h"
#include "resources/kit/palette.h"

namespace artwork {

/// A needle. Its picture points to the right from the record's pivot; nothing of it lies left of or
/// above its picture, so the pivot says how much tail and width it may have.
struct Needle {
  double length;  ///< from the pivot to the tip
  double tail = 0;
  double half_width = 1;  ///< at the pivot
  double cap = 0;         ///< radius of the cap over the pivot
  Colour colour = palette::mark;
};

/// A drum of figures, ten windows high, that runs upward behind its window. Each figure stands where
/// the record's range puts it.
struct Drum {
  double figure_size;
  double step = 0;  ///< of the value from one figure to the next; 0: a tenth of the range or nearly so
  std::string_view figures = "0123456789";  ///< they go round
  Colour ink = palette::mark;
  Colour ground = palette::face_dark;
};

/// A card that slides sideways behind a window: marks, and figures at every so many of them.
struct Tape {
  double mark_step, figure_step;  ///< of the value
  double figure_size;
  double per = 1;    ///< of the value to one of the printed figure
  double round = 0;  ///< printed figures start again at this one: 360 on a heading tape
};

/// The window of a tape: opaque where it shows.
struct Mask {
  double corner = 1;
};

/// A compass card that turns about the middle of its picture, north up at rest.
struct CompassCard {
  double radius;
  double figure_size;
};

}  // namespace artwork
