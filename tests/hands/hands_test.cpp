// What held and pressed keys make of the controls.
#include "host/hands/hands.h"

#include <gtest/gtest.h>

namespace host {
namespace {

constexpr double frame_s = 1.0 / 18;

std::size_t action(std::string_view name) {
  const auto found = std::ranges::find(action_table(), name, &ActionRow::name);
  EXPECT_NE(found, action_table().end()) << name;
  return static_cast<std::size_t>(found - action_table().begin());
}

/// A person at an aircraft's controls.
struct Pilot {
  Hands hands;
  simulation::FlightControls controls;

  FlightInputs frames(int count = 1) {
    FlightInputs last;
    for (int i = 0; i < count; ++i) {
      last = hands.frame(frame_s, controls);
      apply(last, controls);
    }
    return last;
  }
  void tap(std::string_view name) {
    hands.press(action(name));
    hands.release(action(name));
    frames();
  }
};

TEST(Hands, AHeldKeyMovesTheStickSmoothlyAndLetsItSpringBack) {
  Pilot pilot;
  pilot.hands.press(action("stick_left"));
  pilot.frames();
  EXPECT_LT(pilot.controls.aileron, 0.0);
  EXPECT_GT(pilot.controls.aileron, -0.06) << "a tap is a small correction";
  pilot.frames(5);
  const double before = pilot.controls.aileron;
  pilot.frames();
  EXPECT_LT(pilot.controls.aileron - before, -0.05) << "held, it quickens";
  pilot.frames(20);
  EXPECT_EQ(pilot.controls.aileron, -1.0);
  pilot.hands.release(action("stick_left"));
  pilot.frames(3);
  EXPECT_GT(pilot.controls.aileron, -0.6);
  pilot.frames(10);
  EXPECT_EQ(pilot.controls.aileron, 0.0);
  pilot.controls.aileron = 0.3;  // somebody else flies
  EXPECT_TRUE(pilot.frames(5).empty()) << "hands that are off move nothing";
  EXPECT_EQ(pilot.controls.aileron, 0.3);
}

TEST(Hands, TwoKeysForOneActionAreHeldUntilBothAreLetGo) {
  Pilot pilot;
  for (int i = 0; i < 2; ++i) pilot.hands.press(action("brakes"));
  pilot.frames(20);
  pilot.hands.release(action("brakes"));
  pilot.frames(5);
  EXPECT_EQ(pilot.controls.brake, (std::array{1.0, 1.0}));
  pilot.hands.release_all();
  pilot.frames(10);
  EXPECT_EQ(pilot.controls.brake, (std::array{0.0, 0.0}));
}

TEST(Hands, LeversStayWhereTheyAreLeft) {
  Pilot pilot;
  pilot.hands.press(action("throttle_up"));
  pilot.frames(18);
  pilot.hands.release(action("throttle_up"));
  pilot.frames(18);
  EXPECT_NEAR(pilot.controls.throttle[0], 0.35, 0.02);
  EXPECT_EQ(pilot.controls.throttle[0], pilot.controls.throttle[1]);
  pilot.tap("throttle_full");
  EXPECT_EQ(pilot.controls.throttle[1], 1.0);
  for (int i = 0; i < 7; ++i) pilot.tap("flaps_down");
  EXPECT_EQ(pilot.controls.flap_detent, 5u);
  pilot.tap("flaps_up");
  EXPECT_EQ(pilot.controls.flap_detent, 4u);
  pilot.tap("gear");
  EXPECT_FALSE(pilot.controls.gear_down);
  pilot.tap("parking_brake");
  EXPECT_TRUE(pilot.controls.parking_brake_set);
}

TEST(Hands, AnAxisMovesItsControlsOnceAndAKeyTakesOver) {
  Pilot pilot;
  pilot.hands.move(Control::elevator, 0.5);
  EXPECT_EQ(pilot.frames().get(Control::elevator), 0.5);
  EXPECT_TRUE(pilot.frames().empty()) << "it rests";
  pilot.hands.press(action("stick_forward"));
  pilot.frames(2);
  EXPECT_LT(pilot.controls.elevator, 0.5);
  pilot.hands.move(Control::elevator, std::nan(""));
  pilot.frames(30);
  EXPECT_EQ(pilot.controls.elevator, -1.0);
}

TEST(FlightInputs, MovesEachControlAndNoOther) {
  for (std::size_t i = 0; i < control_count; ++i) {
    const ControlRow& row = row_of(static_cast<Control>(i));
    EXPECT_EQ(row.control, static_cast<Control>(i)) << row.name;
    for (const double position : {row.most, row.least}) {
      simulation::FlightControls controls;
      FlightInputs inputs;
      inputs.set(row.control, position * 3.0);  // no further than it goes
      apply(inputs, controls);
      for (std::size_t j = 0; j < control_count; ++j) {
        const Control other = static_cast<Control>(j);
        EXPECT_EQ(position_of(controls, other),
                  other == row.control ? position : position_of({}, other))
            << row.name << " moves " << row_of(other).name;
      }
    }
  }
}

}  // namespace
}  // namespace host
