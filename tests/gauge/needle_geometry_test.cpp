#include "host/gauge/needle_geometry.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace host {
namespace {

constexpr double nan_value = std::numeric_limits<double>::quiet_NaN();
constexpr double infinite = std::numeric_limits<double>::infinity();
constexpr double huge = std::numeric_limits<double>::max();

// Places about a pivot at (20, 20).
constexpr PanelPoint right{40, 20}, down{20, 40}, left{0, 20}, up{20, 0}, pivot{20, 20};
constexpr PanelPoint left_down{10, 30}, right_down{30, 30}, left_up{10, 10}, right_up{30, 10};

NeedleScale scale_of(const std::vector<NonlinearityPoint>& table, u32 turn = TURN_CLOCKWISE,
                     PanelPoint at = pivot) {
  Element element{};
  element.position = at;
  element.needle.table = table.data();
  element.needle.table_length = static_cast<u32>(table.size());
  element.needle.turn = turn;
  return needle_scale(element);
}

using Readings = std::vector<std::pair<double, double>>;  // values with their degrees

void expect_readings(const char* what, u32 turn, const std::vector<NonlinearityPoint>& table,
                     const Readings& readings) {
  const NeedleScale scale = scale_of(table, turn);
  for (const auto& [value, degrees] : readings)
    EXPECT_NEAR(needle_angle(scale, value), degrees, 1e-6) << what << ", " << value;
  EXPECT_TRUE(std::isnan(needle_angle(scale, nan_value))) << what;
}

TEST(NeedleGeometry, PointsWhereTheTableSays) {
  constexpr u32 clockwise = TURN_CLOCKWISE, shorter = TURN_SHORTER_WAY;
  expect_readings("holds beyond its ends", clockwise, {{down, 0}, {left, 10}, {up, 30}, {right, 40}},
                  {{5, 135}, {20, 225}, {40, 360}, {infinite, 360}, {-99, 90}});
  expect_readings("more than one turn", clockwise, {{right_down, 0}, {up, 50}, {left_down, 100}},
                  {{25, 157.5}, {50, 270}, {100, 495}});
  expect_readings("counterclockwise over the top", shorter,
                  {{right_down, 0}, {up, 50}, {left_down, 100}}, {{0, 45}, {25, -22.5}, {100, -225}});
  expect_readings("half a turn is clockwise", shorter, {{down, 0}, {up, 10}, {down, 20}},
                  {{5, 180}, {15, 360}});
  expect_readings("in ascending order", clockwise, {{up, 10}, {left, 0}, {right, 20}},
                  {{0, 180}, {5, 225}, {20, 360}});
  expect_readings("a jump", clockwise, {{left, 0}, {up, 10}, {right, 10}, {down, 20}},
                  {{9.999999999, 270}, {10, 360}, {15, 405}});
  expect_readings("points that say nothing", clockwise,
                  {{pivot, -5}, {left, 0}, {pivot, 1}, {down, nan_value}, {up, infinite}, {up, 10}},
                  {{-5, 180}, {1, 189}, {10, 270}});
  expect_readings("only such points", clockwise, {{pivot, 3}}, {{3, 0}, {99, 0}});
  expect_readings("the widest of ranges", clockwise, {{left, -huge}, {up, huge}},
                  {{-huge, 180}, {0, 225}, {huge, 270}});
  expect_readings("no table: the value is the angle", clockwise, {}, {{33.5, 33.5}, {-720, -720}});
  EXPECT_TRUE(std::isnan(needle_angle({}, infinite)));
}

TEST(NeedleGeometry, SmallStepsBackGoBackAndNotRound) {
  // Nine-degree steps, of which rounding to pixels turns one back a little.
  const NeedleScale scale =
      scale_of({{{200, 0}, 0}, {{231, 2}, 1}, {{230, 2}, 2}, {{262, 10}, 3}, {{291, 22}, 4}},
               TURN_SHORTER_WAY, {200, 200});
  EXPECT_NEAR(needle_angle(scale, 4) - needle_angle(scale, 0), 27, 1);
  EXPECT_LT(needle_angle(scale, 2), needle_angle(scale, 1));
}

TEST(NeedleGeometry, GoesSmoothlyFromFrameToFrame) {
  const NeedleScale clock =
      scale_of({{up, 0}, {right, 15}, {down, 30}, {left, 45}, {{21, 0}, 60}});  // closed to 3 degrees
  const NeedleScale two_turns = scale_of({{up, 0}, {down, 1}, {up, 2}, {down, 3}, {up, 4}});
  const NeedleScale open =
      scale_of({{left_down, 0}, {left_up, 50}, {right_up, 100}, {right_down, 150}});
  const NeedleScale backwards =
      scale_of({{up, 0}, {left, 15}, {down, 30}, {right, 45}, {up, 60}}, TURN_SHORTER_WAY);
  const std::tuple<const char*, NeedleScale, double, double, double, double> steps[] = {
      {"a clock passes over its join", clock, 57.5, 2.5, 0.5, -90},
      {"a clock that runs backwards", backwards, 57.5, 2.5, 0.5, -90},
      {"half of two turns stays a turn", two_turns, 0.5, 2, 0.5, 135},
      {"never through the gap", open, 0, 150, 0.5, -90},
      {"without a table the short way", {}, 350, 10, 0.5, 0},
      {"nothing to come from", clock, nan_value, 15, 0.5, 0},
      {"an infinite value stands at the end", open, infinite, 150, 0.5, 45},
  };
  for (const auto& [what, scale, before, now, blend, degrees] : steps) {
    const double angle = needle_angle_between(scale, before, now, blend);
    EXPECT_NEAR(std::remainder(angle - degrees, 360), 0, 2) << what;
  }
  EXPECT_TRUE(std::isnan(needle_angle_between(clock, 15, nan_value, 0.5)));
}

}  // namespace
}  // namespace host
