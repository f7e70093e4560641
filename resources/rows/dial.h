/// Dials as data: what is printed on a face, where the records of its needles put it.
#pragma once

#include <span>
#include <string_view>
#include <variant>

#include "resources/kit/geometry.h"
#include "resources/kit/palette.h"
#include "resources/rows/list.h"

namespace artwork {

/// A coloured band along the rim.
struct Band {
  double from, to;
  Colour colour;
};

/// Marks from the rim inward, one each `step`.
struct Marks {
  double from, to, step;
  double length, width;
};

/// Marks where nothing is even.
struct MarksAt {
  List<double, 6> values;
  double length, width;
};

/// A limit: a red line from the rim across the marks.
struct Limit {
  double at;
};

/// The line on which the marks stand.
struct Arc {
  double from, to, width;
};

/// A figure beside its mark: the value itself, without its sign, or what stands for it.
struct Figure {
  constexpr Figure(double at = 0, double off = 0, std::string_view printed = {})
      : value(at), aside(off), text(printed) {}
  double value;
  double aside;  ///< degrees clockwise from its mark, to stand clear of a needle at rest
  std::string_view text;
};

/// Figures inside the circle `inside` the rim, none nearer to it than its own reach.
struct Figures {
  List<Figure, 16> figures;
  double inside = 6;
  double size = 8;
};

using Print = std::variant<Band, Marks, MarksAt, Limit, Arc, Figures>;

/// One scale of a dial, in the units that a pilot reads: the needle's value is (reading - zero) * per.
struct Scale {
  std::string_view needle;
  std::span<const Print> print;
  double per = 1;
  double zero = 0;
  double rim = 0;     ///< outer end of the marks; where 0, well inside the bezel
  double band = 2.4;  ///< width of its bands
};

/// A word on the face, off its pivot.
struct Word {
  std::string_view text = {};
  Point by = {};
  double size = 7;
};

/// A round instrument about the pivot of its first scale's needle, or beside it.
struct Dial {
  double radius;  ///< of the bezel's outer edge
  List<Scale, 2> scales;
  List<Word, 4> words = {};
  double boss = 4.6;  ///< under the needle; 0 where the needle has a cap of its own
  double bezel = 3.4;
  /// Where the dial's middle lies from that pivot: two needles beside each other each have their own
  /// boss.
  Point off = {};
};

}  // namespace artwork
