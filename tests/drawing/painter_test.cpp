#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "host/drawing/pictures.h"
#include "tests/drawing/fixture.h"

namespace host {
namespace {

constexpr double nan_value = std::numeric_limits<double>::quiet_NaN();
constexpr double infinite = std::numeric_limits<double>::infinity();

/// A grey gauge of 60 x 40 with a few images to choose from.
class Painter : public testing::Test {
 protected:
  Painter() {
    bitmaps_.add(1, 60, 40, grey);
    bitmaps_.add(10, 4, 4, red);
    bitmaps_.add(11, 4, 4, green);
    bitmaps_.add(12, 4, 4, blue);
    // A needle of three rows that points to the right from its pivot (1, 1).
    bitmaps_.add(20, 17, 3, [](int, int y) { return y == 1 ? red : 0u; });
  }

  MadeBitmaps bitmaps_;
  MadeGauge gauge_{1};
};

TEST_F(Painter, IconShowsTheImageItsValueNames) {
  gauge_.icon(10, {5, 6}, 3);
  Scene scene(gauge_, bitmaps_);
  const std::pair<double, std::uint32_t> cases[] = {
      {1.99, green}, {2, blue},        {-0.9, red},       {-1, grey},
      {3, blue},     {infinite, blue}, {-infinite, grey}, {nan_value, grey}};
  for (const auto& [value, colour] : cases) {
    scene.set(1, value);
    scene.draw();
    EXPECT_EQ(scene.at(5, 6), colour) << value;
    EXPECT_EQ(scene.at(8, 9), colour) << value;
    EXPECT_EQ(scene.at(9, 9), grey);
  }
}

TEST_F(Painter, DrawsOnlyWhatHasChanged) {
  gauge_.icon(10, {5, 6}, 3);
  gauge_.needle(20, {30, 20}, {1, 1});
  Scene scene(gauge_, bitmaps_);
  EXPECT_TRUE(scene.draw());
  EXPECT_FALSE(scene.draw());
  scene.set(1, 0.5);
  scene.set(2, 0.01);  // less than a sixteenth of a pixel
  scene.before[2].text = "no matter";
  EXPECT_FALSE(scene.draw());
  scene.set(1, 1);
  std::ranges::fill(scene.canvas.pixels, blue);  // whatever is not drawn again stays blue
  EXPECT_TRUE(scene.draw());
  EXPECT_EQ(scene.box_without(blue), (Rect{5, 6, 4, 4}));
  scene.painter->invalidate();
  EXPECT_TRUE(scene.draw());
  EXPECT_EQ(scene.box_without(blue), (Rect{0, 0, 60, 40}));
  scene.now[1].drawn = false;
  EXPECT_TRUE(scene.draw());
  EXPECT_EQ(scene.at(5, 6), grey);
}

// A gauge with every moving kind of part, some over each other; with a sprite its face has an opening.
void fill_with_parts(MadeGauge& gauge, bool sprite) {
  gauge.icon(30, {0, 0}, 1);
  gauge.icon(10, {27, 18}, 3);
  gauge.needle(20, {30, 20}, {1, 1});
  gauge.icon(10, {40, 18}, 3);
  gauge.needle(20, {34, 20}, {1, 1});
  Element& slider = gauge.add(ELEMENT_SLIDER, 11, {20, 20});
  slider.slider.x_scale = slider.slider.y_scale = 0.1;
  Element& drum = gauge.add(ELEMENT_MOVING_IMAGE, 31, {33, 12});
  drum.moving_image.mask_resource_id = -1;
  drum.moving_image.y.maximum = 360;
  if (!sprite) return;
  Element& card = gauge.add(ELEMENT_SPRITE, 31, {0, 0});
  card.sprite.texture_center = {12, 20};
  card.sprite.x.scale = 0.1;
  card.sprite.rotation.scale = 1;
}

TEST_F(Painter, PartialRedrawEqualsAFullOne) {
  bitmaps_.add(2, 60, 40, [](int x, int y) { return std::hypot(x - 25, y - 20) < 15 ? 0u : grey; });
  bitmaps_.add(30, 60, 40, 0x40202020);  // a tint over the whole face
  bitmaps_.add(31, 24, 40, [](int x, int y) { return (x / 5 + y / 5) % 2 ? green : 0x80400000; });
  std::mt19937 random(3);
  std::uniform_real_distribution<double> value(-20, 380);
  for (const double zoom : {0.61, 1.0, 2.3}) {
    for (const bool sprite : {false, true}) {
      MadeGauge gauge(sprite ? 2 : 1);
      fill_with_parts(gauge, sprite);
      Scene partial(gauge, bitmaps_, zoom), full(gauge, bitmaps_, zoom);
      for (int i = 0; i < 60; ++i) {
        for (std::size_t part = 1; part < partial.now.size(); ++part) {
          ElementState& now = partial.now[part];
          partial.before[part] = now;
          if (random() % 3 == 0) now.values = {value(random), value(random), value(random)};
          if (random() % 9 == 0) now.evaluated = random() % 3 != 0;
          now.drawn = now.evaluated && random() % 8 != 0;
        }
        full.before = partial.before;
        full.now = partial.now;
        full.painter->invalidate();
        partial.draw(i % 4 / 4.0);
        full.draw(i % 4 / 4.0);
        ASSERT_EQ(partial.canvas.pixels, full.canvas.pixels) << zoom << ", " << i;
      }
    }
  }
}

TEST(ScaledPlace, NeighboursLeaveNoSeam) {
  for (const double zoom : {0.37, 1.13, 1.5}) {
    const Rect left = scaled_place({7, 5}, {60, 40}, {zoom, zoom});
    const Rect right = scaled_place({67, 5}, {60, 40}, {zoom, zoom});
    EXPECT_EQ(left.x + left.width, right.x) << zoom;
    EXPECT_EQ(left.y, right.y) << zoom;
  }
}

TEST_F(Painter, GaugePartlyOutsideTheCanvasIsCut) {
  gauge_.icon(10, {5, 6}, 3);
  for (const Rect& place :
       {Rect{-7, -8, 60, 40}, Rect{15, 15, 60, 40}, Rect{100, 100, 60, 40}, Rect{3, 3, -5, 40}}) {
    Canvas canvas(20, 20);
    GaugePainter painter(gauge_.header, bitmaps_, place);
    const Scene scene(gauge_, bitmaps_);
    painter.draw(canvas, scene.before, scene.now, 1);
    for (int y = 0; y < 20; ++y)
      for (int x = 0; x < 20; ++x) {
        const int gx = x - place.x, gy = y - place.y;
        const bool inside = gx >= 0 && gy >= 0 && gx < place.width && gy < place.height;
        const bool icon = gx >= 5 && gx < 9 && gy >= 6 && gy < 10;
        ASSERT_EQ(canvas.pixels[y * 20 + x], !inside ? 0xFF000000 : icon ? red : grey);
      }
  }
}

TEST_F(Painter, MissingBitmapsAreLeftOut) {
  gauge_.icon(12, {5, 6}, 3);  // 13 and 14 do not exist
  gauge_.needle(99, {30, 20}, {1, 1});
  gauge_.add(ELEMENT_MOVING_IMAGE, 99, {0, 0});
  Scene scene(gauge_, bitmaps_);
  scene.set(1, 1);
  EXPECT_TRUE(scene.draw());
  EXPECT_EQ(scene.box_without(grey), Rect{});

  MadeGauge faceless(98);
  faceless.icon(10, {0, 0}, 1);
  GaugePainter painter(faceless.header, bitmaps_, {0, 0, 10, 10});
  Canvas canvas(10, 10);
  const Scene states(faceless, bitmaps_);
  painter.draw(canvas, states.before, states.now, 1);
  EXPECT_EQ(canvas.pixels[0], red);
}

TEST_F(Painter, TakesTheSmallestDensityThatIsLargeEnough) {
  bitmaps_.add(1, 60, 40, blue, 3);
  bitmaps_.add(1, 60, 40, green, 2);
  bitmaps_.add(11, 4, 4, red, 2);  // the icon's second image has no third density
  gauge_.icon(10, {5, 6}, 2);
  const std::tuple<double, std::uint32_t, std::uint32_t> cases[] = {
      {1, grey, green}, {1.5, green, red}, {2, green, red}, {2.1, blue, red}, {4, blue, red}};
  for (const auto& [zoom, face, other] : cases) {
    Scene scene(gauge_, bitmaps_, zoom);
    scene.set(1, 1);
    scene.draw();
    EXPECT_EQ(scene.at(0, 0), face) << zoom;
    EXPECT_EQ(scene.at(static_cast<int>(7 * zoom), static_cast<int>(8 * zoom)), other) << zoom;
  }
}

TEST_F(Painter, WholeZoomsCopyPixelForPixel) {
  const auto noise = [](int x, int y) {
    return 0xFF000000u | static_cast<std::uint32_t>(x * 7919 + y * 104729) % 0xFFFFFF;
  };
  const auto holes = [&](int x, int y) { return (x + y) % 3 ? noise(y, x) : 0u; };
  for (const int density : {1, 2, 3}) {
    bitmaps_.add(1, 60, 40, noise, density);
    bitmaps_.add(10, 4, 4, holes, density);
  }
  gauge_.icon(10, {7, 9}, 1);
  gauge_.add(ELEMENT_SLIDER, 10, {15, 9});
  gauge_.at(2).slider.x_scale = 2;
  for (const int zoom : {1, 2, 3}) {
    Scene scene(gauge_, bitmaps_, zoom);
    scene.set(2, 3);
    scene.draw();
    const auto expected = [&](int x, int y) {
      for (const int left : {7 * zoom, 21 * zoom}) {
        const int ix = x - left, iy = y - 9 * zoom;
        const bool inside = std::min(ix, iy) >= 0 && std::max(ix, iy) < 4 * zoom;
        if (inside && holes(ix, iy)) return holes(ix, iy);
      }
      return noise(x, y);
    };
    for (int y = 0; y < 40 * zoom; ++y)
      for (int x = 0; x < 60 * zoom; ++x)
        ASSERT_EQ(scene.at(x, y), expected(x, y)) << zoom << ": " << x << ", " << y;
  }
}

TEST(WritePng, SaysThatItCannotWrite) {
  EXPECT_THROW(write_png(Canvas(3, 2), "/no/such/folder/x.png"), std::runtime_error);
}

}  // namespace
}  // namespace host
