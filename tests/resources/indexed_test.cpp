/// Reduction to 256 colours: exact where it can be, close elsewhere, and clear only where it must.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "resources/kit/metal.h"
#include "resources/kit/window.h"
#include "resources/tool/indexed.h"
#include "resources/tool/library.h"

namespace artwork {
namespace {

int part(std::uint32_t pixel, int shift) { return static_cast<int>((pixel >> shift) & 0xFF); }

/// The greatest and the mean difference of any colour part between a picture and its reduction.
struct Loss {
  int worst = 0;
  double mean = 0;
};

Loss loss(const Canvas& canvas, Ground ground) {
  Indexed reduced = indexed(canvas, ground);
  if (ground != Ground::plate) make_opaque(reduced);
  const Canvas back = shown(reduced, canvas.density());
  const Pixels before = canvas.pixels(), after = back.pixels();
  Loss found;
  for (int y = 0; y < before.height; ++y) {
    for (int x = 0; x < before.width; ++x) {
      for (const int shift : {0, 8, 16, 24}) {
        const int off = std::abs(part(before.at(x, y), shift) - part(after.at(x, y), shift));
        found.worst = std::max(found.worst, off);
        found.mean += off;
      }
    }
  }
  found.mean /= 4.0 * before.width * before.height;
  return found;
}

TEST(Indexed, KeepsFewColoursExactly) {
  const Canvas canvas({16, 16}, 1, 1);
  fill(canvas, rounded({0, 0, 16, 8}, 0), rgb(0x336699));
  fill(canvas, rounded({0, 8, 8, 8}, 0), rgb(0xFF0000, 0.5));
  EXPECT_EQ(loss(canvas, Ground::plate).worst, 0);
}

TEST(Indexed, KeepsAPlateAndAGradientFreeOfBands) {
  const Canvas plate({120, 90}, 2, 5);
  painted_plate(plate);
  EXPECT_LT(loss(plate, Ground::none).mean, 1.2);
  const Canvas ramp({200, 200}, 1, 1);
  set_linear(ramp, {0, 0}, {200, 200}, {{0, rgb(0x64717C)}, {1, rgb(0x2A2E32)}});
  cairo_paint(ramp.cr());
  EXPECT_LE(loss(ramp, Ground::none).worst, 2);
}

TEST(Indexed, EmptyPictureIsClearEverywhere) {
  const Indexed picture = indexed(Canvas({4, 4}, 1, 1), Ground::plate);
  ASSERT_EQ(picture.palette.size(), 1u);
  EXPECT_EQ(picture.palette[0], (PaletteEntry{0, 0, 0, 0}));
  EXPECT_TRUE(std::all_of(picture.pixels.begin(), picture.pixels.end(),
                          [](std::uint8_t index) { return index == 0; }));
}

TEST(Indexed, DrawnBlackIsNotTheClearColour) {
  const Canvas canvas({4, 4}, 1, 1);
  fill(canvas, rounded({0, 0, 2, 4}, 0), palette::black);
  const Indexed picture = indexed(canvas, Ground::plate);
  const PaletteEntry drawn = picture.palette[picture.pixels[0]];
  EXPECT_EQ(drawn.opacity, 255);
  EXPECT_NE(drawn.red + drawn.green + drawn.blue, 0);
  EXPECT_EQ(picture.pixels[3], 0);
}

/// Sprites show through the openings of their plate, which no half-clear pixel edges.
TEST(Indexed, OpeningsArePureBlackAndNothingElseIs) {
  const Canvas plate({60, 60}, 2, 3);
  painted_plate(plate);
  fill(plate, rounded({0, 0, 20, 20}, 0), palette::black);
  opening(plate, {30, 30}, {20, 20}, 10);
  const Indexed picture = indexed(plate, Ground::sprites);
  const auto black = [&](int x, int y) {
    const PaletteEntry c =
        picture.palette[picture.pixels[static_cast<std::size_t>(2 * y * 120 + 2 * x)]];
    EXPECT_EQ(c.opacity, 0) << "a background's palette has no opacity";
    return c.blue == 0 && c.green == 0 && c.red == 0;
  };
  EXPECT_TRUE(black(30, 30));
  EXPECT_FALSE(black(10, 10)) << "what is painted black is drawn";
  EXPECT_FALSE(black(50, 50));
}

TEST(Drawing, IsTheSameEveryTime) {
  const auto draw = [] {
    const Canvas plate({60, 40}, 2, 9);
    painted_plate(plate);
    return indexed(plate, Ground::none).pixels;
  };
  EXPECT_EQ(draw(), draw());
}

}  // namespace
}  // namespace artwork
