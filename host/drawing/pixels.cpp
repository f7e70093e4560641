#include "host/drawing/pixels.h"

#include <algorithm>
#include <cstring>

#if defined(__x86_64__)
#include <immintrin.h>
#endif

namespace host {
namespace {

// Also what machines without wide registers use; compilers turn it into what they have.
void over_pixels(std::uint32_t* target, const std::uint32_t* source, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) target[i] = over(target[i], source[i]);
}

#if defined(__x86_64__)

// Four pixels of 16 bits a channel, times 255 − alpha of the source, by the same rounding as
// faded().
__attribute__((target("avx2"))) inline __m256i faded_four(__m256i target, __m256i source) {
  __m256i alpha = _mm256_shufflelo_epi16(source, _MM_SHUFFLE(3, 3, 3, 3));
  alpha = _mm256_shufflehi_epi16(alpha, _MM_SHUFFLE(3, 3, 3, 3));
  const __m256i rest = _mm256_sub_epi16(_mm256_set1_epi16(255), alpha);
  const __m256i product = _mm256_add_epi16(_mm256_mullo_epi16(target, rest), _mm256_set1_epi16(128));
  return _mm256_mulhi_epu16(product, _mm256_set1_epi16(257));
}

__attribute__((target("avx2"))) inline __m256i over_eight(__m256i target, __m256i source) {
  const __m256i zero = _mm256_setzero_si256();
  const __m256i low =
      faded_four(_mm256_unpacklo_epi8(target, zero), _mm256_unpacklo_epi8(source, zero));
  const __m256i high =
      faded_four(_mm256_unpackhi_epi8(target, zero), _mm256_unpackhi_epi8(source, zero));
  return _mm256_add_epi8(source, _mm256_packus_epi16(low, high));
}

// Most pictures are mostly clear or mostly solid, so eight alike are the usual case.
__attribute__((target("avx2"))) void over_row_by_eight(std::uint32_t* target,
                                                       const std::uint32_t* source, std::size_t count) {
  const __m256i alphas = _mm256_set1_epi32(static_cast<int>(0xFF000000u));
  for (; count >= 8; count -= 8, target += 8, source += 8) {
    auto* to = reinterpret_cast<__m256i*>(target);
    const __m256i eight = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(source));
    if (_mm256_testc_si256(eight, alphas)) {
      _mm256_storeu_si256(to, eight);
    } else if (!_mm256_testz_si256(eight, alphas)) {
      _mm256_storeu_si256(to, over_eight(_mm256_loadu_si256(to), eight));
    }
  }
  over_pixels(target, source, count);
}

#endif

using OverRow = void (*)(std::uint32_t*, const std::uint32_t*, std::size_t);

OverRow fastest_over_row() {
#if defined(__x86_64__)
  if (__builtin_cpu_supports("avx2")) return over_row_by_eight;
#endif
  return over_pixels;
}

template <typename Row>
void each_row(Surface target, const Rect& clip, const PixelView& source, int x, int y, Row row) {
  const Rect part = intersection(clip, {x, y, source.width, source.height});
  for (int line = 0; line < part.height; ++line)
    row(target.at(part.x, part.y + line), source.at(part.x - x, part.y + line - y),
        static_cast<std::size_t>(part.width));
}

}  // namespace

Rect intersection(const Rect& a, const Rect& b) {
  const int left = std::max(a.x, b.x), top = std::max(a.y, b.y);
  const int right = std::min(a.x + a.width, b.x + b.width);
  const int bottom = std::min(a.y + a.height, b.y + b.height);
  if (right <= left || bottom <= top) return {};
  return {left, top, right - left, bottom - top};
}

Rect around(const Rect& a, const Rect& b) {
  if (is_empty(a)) return b;
  if (is_empty(b)) return a;
  const int left = std::min(a.x, b.x), top = std::min(a.y, b.y);
  const int right = std::max(a.x + a.width, b.x + b.width);
  const int bottom = std::max(a.y + a.height, b.y + b.height);
  return {left, top, right - left, bottom - top};
}

void over_row(std::uint32_t* target, const std::uint32_t* source, std::size_t count) {
  static const OverRow fastest = fastest_over_row();
  fastest(target, source, count);
}

void mask_row(std::uint32_t* target, const std::uint32_t* mask, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) target[i] = faded(target[i], mask[i] >> 24);
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
