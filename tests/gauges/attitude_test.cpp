/// Attitude, heading and navigation instruments.
#include <gtest/gtest.h>

#include <map>

#include "module/tokens.h"
#include "tests/rig/rig.h"

namespace {

using namespace tarnvale;

bool picture_hidden(const rig::Gauge& gauge, std::string_view part) {
  for (const rig::NamedPart& each : gauge.parts()) {
    if (each.name == part) return (each.element->image_flags & IMAGE_HIDE_PICTURE) != 0;
  }
  ADD_FAILURE() << "no part " << part;
  return false;
}

/// A gauge that is read after some tokens have changed.
class Instrument : public testing::Test {
 protected:
  explicit Instrument(const char* name) : gauge(name) {}

  rig::Host host;
  rig::Gauge gauge;

  f64 shown(const char* part, std::map<u32, f64> tokens) {
    for (const auto& [number, value] : tokens) host.tokens[number] = value;
    gauge.frame();
    return gauge.value(part);
  }
};

class AttitudeDirector : public Instrument {
 protected:
  AttitudeDirector() : Instrument("Adi") {}
};

TEST_F(AttitudeDirector, BarsShowTheDifferenceWhileTheDirectorIsOn) {
  for (const auto& [pitch, command, shown_pitch] :
       {std::tuple{0.0, 3.0, -2.0}, {30.0, 0.0, 44.0 / 3}, {0.0, 30.0, -44.0 / 3}}) {
    EXPECT_NEAR(shown("flight_director_pitch_bar", {{77, pitch}, {793, command}, {792, 1}}),
                shown_pitch, 1e-12);
    EXPECT_FALSE(picture_hidden(gauge, "flight_director_pitch_bar"));
  }
  for (const auto& [bank, command, shown_bank] :
       {std::tuple{5.0, 2.0, 3.0}, {40.0, 0.0, 15.0}, {-40.0, 0.0, -15.0}}) {
    EXPECT_EQ(shown("flight_director_bank_bar", {{80, bank}, {794, command}}), shown_bank);
  }
  shown("flight_director_bank_bar", {{792, 0}});
  EXPECT_TRUE(picture_hidden(gauge, "flight_director_pitch_bar"));
  EXPECT_TRUE(picture_hidden(gauge, "flight_director_bank_bar"));
}

TEST_F(AttitudeDirector, TheRunwayRisesOverTheLastMetresAndLiesBesideTheLocalizer) {
  for (const auto& [height, value, hidden] :
       {std::tuple{76.0, 0.0, true}, {75.0, 0.0, false}, {27.0, 0.0, false}, {0.0, 27.0, false}}) {
    EXPECT_EQ(shown("rising_runway", {{614, height}}), value) << height;
    EXPECT_EQ(picture_hidden(gauge, "rising_runway"), hidden) << height;
  }
  for (const auto& [test, bits, value] :
       {std::tuple{0u, 0x80, -40.0}, {0u, 0x40, 0.0}, {1u, 0x80, 100.0}, {2u, 0, -100.0}}) {
    aircraft.nav_test_switch = test;
    EXPECT_EQ(shown("runway_symbol", {{40, 40}, {46, bits}}), value) << test << ' ' << bits;
  }
}

TEST_F(AttitudeDirector, SpeedSlipAndHorizonStopAtTheirEnds) {
  for (const auto& [actual, value] :
       {std::pair{140.0, 0.0}, {160.0, -12.0}, {120.0, 12.0}, {135.0, 5.0}}) {
    EXPECT_EQ(shown("speed_deviation_pointer", {{116, 140}, {61, actual}}), value) << actual;
  }
  for (const auto& [ball, value] : {std::pair{-20.0, -15.0}, {3.0, 3.0}, {20.0, 15.0}}) {
    EXPECT_EQ(shown("slip_ball", {{69, ball}}), value);
  }
}

TEST_F(AttitudeDirector, FlagsTellWhatCannotBeTrusted) {
  constexpr f64 in_view = 1, withdrawn = 0;
  EXPECT_EQ(shown("attitude_flag", {}), in_view) << "no engine runs";
  EXPECT_EQ(shown("attitude_flag", {{625, 25}}), withdrawn);
  EXPECT_EQ(shown("attitude_flag", {{625, 0}, {644, 30}}), withdrawn);
}

/// The glide slope on both instruments that show it.
TEST(GlideSlope, PointerAndFlagFollowTheReceiver) {
  struct Row {
    u32 test;
    f64 bits, signal, flag;
    bool pointer;
  };
  for (const char* name : {"Adi", "Hsi"}) {
    for (const Row& row :
         {Row{0, 0, 0, -1, false}, Row{0, 0x40, 1, -1, true}, Row{0, 0x40, 0.99, 0, true},
          Row{1, 0, 0, 0, false}, Row{2, 0x40, 1, 0, true}, Row{0, 0x80, 0, -1, false}}) {
      rig::Host host;
      rig::Gauge gauge(name);
      aircraft.nav_test_switch = row.test;
      host.tokens = {{46, row.bits}, {44, row.signal}, {41, -60}};
      gauge.expect({{"glide_slope_flag", row.flag}, {"glide_slope_pointer", row.pointer ? -60 : 0}});
      EXPECT_EQ(picture_hidden(gauge, "glide_slope_pointer"), !row.pointer) << name << row.bits;
    }
  }
}

TEST(DecisionHeight, LightsAtAndBelowTheSettingOnBothInstruments) {
  rig::Host host;
  rig::Gauge radalt("Radalt"), adi("Adi");
  const auto lights = [&](f64 metres) {
    host.tokens[token::radio_altitude] = metres;
    radalt.frame(), adi.frame();
    EXPECT_EQ(radalt.value("decision_height_light"), adi.value("decision_height_light"));
    return radalt.value("decision_height_light") == 0;
  };
  EXPECT_FALSE(lights(0)) << "no height is set";
  for (int i = 0; i < 20; ++i) radalt.click("decision_height_knob_up");
  EXPECT_EQ(aircraft.dh_setting_ft, 200);
  for (const auto& [metres, lit] : {std::pair{60.0, true}, {61.0, true}, {62.0, false}}) {
    EXPECT_EQ(lights(metres), lit) << metres;
    EXPECT_EQ(aircraft.dh_light_on, u32{lit}) << metres;
  }
  radalt.click("test_button");
  EXPECT_TRUE(rig::heard(radalt_sound_request));
  EXPECT_TRUE(lights(62));
  EXPECT_EQ(aircraft.dh_light_on, 0u) << "the test is not the height";
}

TEST(RadioAltimeter, ShowsFeetUpToTheEndOfItsScaleAndTheSettingBetweenItsEnds) {
  rig::Host host;
  rig::Gauge radalt("Radalt");
  for (const auto& [metres, feet] : {std::pair{-5.0, 0.0}, {100.0, 328.08}, {1000.0, 2500.0}}) {
    host.tokens[token::radio_altitude] = metres;
    radalt.expect({{"radio_altitude", feet}});
  }
  radalt.click("decision_height_knob_down");
  radalt.expect({{"decision_height_bug", 0}});
  for (int i = 0; i < 60; ++i) radalt.click("decision_height_knob_up");
  radalt.expect({{"decision_height_bug", 500}});
  radalt.click("decision_height_knob_down");
  EXPECT_EQ(aircraft.dh_setting_ft_int, 490u);
}

class Bearings : public testing::Test {
 protected:
  rig::Host host;
  rig::Gauge rmi{"Rmi"};

