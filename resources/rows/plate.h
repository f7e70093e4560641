/// A plate as data: what is engraved, screwed and let into it. The mounts of its levers, the seats of
/// its knobs and the wells of its guards need no row: they follow from the parts' own pictures.
#pragma once

#include <span>
#include <string_view>
#include <variant>

#include "resources/kit/styles.h"
#include "resources/rows/dial.h"
#include "resources/rows/spot.h"

namespace artwork {

struct Board;

/// Engraved words.
struct Legend {
  Spot spot;
  std::string_view text;
  double size = legend_size;
  Anchor anchor = Anchor::centre;
  double clear = 0;  ///< 1: as far below the part as its picture needs; -1: above it
};

/// What a control is called, above or below it.
constexpr Legend above(std::string_view part, std::string_view text, Point off = {}) {
  return {at(part, off.x, off.y), text, legend_size, Anchor::centre, -1};
}
constexpr Legend below(std::string_view part, std::string_view text, Point off = {}) {
  return {at(part, off.x, off.y), text, legend_size, Anchor::centre, 1};
}
/// Words that end, or begin, at the spot.
constexpr Legend ending(Spot spot, std::string_view text, double size = legend_size) {
  return {spot, text, size, Anchor::right};
}
constexpr Legend beginning(Spot spot, std::string_view text, double size = legend_size) {
  return {spot, text, size, Anchor::left};
}
/// The name of a panel or a system.
constexpr Legend heading(Spot spot, std::string_view text, double size = heading_size) {
  return {spot, text, size};
}

/// The words of a lever's positions, one above the other.
struct Positions {
  Spot spot = {0, 0};
  std::string_view up = "ON";
  std::string_view centre = {};
  std::string_view down = "OFF";
  Anchor anchor = Anchor::left;
  double reach = 13;  ///< from the spot up and down to the words
};
constexpr Positions right_of(std::string_view part, Positions words = {}, double aside = 11,
                             double below = 0) {
  words.spot = at(part, aside, below);
  return words;
}
constexpr Positions left_of(std::string_view part, Positions words = {}, double aside = 11,
                            double below = 0) {
  words.spot = at(part, -aside, below);
  words.anchor = Anchor::right;
  return words;
}
/// The words of two levers side by side.
constexpr Positions words_between(std::string_view one, std::string_view other, Positions words = {}) {
  words.spot = between(one, other, -7);
  return words;
}

/// How the bar of a flow switch lies in its two positions, and what they do; it begins at the spot.
struct FlowKey {
  Spot spot;
  std::string_view in_line = "OPEN";
  std::string_view across = "SHUT";
};

/// What a guarded knob's position is called, on the right of its guard: 0 to 3 from below.
constexpr Legend guarded_position(std::string_view knob, int position, std::string_view text) {
  return {at(knob, 16.5, 23.5 - 9.2 * position), text, legend_size, Anchor::left};
}

struct Screw {
  Spot spot;
  double turned;  ///< degrees that the fitter left its slot from upright
  double radius = 3;
};

struct CornerScrews {
  double inset = 7.5;
  double radius = 3.6;
};

/// A level line, engraved; `to` gives its end across alone.
struct Line {
  Spot from, to;
};

/// A line with two ticks of `rise` upward that ties controls to one legend.
struct Bracket {
  Spot from, to;
  double rise = 4;
};

/// The glass over a text read-out.
struct Window {
  std::string_view text;
};

/// A push button without a picture of its own.
struct FixedButton {
  Spot spot;
  double radius;
  Colour cap;
};

/// A round knob that turns out of sight.
struct FixedKnob {
  Spot spot;
  double radius, seat;
  double mark;  ///< degrees clockwise from straight up
};

/// A field sunk into the plate from one part to another.
struct Recess {
  std::string_view from, to;
};

/// An opening in the plate behind which a sprite shows. A gauge with sprites draws them first, and the
/// plate over them.
struct Opening {
  Spot spot;
  Size size;      ///< a circle where both are the same and `corner` is half of it
  double corner;  ///< radius
};

/// The dark face of a rectangular instrument, and what is printed on it.
struct Face {
  Box box;
  double corner;
  void (*print)(const Board& board, Colour ink);
};

/// The frame of drums that stand side by side.
struct DrumFrame {
  std::string_view from, to;
};

/// What only one plate has.
struct Ornament {
  void (*draw)(const Board& board);
};

using Item = std::variant<Legend, Positions, FlowKey, Screw, CornerScrews, Line, Bracket, Window,
                          FixedButton, FixedKnob, Recess, Opening, Face, DrumFrame, Ornament, Dial>;

}  // namespace artwork
