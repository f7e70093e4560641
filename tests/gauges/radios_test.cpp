/// The pedestal's radio heads: they show what the host tunes, and send it what the crew turns.
#include <gtest/gtest.h>

#include <set>
#include <string>
#include <tuple>

#include "module/tokens.h"
#include "tests/rig/rig.h"

namespace {

using namespace tarnvale;

// ---- Frequency heads

struct Head {
  const char* gauge;
  u32 active, standby;
};

void PrintTo(const Head& head, std::ostream* out) { *out << head.gauge; }

class FrequencyHeads : public testing::TestWithParam<Head> {
 protected:
  rig::Host host;
  rig::Gauge head{GetParam().gauge};

  std::string drums(const std::string& display) const {
    std::string figures;
    for (const char* place :
         {"_tens_of_megahertz", "_megahertz", "_tenths_of_megahertz", "_hundredths_of_megahertz"}) {
      figures += std::to_string(static_cast<int>(head.value(display + place))) + ' ';
    }
    return figures;
  }
};

TEST_P(FrequencyHeads, ShowFourFiguresOfTheirOwnTokensAndAreDarkWithoutAvionics) {
  host.tokens[GetParam().active] = 0x1345;
  host.tokens[GetParam().standby] = 0x70000A097;  // only the low 32 bits count, and of them 16
  head.frame();
  EXPECT_EQ(drums("active"), "1 3 4 5 ");
  EXPECT_EQ(drums("standby"), "10 0 9 7 ");
  for (const u32 on : {1u, 0u}) {
    aircraft.avionics_master_on = on;
    host.tokens[token::battery] = on;
    for (const std::string display : {"active", "standby"}) {
      head.expect({{display + "_leading_figure", on},
                   {display + "_display_cover", 1 - on},
                   {display + "_display_power", on}});
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Radios, FrequencyHeads,
                         testing::Values(Head{"Vhf1nav", 24, 872}, Head{"Vhf2nav", 27, 873},
                                         Head{"Nav1rad", 24, 872}, Head{"Comm", 23, 617}),
                         [](const auto& each) { return std::string(each.param.gauge); });

// ---- Navigation heads

class NavigationHeads : public testing::Test {
 protected:
  rig::Host host;
  rig::Gauge nav1{"Vhf1nav"}, nav2{"Vhf2nav"}, small{"Nav1rad"};

  /// What all three show of a part that they share.
  std::set<f64> shown(const char* part) {
    std::set<f64> values;
    for (rig::Gauge* head : {&nav1, &nav2, &small}) {
      head->frame();
      values.insert(head->value(part));
    }
    return values;
  }
};

TEST_F(NavigationHeads, WorkOnePairOfSwitches) {
  nav2.click("vor_check_button");
  EXPECT_EQ(aircraft.nav_aux_switch, 1u);
  EXPECT_EQ(shown("vor_check_button"), std::set<f64>{1});
  const std::tuple<rig::Gauge*, const char*, f64> moves[] = {
      {&nav1, "deviation_check_switch_up", 1},    {&small, "deviation_check_switch_down", 0},
      {&small, "deviation_check_switch_down", 2}, {&nav2, "deviation_check_switch_up", 0},
      {&nav2, "deviation_check_switch_up", 1},    {&nav1, "deviation_check_switch_up", 0}};
  for (const auto& [head, half, position] : moves) {
    head->click(half);
    EXPECT_EQ(shown("deviation_check_switch"), std::set<f64>{position}) << half;
    EXPECT_EQ(aircraft.nav_test_switch, position);
  }
}

TEST_F(NavigationHeads, ADistanceTestIsTheirReceiversOwnAndProlongsItsTransferLight) {
  f64& clock = host.tokens[token::clock_seconds] = 50;
  nav1.click("transfer_button");
  clock = 52;
  nav1.click("dme_test_button");
  EXPECT_EQ(aircraft.nav1_test_active, 1u);
  EXPECT_EQ(aircraft.nav2_test_active, 0u);
  EXPECT_EQ(aircraft.nav1_timer_deadline, 54u);
  clock = 54;
  EXPECT_EQ(shown("transfer_button"), (std::set<f64>{0, 1})) << "receiver 1's own light alone";
  EXPECT_EQ(nav1.value("transfer_button"), 1);
  clock = 55;
  EXPECT_EQ(shown("transfer_button"), std::set<f64>{0});
  EXPECT_EQ(aircraft.nav1_test_active, 1u) << "the bearing indicator ends it";
  nav2.click("dme_test_button");
  EXPECT_EQ(aircraft.nav2_test_active, 1u);
  EXPECT_EQ(aircraft.nav2_timer_deadline, 57u);
}

// ---- Direction finder and transponder

TEST(DirectionFinder, ShowsEachFigure) {
  rig::Host host;
  rig::Gauge adf("Adf");
  host.tokens = {{16, 0x0368}, {18, 0x0105}, {token::battery, 1}};
  aircraft.avionics_master_on = 2;
  adf.expect({{"thousands", 1},
              {"hundreds", 3},
              {"tens", 6},
              {"units", 8},
              {"tenths", 5},
              {"display", 1},
              {"display_power", 1}});
  aircraft.avionics_master_on = 0;
  adf.expect({{"display", 0}});
}

class Transponder : public testing::Test {
 protected:
  rig::Host host;
  rig::Gauge panel{"Transponder"};

  std::string code() {
    panel.frame();
    std::string figures;
    for (const char* place : {"first", "second", "third", "fourth"}) {
      figures += std::to_string(static_cast<int>(panel.value(std::string(place) + "_figure")));
    }
    return figures;
  }
};

TEST_F(Transponder, ItsModeSwitchesTheDisplayAndStopsAtItsEnds) {
  host.tokens[token::transponder_code] = 0x2071;
  aircraft.avionics_master_on = 1;
  panel.click("transponder_selector_down");
  EXPECT_EQ(code(), "0000");
  EXPECT_EQ(panel.value("display"), 0);
  for (const f64 mode : {1, 2, 3, 3}) {
    panel.click("transponder_selector_up");
    EXPECT_EQ(code(), "2071");
    panel.expect({{"transponder_selector", mode}, {"display", 1}});
  }
  aircraft.avionics_master_on = 0;
  panel.expect({{"display", 0}});
}

TEST_F(Transponder, IdentNeedsAModeAndIsForgottenWithoutOne) {
  const auto press = [&](u32 mode) {
    aircraft.transponder_mode = mode;
    panel.click("ident_button");
    panel.frame();
    return panel.value("ident_light");
  };
  EXPECT_EQ(press(0), 0);
  EXPECT_EQ(press(1), 1);
  EXPECT_EQ(press(0), 0);
  aircraft.transponder_mode = 2;
  panel.frame();
  EXPECT_EQ(panel.value("ident_button"), 0) << "the press without a mode has cleared it";
}

TEST_F(Transponder, ItsKnobsCountOnAndGoRound) {
  for (const std::string place : {"first", "second", "third", "fourth"}) {
    const std::string knob = place + "_code_knob";
    panel.frame();
    const auto start = static_cast<u32>(panel.value(knob));
    for (u32 count = 1; count <= 10; ++count) {
      panel.click(knob);
      panel.expect({{knob, (start + count) % 8}});
    }
    const rig::Events sent = host.sent();
    ASSERT_EQ(sent.size(), 10u);
    EXPECT_EQ(sent.back().second, sent.front().second + 9);
  }
}

// ---- Call panel and audio selector

TEST(CallPanel, AnAnnouncementIsAskedForWhenItsButtonComesOn) {
  rig::Host host;
  rig::Gauge panel("Selcall");
  for (const auto& [name, sound] : {std::pair{"taxi", cctaxi_sound_request},
                                    {"safety", ccsafety_sound_request},
                                    {"climb", ccclimb_sound_request},
                                    {"descent", ccdescent_sound_request},
                                    {"final_approach", ccfinal_sound_request},
                                    {"roll_out", ccrollout_sound_request}}) {
    const std::string button = std::string(name) + "_announcement_button";
    for (const f64 on : {1, 0}) {
      panel.click(button);
      panel.expect({{button, on}});
      EXPECT_EQ(rig::heard(sound), on == 1) << button;
      EXPECT_EQ(rig::sounds_requested(), 0) << button << " clicks";
    }
  }
}

TEST(CallPanel, WelcomeAndGroundPowerAnswerBothWays) {
  rig::Host host;
  rig::Gauge panel("Selcall");
  for (const u32 asked : {1u, 0u}) {
    panel.click("welcome_announcement_button");
    EXPECT_EQ(aircraft.sound_requests[ccwelcome_sound_request], asked) << "a second press withdraws it";
  }
  for (const SoundRequest sound : {extpwr_sound_request, extpwrdis_sound_request}) {
    panel.click("ground_power_button");
    EXPECT_EQ(aircraft.ground_power_connected, sound == extpwr_sound_request);
    EXPECT_TRUE(rig::heard(sound));
  }
  panel.click("first_officer_s_calls_button"), panel.click("automatic_announcements_button");
  EXPECT_EQ(aircraft.fo_callouts_enabled + aircraft.cabin_announcements_on, 2u);
}

TEST(AudioSelector, OneTransmitterIsChosenAtATime) {
  rig::Host host;
  rig::Gauge panel("Micsel");
  const char* buttons[] = {"vhf_1_microphone_button", "vhf_2_microphone_button",
                           "both_microphones_button"};
  const std::tuple<int, const char*> presses[] = {{0, "100"}, {2, "111"}, {0, "011"}, {1, "001"},
                                                  {1, "010"}, {2, "111"}, {2, "110"}, {1, "100"},
                                                  {1, "010"}, {1, "000"}};
  for (const auto& [button, lights] : presses) {
    panel.click(buttons[button]);
    panel.frame();
    std::string lit;
    for (const char* each : buttons) lit += panel.value(each) == 1 ? '1' : '0';
    EXPECT_EQ(lit, lights) << buttons[button];
  }
  host.sent();
  for (int press = 0; press < 2; ++press) panel.click("nav_1_audio_button");
  EXPECT_EQ(host.events, (rig::Events{{65837, 0}, {65832, 0}})) << "on, and off";
}

}  // namespace
