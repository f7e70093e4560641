/// The factories of a gauge's rows, one for each kind of part. Positions are pixels of the gauge's
/// background; pivots are pixels of the element's own image.
#pragma once

#include "module/row.h"

namespace tarnvale {

/// A run of bitmaps: `images` of them, numbered from `id`.
struct Bitmaps {
  i32 id;
  u32 images;
  constexpr Bitmaps(i32 first, u32 count = 2) : id(first), images(count) {}
};

/// One axis along which a part shifts, or about which it turns: where its value comes from, and how
/// many pixels or degrees one unit of it is. Without a routine the value is the source's; a scale of 0
/// means no motion.
struct Motion {
  u32 source = 0;  ///< host token; 0: none
  ValueRoutine value = nullptr;
  f64 scale = 0.0;
};

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

/// One of several pictures: the one whose number `value` gives, or without a routine the source token.
/// Parts that work by hand are icons: nothing makes them fail.
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

namespace text_colour {
inline constexpr u32 amber = 0x0476E8;  ///< the read-outs that shine by themselves
}  // namespace text_colour

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
