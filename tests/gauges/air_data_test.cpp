/// Altimeter, airspeed, vertical speed and the small instruments, with the calls that they make.
#include <gtest/gtest.h>

#include "module/tokens.h"
#include "tests/rig/rig.h"

namespace {

using namespace tarnvale;

class AirData : public testing::Test {
 protected:
  rig::Host host;
  rig::Gauge altimeter{"Altimeter"}, airspeed{"Airspeed"};
};

TEST_F(AirData, DrumsAndPointerReadTheAltitude) {
  host.tokens[token::indicated_altitude] = 12345;
  altimeter.expect({{"ten_thousands_of_feet", 1},
                    {"thousands_of_feet", 2},
                    {"hundreds_of_feet", 345},
                    {"feet", 45},
                    {"pointer", 3.45},
                    {"below_sea_level_flag", 0},
                    {"power_flag", 0}});
  host.tokens = {{token::indicated_altitude, -1}, {token::battery, 1}};
  altimeter.expect({{"below_sea_level_flag", 1}, {"power_flag", 1}});
}

TEST_F(AirData, ThePressureSettingIsShownTwice) {
  using Row = std::tuple<f64, f64, f64, f64>;
  for (const auto& [hpa, thousands, tens, units] :
       {Row{1013.25, 1, 13.25, 3.25}, Row{999, 0, 99, 9}, Row{999.5, 1, 99.5, 9.5}, Row{900, 0, 48, 8},
        Row{1100, 1, 84, 4}}) {
    host.tokens[token::pressure_setting] = hpa;
    altimeter.expect({{"thousands_of_the_hectopascals", thousands},
                      {"tens_of_the_hectopascals", tens},
                      {"units_of_the_hectopascals", units}});
  }
  const std::tuple<f64, f64, f64> settings[] = {{27.5, 0, 99}, {28.5, 1, 50}, {29.92, 2, 92},
                                                {30.5, 3, 50}, {31.5, 4, 50}, {32.5, 5, 1}};
  for (const auto& [inches, image, hundredths] : settings) {
    host.tokens[token::pressure_setting_inches] = inches;
    altimeter.expect(
        {{"inches_of_the_pressure_setting", image}, {"hundredths_of_the_inches", hundredths}});
  }
}

TEST_F(AirData, TheAltitudeBugStaysOnItsScale) {
  const auto turned = [&](const char* knob, int times) {
    for (int i = 0; i < times; ++i) altimeter.click(knob);
    altimeter.frame();
    return altimeter.value("altitude_bug");
  };
  EXPECT_EQ(turned("altitude_bug_knob_down", 120), 10);
  EXPECT_EQ(turned("altitude_bug_knob_up", 3), 40);
  EXPECT_EQ(turned("altitude_bug_knob_up", 120), 990);
  EXPECT_EQ(turned("altitude_bug_knob_down", 1), 980);
  EXPECT_EQ(turned("altitude_bug_knob_down", 120), 10);
}

TEST_F(AirData, TheAltitudeAlertLooksToBothSidesOfTheSelectedAltitude) {
  struct Row {
    f64 altitude, below, above;
    bool sound;
  };
  host.tokens[token::selected_altitude] = 10000;
  for (const Row& row : {Row{9000, 0, 0, false}, Row{9001, 1, 0, false}, Row{9040, 1, 0, true},
                         Row{9050, 1, 0, false}, Row{9749, 1, 0, false}, Row{9750, 0, 0, false},
                         Row{10250, 0, 0, false}, Row{10251, 0, 1, false}, Row{10950, 0, 1, false},
                         Row{10960, 0, 1, true}, Row{11000, 0, 0, false}}) {
    for (const u32 master : {1u, 0u}) {
      aircraft.ap_master_on = master;
      host.tokens[token::indicated_altitude] = row.altitude;
      altimeter.expect(
          {{"alert_lamp_below", row.below * master}, {"alert_lamp_above", row.above * master}});
      EXPECT_EQ(rig::heard(altalert_sound_request), row.sound && master == 1) << row.altitude;
    }
  }
}

TEST_F(AirData, EachHeightIsCalledOnceOnTheWayDown) {
  const std::pair<u32, SoundRequest> calls[] = {
      {762, a2500_sound_request}, {304, a1000_sound_request}, {150, a500_sound_request},
      {120, a400_sound_request},  {90, a300_sound_request},   {60, a200_sound_request},
      {30, a100_sound_request},   {15, a50_sound_request},    {12, a40_sound_request},
      {9, a30_sound_request},     {6, a20_sound_request},     {5, a10_sound_request}};
  for (const auto& [metres, sound] : calls) {
    f64& height = host.tokens[token::radio_altitude];
    f64& speed = host.tokens[token::vertical_speed];
    height = metres + 1.9;
    altimeter.service(SERVICE_BEGIN);
    const auto called = [&, heard_sound = sound](f64 at, f64 moving) {
      height = at, speed = moving;
      altimeter.frame();
      const int sounds = rig::sounds_requested();
      return rig::heard(heard_sound) && sounds == 1;
    };
    EXPECT_TRUE(called(metres + 0.4, -1)) << metres;
    EXPECT_FALSE(called(metres + 0.2, -1)) << metres << " a second time";
    EXPECT_FALSE(called(metres + 2, 1));
    EXPECT_FALSE(called(metres + 0.4, 0)) << metres << " not descending";
  }
}

TEST_F(AirData, TakeOffSpeedsAreCalledByFlapsAndThrust) {
  struct Row {
    f64 flaps, speed;
    bool eighty, v1, rotate;
  };
  const auto check = [&](const Row& row, bool calls) {
    host.tokens[token::flap_position] = row.flaps;
    host.tokens[token::indicated_airspeed] = row.speed;
    airspeed.frame();
    const auto where = testing::Message() << row.flaps << " at " << row.speed;
    EXPECT_EQ(rig::heard(eighty_kts_sound_request), row.eighty && calls) << where;
    EXPECT_EQ(rig::heard(v1_sound_request), row.v1 && calls) << where;
    EXPECT_EQ(rig::heard(rotate_sound_request), row.rotate && calls) << where;
  };
  for (const Row& row : {Row{0, 80, true, false, false}, Row{0, 78, false, false, false},
                         Row{9999, 82, false, false, false}, Row{10000, 80, false, false, false},
                         Row{5000, 140, false, true, false}, Row{5000, 141, false, false, false},
                         Row{5000, 144, false, false, true}, Row{3250, 140, false, false, false},
                         Row{6500, 140, false, false, false}, Row{7000, 130, false, true, false},
                         Row{7000, 134, false, false, true}, Row{9800, 134, false, false, false},
                         Row{9900, 126, false, true, false}, Row{9900, 131, false, false, true},
                         Row{9900, 132, false, false, false}}) {
    for (const auto& [throttle, callouts] : {std::pair{12000.0, 1u}, {10000.0, 1u}, {12000.0, 0u}}) {
      host.tokens[token::throttle_1] = throttle;
      aircraft.fo_callouts_enabled = callouts;
      check(row, throttle > 10000 && callouts == 1);
    }
  }
}

TEST_F(AirData, SpeedNeedlesStopAtTheEndsOfTheDial) {
  host.tokens = {{61, 500}, {116, 300}, {63, 340 * 128}, {64, 0.8 * 20480}};
  airspeed.expect({{"airspeed", 430}, {"selected_speed", 300}, {"maximum_speed", 340}});
  host.tokens = {{61, -5}, {116, 500}, {63, 0}};
  airspeed.expect({{"airspeed", 0}, {"selected_speed", 430}, {"maximum_speed", 60}});
}

TEST_F(AirData, EachSpeedBugTurnsByBothButtons) {
  for (const auto& [number, start] : {std::pair{"1", 80}, {"2", 135}, {"3", 145}, {"4", 215}}) {
    const std::string bug = std::string("speed_bug_") + number,
                      ring = std::string("set_airspeed_bug_") + number;
    airspeed.expect({{bug, start}});
    airspeed.click(ring);
    airspeed.expect({{bug, start + 5}});
    for (int i = 0; i < 100; ++i) airspeed.click(ring);
    airspeed.expect({{bug, 430}});
    for (int i = 0; i < 100; ++i) airspeed.right_click(ring);
    airspeed.expect({{bug, 60}});
    for (int at = 60; at < start; at += 5) airspeed.click(ring);
  }
}

TEST(FrameTimers, CountToTheirLimitAndStopByASecondPress) {
  for (const auto& [name, frames] : {std::pair{"Aitest", 4450}, {"Aitestfsx", 555000}}) {
    rig::Host host;
    host.tokens[token::simulation_rate] = 1;
    rig::Gauge timer(name);
    const auto runs = [&](int count) {
      timer.frame(count);
      return timer.value("timer_lamp") == 0;
    };
    EXPECT_FALSE(runs(1)) << name;
    timer.click("timer_button");
    EXPECT_TRUE(runs(3)) << name;
    timer.click("timer_button");
    EXPECT_FALSE(runs(2)) << name << ": stopped";
    timer.click("timer_button");
    EXPECT_TRUE(runs(frames - 1)) << name;
    EXPECT_FALSE(runs(1)) << name << " at its limit";
  }
}

}  // namespace