  /// The four drums of a read-out, blanks as b.
  std::string distance(const std::string& side) {
    std::string figures;
    for (const char* place : {"hundreds", "tens", "units", "tenths"}) {
      const f64 digit = rmi.value(side + "_distance_" + place);
      figures += digit == -1 ? 'b' : static_cast<char>('0' + static_cast<int>(digit));
    }
    return figures;
  }
};

TEST_F(Bearings, EachReadOutShowsItsReceiversDistance) {
  for (const auto& [left, right, left_text, right_text] : {std::tuple{123.45, 7.89, "1234", "0078"},
                                                           {-1.0, 250.0, "bbbb", "2500"},
                                                           {0.0, -1.0, "0000", "bbbb"}}) {
    host.tokens[token::nav1_distance] = left;
    host.tokens[token::nav2_distance] = right;
    rmi.frame(2);
    EXPECT_EQ(distance("left"), left_text) << left;
    EXPECT_EQ(distance("right"), right_text) << right;
  }
  host.tokens[token::nav2_distance] = 10;
  rmi.click("left_bearing_selector");
  rmi.frame(2);
  EXPECT_EQ(distance("left"), "bbbb");
  EXPECT_EQ(distance("right"), "0100");
}

TEST_F(Bearings, AReceiversTestShowsZerosUntilItsTimeIsOver) {
  host.tokens[token::nav1_distance] = 123.4;
  host.tokens[token::nav2_distance] = 55.5;
  aircraft.nav1_test_active = 1;
  aircraft.nav1_timer_deadline = 102;
  rmi.frame(2);
  EXPECT_EQ(distance("left"), "0000");
  EXPECT_EQ(distance("right"), "0555");
  host.tokens[token::clock_seconds] = 103;
  rmi.frame();
  EXPECT_EQ(distance("left"), "1234");
  EXPECT_EQ(aircraft.nav1_test_active, 0u);
  aircraft.nav1_test_active = 1;
  host.tokens[token::clock_seconds] = 98;  // more than three seconds before the deadline
  rmi.frame();
  EXPECT_EQ(aircraft.nav1_test_active, 0u);
}

TEST_F(Bearings, NeedlesAndFlagsFollowTheirSelectors) {
  host.tokens = {{550, 100}, {59, 200}, {39, 300}, {49, 1}, {58, 0}};
  rmi.expect({{"left_bearing", 10}, {"right_bearing", 110}});
  rmi.expect({{"left_signal_flag", 1}, {"right_signal_flag", 0}});
  host.tokens[58] = 0.5;
  rmi.click("right_bearing_selector");
  rmi.expect({{"left_bearing", 10}, {"right_bearing", 210}, {"right_signal_flag", 0}});
  rmi.click("right_bearing_selector"), rmi.click("left_bearing_selector");
  rmi.expect({{"left_bearing", 210}, {"left_signal_flag", 0}, {"right_signal_flag", 1}});
}

class HorizontalSituation : public Instrument {
 protected:
  HorizontalSituation() : Instrument("Hsi") {}
};

TEST_F(HorizontalSituation, PointersLieOnTheTurningCard) {
  host.tokens = {{81, 90}, {107, 90}, {45, 120}};
  gauge.expect({{"heading_bug", -89.5}, {"course_pointer", 30.5}, {"course_knob", 120}});
}

TEST_F(HorizontalSituation, TheHeadingTestShowsItself) {
  aircraft.nav_aux_switch = 1;
  host.tokens = {{107, 180}, {45, 90}, {81, 10}};
  gauge.expect({{"course_pointer", 0}, {"test_flag", 0}, {"annunciator", 3}});
  rig::Gauge("Rmi").expect({{"left_bearing", 90}, {"left_signal_flag", 1}});
  host.tokens[107] = 180.5;
  gauge.expect({{"test_flag", -1}, {"course_pointer", 80.5}});
}

TEST_F(HorizontalSituation, ToFromHidesOnALocalizer) {
  for (const auto& [code, bits, to_from, image] : {std::tuple{0x187, 0, 1, 0.0},
                                                   {0, 0x80, 1, -1.0},
                                                   {0, 0x40, 0, 1.0},
                                                   {0, 0, 1, 2.0},
                                                   {0, 0x17F, 2, 3.0}}) {
    EXPECT_EQ(shown("to_and_from", {{42, code}, {46, bits}, {853, to_from}}), image)
        << code << ' ' << bits;
  }
}

TEST_F(HorizontalSituation, TheAnnunciatorFollowsTheAutopilot) {
  struct Row {
    u32 master, hold, course, mode;
    f64 image;
  };
  for (const Row& row : {Row{0, 1, 1, 5, 1}, Row{1, 1, 1, 5, 2}, Row{1, 0, 1, 5, 3}, Row{1, 0, 1, 4, 0},
                         Row{1, 0, 0, 5, 0}}) {
    aircraft.ap_master_on = row.master;
    aircraft.ap_sel2_hold_on = row.hold;
    aircraft.apcourse_switch_on = row.course;
    aircraft.ap_mode_selector = row.mode;
    EXPECT_EQ(shown("annunciator", {}), row.image) << row.master << row.hold << row.course << row.mode;
    const bool approach = row.course == 1 && row.mode == 5;
    EXPECT_EQ(shown("approach_light", {{835, 8319}}), approach);
    EXPECT_EQ(shown("approach_light", {{835, 8320}}), 0);
  }
}

TEST_F(HorizontalSituation, ReadOutsShowCourseAndDistances) {
  host.tokens = {{45, 247}, {835, 18520}};
  gauge.expect({{"course_hundreds", 2},
                {"course_tens", 4},
                {"course_units", 7},
                {"right_distance_thousands", 100.008},
                {"right_distance_units", 0.008},
                {"left_distance_hundreds", 18520 / 832.0 / 10}});
}

/// What the bar shifts by and turns by, from its own routines.
TEST_F(HorizontalSituation, TheDeviationBarShiftsForItsOwnSourceAndTurnsWithTheCourse) {
  for (const rig::NamedPart& part : gauge.parts()) {
    if (part.name != "course_deviation_bar") continue;
    const SpritePart& bar = part.element->sprite;
    Element* element = const_cast<Element*>(part.element);
    host.tokens = {{849, 0.5}, {848, 0}, {45, 120}, {81, 90}};
    EXPECT_NEAR(bar.x.value(element), 63.5, 1e-9);
    EXPECT_EQ(bar.rotation.value(element), 30.5);
    host.tokens[848] = 1;
    EXPECT_EQ(bar.x.value(element), 0);
    return;
  }
  ADD_FAILURE() << "no bar";
}

}  // namespace
