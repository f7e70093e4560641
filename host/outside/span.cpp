#include "host/outside/span.h"

#include <algorithm>

// Where the machine has wider registers than every machine of its kind, the compiler makes use of them.
#if defined(__x86_64__)
#define FOR_WIDE_REGISTERS __attribute__((target_clones("avx2", "default")))
#else
#define FOR_WIDE_REGISTERS
#endif

namespace host::outside {
namespace {

using Lane = std::uint32_t;
using Lanes = std::array<Lane, span_pixels>;

// Between two pixels, two channels at a time; `t` is 0 to 255.
inline Lane mixed_pair(Lane a, Lane b, Lane t) { return (a * (256 - t) + b * t) >> 8 & 0xFF00FF; }

inline Lane grain_at(const Walk& walk, Lane u, Lane v) {
  const Lane mask = (1u << walk.texture.bits) - 1;
  const Lane texel = walk.texture.texels[(v >> 16 & mask) << walk.texture.bits | (u >> 16 & mask)];
  const Lane left = mixed_pair(texel & 0xFF00FF, texel >> 8 & 0xFF00FF, u >> 8 & 255);
  const Lane ty = v >> 8 & 255;
  return ((left & 0xFF) * (256 - ty) + (left >> 16) * ty) >> 8;
}

inline void lay_grain(const Walk& walk, Lanes& sum) {
  constexpr unsigned even_bits = 3;  // nothing is left of the grain in textures so small
  if (walk.texture.bits <= even_bits) {
    for (Lane& each : sum) each += 128;
    return;
  }
  for (Lane i = 0; i < span_pixels; ++i)
    sum[i] += grain_at(walk, walk.u + i * static_cast<Lane>(walk.du),
                       walk.v + i * static_cast<Lane>(walk.dv));
}

inline void look_up(const Walk& walk, Lanes& red_blue, Lanes& green) {
  const Lane bits = walk.texture.bits, mask = (1u << bits) - 1;
  const std::uint32_t* texels = walk.texture.texels;
  for (Lane i = 0; i < span_pixels; ++i) {
    const Lane u = walk.u + i * static_cast<Lane>(walk.du), v = walk.v + i * static_cast<Lane>(walk.dv);
    const Lane x = u >> 16 & mask, y = (v >> 16 & mask) << bits;
    const Lane x1 = (x + 1) & mask, y1 = (((v >> 16) + 1) & mask) << bits;
    const Lane a = texels[y | x], b = texels[y | x1], c = texels[y1 | x], d = texels[y1 | x1];
    const Lane tx = u >> 8 & 255, ty = v >> 8 & 255;
    red_blue[i] = mixed_pair(mixed_pair(a & 0xFF00FF, b & 0xFF00FF, tx),
                             mixed_pair(c & 0xFF00FF, d & 0xFF00FF, tx), ty);
    green[i] = mixed_pair(mixed_pair(a >> 8 & 0xFF, b >> 8 & 0xFF, tx),
                          mixed_pair(c >> 8 & 0xFF, d >> 8 & 0xFF, tx), ty);
  }
}

// Lays the cover over the land and shows less of the grain on it.
inline void lay_cover(Cover cover, Lanes& red_blue, Lanes& green, Lanes& grain) {
  for (int i = 0; i < span_pixels; ++i) {
    const Lane alpha = cover[i] >> 24, rest = 256 - alpha - (alpha >> 7);
    red_blue[i] = (red_blue[i] * rest >> 8 & 0xFF00FF) + (cover[i] & 0xFF00FF);
    green[i] = (green[i] * rest >> 8) + (cover[i] >> 8 & 0xFF);
    grain[i] =
        256 +
        ((static_cast<std::int32_t>(grain[i]) - 256) * static_cast<std::int32_t>(512 - alpha) >> 9);
  }
}

inline std::int32_t lit(Lane colour, Lane grain, std::int32_t times, std::int32_t plus) {
  const auto grained = static_cast<std::int32_t>(colour * grain >> 8);
  return std::min((grained * (times >> 8) + plus) >> 8, 255);
}

inline void finish(const Lanes& red_blue, const Lanes& green, const Lanes& grain, const Shade& shade,
                   SpanPixels& out) {
  for (int i = 0; i < span_pixels; ++i) {
    const auto channel = [&](std::size_t c, Lane colour) {
      return static_cast<Lane>(lit(colour, grain[i], shade.times[c] + i * shade.times_step[c],
                                   shade.plus[c] + i * shade.plus_step[c]));
    };
    out[i] = 0xFF000000u | channel(0, red_blue[i] >> 16) << 16 | channel(1, green[i]) << 8 |
             channel(2, red_blue[i] & 0xFF);
  }
}

}  // namespace

FOR_WIDE_REGISTERS
void shade_land(const Walk& land, const Walk& coarse, const Walk& fine, Cover cover, const Shade& shade,
                SpanPixels& out) {
  Lanes red_blue, green, grain{};
  look_up(land, red_blue, green);
  lay_grain(coarse, grain);
  lay_grain(fine, grain);
  lay_cover(cover, red_blue, green, grain);
  finish(red_blue, green, grain, shade, out);
}

FOR_WIDE_REGISTERS
void shade_covered(const Walk& coarse, const Walk& fine, Cover cover, const Shade& shade,
                   SpanPixels& out) {
  Lanes red_blue{}, green{}, grain{};
  lay_grain(coarse, grain);
  lay_grain(fine, grain);
  lay_cover(cover, red_blue, green, grain);
  finish(red_blue, green, grain, shade, out);
}

}  // namespace host::outside
