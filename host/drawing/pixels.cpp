#include "host/drawing/pixels.h"

#include <algorithm>
#include <cstring>

namespace host {
namespace {

// The alphas of two pixels.
constexpr std::uint64_t two_alphas = 0xFF000000FF000000u;

std::uint64_t two_pixels(const std::uint32_t* pixels) {
  std::uint64_t two;
  std::memcpy(&two, pixels, sizeof two);
  return two;
}

template <typename Row>
void each_row(Surface target, const Rect& clip, const PixelView& source, int x, int y, Row row) {
  const Rect part = intersection(clip, {x, y, source.width, source.height});
  for (int line = 0; line < part.height; ++line)
    row(target.at(part.x, part.y + line), source.at(part.x - x, part.y + line - y),
        static_cast<std::size_t>(part.width));
}

}  // namespace

// Most pictures are mostly clear or mostly solid, so sixteen alike are the usual case. Where the
// machine has wider registers than every machine of its kind, the compiler makes use of them.
#if defined(__x86_64__)
__attribute__((target_clones("avx2", "default")))
#endif
void over_row(std::uint32_t* target, const std::uint32_t* source, std::size_t count) {
  constexpr std::size_t stretch = 16;
  for (; count >= stretch; count -= stretch, target += stretch, source += stretch) {
    std::uint64_t any = 0, all = two_alphas;
    for (std::size_t i = 0; i < stretch; i += 2) {
      any |= two_pixels(source + i);
      all &= two_pixels(source + i);
    }
    if (all == two_alphas) {
      std::memcpy(target, source, stretch * sizeof *target);
    } else if ((any & two_alphas) != 0) {
      for (std::size_t i = 0; i < stretch; ++i) target[i] = over(target[i], source[i]);
    }
  }
  for (std::size_t i = 0; i < count; ++i) target[i] = over(target[i], source[i]);
}

void mask_row(std::uint32_t* target, const std::uint32_t* mask, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) target[i] = faded(target[i], mask[i] >> 24);
}

void fill_pixels(Surface target, const Rect& part, std::uint32_t colour) {
  for (int y = part.y; y < part.y + part.height; ++y)
    std::fill_n(target.at(part.x, y), part.width, colour);
}

void copy_pixels(Surface target, const Rect& clip, PixelView source, int x, int y) {
  each_row(target, clip, source, x, y,
           [](std::uint32_t* to, const std::uint32_t* from, std::size_t count) {
             std::memcpy(to, from, count * sizeof *to);
           });
}

void blend_pixels(Surface target, const Rect& clip, PixelView source, int x, int y) {
  each_row(target, clip, source, x, y, over_row);
}

}  // namespace host
