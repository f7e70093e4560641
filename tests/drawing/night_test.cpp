/// The cockpit by night: paint recedes, legends stay, and what shines by itself is as by day.
#include "host/drawing/night.h"

#include <gtest/gtest.h>

#include "tests/drawing/fixture.h"

namespace host {
namespace {

unsigned part(std::uint32_t colour, int shift) { return colour >> shift & 255; }

TEST(Night, PaintRecedesAndLegendsStay) {
  const std::uint32_t plate = by_night(0xFF56606A), legend = by_night(0xFFF4F2E8);
  EXPECT_LT(part(plate, 16), 0x56u / 2);
  EXPECT_GT(part(plate, 16), 0x56u / 4) << "the plate can still be made out";
  EXPECT_GT(part(legend, 16), 0xE8u);
  EXPECT_LT(part(legend, 0), part(legend, 16)) << "the lamps behind the legends are warm";
}

TEST(Night, OnlyWhatDoesNotShineByItselfDims) {
  MadeBitmaps bitmaps;
  bitmaps.add(1, 20, 10, grey);
  bitmaps.add(10, 4, 4, red);
  MadeGauge gauge{1};
  gauge.icon(10, {2, 2}, 1).image_flags = 0x3;
  gauge.icon(10, {12, 2}, 1).image_flags = 0x7;
  Scene scene(gauge, bitmaps);
  scene.draw();
  EXPECT_EQ(scene.at(0, 0), grey);
  scene.painter->set_night(true);
  EXPECT_TRUE(scene.draw());
  EXPECT_EQ(scene.at(0, 0), by_night(grey));
  EXPECT_EQ(scene.at(3, 3), by_night(red));
  EXPECT_EQ(scene.at(13, 3), red) << "a lamp";
  EXPECT_FALSE(scene.draw());
  scene.painter->set_night(false);
  EXPECT_TRUE(scene.draw());
  EXPECT_EQ(scene.at(0, 0), grey);
}

/// A lever's lit copy says that it shines as a lamp's does.
TEST(Night, LeversAreAsDarkAsTheirPlate) {
  MadeBitmaps bitmaps;
  bitmaps.add(1, 20, 10, grey);
  bitmaps.add(10, 4, 4, grey);
  bitmaps.add(11, 4, 4, red);
  MadeGauge gauge{1};
  gauge.icon(10, {2, 2}, 1).image_flags = 0x3;
  gauge.icon(11, {12, 2}, 1).image_flags = 0x7;
  gauge.icon(10, {2, 2}, 1).image_flags = 0x7;
  gauge.icon(11, {12, 2}, 1).image_flags = 0x7;
  Scene scene(gauge, bitmaps);
  scene.painter->set_night(true);
  scene.draw();
  EXPECT_EQ(scene.at(3, 3), by_night(grey));
  EXPECT_EQ(scene.at(13, 3), red);
}

}  // namespace
}  // namespace host
