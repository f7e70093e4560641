#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "tests/drawing/fixture.h"

namespace host {
namespace {

constexpr double nan_value = std::numeric_limits<double>::quiet_NaN();
constexpr double infinite = std::numeric_limits<double>::infinity();

/// A grey gauge of 41 x 41 whose middle is the pixel (20, 20).
class Motion : public testing::Test {
 protected:
  Motion() {
    bitmaps_.add(1, 41, 41, grey);
    // A needle that points to the right from its pivot (1, 1).
    bitmaps_.add(20, 17, 3, [](int, int y) { return y == 1 ? red : 0u; });
    bitmaps_.add(30, 3, 3, red);
    // A strip of ten digits of 4 x 5, each of its own red; and one of four 5 x 4 columns.
    bitmaps_.add(40, 4, 50, [](int, int y) { return digit(y / 5); });
    bitmaps_.add(41, 20, 4, [](int x, int) { return digit(x / 5); });
    bitmaps_.add(42, 5, 4, [](int x, int) { return x == 2 ? 0u : 0xFFFFFFFFu; });  // a barred window
    // A card of 41 x 41 with a mark ten pixels above the middle.
    bitmaps_.add(50, 41, 41, [](int x, int y) { return x == 20 && y == 10 ? red : 0u; });
  }

  static std::uint32_t digit(int number) {
    return 0xFF000000u | static_cast<std::uint32_t>(number + 1) << 16;
  }

  /// The direction in which an element of one red mark points from the middle.
  static std::string direction(const Scene& scene) {
    const Rect box = scene.box_without(grey);
    if (box.width == 0) return "nowhere";
    const double x = box.x + box.width / 2.0 - 20.5, y = box.y + box.height / 2.0 - 20.5;
    return std::abs(x) > std::abs(y) ? (x > 0 ? "right" : "left") : (y > 0 ? "down" : "up");
  }

  Element& moving(i32 strip, i32 mask, double minimum, double maximum) {
    Element& element = gauge_.add(ELEMENT_MOVING_IMAGE, strip, {10, 12});
    element.moving_image.mask_resource_id = mask;
    (strip == 41 ? element.moving_image.x : element.moving_image.y) = {{}, nullptr, minimum, maximum};
    return element;
  }

