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

/// A bug that rides on the rim of a dial: of a needle's picture, only what is out there.
struct Bug {
  double from, to;  ///< from the pivot
  double half_width;
  Colour colour = palette::mark;
  bool inward = true;  ///< its point looks toward the pivot
};

/// Which image of a flag shows it; the other one is its empty slot.
enum class InView { first, second, always };

/// A warning flag in its slot.
struct Flag {
  std::string_view text;
  InView in_view = InView::first;
  double text_size = 6.5;
};

/// A drum of figures, ten windows high, that runs upward behind its window. Each figure stands where
/// the record's range puts it.
struct Drum {
  double figure_size;
  double step = 0;  ///< of the value from one figure to the next; 0: a tenth of the range or nearly so
  std::string_view figures = "0123456789";  ///< they go round
  std::string_view tail = {};               ///< behind each figure: "0" on a drum of tens
  int ticks = 0;                            ///< parts of a step, marked along the right edge
  Colour ink = palette::mark;
  Colour ground = palette::face_dark;
  bool blank_below_zero = false;  ///< what lies below nought has no figure
};

/// A card that slides sideways behind a window: marks, and figures at every so many of them.
struct Tape {
  double mark_step, figure_step;  ///< of the value
  double figure_size;
  double per = 1;    ///< of the value to one of the printed figure
  double round = 0;  ///< printed figures start again at this one: 360 on a heading tape
};

/// The card of a floating compass, unrolled: marks every five degrees under figures and letters. It is
/// read from the side, so that its figures run backwards; the record's range is one turn.
struct CompassStrip {
  double figure_size;
};

/// The window of a strip: opaque where it shows.
struct Mask {
  double corner = 1;
  double slit = 0;     ///< width of a line in the middle that stays open to the plate
  bool round = false;  ///< the strip bends away at both sides, into what is dark on the plate
};

/// A compass card that turns about the record's point of its picture, north up at rest.
struct CompassCard {
  double radius;
  double figure_size;
  Point off = {};  ///< of its middle from the record's point, where two copies of it differ in that
};

/// An attitude ball: sky and ground with a pitch ladder, about the record's point of its picture.
struct Ball {
  double per_degree;  ///< pixels
  double ladder;      ///< length of the lines at tens of degrees
  double figure_size;
  double mark_step;  ///< degrees between the shortest lines
  double seen;       ///< radius of the part that shows; toward it the ball rounds away
};

}  // namespace artwork
