/// The table of bitmaps against the module's records: every picture that a gauge shows is there,
/// and everything that a gauge places lies on its plate.
#include <gtest/gtest.h>

#include <map>

#include "resources/names/gauge_names.h"
#include "resources/rows/board.h"
#include "tests/resources/picture.h"

namespace artwork_test {
namespace {

namespace names = tarnvale::names;

std::string named(const GaugeHeader& of, const names::NamedPart& part) {
  return std::string(of.name) + ' ' + part.name;
}

/// Calls `check` for the parts of all gauges that show a bitmap.
template <class Check>
void for_each_part(Check check) {
  for (const GaugeHeader* gauge : gauges()) {
    for (const names::NamedPart& part : names::parts(*gauge)) {
      if (part.element->kind != ELEMENT_STRING) check(*gauge, part);
    }
  }
}

/// What other panels' gauges may count on: the numbers, the names, the depths, and the range of sizes.
TEST(BitmapTable, HoldsAllOfTheModulesBitmaps) {
  const std::vector<Bitmap>& all = bitmap_table();
  std::map<int, int> of_depth;
  for (const Bitmap& each : all) ++of_depth[each.bits()];
  EXPECT_EQ(of_depth, (std::map<int, int>{{4, 1}, {8, 789}, {24, 18}}));
  ASSERT_EQ(all.size(), 808u);
  EXPECT_EQ(all[0].id, 10);
  EXPECT_EQ(all[804].id, 24260) << "the last of 805 with a number";
  constexpr std::string_view names[] = {"IDB_FOFLT_DISPLAY_BRT", "IDB_PB_PBRAKE_OFF",
                                        "IDB_PB_PBRAKE_ON"};
  for (std::size_t i = 0; i < 3; ++i) EXPECT_EQ(subject(all[805 + i]), names[i]);
  const auto area = [](const Bitmap& each) { return each.size.width * each.size.height; };
  const auto [least, most] = std::ranges::minmax(all, {}, area);
  EXPECT_EQ(least.size, (Size{2, 2}));
  EXPECT_EQ(most.size, (Size{1280, 497})) << subject(most);
}

TEST(BitmapTable, EveryGaugeHasAPlateOfItsWidth) {
  for (const GaugeHeader* each : gauges()) {
    const Bitmap* plate = find_bitmap(each->element_list[0]->resource_id);
    ASSERT_NE(plate, nullptr) << each->name;
    EXPECT_TRUE(plate->background) << each->name;
    // The captain's selector strip shares the wide plate of the pedestal's button.
    if (std::string(each->name) == "Pselect") continue;
    EXPECT_EQ(plate->size.width, static_cast<int>(each->width_mm)) << each->name;
  }
}

TEST(BitmapTable, EveryImageOfAPartIsThereAndAsLargeAsTheFirst) {
  for_each_part([](const GaugeHeader& gauge, const names::NamedPart& part) {
    const Element& e = *part.element;
    const Bitmap* first = find_bitmap(e.resource_id);
    ASSERT_NE(first, nullptr) << named(gauge, part);
    for (u32 image = 1; e.kind == ELEMENT_ICON && image < e.icon.image_count; ++image) {
      const Bitmap* next = find_bitmap(e.resource_id + static_cast<int>(image));
      ASSERT_NE(next, nullptr) << named(gauge, part) << " image " << image;
      EXPECT_EQ(next->size, first->size) << named(gauge, part) << " image " << image;
    }
  });
}

TEST(BitmapTable, APlateIsOpenWhereItsGaugeHasSprites) {
  for (const GaugeHeader* gauge : gauges()) {
    bool sprites = false, open = false;
    for (const Element* part : parts(*gauge)) sprites = sprites || part->kind == ELEMENT_SPRITE;
    const Canvas plate = drawn(plate_of(*gauge), 1);
    for_each_pixel(plate, device_box(plate),
                   [&](std::uint32_t pixel, int, int) { open = open || pixel == 0; });
    EXPECT_EQ(open, sprites) << gauge->name;
    EXPECT_EQ(has_openings(plate_of(*gauge)), sprites) << gauge->name;
  }
}

/// Needles and cards may leave their plate; what clicks or switches may not.
TEST(BitmapTable, IconsAndClickBoxesLieOnThePlate) {
  for_each_part([](const GaugeHeader& gauge, const names::NamedPart& part) {
    const Size plate = plate_of(gauge).size, size = find_bitmap(part.element->resource_id)->size;
    if (part.element->kind == ELEMENT_NEEDLE) {
      EXPECT_LT(part.element->needle.center.x, size.width) << named(gauge, part);
      EXPECT_LE(part.element->needle.center.y, size.height) << named(gauge, part);
    }
    if (part.element->kind != ELEMENT_ICON) return;
    EXPECT_LE(part.element->position.x + size.width, plate.width) << named(gauge, part);
    EXPECT_LE(part.element->position.y + size.height, plate.height) << named(gauge, part);
  });
  for (const GaugeHeader* each : gauges()) {
    const Size plate = plate_of(*each).size;
    for (const Box& box : click_boxes(*each)) {
      EXPECT_LE(box.right(), plate.width) << each->name << ' ' << text(box);
      EXPECT_LE(box.bottom(), plate.height) << each->name << ' ' << text(box);
    }
  }
}

/// An area that has a part's name covers much of that part; one whose name says more ("up",
/// "engine 1") at least touches it.
TEST(BitmapTable, AClickLandsOnThePictureOfWhatItWorks) {
  for (const GaugeHeader* gauge : gauges()) {
    for (const names::NamedArea& area : names::areas(*gauge)) {
      for (const names::NamedPart& part : names::parts(*gauge)) {
        // A needle's knob and a read-out's keys stand elsewhere.
        const u32 kind = part.element->kind;
        if (!area.name.starts_with(part.name) || kind == ELEMENT_NEEDLE || kind == ELEMENT_STRING) {
          continue;
        }
        const Box box = click_box(*gauge, area.name), picture = part_box(*gauge, part.name);
        const double room = std::min(box.width * box.height, picture.width * picture.height);
        EXPECT_GT(shared_room(box, picture), area.name == part.name ? 0.4 * room : 0)
            << gauge->name << ' ' << area.name << ' ' << text(box) << " and " << text(picture);
      }
    }
  }
}

}  // namespace
}  // namespace artwork_test
