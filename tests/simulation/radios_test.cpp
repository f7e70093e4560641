// The radios as the cockpit works them: by events, seen by tokens and heard through the stations.

#include "host/simulation/table.h"
#include "tests/simulation/aircraft_rig.h"
#include "tests/simulation/flown.h"

namespace host::simulation {
namespace {

/// A frequency as a head shows it, with the leading 1 that the head prints itself.
std::string shown(const AircraftModel& aircraft, const std::string& radio) {
  char text[8];
  std::snprintf(text, sizeof text, "1%04X", static_cast<unsigned>(reading(aircraft, radio)));
  return text;
}

struct Knobs {
  const char* radio;
  int first_mhz, last_mhz;
  std::vector<const char*> channels;  ///< of a megahertz, as far as a head shows them
};

TEST(Radios, EachKnobGoesRoundItsWholeBandAndCarriesNothing) {
  const std::vector<const char*> fifty{"00", "05", "10", "15", "20", "25", "30", "35", "40", "45",
                                       "50", "55", "60", "65", "70", "75", "80", "85", "90", "95"};
  std::vector<const char*> twenty_five{"00", "02", "05", "07", "10", "12", "15", "17", "20", "22",
                                       "25", "27", "30", "32", "35", "37", "40", "42", "45", "47",
                                       "50", "52", "55", "57", "60", "62", "65", "67", "70", "72",
                                       "75", "77", "80", "82", "85", "87", "90", "92", "95", "97"};
  for (const Knobs& knobs : {Knobs{"nav1", 108, 117, fifty}, Knobs{"nav2", 108, 117, fifty},
                             Knobs{"com1", 118, 136, twenty_five}}) {
    AircraftModel aircraft;
    const std::string radio = knobs.radio, standby = radio + "_standby";
    const auto turn_until = [&](const std::string& event, const std::string& end) {
      for (int i = 0; i < 40 && !shown(aircraft, standby).ends_with(end); ++i) send(aircraft, event);
    };
    const std::string in_use = shown(aircraft, radio + "_active");
    turn_until(radio + "_kilohertz_up", "00");
    while (!shown(aircraft, standby).starts_with(std::to_string(knobs.first_mhz))) {
      send(aircraft, radio + "_megahertz_up");
    }
    for (int mhz = knobs.first_mhz; mhz <= knobs.last_mhz; ++mhz) {
      for (const char* channel : knobs.channels) {
        EXPECT_EQ(shown(aircraft, standby), std::to_string(mhz) + channel);
        send(aircraft, radio + "_kilohertz_up");
      }
      send(aircraft, radio + "_megahertz_up");
    }
    EXPECT_EQ(shown(aircraft, standby), std::to_string(knobs.first_mhz) + "00");
    send(aircraft, radio + "_kilohertz_down");
    send(aircraft, radio + "_megahertz_down");
    EXPECT_EQ(shown(aircraft, standby), std::to_string(knobs.last_mhz) + knobs.channels.back());
    EXPECT_EQ(shown(aircraft, radio + "_active"), in_use);
    send(aircraft, radio + "_exchange");
    EXPECT_EQ(shown(aircraft, radio + "_active"),
              std::to_string(knobs.last_mhz) + knobs.channels.back());
    EXPECT_EQ(shown(aircraft, standby), in_use);
  }
}

TEST(Radios, TheDirectionFinderTurnsFigureByFigureWithinItsBand) {
  AircraftModel aircraft;
  const auto khz = [&] {
    const auto whole = static_cast<unsigned>(reading(aircraft, "adf_frequency")),
               ends = static_cast<unsigned>(reading(aircraft, "adf_frequency_ends"));
    char text[16];
    std::snprintf(text, sizeof text, "%X%03X.%X", ends >> 8, whole, ends & 0xF);
    return std::string(text);
  };
  const std::tuple<const char*, int, const char*> turns[] = {
      {"tenths", 0, "0368.0"},   {"tenths", 9, "0368.9"}, {"tenths", 1, "0368.0"},
      {"units", 2, "0360.0"},    {"tens", 3, "0390.0"},   {"hundreds", 14, "1790.0"},
      {"hundreds", 1, "0190.0"}, {"tens", 1, "0200.0"},   {"hundreds", 15, "1700.0"},
      {"hundreds", 1, "0200.0"}, {"units", 11, "0201.0"}, {"tens", 10, "0201.0"}};
  for (const auto& [figure, count, result] : turns) {
    for (int i = 0; i < count; ++i) send(aircraft, std::string("adf_") + figure + "_up");
    EXPECT_EQ(khz(), result) << figure << ' ' << count;
  }
}

TEST(Radios, ATransponderCodeHasFiguresOfEight) {
  AircraftModel aircraft;
  EXPECT_EQ(reading(aircraft, "transponder_code"), 0);
  const std::tuple<const char*, int> turns[] = {
      {"thousands", 2}, {"hundreds", 7}, {"tens", 8}, {"units", 9}};
  for (const auto& [figure, count] : turns) {
    for (int i = 0; i < count; ++i) send(aircraft, std::string("transponder_") + figure + "_up");
  }
  EXPECT_EQ(reading(aircraft, "transponder_code"), 0x2701);
}

// ---- Stations

class Listening : public testing::Test {
 protected:
  AircraftModel aircraft{StartCondition::ready};

