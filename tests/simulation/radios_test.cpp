// The radios as the cockpit works them: by events, seen by tokens and heard through the stations.

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
  std::string radio;
  int first_mhz, last_mhz, channels;  ///< channels in a megahertz
};

TEST(Radios, EachKnobGoesRoundItsWholeBandAndCarriesNothing) {
  for (const auto& [radio, first_mhz, last_mhz, channels] :
       {Knobs{"nav1", 108, 117, 20}, Knobs{"nav2", 108, 117, 20}, Knobs{"com1", 118, 136, 40}}) {
    AircraftModel aircraft;
    const auto standby = [&] { return shown(aircraft, radio + "_standby"); };
    const auto frequency = [&](int mhz, int channel) {
      return std::to_string(mhz * 100 + channel * 100 / channels);
    };
    const std::string in_use = shown(aircraft, radio + "_active");
    for (int i = 0; i < 40 && !standby().ends_with("00"); ++i) send(aircraft, radio + "_kilohertz_up");
    for (int i = 0; i < 20 && standby() != frequency(first_mhz, 0); ++i) {
      send(aircraft, radio + "_megahertz_up");
    }
    for (int mhz = first_mhz; mhz <= last_mhz; ++mhz) {
      for (int channel = 0; channel < channels; ++channel) {
        EXPECT_EQ(standby(), frequency(mhz, channel));
        send(aircraft, radio + "_kilohertz_up");
      }
      send(aircraft, radio + "_megahertz_up");
    }
    EXPECT_EQ(standby(), frequency(first_mhz, 0));
    send(aircraft, radio + "_kilohertz_down");
    send(aircraft, radio + "_megahertz_down");
    EXPECT_EQ(standby(), frequency(last_mhz, channels - 1));
    EXPECT_EQ(shown(aircraft, radio + "_active"), in_use);
    send(aircraft, radio + "_exchange");
    EXPECT_EQ(shown(aircraft, radio + "_active"), frequency(last_mhz, channels - 1));
    EXPECT_EQ(standby(), in_use);
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

}  // namespace
}  // namespace host::simulation
