#include "host/panel/pointer.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using namespace host;

// What the areas have been told: a letter for the area, the point on it and the bits that fired.
std::vector<std::string> calls;

template <char Name>
i32 answer(PanelPoint point, u32 flags) {
  std::string bits;
  for (const auto& [bit, text] :
       {std::pair{MOUSE_LEFT, "L"}, {MOUSE_RIGHT, "R"}, {MOUSE_REPEAT, "+"}, {MOUSE_DRAG, "~"}})
    if (flags & bit) bits += text;
  calls.push_back(std::string(1, Name) + " " + std::to_string(point.x) + "," + std::to_string(point.y) +
                  " " + bits);
  return 0;
}

MouseArea row_of(u32 kind, i32 x = 0, i32 y = 0, i32 width = 0, i32 height = 0) {
  MouseArea row{};
  row.kind = kind, row.cursor = CURSOR_ARROW;
  row.x = x, row.y = y, row.width = width, row.height = height;
  return row;
}

MouseArea group(i32 x, i32 y, i32 width, i32 height) {
  return row_of(MOUSE_GROUP, x, y, width, height);
}

MouseArea area(i32 x, i32 y, i32 width, i32 height, i32 cursor, u32 flags, MouseRoutine routine) {
  MouseArea row = row_of(MOUSE_CLICK_AREA, x, y, width, height);
  row.cursor = cursor, row.mouse_flags = flags, row.routine = routine;
  return row;
}

MouseArea tooltip(const char* text) {
  MouseArea row = row_of(MOUSE_TOOLTIP);
  row.tooltip = text;
  return row;
}

constexpr u32 knob = MOUSE_LEFT | MOUSE_RIGHT | MOUSE_REPEAT;

// A gauge with one control of every sort:
//   s  a switch with a guard g over its upper half     t  a test on the right button inside the switch
//   d u / e v  two knobs side by side, their halves 2 pixels apart
//   k  a knob that takes both buttons                  l  a lever that is dragged
//   h  a button inside two groups, with a tooltip, over a smaller one of the outer group
const std::vector<MouseArea> table = {
    group(0, 0, 0, 0),
    area(10, 10, 20, 40, CURSOR_HAND, MOUSE_LEFT, answer<'s'>),
    area(10, 10, 20, 15, CURSOR_HAND, MOUSE_LEFT, answer<'g'>),
    area(12, 30, 10, 10, CURSOR_HAND, MOUSE_RIGHT, answer<'t'>),
    area(50, 10, 20, 30, CURSOR_DECREASE, MOUSE_LEFT | MOUSE_REPEAT, answer<'d'>),
    area(72, 10, 20, 30, CURSOR_INCREASE, MOUSE_LEFT | MOUSE_REPEAT, answer<'u'>),
    area(110, 10, 20, 30, CURSOR_DECREASE, MOUSE_LEFT, answer<'e'>),
    area(132, 10, 20, 30, CURSOR_INCREASE, MOUSE_LEFT, answer<'v'>),
    area(10, 60, 15, 15, CURSOR_HAND, knob, answer<'k'>),
    area(40, 60, 20, 100, CURSOR_HAND, MOUSE_LEFT | MOUSE_DRAG, answer<'l'>),
    group(100, 60, 60, 60),
    tooltip("Outer"),
    area(15, 25, 5, 5, CURSOR_HAND, MOUSE_LEFT, answer<'o'>),
    group(10, 20, 20, 20),
    tooltip("Set the height"),
    area(0, 0, 20, 20, CURSOR_HAND, MOUSE_LEFT, answer<'h'>),
    row_of(MOUSE_GROUP_END),
    row_of(MOUSE_GROUP_END),
    row_of(MOUSE_GROUP_END),
    row_of(MOUSE_END),
};

class OnAGauge : public testing::Test {
 protected:
  void SetUp() override { calls.clear(); }

