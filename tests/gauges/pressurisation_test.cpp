/// Pressurisation: altitude and the selected cabin altitude in, pressures, labels and the warning out.
#include <gtest/gtest.h>

#include <cmath>

#include "module/tokens.h"
#include "tests/rig/rig.h"

namespace {

using namespace tarnvale;

class Pressurisation : public testing::Test {
 protected:
  rig::Host host;
  rig::Gauge pressure{"Diffpress"};
  rig::Gauge controller{"Cabalt"};

  void fly(f64 altitude_ft) { host.tokens[token::indicated_altitude] = altitude_ft; }
  f64 pressure_at(f64 altitude_ft) {
    fly(altitude_ft);
    pressure.frame();
    return pressure.value("differential_pressure");
  }

  void down(u32 flags = MOUSE_LEFT) { controller.click("cabin_altitude_knob_down", flags); }
  void up(u32 flags = MOUSE_LEFT) { controller.click("cabin_altitude_knob_up", flags); }
  void select(u32 feet) {
    for (int i = 0; i < 160; ++i) down();
    for (u32 at = 0; at < feet; at += 100) up();
  }
  f64 selected() {
    controller.frame();
    return controller.value("selected_cabin_altitude");
  }
  std::string warning() const { return controller.text("pressure_warning"); }
  std::string label() const { return controller.text("flight_altitude_label"); }

