// What a captain sees, at the places where a pilot would look.
#include <gtest/gtest.h>

#include <algorithm>

#include "host/drawing/pixels.h"
#include "host/outside/camera.h"
#include "host/outside/outside_view.h"

namespace host::outside {
namespace {

constexpr int width = 480, height = 120;

/// On the runway's axis or beside it, nose in its direction.
Sight sight_at(double along_m, double right_m, double height_m, double pitch_deg = 0.0,
               double bank_deg = 0.0, double hours = 12.0) {
  Sight sight;
  sight.eye_m = simulation::on_runway_axes(along_m, right_m);
  sight.eye_m.z -= height_m;
  constexpr double radians = simulation::radians_per_degree;
  sight.attitude = {bank_deg * radians, pitch_deg * radians, simulation::runway_true_deg * radians};
  sight.time_of_day_s = hours * 3600.0;
  return sight;
}

struct Seen {
  int red, green, blue;
  int sum() const { return red + green + blue; }
  bool is_sky() const { return blue > red && blue > green; }
  bool is_grass() const { return green > red && green > blue + 20; }
  bool is_pavement() const {
    return std::abs(red - green) < 12 && std::abs(green - blue) < 12 && sum() < 330;
  }
};

class View {
 public:
  explicit View(const Sight& sight) : camera_(sight, width, height), canvas_(width, height) {
    OutsideView().draw(canvas_, {0, 0, width, height}, sight);
  }

  Seen at(int x, int y) const {
    const std::uint32_t pixel = canvas_.pixels.at(static_cast<std::size_t>(y * width + x));
    return {static_cast<int>(pixel >> 16 & 255), static_cast<int>(pixel >> 8 & 255),
            static_cast<int>(pixel & 255)};
  }

  /// What stands at a place on the ground of the airfield.
  Seen at_place(double along_m, double right_m) const {
    const Vector there = camera_.in_camera(simulation::on_runway_axes(along_m, right_m));
    const PicturePoint point = camera_.project(there);
    return at(static_cast<int>(point.x), static_cast<int>(point.y));
  }

  const Canvas& canvas() const { return canvas_; }

