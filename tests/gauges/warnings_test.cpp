/// Warning panels, standby compass and recorder.
#include <gtest/gtest.h>

#include <unordered_map>

#include "module/tokens.h"
#include "tests/rig/rig.h"

namespace {

using namespace tarnvale;

/// One warning: its token, light and button, and what they share.
struct Warning {
  const char *gauge, *button;
  u32 token;
  SoundRequest sound;
  u32 Aircraft::*switched_on;
  u32 Aircraft::*tested;
};

class EachWarning : public testing::TestWithParam<Warning> {
 protected:
  rig::Host host;
  const Warning& w = GetParam();
  rig::Gauge light{w.gauge}, panel{"Dhgpws"};
  std::string button = w.button, cover = button.substr(0, button.rfind('_')) + "_test_cover";

  EachWarning() {
    panel.frame();
    if (panel.value("test_lamp") == 1) panel.click("test_switch");  // as another story left it
  }
};

TEST_P(EachWarning, LightsAndSoundsInEveryFrameWhileItIsRaisedAndSwitchedOn) {
  for (const auto& [on, raised, given] : {std::tuple{1u, 1.0, true},
                                          {1u, 1.9, true},
                                          {1u, 0.9, false},
                                          {1u, 2.0, false},
                                          {0u, 1.0, false}}) {
    aircraft.*w.switched_on = on;
    host.tokens[w.token] = raised;
    for (int frame = 0; frame < 2; ++frame) {
      light.frame();
      EXPECT_EQ(light.value("warning_light"), given) << on << ' ' << raised;
      EXPECT_EQ(rig::heard(w.sound), given) << on << ' ' << raised;
    }
    EXPECT_EQ(light.value("test_light") + light.value("unlit_face"), 0);
  }
}

TEST_P(EachWarning, IsTestedForTwoSecondsByTheRightButton) {
  panel.right_click(button);
  EXPECT_TRUE(rig::heard(click_sound_request));
  EXPECT_EQ(rig::sounds_requested(), 0) << "without the test switch it only clicks";
  panel.expect({{cover, -1}, {button, 0}});
  panel.click("test_switch");
  panel.expect({{cover, 0}, {"test_lamp", 1}});
  panel.right_click(button);
  EXPECT_TRUE(rig::heard(w.sound));
  EXPECT_TRUE(rig::heard(click_sound_request));
  for (const auto& [clock, lit] : {std::pair{102.9, true}, {103.0, false}}) {
    host.tokens[token::clock_seconds] = clock;
    panel.expect({{button, lit}, {cover, lit ? -1 : 0}});
    light.expect({{"test_light", lit}, {"warning_light", 0}});
  }
  EXPECT_FALSE(rig::heard(w.sound)) << "once a test";
}

TEST_P(EachWarning, ATestOutlivesItsSwitchOnTheLightAlone) {
  panel.click("test_switch");
  panel.right_click(button);
  panel.click("test_switch");
  panel.expect({{button, 0}});
  light.expect({{"test_light", 1}});
}

INSTANTIATE_TEST_SUITE_P(
    Warnings, EachWarning,
    testing::Values(Warning{"Stall", "stall_warning_button", 67, stall_sound_request,
                            &Aircraft::stall_warning_switch_on, &Aircraft::stall_test_active},
                    Warning{"Pullup", "ground_proximity_button", 990, gpws_sound_request,
                            &Aircraft::gpws_switch_on, &Aircraft::gpws_test_active}),
    [](const auto& named) { return std::string(named.param.gauge); });

TEST(WarningPanel, ASecondTestProlongsTheFirst) {
  rig::Host host;
  rig::Gauge panel("Dhgpws");
  panel.frame();
  if (panel.value("test_lamp") == 0) panel.click("test_switch");
  panel.right_click("ground_proximity_button");
  f64& clock = host.tokens[token::clock_seconds] = 101;
  panel.right_click("stall_warning_button");
  for (const auto& [now, tested] : {std::pair{103.0, 2u}, {104.0, 0u}}) {
    clock = now;
    panel.frame();
    EXPECT_EQ(aircraft.gpws_test_active + aircraft.stall_test_active, tested) << now;
  }
}

TEST(WarningPanel, ShowsTheDecisionHeightThatItsKnobSets) {
  rig::Host host;
  rig::Gauge panel("Dhgpws");
  for (u32 feet = 10; feet <= 510; feet += 10) {
    panel.click("decision_height_knob_up");
    const u32 set = std::min(feet, 500u);
    panel.expect({{"decision_height_hundreds", set / 100}, {"decision_height_tens", set}});
    EXPECT_EQ(aircraft.dh_setting_ft, set);
  }
}

TEST(WarningPanel, TheDecisionHeightLightFollowsTheRadioAltitude) {
  rig::Host host;
  rig::Gauge panel("Dhgpws");
  aircraft.dh_setting_ft = aircraft.dh_setting_ft_int = 200;
  for (const auto& [test, metres, lit, known] : {std::tuple{0u, 60.0, 1, 1u},
                                                 {0u, 62.0, 0, 0u},
                                                 {1u, 62.0, 1, 0u},
                                                 {1u, 60.0, 1, 0u},
                                                 {0u, 61.2, 1, 1u}}) {
    aircraft.radalt_test_active = test;
    host.tokens[token::radio_altitude] = metres;
    panel.expect({{"decision_height_light", lit}});
    EXPECT_EQ(aircraft.dh_light_on, known) << "a test leaves it as it was, " << metres;
  }
  aircraft.dh_setting_ft = aircraft.dh_setting_ft_int = 0;
  host.tokens[token::radio_altitude] = 0;
  panel.expect({{"decision_height_light", 0}});  // no height is set
}

/// Everything that the master lights look at; at rest nothing is wrong.
struct Situation {
  const char* what;
  f64 engine_1 = 60, engine_2 = 60, brake = 32767, fuel = 1000;
  u32 ground_power = 0, attitude_test = 0, start_1 = 2, start_2 = 2;
  int warning = 0, caution = 0;
};

TEST(MasterWarning, EachCauseLightsItsLight) {
  rig::Host host;
  rig::Gauge lights("Masterwarn");
  const Situation all[] = {
      {.what = "all well"},
      {.what = "one engine stands", .engine_1 = 24.9},
      {.what = "both stand", .engine_1 = 24.9, .engine_2 = 24.9, .warning = 1},
      {.what = "at 25 percent one runs", .engine_1 = 25, .engine_2 = 0},
      {.what = "rolls off by its cable", .brake = 29999, .ground_power = 1, .warning = 1, .caution = 1},
      {.what = "stands by its cable", .brake = 30000, .ground_power = 1},
      {.what = "rolls without a cable", .brake = 0},
      {.what = "attitude flag test", .attitude_test = 1, .warning = 1, .caution = 1},
      {.what = "little fuel", .fuel = 249.9, .caution = 1},
      {.what = "just enough", .fuel = 250},
      {.what = "no start switch armed", .start_1 = 0, .start_2 = 0, .caution = 1},
      {.what = "one armed", .start_1 = 0, .start_2 = 1},
  };
  for (const Situation& s : all) {
    host.tokens = {{625, s.engine_1}, {644, s.engine_2}, {323, s.brake}, {386, s.fuel}};
    aircraft.ground_power_connected = s.ground_power;
    aircraft.adi_flag_test_active = s.attitude_test;
    aircraft.eng1_start_switch = s.start_1;
    aircraft.eng2_start_switch = s.start_2;
    SCOPED_TRACE(s.what);
    lights.expect({{"warning_light", s.warning}, {"caution_light", s.caution}});
    EXPECT_EQ(rig::heard(gndwarn_sound_request), s.ground_power == 1 && s.brake < 30000) << s.what;
  }
}

TEST(MasterWarning, SettingTheBrakeTakesTheGroundCrewsCallBack) {
  rig::Host host;
  rig::Gauge lights("Masterwarn");
  host.tokens[625] = 60;
  aircraft.ground_power_connected = 1;
  lights.frame();
  host.tokens[323] = 32767;
  lights.frame();
  EXPECT_FALSE(rig::heard(gndwarn_sound_request));
}

TEST(FirstOfficersLights, OnePumpOffLightsBothLightsOfItsSystem) {
  rig::Host host;
  rig::Gauge lights("Fowarn"), panel("Hydp");
  const auto seen = [&](f64 engine) {
    host.tokens = {{625, engine}, {644, 0}};
    lights.frame();
    std::string lit;
    for (const char* light : {"system_2_pump_light", "system_2_pressure_light", "engine_light",
                              "system_1_pressure_light", "system_1_pump_light"}) {
      lit += lights.value(light) == 1 ? '*' : '.';
    }
    return lit;
  };
  for (const rig::NamedArea& pump : panel.areas()) panel.click(pump.name);
  EXPECT_EQ(seen(25), ".....");
  EXPECT_EQ(seen(24.9), "..*..") << "no engine runs";
  for (const rig::NamedArea& pump : panel.areas()) {
    panel.click(pump.name);
    EXPECT_EQ(seen(60), pump.name.starts_with("system_1") ? "..***" : "**...") << pump.name;
    panel.click(pump.name);
  }
}

/// A pump's lamp says that it is on, a pitot's that its heat is off.
TEST(OverheadSwitches, ALampShinesByItsOwnSwitch) {
  rig::Host host;
  for (const char* name : {"Hydp", "Pitot"}) {
    rig::Gauge panel(name);
    for (const rig::NamedArea& control : panel.areas()) {
      std::string lamp = control.name;
      lamp.replace(lamp.rfind("switch"), 6, "lamp");
      for (const f64 on : {1, 0}) {
        panel.click(control.name);
        panel.expect({{control.name, on}, {lamp, name == std::string("Pitot") ? 1 - on : on}});
      }
    }
  }
}

TEST(StandbyCompass, TheCardStandsAtWhatIsLeftOfATurn) {
  rig::Host host;
  rig::Gauge compass("Wiskey");
  constexpr f64 level = 1;  // its place up and down, which counts in what the rig sees
  for (const auto& [heading, place] :
       {std::pair{0.0, 360.0}, {90.5, 269.5}, {360.0, 0.0}, {360.1, 0.0}, {-0.1, 0.0}}) {
    host.tokens[83] = heading;
    compass.frame();
    EXPECT_EQ(compass.value("compass_card"), place + level) << heading;
  }
  EXPECT_EQ(compass.header().mouse_areas->help_id, 0xAB77u);
}

class Recorder : public testing::Test {
 protected:
  rig::Host host;
  rig::Gauge panel{"Flightrec"};

