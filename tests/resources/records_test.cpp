/// Reading the module's records, and knowing when they have changed.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <set>
#include <string>

#include "resources/kit/records.h"
#include "resources/tool/library.h"
#include "resources/tool/stamp.h"

namespace artwork {
namespace {

TEST(Records, PartsLeaveTheLitCopyOut) {
  for (const GaugeHeader* each : gauges()) {
    std::size_t chain = 0;
    for (const Element* e = each->element_list[0]; e != nullptr; e = e->next ? *e->next : nullptr) {
      ++chain;
    }
    const std::size_t shown = parts(*each).size();
    EXPECT_TRUE(chain == 1 + shown || chain == 1 + 2 * shown) << each->name;
  }
}

TEST(Records, PartsAreFoundByPictureAndOrder) {
  EXPECT_EQ(place("Masterbat", 2130).x, 39);
  EXPECT_EQ(place("Masterbat", 2130, 1).x, 111);
  EXPECT_TRUE(has_parts("Masterbat"));
  EXPECT_EQ(part("Acdc", 350, 2).needle.table_length, 3u);
}

TEST(Records, ClickBoxesAreInPlatePixels) {
  const std::vector<Box> boxes = click_boxes(gauge("Masterbat"));
  ASSERT_EQ(boxes.size(), 3u);
  EXPECT_EQ(boxes[2].x, 66);
  EXPECT_EQ(boxes[2].bottom(), 108);
}

TEST(Records, AMissingGaugeOrPartEndsTheTool) {
  EXPECT_EXIT(gauge("Nosuch"), ::testing::ExitedWithCode(1), "no gauge Nosuch");
  EXPECT_EXIT(part("Masterbat", 2130, 9), ::testing::ExitedWithCode(1), "Masterbat part 2130");
}

TEST(Stamp, FollowsTheDrawingCode) {
  const auto folder = std::filesystem::temp_directory_path() / "artwork-stamp-test";
  std::filesystem::create_directories(folder);
  const auto kit = folder / "kit", file = folder / "stamp";
  std::ofstream(kit) << "one";
  const std::string first = records_stamp(kit);
  EXPECT_EQ(records_stamp(kit), first);
  write_stamp(file, first);
  EXPECT_TRUE(stamp_matches(file, first));
  std::ofstream(kit) << "two";
  EXPECT_FALSE(stamp_matches(file, records_stamp(kit)));
  std::filesystem::remove_all(folder);
}

TEST(Composed, PutsPartsWhereTheRecordsSay) {
  const std::vector<Bitmap> table = bitmap_table();
  const Canvas off = composed(table, gauge("Avimaster"), {.image = 0}, 1);
  const Canvas on = composed(table, gauge("Avimaster"), {.image = 1}, 1);
  const Pixels a = off.pixels(), b = on.pixels();
  const Point knob = place("Avimaster", 2320), lamp = place("Avimaster", 2330);
  std::set<std::string> changed;
  for (int y = 0; y < a.height; ++y) {
    for (int x = 0; x < a.width; ++x) {
      if (a.at(x, y) == b.at(x, y)) continue;
      const bool in_knob = x >= knob.x && x < knob.x + 40 && y >= knob.y && y < knob.y + 40;
      const bool in_lamp = x >= lamp.x && x < lamp.x + 32 && y >= lamp.y && y < lamp.y + 23;
      changed.insert(in_knob ? "knob" : in_lamp ? "lamp" : "elsewhere");
    }
  }
  EXPECT_EQ(changed, (std::set<std::string>{"knob", "lamp"}));
}

}  // namespace
}  // namespace artwork
