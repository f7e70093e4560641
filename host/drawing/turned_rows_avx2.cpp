#if defined(__x86_64__)
#include <immintrin.h>

#include <cstring>

#include "host/drawing/turned_rows.h"

#define WIDE        __attribute__((target("avx2")))
#define INLINE_WIDE WIDE inline __attribute__((always_inline))

namespace host {
namespace {

constexpr int at_once = 4;

// Four neighbouring places on a way.
struct FourPlaces {
  __m128i u, v;                      // one a lane
  __m256i u_fractions, v_fractions;  // their lower halves, one for each channel of each pixel
};

INLINE_WIDE __m256i fractions(__m128i places) {
  const __m256i two_and_two = _mm256_permute4x64_epi64(_mm256_castsi128_si256(places), 0x50);
  const __m256i low_halves = _mm256_setr_epi8(0, 1, 0, 1, 0, 1, 0, 1, 4, 5, 4, 5, 4, 5, 4, 5,  //
                                              0, 1, 0, 1, 0, 1, 0, 1, 4, 5, 4, 5, 4, 5, 4, 5);
  return _mm256_shuffle_epi8(two_and_two, low_halves);
}

INLINE_WIDE __m128i four_steps(std::int32_t step) {
  return _mm_mullo_epi32(_mm_set1_epi32(step), _mm_setr_epi32(0, 1, 2, 3));
}

// The four that begin at a place, where `steps` are those that begin at 0.
INLINE_WIDE FourPlaces places_from(std::uint32_t u, std::uint32_t v, const FourPlaces& steps) {
  return {_mm_add_epi32(_mm_set1_epi32(static_cast<int>(u)), steps.u),
          _mm_add_epi32(_mm_set1_epi32(static_cast<int>(v)), steps.v),
          _mm256_add_epi16(_mm256_set1_epi16(static_cast<short>(u)), steps.u_fractions),
          _mm256_add_epi16(_mm256_set1_epi16(static_cast<short>(v)), steps.v_fractions)};
}

// Four pixels and their right neighbours, channel beside channel.
INLINE_WIDE __m256i pairs_at(const std::uint32_t* a, const std::uint32_t* b, const std::uint32_t* c,
                             const std::uint32_t* d) {
  const auto two = [](const std::uint32_t* first, const std::uint32_t* second) WIDE {
    return _mm_castps_si128(
        _mm_loadh_pi(_mm_castsi128_ps(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(first))),
                     reinterpret_cast<const __m64*>(second)));
  };
  const __m256i pairs = _mm256_inserti128_si256(_mm256_castsi128_si256(two(a, b)), two(c, d), 1);
  const __m256i by_channel = _mm256_setr_epi8(0, 4, 1, 5, 2, 6, 3, 7, 8, 12, 9, 13, 10, 14, 11, 15,  //
                                              0, 4, 1, 5, 2, 6, 3, 7, 8, 12, 9, 13, 10, 14, 11, 15);
  return _mm256_shuffle_epi8(pairs, by_channel);
}

INLINE_WIDE __m128i sampled(const std::uint32_t* pixels, std::ptrdiff_t stride,
                            const FourPlaces& places) {
  const __m128i whole = _mm_blend_epi16(_mm_srli_epi32(places.u, place_bits), places.v, 0xAA);
  const __m128i index = _mm_madd_epi16(whole, _mm_set1_epi32(static_cast<int>(stride << 16 | 1)));
  const auto first = static_cast<std::uint64_t>(_mm_cvtsi128_si64(index));
  const auto second = static_cast<std::uint64_t>(_mm_extract_epi64(index, 1));
  const std::uint32_t *const a = pixels + (first & 0xFFFFFFFF), *const b = pixels + (first >> 32);
  const std::uint32_t *const c = pixels + (second & 0xFFFFFFFF), *const d = pixels + (second >> 32);

  // Parts of 64 that the left and the right neighbour have.
  const __m256i right = _mm256_srli_epi16(places.u_fractions, 10);
  const __m256i both =
      _mm256_add_epi16(_mm256_mullo_epi16(right, _mm256_set1_epi16(255)), _mm256_set1_epi16(64));
  const __m256i above = _mm256_maddubs_epi16(pairs_at(a, b, c, d), both);
  const __m256i below =
      _mm256_maddubs_epi16(pairs_at(a + stride, b + stride, c + stride, d + stride), both);
  const __m256i down = _mm256_srli_epi16(places.v_fractions, 1);
  const __m256i mixed =
      _mm256_add_epi16(above, _mm256_mulhrs_epi16(_mm256_sub_epi16(below, above), down));
  const __m256i levels = _mm256_srli_epi16(_mm256_add_epi16(mixed, _mm256_set1_epi16(32)), 6);
  return _mm256_castsi256_si128(_mm256_permute4x64_epi64(_mm256_packus_epi16(levels, levels), 0x08));
}

INLINE_WIDE __m128i faded(__m128i pixels, __m128i opacity) {
  const __m128i every_other = _mm_set1_epi32(0xFF00FF), half = _mm_set1_epi16(128);
  const __m128i parts = _mm_or_si128(opacity, _mm_slli_epi32(opacity, 16));
  __m128i even = _mm_add_epi16(_mm_mullo_epi16(_mm_and_si128(pixels, every_other), parts), half);
  __m128i odd = _mm_add_epi16(
      _mm_mullo_epi16(_mm_and_si128(_mm_srli_epi32(pixels, 8), every_other), parts), half);
  even = _mm_srli_epi16(_mm_add_epi16(even, _mm_srli_epi16(even, 8)), 8);
  odd = _mm_add_epi16(odd, _mm_srli_epi16(odd, 8));
  return _mm_or_si128(even, _mm_andnot_si128(every_other, odd));
}

INLINE_WIDE void lay(std::uint32_t* target, __m128i source) {
  const __m128i opaque = _mm_set1_epi32(static_cast<int>(0xFF000000));
  if (_mm_testz_si128(source, opaque)) return;
  const auto at = reinterpret_cast<__m128i*>(target);
  if (!_mm_testc_si128(source, opaque)) {
    const __m128i opacity = _mm_sub_epi32(_mm_set1_epi32(255), _mm_srli_epi32(source, 24));
    source = _mm_add_epi32(source, faded(_mm_loadu_si128(at), opacity));
  }
  _mm_storeu_si128(at, source);
}

// Draws rows whose ways go by the same steps.
struct Rows {
  PixelView picture;
  std::int32_t du, dv;
  FourPlaces steps;
};

INLINE_WIDE Rows rows_by(const PixelView& picture, std::int32_t du, std::int32_t dv) {
  const __m128i u = four_steps(du), v = four_steps(dv);
  return {picture, du, dv, {u, v, fractions(u), fractions(v)}};
}

// Fewer than four: all four at the same place, as the next may lie outside.
INLINE_WIDE void blend_few(const Rows& rows, std::uint32_t* target, int count, PictureWay way) {
  const __m128i no_step = _mm_setzero_si128();
  const FourPlaces no_steps{no_step, no_step, _mm256_setzero_si256(), _mm256_setzero_si256()};
  for (int i = 0; i < count; ++i, way.u += way.du, way.v += way.dv) {
    const __m128i pixel =
        sampled(rows.picture.pixels, rows.picture.stride, places_from(way.u, way.v, no_steps));
    target[i] = over(target[i], static_cast<std::uint32_t>(_mm_cvtsi128_si32(pixel)));
  }
}

INLINE_WIDE void blend_row(const Rows& rows, std::uint32_t* target, int count, const PictureWay& way) {
  if (count < at_once) return blend_few(rows, target, count, way);
  const std::uint32_t* const pixels = rows.picture.pixels;
  const std::ptrdiff_t stride = rows.picture.stride;
  // Those that make no four come first, in the last four, whose others are left clear.
  if (const int rest = count % at_once; rest != 0) {
    const int at = count - at_once;
    const __m128i last =
        sampled(pixels, stride, places_from(way.u + rows.du * at, way.v + rows.dv * at, rows.steps));
    const __m128i wanted =
        _mm_cmpgt_epi32(_mm_setr_epi32(0, 1, 2, 3), _mm_set1_epi32(at_once - 1 - rest));
    lay(target + at, _mm_and_si128(last, wanted));
    count -= rest;
  }
  const std::int32_t du = rows.du * at_once, dv = rows.dv * at_once;
  FourPlaces places = places_from(way.u, way.v, rows.steps);
  for (int i = 0; i < count; i += at_once) {
    lay(target + i, sampled(pixels, stride, places));
    places = {_mm_add_epi32(places.u, _mm_set1_epi32(du)), _mm_add_epi32(places.v, _mm_set1_epi32(dv)),
              _mm256_add_epi16(places.u_fractions, _mm256_set1_epi16(static_cast<short>(du))),
              _mm256_add_epi16(places.v_fractions, _mm256_set1_epi16(static_cast<short>(dv)))};
  }
}

}  // namespace

WIDE void blend_four_at_once(const TurnedRows& turned) {
  const Rows rows = rows_by(turned.picture(), turned.du(), turned.dv());
  turned.each([&](std::uint32_t* target, int count, const PictureWay& way)
                  WIDE { blend_row(rows, target, count, way); });
}

}  // namespace host
#endif
