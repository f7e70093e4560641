/// A row of artwork: all bitmaps of one part, or of a plate, as data. A unit of `panels/` lists the
/// rows of one gauge.
#pragma once

#include "module/elements.h"
#include "resources/rows/controls.h"
#include "resources/rows/lamps.h"
#include "resources/rows/moving.h"
#include "resources/rows/plate.h"

namespace artwork {

class Canvas;

/// Draws image number `image` of a run of bitmaps that is one of its kind.
using DrawRoutine = void (*)(const Canvas& canvas, int image);

struct Drawing {
  DrawRoutine draw;
  Point hub = {};  ///< where it turns; {}: in the middle
};

/// A gauge's plate. With instrument lighting it is drawn again for the overlay: off, dim, bright.
struct Plate {
  std::span<const Item> items;
};

using Picture = std::variant<Plate, Lamp, LensStack, RoundLight, Lever, Knob, FlowSwitch, Guard,
                             GuardedLever, GuardedKnob, Needle, Bug, Flag, Drum, Tape, CompassStrip,
                             Mask, CompassCard, Ball, Drawing>;

/// Which bitmaps a row draws: those of a part of the unit's gauge, or a run that gauges share.
struct Of {
  constexpr Of() = default;
  constexpr Of(const char* of_part) : part(of_part) {}
  constexpr Of(tarnvale::Bitmaps run) : bitmaps(run) {}
  std::string_view part = {};
  tarnvale::Bitmaps bitmaps = {0, 0};
  std::string_view name = {};  ///< of a bitmap that has a name in place of a number
};

struct Art {
  Of of;
  Size size;  ///< in gauge pixels; a side of 0 follows from the record
  Picture picture;
  int bits = 8;  ///< a pixel; of a plate, not of its lighting

  /// In every colour that it was drawn in, for what has long gradients; nothing in it is half clear.
  constexpr Art in_full_colour() const { return with_bits(24); }
  /// With a palette of sixteen.
  constexpr Art in_16_colours() const { return with_bits(4); }

 private:
  constexpr Art with_bits(int count) const {
    Art art = *this;
    art.bits = count;
    return art;
  }
};

/// The rows of one gauge, or of what gauges share.
struct Unit {
  std::string_view gauge;  ///< "" where it is shared
  std::span<const Art> art;
};

// ---- The rows

/// A gauge's plate, as wide as the gauge, with the overlay of its instrument lighting if it has one.
constexpr Art plate(int height, std::span<const Item> items) { return {{}, {0, height}, Plate{items}}; }

constexpr Art lamp_art(Of of, Size size, Colours colours, std::string_view text = "",
                       double text_size = legend_size) {
  return {of, size, Lamp{colours, text, text_size}};
}
/// Lamps that are alike in pictures that are not.
constexpr Art lamp_art(Of of, Size size, Lamp lamp) { return {of, size, lamp}; }
/// A push button whose lens lights up.
constexpr Art button_art(Of of, Size size, Colours colours, std::string_view text,
                         double text_size = legend_size) {
  return {of, size, Lamp{colours, text, text_size, Setting::button}};
}
/// A push button that is a lens from edge to edge, for words in two lines.
constexpr Art cap_art(Of of, Size size, Colours colours, std::string_view text,
                      double text_size = legend_size) {
  return {of, size, Lamp{colours, text, text_size, Setting::cap}};
}
constexpr Art flush_lamp_art(Of of, Size size, Colours colours, std::string_view text,
                             double text_size = legend_size) {
  return {of, size, Lamp{colours, text, text_size, Setting::flush}};
}
constexpr Art lens_stack_art(Of of, Size size, List<Lens, 3> lenses) {
  return {of, size, LensStack{lenses}};
}
constexpr Art round_light_art(Of of, Size size, RoundLight light) { return {of, size, light}; }

constexpr Art lever_art(Of of, Size size, List<Throw, 4> throws, Lever lever = {}) {
  lever.throws = throws;
  return {of, size, lever};
}
constexpr Art knob_art(Of of, Size size, List<double, 12> marks, Knob knob) {
  knob.marks = marks;
  return {of, size, knob};
}
constexpr Art flow_switch_art(Of of, Size size, FlowSwitch knob) { return {of, size, knob}; }
constexpr Art guard_art(Of of, Size size) { return {of, size, Guard{}}; }
constexpr Art guarded_lever_art(Of of, Size size) { return {of, size, GuardedLever{}}; }
constexpr Art guarded_knob_art(Of of, Size size) { return {of, size, GuardedKnob{}}; }

/// As large as pivot and length need.
constexpr Art needle_art(Of of, Needle needle) { return {of, {}, needle}; }
/// As large as its pivot and its place on the rim need.
constexpr Art bug_art(Of of, Bug bug) { return {of, {}, bug}; }
constexpr Art flag_art(Of of, Size size, Flag flag) { return {of, size, flag}; }
/// `window` is the size of the window in which it shows.
constexpr Art drum_art(Of of, Size window, Drum drum) {
  return {of, {window.width, 10 * window.height}, drum};
}
/// A drum as long as its strip, whose window is that of its mask.
constexpr Art masked_drum_art(Of of, Size strip, Drum drum) { return {of, strip, drum}; }
constexpr Art tape_art(Of of, Size strip, Tape tape) { return {of, strip, tape}; }
constexpr Art compass_strip_art(Of of, Size strip, CompassStrip card) { return {of, strip, card}; }
/// The window of the strip that is the part `of`.
constexpr Art mask_art(Of of, Size window, Mask mask = {}) { return {of, window, mask}; }
constexpr Art compass_card_art(Of of, Size size, CompassCard card) { return {of, size, card}; }

constexpr Art ball_art(Of of, Size size, Ball ball) { return {of, size, ball}; }

/// Pictures that are one of their kind.
constexpr Art drawn_art(Of of, Size size, DrawRoutine draw, Point hub = {}) {
  return {of, size, Drawing{draw, hub}};
}

// ---- To spare: for panels with a plate of their own. No element shows them.

/// A run of so many images from that number on.
constexpr Of spare(int id, unsigned images = 1) { return tarnvale::Bitmaps{id, images}; }

/// A picture that goes by its name.
constexpr Art named_art(std::string_view name, Size size, DrawRoutine draw) {
  Of of;
  of.name = name;
  return {of, size, Drawing{draw}};
}

}  // namespace artwork