  std::string click(i32 x, i32 y, u32 button) {
    calls.clear();
    pointer.press(areas, {x, y}, button, 0);
    pointer.release();
    return calls.empty() ? "" : calls.back();
  }

  HotAreas areas{table.data()};
  Pointer pointer;
};

TEST_F(OnAGauge, AClickGoesToTheInnermostAreaThatAnswersIt) {
  const std::tuple<i32, i32, u32, const char*> cases[] = {
      {10, 49, MOUSE_LEFT, "s 0,39 L"},   // the last row of the switch
      {10, 50, MOUSE_LEFT, ""},           // one row below it
      {29, 24, MOUSE_LEFT, "g 19,14 L"},  // the guard lies over the switch
      {9, 20, MOUSE_LEFT, ""},            // one column to the left
      {15, 35, MOUSE_LEFT, "s 5,25 L"},   // the test answers only the right button
      {15, 35, MOUSE_RIGHT, "t 3,5 R"},
      {15, 15, MOUSE_RIGHT, ""},         // neither guard nor switch answers it
      {115, 85, MOUSE_LEFT, "h 5,5 L"},  // 100 + 10 and 60 + 20: positions add up
      {105, 65, MOUSE_LEFT, ""},         // a group alone answers nothing
  };
  for (const auto& [x, y, button, call] : cases) EXPECT_EQ(click(x, y, button), call) << x << "," << y;
}

TEST_F(OnAGauge, AHeldKnobRepeatsUntilItIsReleasedOrLeft) {
  pointer.press(areas, {60, 20}, MOUSE_LEFT, 10.0);
  pointer.tick(10.39);
  EXPECT_EQ(calls.size(), 1u) << "no repeat before the delay";
  pointer.tick(10.41);
  pointer.tick(10.45);
  pointer.tick(10.52);
  EXPECT_EQ(calls, (std::vector<std::string>{"d 10,10 L", "d 10,10 L+", "d 10,10 L+"}));
  pointer.move({80, 20});
  pointer.tick(11.0);
  EXPECT_EQ(calls.size(), 3u) << "it does not turn while the pointer is beside it";
  pointer.move({61, 21});
  pointer.tick(11.2);
  EXPECT_EQ(calls.back(), "d 11,11 L+");
  pointer.release();
  pointer.tick(20);
  EXPECT_EQ(calls.size(), 4u);
}

TEST_F(OnAGauge, ARepeatKeepsItsButtonAndASwitchDoesNotRepeat) {
  pointer.press(areas, {12, 62}, MOUSE_RIGHT, 0);
  pointer.tick(0.5);
  pointer.press(areas, {15, 45}, MOUSE_LEFT, 1);
  pointer.tick(6);
  EXPECT_EQ(calls, (std::vector<std::string>{"k 2,2 R", "k 2,2 R+", "s 5,35 L"}));
}

TEST_F(OnAGauge, ALeverFollowsThePointerBeyondItsArea) {
  pointer.press(areas, {50, 100}, MOUSE_LEFT, 0);
  pointer.move({50, 100});
  pointer.move({52, 130});
  pointer.move({300, -20});
  pointer.release();
  pointer.move({50, 90});
  EXPECT_EQ(calls, (std::vector<std::string>{"l 10,40 L", "l 12,70 L~", "l 260,-80 L~"}));
}

