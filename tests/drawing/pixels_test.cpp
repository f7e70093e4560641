#include <gtest/gtest.h>

#include <random>

#include "host/drawing/pixels.h"
#include "host/drawing/resample.h"
#include "tests/drawing/fixture.h"

namespace host {
namespace {

int channel(std::uint32_t pixel, int index) { return static_cast<int>(pixel >> 8 * index & 255); }

/// By the definition, in floating point.
int over_by_hand(std::uint32_t target, std::uint32_t source, int index) {
  const double rest = 1 - channel(source, 3) / 255.0;
  return static_cast<int>(std::lround(channel(source, index) + channel(target, index) * rest));
}

TEST(Pixels, BlendingKeepsToTheDefinition) {
  std::mt19937 random(1);
  std::vector<std::uint32_t> target, source;
  for (int i = 0; i < 4099; ++i) {
    const std::uint32_t opacity = i % 3 == 0 ? 0 : i % 3 == 1 ? 255 : random() % 256;
    source.push_back(faded(random() | 0xFF000000u, opacity));
    target.push_back(random() | 0xFF000000u);
  }
  std::vector<std::uint32_t> result = target;
  over_row(result.data(), source.data(), result.size());
  for (std::size_t i = 0; i < result.size(); ++i) {
    EXPECT_EQ(result[i], over(target[i], source[i]));
    for (int index = 0; index < 4; ++index)
      EXPECT_EQ(channel(result[i], index), over_by_hand(target[i], source[i], index));
  }
}

// The filter overshoots at edges; a colour stronger than its opacity would wrap round when it is laid
// over another.
TEST(Resample, NoColourIsStrongerThanItsOpacity) {
  MadeBitmaps bitmaps;
  bitmaps.add(1, 30, 30, [](int x, int y) { return (x / 4 + y / 5) % 2 ? red : 0u; });
  for (const int side : {1, 29, 45})
    for (const std::uint32_t pixel : resampled(*bitmaps.find(1, BitmapUse::image), side, side).pixels)
      for (int index = 0; index < 3; ++index)
        EXPECT_LE(channel(pixel, index), channel(pixel, 3)) << side;
}

}  // namespace
}  // namespace host
