// The controllers on the radio: who answers what, where.
#include <gtest/gtest.h>

#include "host/pages/radio_talk.h"
#include "host/simulation/places.h"

namespace {

using namespace host;

void send(AircraftModel& aircraft, std::string_view event, int times = 1) {
  const TableRow* row = find_row(AircraftModel::events(), event);
  ASSERT_NE(row, nullptr) << event;
  for (int i = 0; i < times; ++i) aircraft.key_event(row->number, 0);
}

// Turns the radio's knobs, as a crew does.
void tune(AircraftModel& aircraft, int khz) {
  while (aircraft.com().standby_khz / 1000 != khz / 1000) send(aircraft, "com1_megahertz_up");
  while (aircraft.com().standby_khz != khz) send(aircraft, "com1_kilohertz_up");
  send(aircraft, "com1_exchange");
}

TEST(Radio, AnswersWhoIsAskedWhatIsHis) {
  constexpr int ground = 121700, tower = 118100, information = 126650, nobody = 121500;
  const struct {
    const char* at;
    int khz;
    Request request;
    const char* answer;
  } cases[] = {
      {"runway", ground, Request::push_back, "off the stand"},
      {"runway", ground, Request::taxi, "vacate"},
      {"runway", ground, Request::take_off, "contact Tarnvale Tower on 118.100"},
      {"runway", tower, Request::taxi, "contact Tarnvale Ground on 121.700"},
      {"runway", tower, Request::take_off, "runway 07, wind calm, cleared for take-off"},
      {"runway", tower, Request::landing, "on the ground"},
      {"runway", information, Request::take_off, ""},
      {"runway", nobody, Request::take_off, ""},
      {"final", tower, Request::landing, "cleared to land"},
      {"final", tower, Request::take_off, "in the air"},
      {"cruise", tower, Request::landing, "continue approach, 22 miles"},
      {"stand", ground, Request::push_back, ""},  // dark
  };
  for (const auto& [at, khz, request, answer] : cases) {
    AircraftModel aircraft;
    start_at(aircraft, at);
    tune(aircraft, khz);
    const Exchange exchange = ask(aircraft, request);
    EXPECT_NE(exchange.answer.find(answer), std::string::npos) << at << khz << ": " << exchange.answer;
    EXPECT_EQ(exchange.answer.empty(), *answer == '\0') << at << khz << ": " << exchange.answer;
    EXPECT_NE(exchange.call.find("Tarnjet 36"), std::string::npos);
  }
}

TEST(Radio, ReachesAsFarAsOneSees) {
  AircraftModel aircraft;
  aircraft.make_ready();
  aircraft.place_in_flight({.altitude_ft = 2000, .airspeed_kt = 200, .along_m = -120000});
  EXPECT_EQ(heard_station(aircraft), nullptr);
  aircraft.place_in_flight({.altitude_ft = 20000, .airspeed_kt = 250, .along_m = -120000});
  ASSERT_NE(heard_station(aircraft), nullptr);
  EXPECT_EQ(heard_station(aircraft)->name, "Tarnvale Ground");
}

TEST(Information, ReadsTheWeatherAndTheRunwayThatItFavours) {
  const struct {
    double hours, from_true, knots, hpa, warmer;
    const char* words;
  } cases[] = {
      {10.3, 0, 0, 1013.25, 0,
       "Tarnvale information U, recorded at 1000. Runway in use 07, wind calm, temperature 14, QNH "
       "1013."},
      {10.6, 72, 12, 998.9, 10,
       "Tarnvale information V, recorded at 1030. Runway in use 07, wind 070 degrees 12 knots, "
       "temperature "
       "24, QNH 998."},
      {0, 252, 12, 1030, 0,
       "Tarnvale information A, recorded at 0000. Runway in use 25, wind 250 degrees 12 knots, "
       "temperature "
       "14, QNH 1030."},
      {0, 252, 4, 1030, 0,
       "Tarnvale information A, recorded at 0000. Runway in use 07, wind 250 degrees 4 knots, "
       "temperature "
       "14, QNH 1030."},
  };
  for (const auto& [hours, from, knots, hpa, warmer, words] : cases) {
    AircraftModel aircraft;
    aircraft.set_time_of_day(hours * 3600);
    aircraft.weather() = {hpa, warmer, {from, knots, 0}};
    EXPECT_EQ(information(aircraft), words);
  }
}

}  // namespace
