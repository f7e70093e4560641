#include "host/drawing/blend_turned.h"

#include <gtest/gtest.h>

#include <random>

#include "host/drawing/turned_rows.h"

namespace host {
namespace {

constexpr std::uint32_t grey = 0xFF808080;
constexpr int side = 60;
constexpr Rect clip{5, 5, 50, 50};

// Clear, solid and half-clear places of some pixels each.
struct MadePicture {
  explicit MadePicture(std::mt19937& random) {
    for (int i = 0; i < 41 * 27; ++i) {
      const std::uint32_t opacity = i / 6 % 3 == 0 ? 0 : i / 6 % 3 == 1 ? 255 : random() % 256;
      pixels.push_back(faded(random() | 0xFF000000u, opacity));
    }
  }
  PixelView view() const { return {pixels.data(), 41, 27, 41}; }
  std::vector<std::uint32_t> pixels;
};

struct MadeCanvas {
  std::vector<std::uint32_t> pixels = std::vector<std::uint32_t>(side * side, grey);
  Surface surface() { return {pixels.data(), side, 0, 0}; }
};

// One channel of a picture at any place, by the definition of the mean of four neighbours.
double level(const PixelView& picture, double x, double y, int channel) {
  const double left = std::floor(x), top = std::floor(y);
  const auto at = [&](int dx, int dy) {
    const double part = (dx ? x - left : left + 1 - x) * (dy ? y - top : top + 1 - y);
    return part * (*picture.at(int(left) + dx, int(top) + dy) >> channel & 255);
  };
  return at(0, 0) + at(1, 0) + at(0, 1) + at(1, 1);
}

TEST(BlendTurned, MixesFourNeighbours) {
  std::mt19937 random(4);
  MadePicture picture(random);
  for (std::uint32_t& pixel : picture.pixels) pixel |= 0xFF000000u;
  const Affine map = shifted_by(20.3, 12.6) * turned_by(33);
  MadeCanvas canvas;
  blend_turned(canvas.surface(), clip, picture.view(), map);
  const Affine back = shifted_by(-0.5, -0.5) * *inverse(map) * shifted_by(0.5, 0.5);
  int drawn = 0;
  for (int y = 5; y < 55; ++y) {
    for (int x = 5; x < 55; ++x) {
      const double u = back.xx * x + back.xy * y + back.dx, v = back.yx * x + back.yy * y + back.dy;
      if (u < 0.01 || v < 0.01 || u > 39.99 || v > 25.99) continue;
      ++drawn;
      for (const int channel : {0, 8, 16, 24})
        ASSERT_NEAR(canvas.pixels[y * side + x] >> channel & 255, level(picture.view(), u, v, channel),
                    5)
            << x << ", " << y;
    }
  }
  EXPECT_GT(drawn, 600);
}

// Any map must stay inside its picture, its clip and what is seen; the sanitizers watch. And every machine
// draws the same pixels.
TEST(BlendTurned, StaysInsideForAnyMapAndIsTheSameFourAtOnce) {
  std::mt19937 random(2);
  const MadePicture picture(random);
  std::uniform_real_distribution<double> number(-40, 40);
  std::vector<RowPart> seen;
  for (int y = 12; y < 48; ++y)
    for (const auto& [first, end] : {std::pair{3, 9}, {11, 30 + y % 7}, {44, 58}})
      seen.push_back({y, first, end});
  std::vector<bool> inside(side * side);
  for (const RowPart& part : seen)
    for (int x = std::max(5, part.first); x < std::min(55, part.end); ++x)
      inside[part.y * side + x] = true;
  for (int i = 0; i < 1000; ++i) {
    const double size = i % 3 == 0 ? 0.01 : i % 3 == 1 ? 1 : 0.03;
    Affine map{number(random) * size, number(random) * size, 30 + number(random),
               number(random) * size, number(random) * size, 30 + number(random) * (i % 7 ? 1 : 1e9)};
    if (i % 50 == 0) map = shifted_by(std::round(number(random)), i);
    MadeCanvas drawn, plain, four;
    blend_turned(drawn.surface(), clip, picture.view(), map, &seen);
    for (std::size_t at = 0; at < inside.size(); ++at)
      ASSERT_TRUE(inside[at] || drawn.pixels[at] == grey) << i;
    const auto back = inverse(map);
    if (!back || !__builtin_cpu_supports("avx2")) continue;
    const Rect part = intersection(clip, bounds_of(map, 41, 27));
    blend_plainly({plain.surface(), part, picture.view(), *back, nullptr});
    blend_four_at_once({four.surface(), part, picture.view(), *back, nullptr});
    ASSERT_EQ(plain.pixels, four.pixels) << i;
  }
}

}  // namespace
}  // namespace host
