/// One row per element of a gauge: the factories that gauges build their chains from.
///
/// A row begins with what a person calls the part ("Battery switch"). Positions are pixels of the
/// gauge's background; pivots are pixels of the element's own image. What deviates from the usual of
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

/// A run of bitmaps: `images` of them, numbered from `id`.
struct Bitmaps {
  i32 id;
  u32 images;
  constexpr Bitmaps(i32 first, u32 count = 2) : id(first), images(count) {}
};

/// One axis of a part that moves straight or turns: where its value comes from, and pixels or degrees
/// to one of it. Without a routine the value is the source's; a scale of 0 is no motion.
struct Motion {
  u32 source = 0;  ///< host token; 0: none
  ValueRoutine value = nullptr;
  f64 scale = 0.0;
};

/// A part of a gauge: its element by day and in the lit copy, where all of it shines, and its words.
struct Row {
  const char* words;  ///< unlike those of every other part of the gauge
  Element day;
  Element lit;
  failure::Loss without_power = failure::never;

  // ---- Both copies

  /// The host token that the host reads before the value routine; a text may have two. Sliders and
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

  /// An icon's switch mode and scale, where they are not those that its number of images gives.
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

  /// A sprite's point of the picture that stays in place.
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

namespace detail {

constexpr Row row(const char* words, u32 kind, i32 resource, PanelPoint at, u32 flags,
                  failure::Loss without_power) {
  Element e{};
  e.kind = kind;
  e.resource_id = resource;
  e.position = at;
  e.image_flags = flags;
  return Row{words, e, e}.flags(flags).failing(without_power);
}

constexpr TokenVariable source(u32 token) { return {token, 0, 0.0}; }

}  // namespace detail

/// One of several pictures; `value` gives which, without a routine the source token itself. A part
/// that works by hand: nothing makes it fail.
constexpr Row icon(const char* words, Bitmaps bitmaps, PanelPoint at, ValueRoutine value = nullptr) {
  Row row = detail::row(words, ELEMENT_ICON, bitmaps.id, at, image_flag::transparent, failure::never);
  const bool several = bitmaps.images > 1;
  row.day.icon = IconPart{{}, value, several, bitmaps.images, several ? bitmaps.images - 1.0 : 0.0};
  row.lit.icon = row.day.icon;
  return row;
}

/// An icon that shines by itself and goes dark without electrical power.
constexpr Row lamp(const char* words, Bitmaps bitmaps, PanelPoint at, ValueRoutine value = nullptr) {
  return icon(words, bitmaps, at, value).flags(image_flag::luminous).failing(failure::dark);
}

/// The value routine of every lighting overlay: the instrument lighting's level, 0..2.
f64 lighting_image(Element*);

/// The instrument lighting over a whole face: off, dim, bright. As the first element of a gauge it
/// makes the lit copy start hidden, so that an unlit cockpit opens unlit: the hide bit is the copy's.
constexpr Row lighting_overlay(i32 resource) {
  return icon("Instrument lighting", {resource, 3}, {0, 0}, lighting_image)
      .lit_flags(image_flag::luminous | IMAGE_HIDE_CHAIN)
      .failing(failure::dark);
}

/// The points between which a needle moves: `{background pixel, value}`, in ascending order of value.
template <std::size_t points>
using Scale = NonlinearityPoint[points];

/// A needle that turns about `pivot` of its own image by the value's degrees; electrical, so without
/// power it rests at 0.
constexpr Row needle(const char* words, i32 resource, PanelPoint at, PanelPoint pivot,
                     ValueRoutine value = nullptr) {
  Row row = detail::row(words, ELEMENT_NEEDLE, resource, at,
                        image_flag::transparent | image_flag::smooth, failure::at_rest);
  row.day.needle = NeedlePart{pivot, {}, value, nullptr, 0, TURN_CLOCKWISE, 0.0};
  row.lit.needle = row.day.needle;
  return row;
}

/// The same between the points of a scale.
template <std::size_t points>
constexpr Row needle(const char* words, i32 resource, PanelPoint at, PanelPoint pivot,
                     const Scale<points>& scale, ValueRoutine value = nullptr) {
  Row row = needle(words, resource, at, pivot, value);
  for (Element* e : {&row.day, &row.lit}) {
    e->needle.table = scale;
    e->needle.table_length = points;
  }
  return row;
}

/// How a text read-out is set.
struct Type {
  const char* font;
  u32 colour;        ///< 0x00BBGGRR
  u32 weight = 400;  ///< 400 normal, 700 bold
};

/// A text in a box. `value` writes it into `buffer`, whose size fixes the longest text.
template <std::size_t bytes>
constexpr Row text(const char* words, PanelPoint at, PanelSize size, Type type, char (&buffer)[bytes],
                   ValueRoutine value) {
  Row row = detail::row(words, ELEMENT_STRING, -1, at, image_flag::transparent, failure::dark);
  row.day.string =
      StringPart{size, {}, value, type.colour, 0, 0, type.weight, 0, bytes - 1, type.font, buffer};
  row.lit.string = row.day.string;
  return row;
}

/// A picture that moves straight along either axis.
struct SliderMotion {
  Motion x;
  Motion y;
};

constexpr Row slider(const char* words, i32 resource, PanelPoint at, SliderMotion motion) {
  Row row = detail::row(words, ELEMENT_SLIDER, resource, at, image_flag::transparent, failure::dark);
  row.day.slider = SliderPart{detail::source(motion.x.source), motion.x.value, motion.x.scale,
                              detail::source(motion.y.source), motion.y.value, motion.y.scale};
  row.lit.slider = row.day.slider;
  return row;
}

/// The range of a value over the length of a strip.
struct Range {
  f64 first;
  f64 last;
};

/// A drum of figures: a window over the upright `strip`, whose first figure stands at the range's first
/// value and whose last at its last.
constexpr Row drum(const char* words, i32 strip, PanelPoint at, Range range, ValueRoutine value) {
  Row row = detail::row(words, ELEMENT_MOVING_IMAGE, strip, at, image_flag::transparent, failure::dark);
  row.day.moving_image = MovingImagePart{-1, 0, {}, {{}, value, range.first, range.last}};
  row.lit.moving_image = row.day.moving_image;
  return row;
}

/// A card that moves sideways behind a window of the size of bitmap `mask`.
constexpr Row card(const char* words, i32 strip, i32 mask, PanelPoint at, Range range,
                   ValueRoutine value) {
  Row row = detail::row(words, ELEMENT_MOVING_IMAGE, strip, at, image_flag::transparent, failure::dark);
  row.day.moving_image = MovingImagePart{mask, 0, {{}, value, range.first, range.last}, {}};
  row.lit.moving_image = row.day.moving_image;
  return row;
}

/// A picture behind the face that shifts and turns about `centre`, a point of its own that stays on
/// the same point of the gauge: compass cards, attitude balls.
struct SpriteMotion {
  Motion x;
  Motion y;
  Motion rotation;
};

constexpr Row sprite(const char* words, i32 resource, PanelPoint at, PanelPoint centre,
                     SpriteMotion motion) {
  Row row = detail::row(words, ELEMENT_SPRITE, resource, at,
                        image_flag::transparent | image_flag::smooth, failure::at_rest);
  const auto axis = [](Motion m) { return SpriteAxis{detail::source(m.source), m.value, m.scale}; };
  row.day.sprite = SpritePart{centre, axis(motion.x), axis(motion.y), axis(motion.rotation)};
  row.lit.sprite = row.day.sprite;
  return row;
}

/// Shows or hides the picture of one element; its routines go on.
constexpr void show_picture(Element& element, bool shown) {
  if (shown) {
    element.image_flags &= ~IMAGE_HIDE_PICTURE;
  } else {
    element.image_flags |= IMAGE_HIDE_PICTURE;
  }
}

}  // namespace tarnvale