  std::string texts(std::unordered_map<u32, f64> tokens) {
    host.tokens = std::move(tokens);
    panel.frame();
    return panel.text("number_field") + '|' + panel.text("month_field") + '|' + panel.text("day_field");
  }
};

TEST_F(Recorder, ShowsTheNumberOrTheDate) {
  EXPECT_EQ(texts({{607, 1234567}, {746, 4}, {747, 16.9}}), "12345| | ");
  EXPECT_EQ(texts({{607, 199.9}}), "00001| | ");
  EXPECT_EQ(texts({{746, 12}}), "00000|01| ") << "past December, in either mode";
  panel.click("readout_button");
  EXPECT_EQ(texts({{607, 1234567}, {746, 4.9}, {747, 16.9}}), " |05|16");
  EXPECT_EQ(texts({{746, 12}, {747, 1}}), " |01|01");
  EXPECT_EQ(texts({{746, 11}, {747, 31}}), " |12|31");
  panel.click("readout_button");
  EXPECT_EQ(texts({}), "00000| | ");
}

TEST_F(Recorder, ThumbwheelsStopAtNoughtAndNine) {
  const auto wheels = [&] {
    panel.frame();
    std::string all;
    for (int i = 1; i <= 5; ++i) {
      all += static_cast<char>('0' + static_cast<int>(panel.value("digit_" + std::to_string(i))));
    }
    return all;
  };
  EXPECT_EQ(wheels(), "16011") << "as the panel is found";
  panel.click("thumbwheel_3");
  EXPECT_EQ(wheels(), "16011");
  for (int i = 0; i < 4; ++i) panel.right_click("thumbwheel_2");
  EXPECT_EQ(wheels(), "19011");
  panel.click("thumbwheel_2"), panel.click("thumbwheel_1"), panel.right_click("thumbwheel_5");
  EXPECT_EQ(wheels(), "08012");
}

TEST_F(Recorder, LightsFollowTheThrottlePedestal) {
  for (const auto& [selector, lit] : {std::pair{0u, 0}, {1u, 1}, {2u, 1}}) {
    aircraft.pedestal_selector_switch = selector;
    panel.expect({{"flight_recorder_light", lit}, {"voice_recorder_light", lit}});
  }
}

}  // namespace
