/// What a gauge's unit says of one part: its words, and its element by day and in the lit copy.
///
/// A row begins with what a person calls the part ("Battery switch"). What deviates from the usual of
/// its kind follows behind the row: `.from(token::altitude)`, `.lit_at({49, 97})`.
#pragma once

#include <array>
#include <cstddef>

#include "module/failures.h"

namespace tarnvale {

namespace image_flag {
inline constexpr u32 background = 0x1;
inline constexpr u32 transparent = 0x3;  ///< lit by the cockpit's light alone: switches, knobs, faces
inline constexpr u32 luminous = 0x7;     ///< shines by itself: lamps, and everything in the lit copy
inline constexpr u32 smooth = 0x80;      ///< turning parts, drawn with smooth edges
}  // namespace image_flag

/// A part of a gauge: its element by day and in the lit copy, where all of it shines, and its words.
struct Row {
  const char* words;  ///< unlike those of every other part of the gauge
  Element day;
  Element lit;
  failure::Loss without_power = failure::never;

  // ---- Both copies

  /// The token that the host reads before it calls the value routine; a text may have two. Sliders and
  /// sprites name theirs with each motion.
  constexpr Row from(u32 token, u32 second = 0) const {
    Row row = *this;
    for (Element* e : {&row.day, &row.lit}) {
      if (e->kind == ELEMENT_ICON) e->icon.source.token = token;
      if (e->kind == ELEMENT_NEEDLE) e->needle.source.token = token;
      if (e->kind == ELEMENT_STRING) e->string.source[0].token = token;
      if (e->kind == ELEMENT_STRING) e->string.source[1].token = second;
      if (e->kind == ELEMENT_MOVING_IMAGE) row.strip_axis(*e).source.token = token;
      if (e->kind == ELEMENT_SLIDER || e->kind == ELEMENT_SPRITE) not_of_this_kind();
    }
    return row;
  }

  /// What it does without power, in place of the usual of its kind.
  constexpr Row failing(failure::Loss loss) const {
    Row row = with_table(failure::table_of(loss));
    row.without_power = loss;
    return row;
  }

  /// What makes it fail besides the loss of power. A part that works by hand goes on.
  constexpr Row fails_with(const failure::System& system) const {
    if (without_power == failure::never) return *this;
    return with_table(without_power == failure::dark ? system.dark : system.at_rest);
  }

  /// Image flags by day; the lit copy shines beside them.
  constexpr Row flags(u32 day_flags) const {
    Row row = *this;
    row.day.image_flags = day_flags;
    row.lit.image_flags = day_flags | image_flag::luminous;
    return row;
  }

  /// A strip in a window of the size of bitmap `mask`, in place of a tenth of its own length.
  constexpr Row behind(i32 mask) const {
    Row row = only(ELEMENT_MOVING_IMAGE);
    row.day.moving_image.mask_resource_id = row.lit.moving_image.mask_resource_id = mask;
    return row;
  }

  /// An icon's switch mode and scale, where they do not follow from its number of images.
  constexpr Row mode(u32 switch_mode, f64 switch_scale) const {
    Row row = only(ELEMENT_ICON);
    for (Element* e : {&row.day, &row.lit}) {
      e->icon.switch_mode = switch_mode;
      e->icon.switch_scale = switch_scale;
    }
    return row;
  }

  /// A needle's greatest speed, full scales a second.
  constexpr Row rate(f64 limit) const {
    Row row = only(ELEMENT_NEEDLE);
    row.day.needle.rate_limit = row.lit.needle.rate_limit = limit;
    return row;
  }

  /// A needle that goes the shorter way from each point of its scale to the next: scales that run
  /// counterclockwise, or whose neighbouring points step back a little.
  constexpr Row shorter_way() const {
    Row row = only(ELEMENT_NEEDLE);
    row.day.needle.turn = row.lit.needle.turn = TURN_SHORTER_WAY;
    return row;
  }

  // ---- The lit copy alone, where it is not the first set once more

  constexpr Row lit_at(PanelPoint position) const {
    Row row = *this;
    row.lit.position = position;
    return row;
  }

  constexpr Row lit_flags(u32 image_flags) const {
    Row row = *this;
    row.lit.image_flags = image_flags;
    return row;
  }

  /// The point of a sprite's picture that stays in place.
  constexpr Row lit_centre(PanelPoint texture_center) const {
    Row row = only(ELEMENT_SPRITE);
    row.lit.sprite.texture_center = texture_center;
    return row;
  }

 private:
  constexpr Row with_table(const FailureEntry* table) const {
    Row row = *this;
    row.day.failures = row.lit.failures = table;
    return row;
  }

  /// Never defined: a row that says what its kind does not have does not compile.
  static void not_of_this_kind();

  constexpr Row only(u32 kind) const {
    if (day.kind != kind) not_of_this_kind();
    return *this;
  }

  /// The axis along which a strip moves: the one with a range.
  static constexpr MovingAxis& strip_axis(Element& e) {
    MovingAxis& x = e.moving_image.x;
    return x.minimum != x.maximum ? x : e.moving_image.y;
  }
};

/// Rows that a function describes, for parts that repeat within a gauge or between gauges.
template <std::size_t count>
using Rows = std::array<Row, count>;

}  // namespace tarnvale
