#include "host/panel/layout.h"

#include <gtest/gtest.h>

#include "host/panel/panel_picture.h"

namespace {

using namespace host;

// Every window inside the area with its caption, and none over another.
void expect_sound(const Layout& layout, const LayoutArea& area) {
  for (std::size_t i = 0; i < layout.places.size(); ++i) {
    const Rect& place = layout.places[i];
    EXPECT_GE(place.x, area.gap - 1);
    EXPECT_GE(place.y, area.gap + area.caption - 1);
    EXPECT_LE(place.x + place.width, layout.width - area.gap + 1);
    EXPECT_LE(place.y + place.height, layout.height - area.gap + 1);
    for (std::size_t k = 0; k < i; ++k) {
      Rect with_caption = place;
      with_caption.y -= area.caption;
      with_caption.height += area.caption;
      EXPECT_FALSE(overlap(with_caption, layout.places[k])) << i << " over " << k;
    }
  }
}

TEST(Layout, FillsScreensOfAllShapes) {
  const std::vector<PanelSize> sizes = {{930, 950}, {898, 762}, {682, 500}, {276, 202}, {1280, 497}};
  for (const LayoutArea& area :
       {LayoutArea{1080, 1920, 6, 22}, LayoutArea{640, 480, 6, 22}, LayoutArea{5120, 1440, 2, 0}}) {
    for (std::size_t count = 1; count <= sizes.size(); ++count) {
      SCOPED_TRACE(std::to_string(area.width) + " wide, windows: " + std::to_string(count));
      const Layout layout = arrange(std::span(sizes).first(count), area, std::nullopt);
      ASSERT_EQ(layout.places.size(), count);
      EXPECT_LE(layout.width, area.width + 1);
      EXPECT_LE(layout.height, area.height + 1);
      expect_sound(layout, area);
    }
  }
}

TEST(Layout, HasRoomForEveryWindowThatCanBe) {
  const LayoutArea area{1920, 1080, 6, 22};
  const std::vector<PanelSize> sizes(100, {300, 200});
  for (const std::size_t count : {13, 32, 33, 100}) {
    const Layout layout = arrange(std::span(sizes).first(count), area, std::nullopt);
    EXPECT_GT(layout.places.back().width, 130) << count << " windows keep a size to read";
    expect_sound(layout, area);
  }
}

TEST(Layout, PutsWideOverWideAndTallBesideTall) {
  const LayoutArea area{1000, 1000, 0, 0};
  const std::vector<PanelSize> wide = {{900, 450}, {900, 450}}, tall = {{450, 900}, {450, 900}};
  const Layout stacked = arrange(wide, area, std::nullopt), beside = arrange(tall, area, std::nullopt);
  EXPECT_EQ(stacked.places[0].x, stacked.places[1].x);
  EXPECT_EQ(beside.places[0].y, beside.places[1].y);
}

TEST(Layout, PrefersWholeZoomsToAFewPerCentMore) {
  const std::vector<PanelSize> one = {{500, 500}};
  EXPECT_EQ(arrange(one, {530, 530, 0, 0}, std::nullopt).zoom, 1.0);
  EXPECT_EQ(arrange(one, {1070, 1070, 0, 0}, std::nullopt).zoom, 2.0);
  EXPECT_DOUBLE_EQ(arrange(one, {600, 600, 0, 0}, std::nullopt).zoom, 1.2);
}

TEST(Layout, KeepsAGivenZoomAndGrowsBeyondTheScreen) {
  const std::vector<PanelSize> sizes = {{900, 700}, {900, 700}};
  const LayoutArea area{1000, 800, 6, 22};
  const Layout layout = arrange(sizes, area, 2.0);
  EXPECT_EQ(layout.places[0].width, 1800);
  EXPECT_GT(layout.width, area.width);
  expect_sound(layout, area);
  EXPECT_TRUE(arrange({}, area, std::nullopt).places.empty()) << "of nothing";
}

TEST(GaugePoint, FollowsTheScaleOnBothSides) {
  const Rect place{100, 50, 200, 100};
  const PanelSize size{100, 50};
  const auto at = [&](int x, int y) {
    const PanelPoint point = gauge_point(place, size, x, y);
    return std::pair(point.x, point.y);
  };
  EXPECT_EQ(at(101, 51), std::pair(0, 0));
  EXPECT_EQ(at(299, 149), std::pair(99, 49));
  EXPECT_EQ(at(99, 49), std::pair(-1, -1)) << "left of the gauge, not its first column";
  EXPECT_EQ(at(2000000000, 0), std::pair(999999950, -25));
}

}  // namespace
