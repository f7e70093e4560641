/// Where needles point and boxes lie, on every gauge.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <set>
#include <span>

#include "tests/module/sides.h"
#include "tests/module/walk.h"

namespace {

using rig::NamedArea;
using rig::NamedPart;

/// From a needle's pivot to a point of its table: degrees clockwise, and pixels.
struct Direction {
  f64 degrees, distance;
};

Direction direction(const Element& needle, const NonlinearityPoint& to) {
  const f64 x = to.point.x - needle.position.x, y = to.point.y - needle.position.y;
  return {std::atan2(y, x) * 180 / std::numbers::pi, std::hypot(x, y)};
}

/// From one direction to another, clockwise, 0 to 360.
f64 clockwise(f64 from, f64 to) { return to >= from ? to - from : to - from + 360; }

std::span<const NonlinearityPoint> table_of(const Element& needle) {
  return {needle.needle.table, needle.needle.table_length};
}

/// Calls `check` for every needle that has a table, with its gauge.
template <typename Check>
void for_each_needle(Check check) {
  for (const rig::Gauge& gauge : rig::built_gauges()) {
    for (const NamedPart& part : gauge.parts()) {
      if (part.element->kind != ELEMENT_NEEDLE || part.element->needle.table == nullptr) continue;
      SCOPED_TRACE(std::string(gauge.header().name) + ' ' + part.name);
      check(gauge, part);
    }
  }
}

TEST(Needles, TurnOnceAtMostOverAnAscendingScale) {
  for_each_needle([](const rig::Gauge&, const NamedPart& part) {
    const auto table = table_of(*part.element);
    f64 sweep = 0;
    for (std::size_t i = 1; i < table.size(); ++i) {
      EXPECT_GT(table[i].value, table[i - 1].value) << "point " << i;
      const f64 from = direction(*part.element, table[i - 1]).degrees;
      sweep += clockwise(from, direction(*part.element, table[i]).degrees);
    }
    const int turns = part.name == "hours_hand" ? 2 : 1;  // of a day
    if (part.element->needle.turn == TURN_CLOCKWISE) {
      EXPECT_LE(sweep, 360 * turns);
    }
  });
}

/// The points of a scale are taken from its picture by eye, but they lie on one arc.
TEST(Needles, PointAlongOneArc) {
  for_each_needle([](const rig::Gauge&, const NamedPart& part) {
    f64 nearest = 1e9, farthest = 0;
    for (const NonlinearityPoint& point : table_of(*part.element)) {
      nearest = std::min(nearest, direction(*part.element, point).distance);
      farthest = std::max(farthest, direction(*part.element, point).distance);
    }
    // The altitude bug's own calibration leaves the arc between 300 and 700 feet, the third code knob's
    // at 3.
    const f64 spread = part.name == "altitude_bug"      ? 1.55
                       : part.name == "third_code_knob" ? 1.35
                                                        : 1.26;
    EXPECT_LE(farthest, nearest * spread);
  });
}

/// Two meters of one kind beside each other have the same scale.
TEST(Needles, OfAPairHaveOneScale) {
  for_each_needle([](const rig::Gauge& gauge, const NamedPart& part) {
    for (const NamedPart& other : gauge.parts()) {
      if (sides::mirrored(part.name) != other.name) continue;
      const auto table = table_of(*part.element), others = table_of(*other.element);
      ASSERT_EQ(table.size(), others.size());
      for (std::size_t i = 0; i < table.size(); ++i) {
        EXPECT_EQ(table[i].value, others[i].value);
        f64 opposite = direction(*other.element, others[i]).degrees;
        // Meters that look at each other run against each other.
        if (part.element->needle.turn != other.element->needle.turn) opposite = 180 - opposite;
        const f64 turned =
            std::fmod(clockwise(direction(*part.element, table[i]).degrees, opposite), 360);
        EXPECT_LE(std::min(turned, 360 - turned), 4) << "at " << table[i].value;
      }
    }
  });
}

bool apart(const NamedArea& a, const NamedArea& b) {
  return a.corner.x + a.area->width <= b.corner.x || b.corner.x + b.area->width <= a.corner.x ||
         a.corner.y + a.area->height <= b.corner.y || b.corner.y + b.area->height <= a.corner.y;
}

/// The flap lever's lower box reaches a little over the switch beside it, which is the smaller and so
/// answers.
bool meets_its_neighbour(const NamedArea& a, const NamedArea& b) {
  return a.name == "flap_lever_down" && b.name.starts_with("auxiliary_switch");
}

TEST(Boxes, DoNotOverlapAndLieOnThePlate) {
  for (const rig::Gauge& gauge : rig::built_gauges()) {
    for (const NamedArea& area : gauge.areas()) {
      SCOPED_TRACE(std::string(gauge.header().name) + ' ' + area.name);
      EXPECT_GE(std::min({area.corner.x, area.corner.y, area.area->width - 10, area.area->height - 10}),
                0);
      EXPECT_LE(area.corner.x + area.area->width, static_cast<i32>(gauge.header().width_mm));
      for (const NamedArea& other : gauge.areas()) {
        if (other.index > area.index && !meets_its_neighbour(area, other)) {
          EXPECT_TRUE(apart(area, other)) << other.name;
        }
      }
    }
  }
}

/// How far a point lies outside a box.
i32 outside(const NamedArea& area, PanelPoint at) {
  const i32 across = std::max({area.corner.x - at.x, at.x - area.corner.x - area.area->width + 1, 0});
  const i32 down = std::max({area.corner.y - at.y, at.y - area.corner.y - area.area->height + 1, 0});
  return std::max(across, down);
}

/// A picture begins in its control's box or close by; a lever under its guard or between its halves may
/// begin a little farther off, and one that swings through a long slot far off, but no other control
/// begins in the box.
TEST(Boxes, LieOnTheirControls) {
  constexpr i32 near = 8, near_its_halves = 40, near_its_slot = 120;
  const std::set<std::string> in_slots{"throttle_1_lever", "throttle_2_lever", "flap_lever",
                                       "speed_brake_switch"};
  for (const rig::Gauge& gauge : rig::built_gauges()) {
    for (const NamedArea& area : gauge.areas()) {
      const NamedPart* own = walk::part_of(gauge, area.name);
      if (own == nullptr || own->element->kind != ELEMENT_ICON) continue;
      if (own->name == "gear_handle") continue;  // its picture is the whole gate
      SCOPED_TRACE(std::string(gauge.header().name) + ' ' + area.name);
      const PanelPoint at = own->element->position;
      i32 alone = near;
      for (const NamedArea& other : gauge.areas()) {
        const NamedPart* part = walk::part_of(gauge, other.name);
        if (part == nullptr || other.index == area.index) continue;
        const PanelPoint there = part->element->position;
        if (there.x == at.x && there.y == at.y) {
          alone = near_its_halves;
        } else if (!in_slots.contains(part->name) && !meets_its_neighbour(area, other)) {
          EXPECT_GT(outside(area, there), 0) << part->name << " begins in it";
        }
      }
      if (in_slots.contains(own->name)) alone = near_its_slot;
      EXPECT_LE(outside(area, at), alone);
    }
  }
}

}  // namespace
