/// Sixteen pixels of ground at a time: the innermost loops of the view.
#pragma once

#include <array>
#include <cstdint>

namespace host::outside {

inline constexpr int span_pixels = 16;

/// A square texture of 2^bits by 2^bits texels that goes on without end.
struct Texture {
  const std::uint32_t* texels;
  unsigned bits;
};

/// A way across a texture: 65536ths of texels, which go round.
struct Walk {
  Texture texture;
  std::uint32_t u, v;
  std::int32_t du, dv;  ///< for each pixel
};

/// What light and haze make of a colour: 0 to 255 times `times` / 65536, plus `plus` / 256, for red,
/// green and blue, changing evenly along the span.
struct Shade {
  std::array<std::int32_t, 3> times, plus;
  std::array<std::int32_t, 3> times_step, plus_step;
};

using SpanPixels = std::array<std::uint32_t, span_pixels>;

/// What lies on the land: premultiplied 0xAARRGGBB, 0 where there is nothing but land.
using Cover = const std::uint32_t*;

/// Sixteen pixels of land under two grains and what lies on it; 128 in a grain leaves a colour as it
/// is. A grain's texel holds its own value and those right of it, below it, and right below it.
void shade_land(const Walk& land, const Walk& coarse, const Walk& fine, Cover cover, const Shade& shade,
                SpanPixels& out);

/// The same where nothing of the land is seen.
void shade_covered(const Walk& coarse, const Walk& fine, Cover cover, const Shade& shade,
                   SpanPixels& out);

}  // namespace host::outside
