// How far and where to: the pages' figures against those of the simulation.
#include <gtest/gtest.h>

#include "host/pages/places_to_go.h"
#include "host/simulation/aircraft_model.h"
#include "host/simulation/places.h"
#include "host/simulation/world/stations.h"

namespace {

using namespace host;
using simulation::FlightState;
using simulation::Vector;

FlightState moving(double north_m, double east_m, double north_mps, double east_mps) {
  FlightState flight;
  flight.position_m = {north_m, east_m, -1000};
  flight.velocity_mps = {north_mps, east_mps, 0};
  return flight;
}

TEST(WayTo, TellsMilesDirectionAndTime) {
  const struct {
    FlightState flight;
    Vector to;
    double miles, bearing, minutes;
  } cases[] = {
      {moving(0, 0, 100, 0), {18520, 0, 0}, 10, 358, 3.0867},  // 194.4 kt; north is 358 magnetic
      {moving(0, 0, 0, 100), {0, 18520, 0}, 10, 88, 3.0867},
      {moving(1000, 2000, -50, 0), {1000, 148, 0}, 1, 268, 0.6173},
      {moving(0, 0, 5, 0), {1852, 0, 0}, 1, 358, -1},  // taxiing
      {moving(5, 5, 100, 0), {5, 5, 0}, 0, -1, 0},     // there, in no direction
  };
  for (const auto& [flight, to, miles, bearing, minutes] : cases) {
    const WayTo way = way_to(to, flight);
    EXPECT_NEAR(way.distance_nm, miles, 1e-3);
    if (bearing >= 0) {
      EXPECT_NEAR(way.bearing_deg, bearing, 1e-6);
    }
    EXPECT_NEAR(way.minutes, minutes, 1e-3);
  }
}

// The instruments' own readings of the same stations, on the way in.
TEST(WayTo, AgreesWithTheReceivers) {
  AircraftModel aircraft;
  ASSERT_TRUE(start_at(aircraft, "final"));
  aircraft.advance(5);
  const auto reading = [&](std::string_view name) {
    return aircraft.token(find_row(AircraftModel::tokens(), name)->number);
  };
  const PlaceToGo& trn = places_to_go()[1];
  ASSERT_EQ(trn.name, "TRN");
  const WayTo way = way_to(trn.position_m, aircraft.flight());
  EXPECT_NEAR(way.distance_nm, reading("nav2_distance"), 0.1);
  const double shown = reading("nav2_bearing") + reading("heading");
  EXPECT_NEAR(std::cos((shown - way.bearing_deg) * 0.0174533), 1, 1e-3)
      << shown << ' ' << way.bearing_deg;
  const GroundMotion motion = ground_motion(aircraft.flight());
  EXPECT_NEAR(motion.track_deg, 70, 1);
  EXPECT_NEAR(motion.speed_kt, aircraft.flight().true_airspeed_mps * 3600 / 1852, 2);
  EXPECT_NEAR(way_to(places_to_go()[0].position_m, aircraft.flight()).bearing_deg, 70, 0.5);
}

TEST(Words, OfPlacesAndTimes) {
  EXPECT_EQ(position_words({0, 0, 0}), "N 48°00.00'   E 011°00.00'");
  EXPECT_EQ(position_words({-1853.25, -74.42, 0}), "N 47°59.00'   E 010°59.94'");
  EXPECT_EQ(position_words({-18.5, 0, 0}), "N 47°59.99'   E 011°00.00'");
  const struct {
    double minutes;
    const char* words;
  } cases[] = {{4.1167, "4:07"}, {0, "0:00"}, {59.999, "1:00:00"}, {62.5, "1:02:30"},
               {-1, "--"},       {1e9, "--"}, {NAN, "--"}};
  for (const auto& [minutes, words] : cases) EXPECT_EQ(duration_words(minutes), words) << minutes;
}

TEST(Track, GrowsWithTheFlightAndBeginsAnewElsewhere) {
  AircraftModel aircraft;
  ASSERT_TRUE(start_at(aircraft, "cruise"));
  aircraft.advance(600);
  const auto track = aircraft.track();
  EXPECT_GT(track.size(), 1000u);
  EXPECT_LT(track.size(), 4000u);
  const Vector& last = track.back();
  EXPECT_LT(
      std::hypot(last.x - aircraft.flight().position_m.x, last.y - aircraft.flight().position_m.y),
      110);
  EXPECT_NEAR(length(track.front() - last), 600 * aircraft.flight().true_airspeed_mps, 4000);
  aircraft.place_on_runway();
  aircraft.advance(1);
  EXPECT_EQ(aircraft.track().size(), 1u);
}

}  // namespace
