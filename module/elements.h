/// One line per element of a gauge: the factories that gauges build their chains from.
///
/// Positions are pixels of the gauge's background; pivots are pixels of the element's own image.
#pragma once

#include <cstddef>

#include "module/aircraft.h"
#include "module/failures.h"

namespace tarnvale {

namespace image_flag {
inline constexpr u32 background = 0x1;
inline constexpr u32 transparent = 0x3;  ///< lit by the cockpit's light alone: switches, knobs, faces
inline constexpr u32 luminous = 0x7;     ///< shines by itself: lamps, and everything in the lit copy
inline constexpr u32 smooth = 0x80;      ///< turning parts, drawn with smooth edges
inline constexpr u32 shines = luminous & ~transparent;
}  // namespace image_flag

/// What an element has beside the usual of its kind.
struct Extras {
  u32 source = 0;                          ///< token that the host reads before the value routine
  const FailureEntry* failures = nullptr;  ///< null: the usual table of the kind
  u32 flags = 0;                           ///< 0: the usual flags of the kind
};

namespace detail {

constexpr Element element(u32 kind, i32 resource, PanelPoint at, u32 flags, Extras extras) {
  Element e{};
  e.kind = kind;
  e.resource_id = resource;
  e.position = at;
  e.failures = extras.failures;
  e.image_flags = extras.flags != 0 ? extras.flags : flags;
  return e;
}

constexpr Extras usually(Extras extras, const FailureEntry* failures) {
  if (extras.failures == nullptr) extras.failures = failures;
  return extras;
}

}  // namespace detail

/// A picture out of `images` bitmaps numbered from `resource`; `value` gives which. A null routine
/// shows the source token itself. A part that works by hand: nothing makes it fail.
constexpr Element icon(i32 resource, PanelPoint at, u32 images, ValueRoutine value,
                       Extras extras = {}) {
  Element e = detail::element(ELEMENT_ICON, resource, at, image_flag::transparent, extras);
  const bool several = images > 1;
  e.icon = IconPart{{extras.source, 0, 0.0}, value, several, images, several ? images - 1.0 : 0.0};
  return e;
}

/// An icon that shines by itself and goes dark without electrical power.
constexpr Element lamp(i32 resource, PanelPoint at, ValueRoutine value, u32 images = 2,
                       Extras extras = {}) {
  extras = detail::usually(extras, failure::dark);
  if (extras.flags == 0) extras.flags = image_flag::luminous;
  return icon(resource, at, images, value, extras);
}

/// The value routine of every lighting overlay: the instrument lighting's level, 0..2.
f64 lighting_image(Element*);

/// The instrument lighting over a whole face: off, dim, bright. As the first element of a gauge it
/// makes the lit copy start hidden, so that an unlit cockpit opens unlit: the hide bit is the copy's.
constexpr Element lighting_overlay(i32 resource) {
  return icon(resource, {0, 0}, 3, lighting_image,
              {.failures = failure::dark, .flags = image_flag::transparent | IMAGE_HIDE_CHAIN});
}

/// The points between which a needle moves: `{background pixel, value}`, in ascending order of value.
template <std::size_t points>
using Scale = NonlinearityPoint[points];

/// A needle that turns about `pivot` of its own image; electrical, so without power it rests at 0.
template <std::size_t points>
constexpr Element needle(i32 resource, PanelPoint at, PanelPoint pivot, const Scale<points>& scale,
                         ValueRoutine value, Extras extras = {}) {
  extras = detail::usually(extras, failure::at_rest);
  Element e = detail::element(ELEMENT_NEEDLE, resource, at,
                              image_flag::transparent | image_flag::smooth, extras);
  e.needle = NeedlePart{pivot, {extras.source, 0, 0.0}, value, scale, points, 0, 0.0};
  return e;
}

/// How a text read-out is set.
struct Type {
  const char* font;
  u32 colour;        ///< 0x00BBGGRR
  u32 weight = 400;  ///< 400 normal, 700 bold
};

/// A text in a box. `value` writes it into `buffer`, whose size fixes the longest text.
template <std::size_t bytes>
constexpr Element text(PanelPoint at, PanelSize size, Type type, char (&buffer)[bytes],
                       ValueRoutine value, Extras extras = {}) {
  extras = detail::usually(extras, failure::dark);
  Element e = detail::element(ELEMENT_STRING, -1, at, image_flag::transparent, extras);
  e.string = StringPart{size,        {{extras.source, 0, 0.0}, {}},
                        value,       type.colour,
                        0,           0,
                        type.weight, 0,
                        bytes - 1,   type.font,
                        buffer};
  return e;
}

}  // namespace tarnvale
