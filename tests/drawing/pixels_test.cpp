#include <gtest/gtest.h>

#include <random>

#include "host/drawing/affine.h"
#include "host/drawing/dirty_area.h"
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

Bitmap made(int width, int height, const MadeBitmaps::Pixel& pixel) {
  MadeBitmaps bitmaps;
  bitmaps.add(1, width, height, pixel);
  return *bitmaps.find(1, BitmapUse::image);
}

TEST(Resample, PlainColoursStayAndEdgesStaySharp) {
  for (const auto& [width, height] : {std::pair{5, 4}, {10, 8}, {15, 12}, {23, 7}, {1, 1}}) {
    const Bitmap result = resampled(made(10, 8, [](int, int) { return red; }), width, height);
    EXPECT_TRUE(result.opaque);
    for (const std::uint32_t pixel : result.pixels) EXPECT_EQ(pixel, red);
  }
}

TEST(Resample, MirroredPicturesStayMirrored) {
  const auto disc = [](int x, int y) { return std::hypot(x - 14.5, y - 14.5) < 11 ? red : 0u; };
  for (const int side : {10, 17, 20, 29, 45}) {
    const Bitmap result = resampled(made(30, 30, disc), side, side);
    for (int y = 0; y < side; ++y)
      for (int x = 0; x < side; ++x) {
        const auto opacity = [&](int column, int row) {
          return channel(result.pixels[row * side + column], 3);
        };
        EXPECT_NEAR(opacity(x, y), opacity(side - 1 - x, y), 1);
        EXPECT_NEAR(opacity(x, y), opacity(y, x), 1);
        EXPECT_LE(channel(result.pixels[y * side + x], 2), opacity(x, y));  // still premultiplied
      }
  }
}

TEST(Affine, TurnsAboutAndBlendsExactlyAtRest) {
  const Bitmap dot = made(5, 3, [](int x, int y) { return x == 3 && y == 1 ? red : 0u; });
  const PixelView view{dot.pixels.data(), dot.width, dot.height, dot.width};
  struct Case {
    double degrees;
    int x, y;
  };
  // The dot stands two pixels to the right of the pivot pixel (1, 1).
  for (const Case& c : {Case{0, 12, 10}, Case{90, 10, 12}, Case{180, 8, 10}, Case{-90, 10, 8}}) {
    std::vector<std::uint32_t> canvas(400, grey);
    const Affine map = shifted_by(10.5, 10.5) * turned_by(c.degrees) * shifted_by(-1.5, -1.5);
    blend_turned({canvas.data(), 20, 0, 0}, {0, 0, 20, 20}, view, map);
    EXPECT_EQ(canvas[c.y * 20 + c.x], red) << c.degrees;
    EXPECT_LE(400 - std::ranges::count(canvas, grey), c.degrees == 0 ? 1 : 9) << c.degrees;
  }
}

// Any map must stay inside its picture and its clip; the sanitizers watch.
TEST(Affine, StaysInsideForAnyMap) {
  std::mt19937 random(2);
  std::uniform_real_distribution<double> number(-40, 40);
  Bitmap picture = made(9, 7, [](int, int) { return green; });
  const PixelView view{picture.pixels.data(), picture.width, picture.height, picture.width};
  for (int i = 0; i < 3000; ++i) {
    const double size = i % 3 == 0 ? 0.01 : i % 3 == 1 ? 1 : 0.1;
    const Affine map{number(random) * size, number(random) * size, number(random),
                     number(random) * size, number(random) * size, number(random) * (i % 7 ? 1 : 1e9)};
    std::vector<std::uint32_t> canvas(900, grey);
    blend_turned({canvas.data(), 30, 0, 0}, {5, 5, 20, 20}, view, map);
    for (int x = 0; x < 30; ++x) ASSERT_EQ(canvas[4 * 30 + x], grey);
    for (int y = 0; y < 30; ++y) ASSERT_EQ(canvas[y * 30 + 25], grey);
  }
}

TEST(DirtyArea, JoinsWhatIsCheaperTogether) {
  DirtyArea area;
  area.reset({0, 0, 100, 100});
  area.add({-10, -10, 20, 20});
  area.add({10, 0, 10, 10});
  EXPECT_EQ(area.parts(), (std::vector<Rect>{{0, 0, 20, 10}}));
  area.add({80, 80, 50, 5});
  area.add({200, 0, 5, 5});
  EXPECT_EQ(area.parts().size(), 2u);
  for (int i = 0; i < 50; ++i) area.add({i * 2, 99 - i * 2, 1, 1});
  EXPECT_LE(area.parts().size(), 8u);
}

}  // namespace
}  // namespace host
