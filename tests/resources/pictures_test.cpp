/// What pictures must show, whatever their style: positions that differ, lamps that light, guards that
/// hide, overlays that cover no more than their light reaches, densities that agree.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>

#include "resources/bitmap_table.h"
#include "resources/kit/dial.h"
#include "resources/kit/guard.h"
#include "resources/kit/lamp.h"
#include "resources/kit/metal.h"

namespace artwork {
namespace {

const std::vector<Bitmap>& table() {
  static const std::vector<Bitmap> all = bitmap_table();
  return all;
}

const Bitmap& bitmap(int id) {
  return *std::find_if(table().begin(), table().end(), [=](const Bitmap& b) { return b.id == id; });
}

bool same(const Canvas& a, const Canvas& b) {
  const Pixels left = a.pixels(), right = b.pixels();
  for (int y = 0; y < left.height; ++y) {
    if (std::memcmp(&left.at(0, y), &right.at(0, y), 4 * static_cast<std::size_t>(left.width)) != 0) {
      return false;
    }
  }
  return true;
}

double luminance(std::uint32_t pixel) {
  return 0.3 * (pixel >> 16 & 0xFF) + 0.6 * (pixel >> 8 & 0xFF) + 0.1 * (pixel & 0xFF);
}

/// Mean luminance in a box.
double mean_luminance(const Canvas& canvas, Box box) {
  const Pixels pixels = canvas.pixels();
  double sum = 0;
  int count = 0;
  for (int y = static_cast<int>(box.y); y < box.bottom(); ++y) {
    for (int x = static_cast<int>(box.x); x < box.right(); ++x) {
      sum += luminance(pixels.at(x, y));
      ++count;
    }
  }
  return sum / count;
}

TEST(Pictures, NeighbouringImagesOfARunDiffer) {
  for (std::size_t i = 1; i < table().size(); ++i) {
    const Bitmap &before = table()[i - 1], &after = table()[i];
    if (after.draw != before.draw || after.image != before.image + 1) continue;
    EXPECT_FALSE(same(drawn(before, 1), drawn(after, 1))) << after.id << ": " << after.shows;
  }
}

TEST(Pictures, DrawSomethingUnlessTheyRestOnThePlate) {
  // A switch that is off under its guard, and an overlay that is off, are empty.
  constexpr int empty[] = {360,  420,  450,  230,  290,  330,  480,  1080, 1120,
                           1150, 1290, 1330, 1350, 1380, 2020, 2150, 2170, 2220};
  for (const Bitmap& each : table()) {
    const Canvas picture = drawn(each, 1);
    const bool nothing = same(picture, Canvas(each.size, 1, 0));
    EXPECT_EQ(nothing, std::count(std::begin(empty), std::end(empty), each.id) == 1) << each.id;
  }
}

/// The three densities are one picture: an unscaled measure would move or swell something.
TEST(Pictures, DensitiesAgree) {
  for (const Bitmap& each : table()) {
    if (each.size.width > 300) continue;
    const Canvas coarse = drawn(each, 1), fine = drawn(each, 3);
    const Pixels one = coarse.pixels(), three = fine.pixels();
    double sum = 0;
    for (int y = 0; y < one.height; ++y) {
      for (int x = 0; x < one.width; ++x) {
        double mean = 0;
        for (int k = 0; k < 9; ++k) mean += luminance(three.at(3 * x + k % 3, 3 * y + k / 3)) / 9;
        sum += std::abs(mean - luminance(one.at(x, y)));
      }
    }
    EXPECT_LT(sum / (one.width * one.height), 14) << each.id << ": " << each.shows;
  }
}

struct LampCase {
  int dark, lit;
};

class Lamps : public ::testing::TestWithParam<LampCase> {};

TEST_P(Lamps, GlowWhenLitAndCanBeReadWhenDark) {
  const Canvas dark = drawn(bitmap(GetParam().dark), 1), lit = drawn(bitmap(GetParam().lit), 1);
  const Box lens = whole(dark.size()).grown(-6);
  EXPECT_GT(mean_luminance(lit, lens), 1.8 * mean_luminance(dark, lens));
  double brightest = 0;
  for (int y = 6; y < dark.size().height - 6; ++y) {
    for (int x = 6; x < dark.size().width - 6; ++x) {
      brightest = std::max(brightest, luminance(dark.pixels().at(x, y)));
    }
  }
  EXPECT_GT(brightest, 45) << "the dark lens shows its tint or its words";
  EXPECT_LT(brightest, 180) << "and cannot be taken for a lit one";
}

INSTANTIATE_TEST_SUITE_P(
    Overhead, Lamps,
    ::testing::Values(LampCase{40, 41}, LampCase{50, 51}, LampCase{60, 61}, LampCase{80, 81},
                      LampCase{110, 111}, LampCase{150, 151}, LampCase{150, 152}, LampCase{2111, 2110},
                      LampCase{2120, 2121}, LampCase{2330, 2331}, LampCase{1020, 1021},
                      LampCase{1250, 1251}, LampCase{1260, 1261}, LampCase{1410, 1411},
                      LampCase{1440, 1441}, LampCase{3290, 3291}, LampCase{13370, 13371}));

TEST(Lamps, SpillTheirLightOverTheMetal) {
  const Canvas dark({66, 24}, 2, 1), lit({66, 24}, 2, 1);
  for (const Canvas* each : {&dark, &lit}) {
    fill(*each, rounded(whole(each->size()), 0), palette::plate);
    lamp(*each, whole(each->size()), {palette::lamp_green, "ON"}, each == &lit);
  }
  const Box rim{20, 3, 90, 2};  // above the frame, in device pixels
  EXPECT_GT(mean_luminance(lit, rim), mean_luminance(dark, rim) + 8);
}

/// The plate carries the lever that is off; the picture of the one that is on must hide all of it.
TEST(Guards, TheLeverThatIsOnHidesTheOneOnThePlate) {
  const Size size{27, 64};
  const Canvas over(size, 2, 1), alone(size, 2, 1);
  for (const Canvas* each : {&over, &alone}) {
    fill(*each, rounded(whole(size), 0), palette::plate);
    if (each == &over) guarded_switch_off(*each, whole(size));
    guarded_switch_on(*each, whole(size));
  }
  const Box well = guarded_well(whole(size)).grown(-1);
  const Pixels a = over.pixels(), b = alone.pixels();
  for (int y = static_cast<int>(well.y * 2); y < well.bottom() * 2; ++y) {
    for (int x = static_cast<int>(well.x * 2); x < well.right() * 2; ++x) {
      ASSERT_EQ(a.at(x, y), b.at(x, y)) << x << ',' << y;
    }
  }
}

TEST(Guards, CloseOverTheWellAndOpenAboveIt) {
  for (const Size size : {Size{27, 64}, Size{30, 66}, Size{26, 60}}) {
    const Canvas closed(size, 2, 1), open(size, 2, 1);
    guard_closed(closed, whole(size));
    guard_open(open, whole(size));
    const Point hub = guarded_hub(whole(size));
    const int x = static_cast<int>(2 * hub.x), y = static_cast<int>(2 * hub.y);
    EXPECT_EQ(closed.pixels().at(x, y) >> 24, 255u);
    EXPECT_EQ(open.pixels().at(x, y) >> 24, 0u);
  }
}

class Overlays : public ::testing::TestWithParam<int> {};

TEST_P(Overlays, LightTheFaceAndLeaveThePlateAlone) {
  const Canvas dim = drawn(bitmap(GetParam() + 1), 1), bright = drawn(bitmap(GetParam() + 2), 1);
  const Size size = dim.size();
  for (const Point corner : {Point{1, 1}, Point{size.width - 2.0, size.height - 2.0}}) {
    const int x = static_cast<int>(corner.x), y = static_cast<int>(corner.y);
    EXPECT_EQ(bright.pixels().at(x, y), 0u);
  }
  const double dim_light = mean_luminance(dim, whole(size));
  EXPECT_GT(dim_light, 1);
  EXPECT_GT(mean_luminance(bright, whole(size)), 1.2 * dim_light);
}

INSTANTIATE_TEST_SUITE_P(Instruments, Overlays,
                         ::testing::Values(360, 420, 450, 230, 290, 330, 480, 1080, 1120, 1150, 1290,
                                           1380, 2020));

TEST(Overlays, AreOpaqueWhereTheyChangeAFace) {
  const Canvas bright = drawn(bitmap(362), 1);
  const Pixels pixels = bright.pixels();
  for (int y = 0; y < pixels.height; ++y) {
    for (int x = 0; x < pixels.width; ++x) {
      const std::uint32_t opacity = pixels.at(x, y) >> 24;
      ASSERT_TRUE(opacity == 0 || opacity == 255) << x << ',' << y;
    }
  }
}

}  // namespace
}  // namespace artwork
