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

/// The lit copy of a lever says that it shines as that of a lamp does, and that of a figure.
TEST(Night, LeversAreAsDarkAsTheirPlate) {
  MadeBitmaps bitmaps;
  bitmaps.add(1, 30, 10, grey);
  for (const u32 picture : {10u, 11u, 12u}) bitmaps.add(picture, 4, 4, 0xFF0000A0);
  MadeGauge gauge{1};
  MouseArea areas[4]{};
  areas[0].kind = MOUSE_GROUP;
  areas[1].kind = MOUSE_CLICK_AREA;
  areas[1].width = 20, areas[1].height = 9;
  areas[2].kind = MOUSE_GROUP_END;
  gauge.header.mouse_areas = areas;
  const auto add_set = [&](u32 flags) {
    gauge.icon(10, {2, 2}, 1).image_flags = flags;
    gauge.icon(11, {12, 2}, 1).image_flags = 0x7;
    gauge.icon(12, {22, 2}, 1).image_flags = flags;
  };
  add_set(0x3);
  add_set(0x7);
  Scene scene(gauge, bitmaps);
  scene.painter->set_night(true);
  scene.draw();
  EXPECT_EQ(scene.at(3, 3), part_by_night(0xFF0000A0)) << "a lever";
  EXPECT_LT(part(scene.at(3, 3), 0), 0xA0u / 2);
  EXPECT_EQ(scene.at(13, 3), 0xFF0000A0) << "a lamp under the same hand";
  EXPECT_EQ(scene.at(23, 3), 0xFF0000A0) << "a figure";
  EXPECT_EQ(part_by_night(0xFFFF4A36) >> 16, 0xFFFFu) << "a lens that is lit";
}

}  // namespace
}  // namespace host
