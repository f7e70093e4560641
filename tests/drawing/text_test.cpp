#include <gtest/gtest.h>

#include "tests/drawing/fixture.h"

namespace host {
namespace {

/// A black-on-grey or red-on-grey text in a box of 50 x 20 at (5, 10) of an 80 x 40 gauge.
class Text : public testing::Test {
 protected:
  Text() {
    bitmaps_.add(1, 80, 40, grey);
    Element& element = gauge_.add(ELEMENT_STRING, -1, {5, 10});
    element.string.size = {50, 20};
    element.string.foreground = 0x0000FF;  // red
    element.string.weight = 400;
    element.string.max_characters = 3;
    element.string.font = "Arial";
  }

  Rect box(const std::string& text, double zoom = 1) {
    Scene scene(gauge_, bitmaps_, zoom);
    scene.now[1].text = text;
    scene.draw();
    for (const std::uint32_t pixel : scene.canvas.pixels)
      EXPECT_LE(pixel & 0xFFFF, 0x4040u);  // nothing but red and grey
    return scene.box_without(grey);
  }

  static bool inside(const Rect& inner, const Rect& outer) {
    return inner.x >= outer.x && inner.y >= outer.y && inner.x + inner.width <= outer.x + outer.width &&
           inner.y + inner.height <= outer.y + outer.height;
  }

  StringPart& part() { return gauge_.at(1).string; }

  MadeBitmaps bitmaps_;
  MadeGauge gauge_{1};
};

TEST_F(Text, FillsItsBoxAndStaysInside) {
  for (const char* font : {"Arial", "QUARTZ", "No Such Font", ""}) {
    part().font = font;
    for (const double zoom : {1.0, 1.5}) {
      const Rect limits{static_cast<int>(5 * zoom), static_cast<int>(10 * zoom),
                        static_cast<int>(50 * zoom + 1), static_cast<int>(20 * zoom + 1)};
      const Rect figures = box("888", zoom);
      EXPECT_TRUE(inside(figures, limits)) << font << testing::PrintToString(figures);
      EXPECT_GE(figures.height, 10 * zoom) << font;
      EXPECT_GE(figures.width, 20 * zoom) << font;
      EXPECT_LE(figures.x, limits.x + 4 * zoom) << font;  // left-aligned
      EXPECT_TRUE(inside(box("WWWWWWWWWWWWWWWW", zoom), limits)) << font;
    }
  }
}

TEST_F(Text, BlanksKeepTheirPlaceOnSegmentDisplays) {
  part().font = "QUARTZ";
  const Rect figures = box("888"), last = box("  8");
  EXPECT_NEAR(figures.x + figures.width, last.x + last.width, 1);
  EXPECT_LT(last.width, figures.width / 2);
}

// Whether a display is set anew, as with a point in it, or put together from figures that it had before.
TEST_F(Text, LooksTheSameWhateverItShowedBefore) {
  part().font = "QUARTZ";
  for (const double zoom : {1.0, 1.37, 2.0}) {
    Scene counting(gauge_, bitmaps_, zoom);
    for (const char* text : {"888", "1.3", "1 3", "31", "", "31", "8888888", "-1", "31"}) {
      counting.now[1].text = text;
      counting.draw();
      Scene fresh(gauge_, bitmaps_, zoom);
      fresh.now[1].text = text;
      fresh.draw();
      EXPECT_EQ(counting.canvas.pixels, fresh.canvas.pixels) << text;
    }
  }
}

TEST_F(Text, NothingToShowDrawsNothing) {
  EXPECT_EQ(box("   "), Rect{});
  EXPECT_NE(box("\x01\xFF<b>&"), Rect{});  // neither bytes nor markup trip it
}

TEST_F(Text, OddBoxesAreHarmless) {
  for (const PanelSize size : {PanelSize{0, 10}, {-1, -1}, {INT32_MAX, 5}, {1, 1}}) {
    part().size = size;
    part().max_characters = ~0u;
    part().weight = ~0u;
    box("88");
  }
}

}  // namespace
}  // namespace host
