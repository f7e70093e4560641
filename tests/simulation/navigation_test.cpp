// What the receivers make of the stations, against geometry worked out here.

#include "tests/simulation/flown.h"

namespace host::simulation {
namespace {

constexpr double course_true_deg = 72.0;  // runway 07, variation 2 degrees east

/// A point on the approach: so far out from the glide slope's aerial, so much above it, so much to the right.
FlightState on_approach(double out_m, double up_m, double right_m) {
  constexpr double aerial_along_m = -1200.0;
  const double north = std::cos(course_true_deg * M_PI / 180.0),
               east = std::sin(course_true_deg * M_PI / 180.0);
  const double along_m = aerial_along_m - out_m;
  FlightState flight;
  flight.position_m = {along_m * north - right_m * east, along_m * east + right_m * north,
                       -(364.0 * 0.3048 + up_m)};
  flight.height_ft = up_m / 0.3048;
  flight.attitude.heading_rad = course_true_deg * M_PI / 180.0;
  return flight;
}

NavReceiver tuned(double mhz, const FlightState& flight, double course_deg = 70.0) {
  NavReceiver receiver;
  receiver.tuning.active_khz = static_cast<int>(std::lround(mhz * 1000));
  receiver.course_deg = course_deg;
  receiver.update(flight, true);
  return receiver;
}

TEST(Ils, Is_centred_on_the_beam_and_points_back_to_it_from_every_side) {
  const double on_slope_m = 10000.0 * std::tan(3.0 * M_PI / 180.0);
  const NavReceiver centred = tuned(110.30, on_approach(10000, on_slope_m, 0));
  EXPECT_TRUE(centred.localizer && centred.glide_slope);
  EXPECT_NEAR(centred.course_deviation, 0.0, 1e-9);
  EXPECT_NEAR(centred.slope_deviation, 0.0, 1e-9);

  // Half a scale: 1.25 degrees at the localizer, 13 km away, and 0.35 degrees at the slope's aerial.
  const double aside_m = 13000.0 * std::tan(1.25 * M_PI / 180.0);
  EXPECT_NEAR(tuned(110.30, on_approach(10000, on_slope_m, -aside_m)).course_deviation, 0.5, 0.001)
      << "left of the beam it lies to the right";
  EXPECT_NEAR(tuned(110.30, on_approach(10000, on_slope_m, aside_m)).course_deviation, -0.5, 0.001);
  const double higher_m = 10000.0 * std::tan(3.35 * M_PI / 180.0);
  const double lower_m = 10000.0 * std::tan(2.65 * M_PI / 180.0);
  EXPECT_NEAR(tuned(110.30, on_approach(10000, higher_m, 0)).slope_deviation, 0.5, 0.001);
  EXPECT_NEAR(tuned(110.30, on_approach(10000, lower_m, 0)).slope_deviation, -0.5, 0.001);
}

TEST(Ils, Is_heard_where_it_is_sent_and_only_when_tuned_and_powered) {
  EXPECT_FALSE(tuned(110.30, on_approach(60000, 3000, 0)).received) << "too far";
  EXPECT_FALSE(tuned(110.30, on_approach(-6000, 500, 0)).received) << "behind";
  EXPECT_FALSE(tuned(110.30, on_approach(10000, 500, 15000)).received) << "aside";
  EXPECT_TRUE(tuned(110.30, on_approach(35000, 1500, 0)).localizer);
  EXPECT_FALSE(tuned(110.30, on_approach(35000, 1500, 0)).glide_slope);
  EXPECT_FALSE(tuned(109.90, on_approach(10000, 500, 0)).received);
  NavReceiver dead;
  dead.tuning.active_khz = 110300;
  dead.update(on_approach(10000, 500, 0), false);
  EXPECT_FALSE(dead.received);
  EXPECT_LT(dead.distance_nm, 0.0);
}

TEST(Vor, Bearing_distance_and_course_agree_with_geometry) {
  // The station TRN is 15 km north and 9 km east of the runway's middle, at the field's elevation.
  struct Case {
    double north_m, east_m, up_m, course_deg;
    double bearing_deg, distance_nm, deviation;
    ToFrom to_from;
  };
  for (const Case& c : {
           Case{-5000, 9000, 3000, 358, 358, std::hypot(20000, 3000) / 1852, 0, ToFrom::to},
           Case{15000, -21000, 3000, 83, 88, std::hypot(30000, 3000) / 1852, 0.5, ToFrom::to},
           Case{15000, -21000, 3000, 93, 88, std::hypot(30000, 3000) / 1852, -0.5, ToFrom::to},
           Case{45000, 9000, 3000, 3, 178, std::hypot(30000, 3000) / 1852, 0.5, ToFrom::from},
           Case{45000, 9000, 3000, 178, 178, std::hypot(30000, 3000) / 1852, 0, ToFrom::to},
       }) {
    FlightState flight;
    flight.position_m = {c.north_m, c.east_m, -(364 * 0.3048 + c.up_m)};
    flight.height_ft = c.up_m / 0.3048;
    const NavReceiver receiver = tuned(113.35, flight, c.course_deg);
    EXPECT_NEAR(receiver.bearing_deg, c.bearing_deg, 0.01);
    EXPECT_NEAR(receiver.distance_nm, c.distance_nm, 0.001);
    EXPECT_NEAR(receiver.course_deviation, c.deviation, 0.001) << c.course_deg;
    EXPECT_EQ(receiver.to_from, c.to_from) << c.course_deg;
  }
}

TEST(Vor, Hides_behind_the_horizon) {
  FlightState flight;
  flight.position_m = {15000, 9000 + 80 * 1852, -1000};
  flight.height_ft = 1000.0;
  EXPECT_FALSE(tuned(113.35, flight).received) << "1.23 (31.6 + 7) = 47 miles";
  flight.height_ft = 20000.0;
  EXPECT_TRUE(tuned(113.35, flight).received);
}

TEST(Adf, Needle_shows_the_way_relative_to_the_nose) {
  FlightState flight = on_approach(20000, 1000, 0);
  AdfReceiver adf;
  adf.tuning.tenths_khz = 3680;
  adf.update(flight, true);
  ASSERT_TRUE(adf.received);
  EXPECT_NEAR(on_instrument_deg(adf.bearing_deg, magnetic_heading_deg(flight)), 0.0, 0.01);
  flight.attitude.heading_rad = (course_true_deg + 90.0) * M_PI / 180.0;
  EXPECT_NEAR(on_instrument_deg(adf.bearing_deg, magnetic_heading_deg(flight)), 270.0, 0.01);
}

TEST(Markers, Are_heard_overhead_in_their_order_and_not_aside) {
  // Out from the slope's aerial, which is 300 m behind the threshold.
  for (const auto& [out_m, number] : {std::pair{7500.0, 1}, std::pair{1350.0, 2}, std::pair{600.0, 3},
                                      std::pair{4000.0, 0}, std::pair{0.0, 0}}) {
    EXPECT_EQ(marker_overhead(on_approach(out_m, 100, 0)), number) << out_m;
    EXPECT_EQ(marker_overhead(on_approach(out_m, 100, 1500)), 0) << out_m;
  }
}

}  // namespace
}  // namespace host::simulation