  void SetUp() override {
    for (const char* receiver : {"nav1", "nav2", "adf"}) {
      send(aircraft, std::string(receiver) + "_identification_on");
    }
  }
  std::string heard() {
    aircraft.advance(0.1);
    std::string all;
    for (const std::string_view ident : aircraft.identifications_heard()) {
      all += ident.empty() ? "-" : ident;
      all += ' ';
    }
    return all;
  }
};

TEST_F(Listening, HearsTheStationsThatAreTunedInAndListenedTo) {
  aircraft.place_on_runway();
  EXPECT_EQ(heard(), "ITV TRN TV ");
  send(aircraft, "adf_tens_up");
  EXPECT_EQ(heard(), "ITV TRN - ");
  send(aircraft, "nav1_identification_off");
  EXPECT_EQ(heard(), "- TRN - ");
  send(aircraft, "nav1_identification_on");
  send(aircraft, "nav1_exchange");
  EXPECT_EQ(heard(), "TRN TRN - ");
  send(aircraft, "avionics_toggle");
  EXPECT_EQ(heard(), "- - - ");
}

TEST_F(Listening, StationsRiseOverTheHorizonWithHeight) {
  send(aircraft, "nav2_exchange");  // HLV, 35 miles away
  EXPECT_EQ(heard(), "ITV - TV ") << "on the ground it reaches 12";
  ASSERT_TRUE(aircraft.place_in_flight({.altitude_ft = 800, .airspeed_kt = 180}));
  EXPECT_FALSE(heard().find("HLV") != std::string::npos) << "436 ft over the field it reaches 34";
  ASSERT_TRUE(aircraft.place_in_flight({.altitude_ft = 1500, .airspeed_kt = 180}));
  EXPECT_TRUE(heard().find("HLV") != std::string::npos) << "1136 ft over the field it reaches 50";
  EXPECT_GT(reading(aircraft, "nav2_signal"), 0);
}

TEST(AudioSelector, KeepsWhereTheMicrophoneGoes) {
  Aircraft aircraft;
  const auto press = [&](std::uint32_t event) { find_event(event)->apply(aircraft, 0); };
  EXPECT_EQ(aircraft.audio.transmitter, 1);
  press(0x103A0), press(0x103A1);
  EXPECT_EQ(aircraft.audio.transmitter, 2);
  EXPECT_TRUE(aircraft.audio.receive_all);
  press(0x1039F), press(0x103A1);
  EXPECT_EQ(aircraft.audio.transmitter, 1);
  EXPECT_FALSE(aircraft.audio.receive_all);
}

}  // namespace
}  // namespace host::simulation
