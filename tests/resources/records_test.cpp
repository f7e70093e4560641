/// Reading the module's records by name, and gauges put together from them.
#include <gtest/gtest.h>

#include <set>

#include "resources/rows/board.h"
#include "resources/tool/library.h"
#include "tests/resources/picture.h"

namespace artwork_test {
namespace {

TEST(Records, AMissingNameEndsTheTool) {
  const auto ends = ::testing::ExitedWithCode(1);
  EXPECT_EXIT(gauge("Nosuch"), ends, "no gauge Nosuch");
  EXPECT_EXIT(part(gauge("Masterbat"), "lever"), ends, "Masterbat has no part lever");
  EXPECT_EXIT(part_box(gauge("Masterbat"), "lever"), ends, "Masterbat has no part or click area lever");
}

TEST(Spots, FollowTheirPartsOrThePlatesEdges) {
  const Canvas canvas({100, 60}, 1, 0);
  const Board board{canvas, gauge("Masterbat")};
  const Point battery = hub_of(board.gauge, "battery_switch");
  const Point external = hub_of(board.gauge, "external_power_switch");
  const struct {
    Spot spot;
    Point expected;
  } cases[] = {
      {{7, 8}, {7, 8}},
      {{-7, -8}, {93, 52}},
      {middle(-8), {50, 52}},
      {at("battery_switch", 2, 3), {battery.x + 2, battery.y + 3}},
      {between("battery_switch", "external_power_switch"),
       {(battery.x + external.x) / 2, (battery.y + external.y) / 2}},
      {at("battery_switch", 1, 2).level_with("external_power_switch"), {battery.x + 1, external.y + 2}},
      {middle(1).level_with("battery_switch"), {50, battery.y + 1}},
  };
  for (const auto& each : cases) {
    EXPECT_EQ(where(board, each.spot).x, each.expected.x);
    EXPECT_EQ(where(board, each.spot).y, each.expected.y);
  }
}

TEST(Composed, PutsPartsWhereTheRecordsSay) {
  const GaugeHeader& panel = gauge("Avimaster");
  const Canvas off = composed(panel, {.image = 0}, 1), on = composed(panel, {.image = 1}, 1);
  std::set<std::string> changed;
  for_each_pixel(off, device_box(off), [&](std::uint32_t pixel, int x, int y) {
    if (pixel == on.pixels().at(x, y)) return;
    const Box at{1.0 * x, 1.0 * y, 1, 1};
    changed.insert(shared_room(at, part_box(panel, "avionics_master_switch")) > 0 ? "knob"
                   : shared_room(at, part_box(panel, "avionics_lamp")) > 0        ? "lamp"
                                                                                  : "elsewhere");
  });
  EXPECT_EQ(changed, (std::set<std::string>{"knob", "lamp"}));
}

}  // namespace
}  // namespace artwork_test