  MadeBitmaps bitmaps_;
  MadeGauge gauge_{1};
};

TEST_F(Motion, NeedleWithoutTableTurnsClockwiseToWhereItHasCome) {
  gauge_.needle(20, {20, 20}, {1, 1});
  Scene scene(gauge_, bitmaps_);
  const std::pair<double, const char*> cases[] = {
      {0, "right"},       {90, "down"},           {-90, "up"},
      {36000180, "left"}, {nan_value, "nowhere"}, {infinite, "nowhere"}};
  for (const auto& [value, way] : cases) {
    scene.set(1, value);
    scene.draw();
    EXPECT_EQ(direction(scene), way) << value;
    EXPECT_EQ((scene.at(20, 20) >> 16 & 255) > 0xC0, std::isfinite(value)) << "its pivot";
  }
  scene.before[1].reached = scene.now[1].reached = 90;  // held back on its way
  scene.draw();
  EXPECT_EQ(direction(scene), "down");
}

TEST_F(Motion, NeedlePointsAtTheMarksOfItsTable) {
  // Down, left, up, right: as on a dial that starts at the bottom.
  const NonlinearityPoint table[] = {{{20, 40}, 0}, {{0, 20}, 10}, {{20, 0}, 30}, {{40, 20}, 40}};
  gauge_.needle(20, {20, 20}, {1, 1}, table);
  const double zoom = 2;
  Scene scene(gauge_, bitmaps_, zoom);
  scene.set(1, 30);
  scene.draw();
  const Rect box = scene.box_without(grey);
  EXPECT_NEAR(box.x + box.width / 2.0, 20.5 * zoom, 0.51);
  EXPECT_NEAR(box.y, 5 * zoom, 2);
  scene.before[1].values[0] = 10;
  scene.draw(0.5);
  EXPECT_LT(scene.box_without(grey).x, 12 * zoom) << "halfway, to the upper left";
}

TEST_F(Motion, SliderMovesByValueTimesScale) {
  Element& slider = gauge_.add(ELEMENT_SLIDER, 30, {20, 20});
  slider.slider.x_scale = -2;
  slider.slider.y_scale = 0;
  Scene scene(gauge_, bitmaps_);
  const std::tuple<double, double, Rect> cases[] = {
      {5, 9, {10, 20, 3, 3}}, {5, nan_value, {10, 20, 3, 3}}, {nan_value, 0, {}},
      {1e30, 0, {}},          {-9.5, 0, {39, 20, 2, 3}},      {0.25, 0, {19, 20, 4, 3}}};
  for (const auto& [x, y, box] : cases) {
    scene.set(1, x, 0);
    scene.set(1, y, 1);
    scene.draw();
    EXPECT_EQ(scene.box_without(grey), box) << x;
  }
  scene.before[1].values = {0, 0, 0};
  scene.now[1].values = {5, 10, 0};
  slider.slider.y_scale = 1;
  scene.draw(0.4);
  EXPECT_EQ(scene.box_without(grey), (Rect{16, 24, 3, 3}));
}

TEST_F(Motion, StripShowsATenthOfItselfWithoutAMask) {
  moving(40, -1, 0, 9);
  Scene scene(gauge_, bitmaps_);
  scene.set(1, nan_value, 0);  // nothing moves along x
  const std::pair<double, std::uint32_t> cases[] = {
      {3, digit(3)}, {9, digit(9)}, {-5, digit(0)}, {99, digit(9)}, {infinite, grey}};
  for (const auto& [value, colour] : cases) {
    scene.set(1, value, 1);
    scene.draw();
    EXPECT_EQ(scene.box_without(grey), (colour == grey ? Rect{} : Rect{10, 12, 4, 5})) << value;
    EXPECT_EQ(scene.at(10, 12), colour) << value;
    EXPECT_EQ(scene.at(13, 16), colour) << value;
  }
  scene.set(1, 0.5, 1);
  scene.draw();
  EXPECT_EQ(scene.at(10, 12), digit(0));
  EXPECT_EQ(scene.at(10, 16), digit(1));
}

TEST_F(Motion, StripShowsThroughItsMask) {
  moving(41, 42, 3, 0);  // and its range runs backwards
  Scene scene(gauge_, bitmaps_);
  scene.set(1, 1, 0);
  scene.draw();
  EXPECT_EQ(scene.box_without(grey), (Rect{10, 12, 5, 4}));
  for (int x = 0; x < 5; ++x) EXPECT_EQ(scene.at(10 + x, 13), x == 2 ? grey : digit(2));
}

TEST_F(Motion, DrumRollsOnButNeverRacesBack) {
  moving(40, -1, 0, 9);
  Scene scene(gauge_, bitmaps_);
  scene.before[1].values[1] = 2;
  scene.now[1].values[1] = 3;
  scene.draw(0.4);
  EXPECT_EQ(scene.at(10, 12), digit(2));
  EXPECT_EQ(scene.at(10, 16), digit(3));
  scene.before[1].values[1] = 9;
  scene.now[1].values[1] = 0;
  scene.draw(0.4);
  EXPECT_EQ(scene.at(10, 12), digit(0));
  EXPECT_EQ(scene.at(10, 16), digit(0));
}

TEST_F(Motion, SpriteShiftsThenTurnsAboutItsCentreBehindTheFace) {
  bitmaps_.add(2, 41, 41, [](int, int y) { return y > 3 ? 0u : grey; });  // open below its upper edge
  MadeGauge gauge{2};
  Element& sprite = gauge.add(ELEMENT_SPRITE, 50, {0, 0});
  sprite.sprite.texture_center = {20, 20};
  sprite.sprite.x.scale = 1;
  sprite.sprite.y.scale = 2;
  sprite.sprite.rotation.scale = -1;
  gauge.icon(30, {0, 38}, 1);
  Scene scene(gauge, bitmaps_);
  const std::tuple<double, double, double, PanelPoint> cases[] = {
      {0, 0, 0, {20, 10}},  {0, -2, -90, {6, 20}},       {3, 0, 180, {17, 30}},
      {0, -4, 0, {-1, -1}}, {nan_value, 0, 0, {-1, -1}}, {0, 0, infinite, {-1, -1}}};
  for (const auto& [x, y, rotation, mark] : cases) {
    scene.before[1].values = scene.now[1].values = {x, y, rotation};
    scene.draw();
    EXPECT_EQ(std::ranges::count(scene.canvas.pixels, red), 9 + (mark.x >= 0)) << "with the icon";
    if (mark.x >= 0) {
      EXPECT_EQ(scene.at(mark.x, mark.y), red) << mark.x << ", " << mark.y;
    }
    EXPECT_EQ(scene.at(20, 3), grey);
  }
  scene.before[1].values = {0, 0, 350};
  scene.now[1].values = {0, 0, 10};
  scene.draw(0.5);
  EXPECT_EQ(scene.at(20, 10), red);
}

}  // namespace
}  // namespace host
