/// The table of bitmaps against the module's records: every picture that a gauge shows is there,
/// and everything that a gauge places lies on its plate.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

#include "resources/backgrounds.h"
#include "resources/bitmap_table.h"
#include "resources/kit/records.h"
#include "resources/panels/panels.h"

namespace artwork {
namespace {

const std::vector<Bitmap>& table() {
  static const std::vector<Bitmap> all = bitmap_table();
  return all;
}

const Bitmap* find(int id) {
  const auto found =
      std::find_if(table().begin(), table().end(), [=](const Bitmap& b) { return b.id == id; });
  return found == table().end() ? nullptr : &*found;
}

int plate_id(const GaugeHeader& of) { return of.element_list[0]->resource_id; }

/// Gauges whose art is drawn; the plates of the others are plain.
std::vector<const GaugeHeader*> finished_gauges() {
  std::set<int> drawn;
  for (const auto group : all_art()) {
    for (const Art& art : group) drawn.insert(art.id);
  }
  std::vector<const GaugeHeader*> finished;
  for (const GaugeHeader* each : gauges()) {
    if (drawn.contains(plate_id(*each))) finished.push_back(each);
  }
  return finished;
}

std::string named(const GaugeHeader& of, const Element& e) {
  return std::string(of.name) + " part " + std::to_string(e.resource_id);
}

int image_count(const Element& e) {
  return e.kind == ELEMENT_ICON ? static_cast<int>(e.icon.image_count) : 1;
}

TEST(BitmapTable, NumbersAscendAndSizesAreWithinBounds) {
  int last = 0;
  for (const Bitmap& bitmap : table()) {
    EXPECT_GT(bitmap.id, last);
    last = bitmap.id;
    EXPECT_GE(std::min(bitmap.size.width, bitmap.size.height), 2) << bitmap.id;
    EXPECT_LE(bitmap.size.width, 1280) << bitmap.id;
    EXPECT_LE(bitmap.size.height, 497) << bitmap.id;
    EXPECT_FALSE(bitmap.shows.empty()) << bitmap.id;
  }
}

TEST(BitmapTable, EveryGaugeHasAPlateOfItsWidth) {
  for (const GaugeHeader* each : gauges()) {
    const Bitmap* plate = find(plate_id(*each));
    ASSERT_NE(plate, nullptr) << each->name;
    EXPECT_TRUE(plate->background) << each->name;
    // The captain's selector strip shares the wide plate of the pedestal's button.
    if (std::string(each->name) == "Pselect") continue;
    EXPECT_EQ(plate->size.width, static_cast<int>(each->width_mm)) << each->name;
  }
}

TEST(BitmapTable, EveryImageOfAPartIsThereAndAsLargeAsTheFirst) {
  for (const GaugeHeader* each : finished_gauges()) {
    for (const Element* e : parts(*each)) {
      if (e->kind == ELEMENT_STRING) continue;
      const Bitmap* first = find(e->resource_id);
      ASSERT_NE(first, nullptr) << named(*each, *e);
      for (int image = 1; image < image_count(*e); ++image) {
        const Bitmap* next = find(e->resource_id + image);
        ASSERT_NE(next, nullptr) << named(*each, *e) << " image " << image;
        EXPECT_EQ(next->size, first->size) << named(*each, *e) << " image " << image;
      }
    }
  }
}

/// Needles and cards may leave their plate; what clicks or switches may not.
TEST(BitmapTable, IconsAndClickBoxesLieOnThePlate) {
  for (const GaugeHeader* each : finished_gauges()) {
    const Size plate = find(plate_id(*each))->size;
    for (const Element* e : parts(*each)) {
      if (e->kind != ELEMENT_ICON) continue;
      const Size size = find(e->resource_id)->size;
      EXPECT_LE(e->position.x + size.width, plate.width) << named(*each, *e);
      EXPECT_LE(e->position.y + size.height, plate.height) << named(*each, *e);
    }
  }
  for (const GaugeHeader* each : gauges()) {
    const Size plate = find(plate_id(*each))->size;
    for (const Box& box : click_boxes(*each)) {
      EXPECT_LE(box.right(), plate.width) << each->name;
      EXPECT_LE(box.bottom(), plate.height) << each->name;
    }
  }
}

TEST(BitmapTable, NeedlesTurnAboutAPointOfTheirPicture) {
  for (const GaugeHeader* each : finished_gauges()) {
    for (const Element* e : parts(*each)) {
      if (e->kind != ELEMENT_NEEDLE) continue;
      const Size size = find(e->resource_id)->size;
      EXPECT_LT(e->needle.center.x, size.width) << named(*each, *e);
      EXPECT_LE(e->needle.center.y, size.height) << named(*each, *e);
    }
  }
}

/// A click lands on something: an icon's picture, or a control that belongs to the plate.
TEST(BitmapTable, EveryIconOfASwitchPanelMeetsAClickBoxWherePressed) {
  struct Case {
    const char* gauge;
    int id, nth, box;
  };
  constexpr Case cases[] = {
      {"Masterbat", 2130, 0, 0}, {"Masterbat", 2130, 1, 1}, {"Masterbat", 2140, 0, 2},
      {"Avimaster", 2320, 0, 0}, {"Ctr", 2170, 0, 4},       {"Ctr", 2180, 0, 5},
      {"Cainstlg", 13310, 0, 2}, {"Ovhmain", 13230, 2, 0},  {"Apu", 2070, 0, 4},
      {"Mancon", 1440, 0, 0},    {"Hydp", 3280, 0, 0},      {"Engstart", 260, 0, 3},
  };
  for (const Case& c : cases) {
    const PanelPoint at = part(c.gauge, c.id, c.nth).position;
    const Size size = find(c.id)->size;
    const Box box = click_boxes(gauge(c.gauge))[static_cast<std::size_t>(c.box)];
    const Box picture{1.0 * at.x, 1.0 * at.y, 1.0 * size.width, 1.0 * size.height};
    const double across = std::min(box.right(), picture.right()) - std::max(box.x, picture.x);
    const double down = std::min(box.bottom(), picture.bottom()) - std::max(box.y, picture.y);
    EXPECT_GT(across * down, 0.4 * std::min(box.width * box.height, 1.0 * size.width * size.height))
        << c.gauge << ' ' << c.id;
  }
}

}  // namespace
}  // namespace artwork
