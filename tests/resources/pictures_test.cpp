/// What pictures must show, whatever their style: positions that differ, lamps that light, guards that
/// hide, overlays that cover no more than their light reaches, densities that agree.
#include <gtest/gtest.h>

#include <cmath>

#include "resources/kit/guard.h"
#include "resources/kit/lamp.h"
#include "tests/resources/picture.h"

namespace artwork_test {
namespace {

TEST(Pictures, NeighbouringImagesOfARunDiffer) {
  for (const Bitmap& after : bitmap_table()) {
    if (after.image == 0) continue;
    EXPECT_FALSE(same(drawn(*find_bitmap(after.id - 1), 1), drawn(after, 1))) << subject(after);
  }
}

TEST(Pictures, DrawSomethingUnlessTheyRestOnThePlate) {
  for (const Bitmap& each : bitmap_table()) {
    const bool guarded = std::holds_alternative<GuardedLever>(each.art->picture) ||
                         std::holds_alternative<GuardedKnob>(each.art->picture);
    const bool nothing = same(drawn(each, 1), Canvas(each.size, 1, 0));
    const bool unlit = each.overlay && !has_openings(each);
    EXPECT_EQ(nothing, each.image == 0 && (guarded || unlit)) << subject(each);
  }
}

/// The three densities are one picture: an unscaled measure would move or swell something.
TEST(Pictures, DensitiesAgree) {
  for (const Bitmap& each : bitmap_table()) {
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
    // Where figures fill a small picture or a drum their stems keep to its own pixels.
    const bool drum = std::holds_alternative<Drum>(each.art->picture);
    const double most = drum || one.width * one.height < 1500 ? 28 : 16;
    EXPECT_LT(sum / (one.width * one.height), most) << subject(each);
  }
}

/// How a lens looks: its mean light, its brightest spot, and where its colour stands between red and
/// green.
struct Look {
  double mean = 0, brightest = 0, hue = 0;
};

Look look_of(const Bitmap& bitmap) {
  const Canvas canvas = drawn(bitmap, 1);
  const Box lens = whole(bitmap.size).grown(-6);
  Look look{.mean = mean_luminance(canvas, lens)};
  double red = 1, green = 1;
  for_each_pixel(canvas, lens, [&](std::uint32_t pixel, int, int) {
    look.brightest = std::max(look.brightest, luminance(pixel));
    red += pixel >> 16 & 0xFF, green += pixel >> 8 & 0xFF;
  });
  look.hue = green / red;
  return look;
}

struct LampCase {
  const char *gauge, *part;
  int dark = 0, lit = 1;
};

class Lamps : public ::testing::TestWithParam<LampCase> {};

TEST_P(Lamps, GlowWhenLitAndCanBeReadWhenDark) {
  const LampCase& c = GetParam();
  const Look dark = look_of(bitmap(c.gauge, c.part, c.dark)),
             lit = look_of(bitmap(c.gauge, c.part, c.lit));
  EXPECT_GT(lit.mean, 1.8 * dark.mean);
  EXPECT_GT(dark.brightest, 45) << "the dark lens shows its tint or its words";
  EXPECT_LT(dark.brightest, 180) << "and cannot be taken for a lit one";
}

INSTANTIATE_TEST_SUITE_P(
    Overhead, Lamps,
    ::testing::Values(
        LampCase{"Masterbat", "battery_lamp"}, LampCase{"Masterbat", "apu_generator_lamp"},
        LampCase{"Acpwr", "apu_generator_lamp"}, LampCase{"Bleedair", "duct_pressure_lamp", 0, 1},
        LampCase{"Bleedair", "duct_pressure_lamp", 0, 2}, LampCase{"Bleedair", "valve_1_light", 1, 0},
        LampCase{"Ctr", "generator_1_lamp"}, LampCase{"Windshield", "left_windshield_light"},
        LampCase{"Emerlight", "not_armed_lamp"}, LampCase{"Mancon", "manual_control_button"},
        LampCase{"Cafire", "left_engine_fire_light"}, LampCase{"Fofire", "apu_fire_light"},
        LampCase{"Cutoff", "right_feed_light"}, LampCase{"Hydp", "system_1_electric_pump_lamp"},
        LampCase{"Apulg", "apu_running_lamp"}));

TEST(Lamps, GreenAndAmberDifferInHue) {
  const auto hue = [](const char* gauge, const char* part, int image) {
    return look_of(bitmap(gauge, part, image)).hue;
  };
  EXPECT_GT(hue("Masterbat", "battery_lamp", 1), 1.3 * hue("Masterbat", "apu_generator_lamp", 1));
  EXPECT_GT(hue("Bleedair", "duct_pressure_lamp", 1), 1.3 * hue("Bleedair", "duct_pressure_lamp", 2));
  EXPECT_GT(hue("Emerlight", "armed_lamp", 0), 1.2 * hue("Emerlight", "not_armed_lamp", 0)) << "dark";
}

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

/// What the lamps behind the bezels do not reach stays clear, and so shows the plate below.
TEST(Overlays, LightTheFaceAndLeaveThePlateAlone) {
  for (const Bitmap& each : bitmap_table()) {
    if (!each.overlay || each.image != 2) continue;
    const Canvas dim = drawn(*find_bitmap(each.id - 1), 1), bright = drawn(each, 1);
    const Box face = whole(each.size);
    EXPECT_EQ(bright.pixels().at(1, 1), 0u) << subject(each);
    EXPECT_GT(mean_luminance(dim, face), 1) << subject(each);
    EXPECT_GT(mean_luminance(bright, face), 1.2 * mean_luminance(dim, face)) << subject(each);
    int half_clear = 0;
    for_each_pixel(bright, face, [&](std::uint32_t pixel, int, int) {
      half_clear += pixel >> 24 != 0 && pixel >> 24 != 255;
    });
    EXPECT_TRUE(half_clear == 0 || has_openings(each)) << subject(each);
  }
}

}  // namespace
}  // namespace artwork_test