 private:
  Camera camera_;
  Canvas canvas_;
};

TEST(Outside, TheRunwayLiesWhereItIs) {
  const View view(sight_at(-1900, 0, 60, -3));
  EXPECT_TRUE(view.at_place(-1460, 8).is_pavement());
  EXPECT_TRUE(view.at_place(-1300, -15).is_pavement());
  EXPECT_TRUE(view.at_place(-1400, 45).is_grass());
  EXPECT_TRUE(view.at_place(-1400, -60).is_grass());
  EXPECT_GT(view.at_place(-1480, 2.7).sum(), view.at_place(-1455, 2.7).sum() + 150)
      << "a threshold stripe";
  EXPECT_TRUE(view.at(width / 2, 2).is_sky());
}

TEST(Outside, TheHorizonTurnsWithTheAircraft) {
  const int left = width / 4, right = width - left, middle = height * 31 / 100;
  const struct {
    const char* what;
    double pitch_deg, bank_deg;
    bool sky_left,
        sky_right;  // at the height of the line of flight, or 25 pixels above where it is level
  } cases[] = {{"banked right", 0, 40, true, false},  {"banked left", 0, -40, false, true},
               {"upside down", 0, 180, false, false}, {"level", 0, 0, true, true},
               {"straight up", 90, 0, true, true},    {"straight down", -90, 0, false, false}};
  for (const auto& [what, pitch, bank, sky_left, sky_right] : cases) {
    const View view(sight_at(0, -3000, 600, pitch, bank));
    EXPECT_EQ(view.at(left, middle - 25).is_sky(), sky_left) << what;
    EXPECT_EQ(view.at(right, middle - 25).is_sky(), sky_right) << what;
  }
}

TEST(Outside, NightFallsAndTheRunwayIsSeenByItsLights) {
  const auto brightness = [](const View& view) {
    long sum = 0;
    for (int y = 0; y < height; ++y)
      for (int x = 0; x < width; ++x) sum += view.at(x, y).sum();
    return sum / (width * height);
  };
  const View noon(sight_at(-3000, 0, 80)), dusk(sight_at(-3000, 0, 80, 0, 0, 19.3)),
      night(sight_at(-3000, 0, 80, 0, 0, 23));
  EXPECT_LT(brightness(dusk), brightness(noon) * 3 / 4);
  EXPECT_LT(brightness(night), brightness(noon) / 6);
  EXPECT_GT(night.at_place(-1530, 0).sum(), 300) << "the approach lights";
}

TEST(Outside, TheSameSightGivesTheSamePictureWhateverWasDrawnBefore) {
  const Sight sight = sight_at(-3000, 200, 150, 2, 12, 19.0);
  OutsideView used;
  Canvas canvas(width + 20, height + 10);
  used.draw(canvas, {3, 5, 300, 80}, sight_at(0, 0, 3.5, -20, 77));
  used.draw(canvas, {13, 7, width, height}, sight);
  const View fresh(sight);
  for (int y = 0; y < height; ++y)
    ASSERT_TRUE(std::equal(&fresh.canvas().pixels[std::size_t(y) * width],
                           &fresh.canvas().pixels[std::size_t(y) * width] + width,
                           &canvas.pixels[std::size_t(y + 7) * (width + 20) + 13]))
        << "row " << y;
}

// An aircraft at rest is not looked out of sixty times a second.
TEST(Outside, LooksTheSameUntilSomethingHasMovedOrFlashed) {
  const auto alike = [](double along_m, auto change) {
    const Sight before = sight_at(along_m, 0, 4);
    Sight after = before;
    change(after);
    return look_alike(before, after);
  };
  const auto wait = [](double seconds) {
    return [=](Sight& sight) { sight.time_of_day_s += seconds; };
  };
  EXPECT_TRUE(alike(100, wait(1)));
  EXPECT_FALSE(alike(100, wait(10))) << "the sun goes on";
  EXPECT_TRUE(alike(-3000, wait(0.01)));
  EXPECT_FALSE(alike(-3000, wait(0.05))) << "the approach lights flash";
  EXPECT_TRUE(alike(100, [](Sight& sight) { sight.eye_m.x += 0.001; }));
  EXPECT_FALSE(alike(100, [](Sight& sight) { sight.eye_m.x += 0.01; }));
  EXPECT_FALSE(alike(100, [](Sight& sight) { sight.attitude.pitch_rad += 1e-4; }));
  EXPECT_FALSE(alike(100, [](Sight& sight) { sight.look.right_deg = 5; }));
  EXPECT_FALSE(alike(100, [](Sight& sight) { sight.landing_lights = true; }));
  EXPECT_FALSE(alike(100, [](Sight& sight) { sight.eye_m.x = std::nan(""); }));
}

TEST(Outside, DrawsFromAnywhereAndInAnySize) {
  OutsideView view;
  for (const double height_m : {-50.0, 0.0, 1.0, 20000.0})
    for (const double far_m : {0.0, 3e5})
      for (const auto& [columns, rows] : {std::pair{1, 1}, {15, 3}, {17, 200}, {900, 33}}) {
        Canvas canvas(columns, rows);
        for (const double pitch : {-89.0, -7.0, 0.0, 35.0})
          view.draw(canvas, whole_of(canvas),
                    sight_at(far_m, far_m, height_m, pitch, pitch * 3, pitch + 12));
      }
  Canvas canvas(2, 2);
  for (const double nowhere : {std::nan(""), 1e300, -HUGE_VAL}) {
    canvas.pixels.assign(4, 0xFFFFFFFFu);
    view.draw(canvas, whole_of(canvas), sight_at(nowhere, 0, 100));
    EXPECT_EQ(canvas.pixels, std::vector<std::uint32_t>(4, 0xFF000000u));
    view.draw(canvas, whole_of(canvas), sight_at(0, 0, 100, nowhere));
  }
}

}  // namespace
}  // namespace host::outside