TEST_F(OnAGauge, TheWheelTurnsKnobsAndNeverASwitch) {
  // With what every notch is answered.
  const std::tuple<const char*, i32, i32, int, std::string> cases[] = {
      {"decreasing half", 55, 20, 1, "u 10,15 L"},
      {"increasing half", 80, 20, 2, "u 10,15 L"},
      {"between the halves", 71, 20, -3, "d 10,15 L"},
      {"the nearer half is the partner", 115, 20, 1, "v 10,15 L"},
      {"between two knobs", 100, 20, 1, ""},
      {"a knob for both buttons", 12, 62, 1, "k 7,7 L"},
      {"the same back", 12, 62, -1, "k 7,7 R"},
      {"switch", 15, 45, -1, ""},
      {"lever", 50, 100, 1, ""},
      {"no notch", 55, 20, 0, ""},
  };
  for (const auto& [where, x, y, notches, call] : cases) {
    calls.clear();
    const bool worked = Pointer::wheel(areas, {x, y}, notches);
    const std::size_t times = call.empty() ? 0 : static_cast<std::size_t>(std::abs(notches));
    EXPECT_EQ(calls, std::vector<std::string>(times, call)) << where;
    EXPECT_EQ(worked, times > 0);
  }
}

TEST_F(OnAGauge, TheNearerHalfOfALeverTakesAClickBetweenThem) {
  const std::vector<MouseArea> rows = {area(10, 10, 20, 20, CURSOR_INCREASE, MOUSE_LEFT, answer<'u'>),
                                       area(12, 44, 20, 20, CURSOR_DECREASE, MOUSE_LEFT, answer<'d'>),
                                       area(10, 34, 4, 4, CURSOR_HAND, MOUSE_LEFT, answer<'b'>),
                                       row_of(MOUSE_END)};
  HotAreas lever(rows.data());
  EXPECT_EQ(lever.at({20, 36}, MOUSE_LEFT), nullptr) << "nobody says that they belong together";
  EXPECT_FALSE(lever.wheel({20, 20}, true)) << "its ends stand apart";
  lever.join({0, 1});
  const std::tuple<i32, i32, u32, const char*> cases[] = {
      {20, 36, MOUSE_LEFT, "u 10,19 L"}, {20, 37, MOUSE_LEFT, "d 8,0 L"},
      {31, 12, MOUSE_LEFT, "u 19,2 L"},  {12, 36, MOUSE_LEFT, "b 2,2 L"},
      {20, 36, MOUSE_RIGHT, nullptr},    {20, 64, MOUSE_LEFT, nullptr},
  };
  for (const auto& [x, y, button, call] : cases) {
    calls.clear();
    pointer.press(lever, {x, y}, button, 0);
    EXPECT_EQ(calls, call ? std::vector<std::string>{call} : std::vector<std::string>{})
        << x << "," << y;
    pointer.release();
  }
}

TEST_F(OnAGauge, TooltipsBelongToTheirGroups) {
  EXPECT_EQ(areas.tooltip({115, 85}), "Set the height");
  EXPECT_EQ(areas.tooltip({105, 65}), "Outer");
  EXPECT_EQ(areas.tooltip({15, 15}), "");
  MouseArea whole = group(0, 0, 0, 0);
  whole.help_id = 0xAB77;
  const std::vector<MouseArea> helped = {whole, row_of(MOUSE_GROUP_END), row_of(MOUSE_END)};
  EXPECT_EQ(HotAreas(helped.data()).tooltip({15, 15}), "Standby Compass");
}

TEST(HotAreas, TakeExtremeRecords) {
  constexpr i32 most = 2147483647;
  const std::vector<MouseArea> rows = {group(most, most, most, most),
                                       area(most, most, most, most, CURSOR_HAND, MOUSE_LEFT, nullptr),
                                       area(-most, -most, -1, -1, CURSOR_INCREASE, MOUSE_LEFT, nullptr),
                                       row_of(MOUSE_GROUP_END),
                                       row_of(MOUSE_GROUP_END),
                                       row_of(MOUSE_END)};
  const HotAreas areas(rows.data());
  EXPECT_EQ(areas.at({0, 0}, MOUSE_LEFT), nullptr);
  EXPECT_EQ(areas.at({most, most}, MOUSE_LEFT), nullptr);
  EXPECT_FALSE(areas.wheel({0, 0}, true));
  EXPECT_TRUE(HotAreas(nullptr).areas().empty());
}

}  // namespace