  /// " SSL " and no warning, as on the ground.
  void clear_texts() {
    fly(0);
    aircraft.cabin_diff_pressure = 67;
    controller.frame();
    ASSERT_EQ(label(), " SSL ");
    ASSERT_EQ(warning(), " ");
    aircraft.sound_requests[cabwarn_sound_request] = 0;
  }
};

TEST_F(Pressurisation, DifferentialPressureFollowsTheAltitudeInSteps) {
  // Just above each edge the next step, at the edge itself what was there before.
  const std::pair<f64, f64> steps[] = {{100, 22},   {3000, 24},  {4000, 27},  {6000, 30},  {8000, 36},
                                       {10000, 42}, {12000, 50}, {15500, 65}, {30000, 75}, {35000, 77},
                                       {36000, 80}, {37000, 84}, {38000, 100}};
  EXPECT_EQ(pressure_at(-500), 10);
  f64 below = 10;
  for (const auto& [edge, above] : steps) {
    EXPECT_EQ(pressure_at(edge - 1), below) << edge;
    EXPECT_EQ(pressure_at(edge), below) << "climbing into " << edge;
    EXPECT_EQ(pressure_at(edge + 1), above) << edge;
    EXPECT_EQ(pressure_at(edge), above) << "descending into " << edge;
    EXPECT_EQ(aircraft.cabin_diff_pressure, above);
    below = above;
  }
  struct Row {
    f64 altitude, pressure, needle;
  };
  for (const Row& row : {Row{12345, 50, 12345}, Row{1e9, 100, 50000}, Row{INFINITY, 100, 50000},
                         Row{-INFINITY, 10, 0}, Row{NAN, 10, 0}}) {
    EXPECT_EQ(pressure_at(row.altitude), row.pressure);
    EXPECT_EQ(pressure.value("aircraft_altitude"), row.needle) << "the altitude stays on its scale";
  }
}

TEST_F(Pressurisation, SelectionKnobStopsShortOfItsEnds) {
  struct Turn {
    u32 from;
    bool up;
    u32 button;
    f64 to;
  };
  for (const Turn& turn :
       {Turn{0, false, MOUSE_LEFT, 0}, Turn{100, false, MOUSE_RIGHT, 100},
        Turn{1000, false, MOUSE_RIGHT, 1000}, Turn{1100, false, MOUSE_RIGHT, 100},
        Turn{14000, true, MOUSE_RIGHT, 14000}, Turn{13900, true, MOUSE_RIGHT, 14900}}) {
    select(turn.from);
    turn.up ? up(turn.button) : down(turn.button);
    EXPECT_EQ(selected(), turn.to) << turn.from;
  }
  up();
  up();  // past the end between two frames
  EXPECT_EQ(selected(), 15000) << "the needle brings it back";
  up();
  up();
  EXPECT_EQ(selected(), 99) << "a further turn comes round";
}

TEST_F(Pressurisation, LabelSaysHowHighTheSelectionBears) {
  struct Row {
    u32 pressure;
    f64 altitude;
    u32 selected;
    const char* label;
  };
  const char* kept = " SSL ";
  const Row rows[] = {
      {50, 15500, 0, " SSL "},    {84, 9000, 9000, kept},     {84, 9000, 9100, " "},
      {65, 16000, 0, "20000"},    {65, 16000, 3600, "20000"}, {65, 16000, 3700, kept},
      {65, 16000, 3800, "25000"}, {65, 16000, 6400, kept},    {65, 16000, 6500, "30000"},
      {65, 16000, 9000, kept},    {65, 16000, 9100, kept},    {65, 22000, 3600, " "},
      {65, 22000, 3700, kept},    {65, 22000, 3800, "25000"}, {65, 25000, 0, "20000"},
      {65, 27000, 6300, " "},     {65, 27000, 6500, "30000"}, {65, 30000, 0, "20000"},
      {67, 22000, 0, kept},       {78, 22000, 0, kept},       {100, 40000, 9500, kept},
      {75, 18000, 2300, "20000"}, {75, 18000, 2400, "20000"}, {75, 18000, 2500, "25000"},
      {75, 18000, 4600, kept},    {75, 18000, 4700, "30000"}, {75, 18000, 7000, "35000"},
      {75, 18000, 9000, kept},    {75, 22000, 2300, " "},     {75, 22000, 2400, "20000"},
      {75, 28000, 4500, " "},     {75, 28000, 4600, kept},    {75, 32000, 6800, " "},
      {75, 32000, 7000, "35000"}, {75, 35500, 0, "20000"},
  };
  for (const Row& row : rows) {
    select(row.selected);
    clear_texts();
    fly(row.altitude);
    aircraft.cabin_diff_pressure = row.pressure;
    controller.frame();
    EXPECT_EQ(label(), row.label) << row.pressure << " at " << row.altitude << ", " << row.selected;
  }
  select(9100);
  clear_texts();
  aircraft.cabin_diff_pressure = 84;
  controller.frame();
  EXPECT_EQ(label(), " ");
  select(9000);
  aircraft.cabin_diff_pressure = 79;
  controller.frame();
  EXPECT_EQ(label(), " ") << "so high up nothing new is said near the ground";
}

TEST_F(Pressurisation, PressWarnsOfASelectionTooLowForTheAltitude) {
  struct Row {
    u32 pressure;
    f64 altitude;
    u32 selected;
    bool press;
  };
  const Row rows[] = {
      {65, 19000, 0, false},     {65, 20000, 0, false},    {65, 22000, 3000, true},
      {65, 22000, 3600, true},   {65, 22000, 3700, false}, {65, 25000, 0, false},
      {65, 27000, 6300, true},   {65, 27000, 6400, false}, {67, 40000, 15000, false},
      {78, 40000, 15000, false}, {79, 5000, 9100, true},   {100, 39000, 9500, true},
      {100, 39000, 9000, false}, {75, 22000, 2300, true},  {75, 22000, 2400, false},
      {75, 27000, 4500, true},   {75, 27000, 4600, false}, {75, 32000, 6800, true},
      {75, 32000, 6900, false},  {77, 35500, 0, false},    {77, 36000, 0, false},
      {77, 36001, 9000, true},   {75, 30000, 0, false},    {75, 19000, 0, false},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(testing::Message() << row.pressure << " at " << row.altitude << ", " << row.selected);
    select(row.selected);
    clear_texts();
    fly(row.altitude);
    aircraft.cabin_diff_pressure = row.pressure;
    for (int frame = 0; frame < 2; ++frame) {
      controller.frame();
      EXPECT_EQ(warning(), row.press ? "PRESS" : " ");
      EXPECT_EQ(rig::heard(cabwarn_sound_request), row.press) << "asked for on every frame";
    }
  }
}

TEST_F(Pressurisation, APressWarningEndsWithTheRightSelection) {
  select(3000);
  clear_texts();
  fly(22000);
  pressure.frame();
  controller.frame();
  EXPECT_EQ(warning(), "PRESS");
  EXPECT_EQ(label(), " ");
  up(MOUSE_RIGHT);
  controller.frame();
  EXPECT_EQ(warning(), " ");
  EXPECT_EQ(label(), "25000");
}

TEST_F(Pressurisation, PressureSettingFitsItsFourDigits) {
  struct Row {
    f64 altitude, setting;
    const char* text;
  };
  for (const Row& row : {Row{999.9, 1013, " QNH"}, Row{1000, 1013.9, "1013"}, Row{5000, 29, "0029"},
                         Row{5000, 9999.9, "9999"}, Row{5000, 123456, "9999"}, Row{5000, -7, "-007"},
                         Row{5000, -1e300, "-999"}, Row{5000, INFINITY, "9999"}, Row{5000, NAN, "0000"},
                         Row{NAN, 1013, " QNH"}, Row{INFINITY, 1013, "1013"}}) {
    fly(row.altitude);
    host.tokens[token::pressure_setting] = row.setting;
    controller.frame();
    EXPECT_EQ(controller.text("pressure_setting"), row.text) << row.setting << " at " << row.altitude;
  }
}

TEST_F(Pressurisation, ManualControlLightsAndCanBeTestedWhileItIsOn) {
  rig::Gauge button("Mancon");
  const auto light = [&](f64 seconds) {
    host.tokens[token::clock_seconds] = seconds;
    button.frame();
    return button.value("manual_control_button");
  };
  if (light(100) != 0) button.click("manual_control_button");
  button.right_click("manual_control_button");
  EXPECT_EQ(light(101), 0) << "switched off it stays dark";
  button.click("manual_control_button");
  EXPECT_EQ(light(102), 2) << "the test still runs";
  EXPECT_EQ(light(103), 1);
  button.right_click("manual_control_button");
  EXPECT_EQ(light(105.9), 2);
  EXPECT_EQ(light(106), 1);
  button.click("manual_control_button");
  EXPECT_EQ(light(106), 0);
}

TEST_F(Pressurisation, ADrivesLampFollowsItsSwitch) {
  rig::Gauge panel("Spdrive");
  for (const std::string drive : {"drive_a", "drive_b"}) {
    for (const char* control : {"_guard", "_switch", "_switch", "_switch", "_guard"}) {
      panel.click(drive + control);
      panel.frame(2);
      for (const std::string each : {"drive_a", "drive_b"}) {
        EXPECT_EQ(panel.value(each + "_lamp"), panel.value(each + "_switch")) << drive << control;
      }
    }
  }
}

}  // namespace
