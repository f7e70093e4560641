// Lights by which a pilot lands, and the light of the hours.
#include <gtest/gtest.h>

#include <cmath>

#include "host/outside/daylight.h"
#include "host/outside/papi.h"
#include "host/outside/sight.h"
#include "host/simulation/world/stations.h"

namespace host::outside {
namespace {

using simulation::Vector;

std::string papi_from(const Vector& eye_m) {
  std::string shown;
  for (auto unit = papi_units.rbegin(); unit != papi_units.rend(); ++unit) {
    const double white = papi_white(*unit, eye_m);
    shown += white == 1.0 ? 'W' : white == 0.0 ? 'R' : 'p';
  }
  return shown;
}

TEST(Papi, TellsTheSlopeFromLeftToRight) {
  const struct {
    double slope_deg;
    const char* shown;
  } cases[] = {{2.0, "RRRR"}, {2.7, "WRRR"}, {3.0, "WWRR"},
               {3.3, "WWWR"}, {4.0, "WWWW"}, {3.5, "WWWp"}};
  for (const auto& [slope, shown] : cases) {
    const double away_m = 5000.0;
    Vector eye = papi_place_m(papi_units[1]) + simulation::on_runway_axes(-away_m, 0.0);
    eye.z = -simulation::airfield_elevation_m - away_m * std::tan(slope * M_PI / 180.0);
    EXPECT_EQ(papi_from(eye), shown) << slope << " degrees";
  }
}

// The glide path leads the wheels, the lights lead the eye: an aircraft on the one must be on the other.
TEST(Papi, AgreesWithTheGlidePathForAnApproachingCaptain) {
  for (const double before_threshold_m : {9000.0, 4000.0, 1500.0, 600.0}) {
    AircraftModel aircraft;
    const double to_antenna_m = before_threshold_m + 300.0;
    aircraft.place_in_flight({.altitude_ft = simulation::airfield_elevation_ft +
                                             to_antenna_m * std::tan(3.0 * M_PI / 180.0) / 0.3048,
                              .airspeed_kt = 135,
                              .heading_deg = 70,
                              .along_m = simulation::threshold_along_m - before_threshold_m,
                              .flap_detent = 5,
                              .gear_down = true});
    EXPECT_EQ(papi_from(captains_sight(aircraft).eye_m), "WWRR") << before_threshold_m << " m out";
  }
}

TEST(Daylight, FollowsTheHoursOfADayInMay) {
  const struct {
    double hours;
    double least_sun_deg, most_sun_deg;
  } cases[] = {{0.0, -30, -25}, {5.0, -3, 3}, {12.0, 54, 57}, {19.0, -3, 3}, {22.0, -25, -15}};
  for (const auto& [hours, least, most] : cases) {
    const Daylight light = daylight_at(hours * 3600.0);
    EXPECT_GE(light.sun_up_deg, least) << hours << " h";
    EXPECT_LE(light.sun_up_deg, most) << hours << " h";
  }
  EXPECT_GT(daylight_at(8 * 3600.0).sun.y, 0.5) << "in the east in the morning";
  EXPECT_LT(daylight_at(12 * 3600.0).sun.x, -0.5) << "in the south at noon";
}

TEST(CaptainsSight, FliesOnBetweenTwoFrames) {
  AircraftModel aircraft;
  aircraft.place_in_flight({.altitude_ft = 5000, .airspeed_kt = 250, .heading_deg = 70});
  const Sight before = captains_sight(aircraft, 0.05);
  aircraft.advance(0.05);
  const Sight after = captains_sight(aircraft);
  EXPECT_NEAR(length(after.eye_m - before.eye_m), 0.0, 0.02);
  EXPECT_NEAR(after.time_of_day_s, before.time_of_day_s, 1e-9);
}

}  // namespace
}  // namespace host::outside
