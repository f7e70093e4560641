#include "host/app/badge_places.h"

#include <gtest/gtest.h>

#include "host/panel/panel_picture.h"

namespace {

using namespace host;

// Boxes in rows with little room between them, as the switches of a panel.
std::vector<Rect> rows_of_boxes() {
  std::vector<Rect> boxes;
  for (int y = 30; y < 200; y += 44)
    for (int x = 30; x < 260; x += 26) boxes.push_back({x, y, 22, 26});
  return boxes;
}

TEST(BadgePlaces, LieOnNoControlAndOnNoOtherBadge) {
  const std::vector<Rect> boxes = rows_of_boxes();
  const std::vector<PanelSize> sizes(boxes.size(), {18, 12});
  const std::vector<Rect> badges = place_badges(boxes, sizes, Canvas(300, 240));
  ASSERT_EQ(badges.size(), boxes.size());
  for (std::size_t i = 0; i < badges.size(); ++i) {
    const Rect& badge = badges[i];
    EXPECT_TRUE(badge.x >= 0 && badge.y >= 0 && badge.x + 18 <= 300 && badge.y + 12 <= 240) << i;
    for (const Rect& box : boxes) EXPECT_FALSE(overlap(badge, box)) << i;
    for (std::size_t k = 0; k < i; ++k) EXPECT_FALSE(overlap(badge, badges[k])) << i << " on " << k;
  }
}

TEST(BadgePlaces, LeaveALegendToBeRead) {
  Canvas picture(100, 100);
  const Rect box{40, 40, 20, 20}, legend{20, 25, 60, 14};
  for (int y = legend.y; y < legend.y + legend.height; ++y)
    for (int x = legend.x; x < legend.x + legend.width; x += 3)
      picture.pixels[std::size_t(y) * 100 + x] = 0xFFFFFFFFu;
  const std::vector<PanelSize> sizes{{18, 12}};
  EXPECT_FALSE(overlap(place_badges({&box, 1}, sizes, picture)[0], legend));
}

TEST(BadgePlaces, WithoutAnyRoomABadgeLiesInItsCorner) {
  const Rect box{0, 0, 40, 40};
  const std::vector<PanelSize> sizes{{18, 12}};
  EXPECT_EQ(place_badges({&box, 1}, sizes, Canvas(40, 40))[0], (Rect{0, 0, 18, 12}));
}

}  // namespace
