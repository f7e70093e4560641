#include "host/simulation/flight/atmosphere.h"

#include <gtest/gtest.h>

#include "host/simulation/flight/air_data.h"

namespace host::simulation {
namespace {

// Printed tables of the standard atmosphere.
TEST(Atmosphere, Agrees_with_the_standard_tables) {
  struct Case {
    double altitude_ft, celsius, hpa;
  };
  for (const auto& [altitude_ft, celsius, hpa] : {
           Case{-1000, 16.98, 1050.41},
           Case{0, 15.0, 1013.25},
           Case{10000, -4.81, 696.82},
           Case{20000, -24.62, 465.63},
           Case{36089, -56.5, 226.32},
           Case{45000, -56.5, 147.48},
       }) {
    EXPECT_NEAR(standard_temperature_at(altitude_ft), celsius, 0.01) << altitude_ft;
    EXPECT_NEAR(standard_pressure_at(altitude_ft), hpa, 0.03) << altitude_ft;
    EXPECT_NEAR(pressure_altitude_ft(hpa), altitude_ft, 5.0) << hpa;
  }
}

TEST(AirData, Altimeter_on_qnh_reads_the_elevation_and_on_standard_the_pressure_altitude) {
  AirData air;
  FlightState flight;
  air.weather.sea_level_pressure_hpa = 1003.25;
  air.update(flight);
  EXPECT_NEAR(air.indicated_altitude_ft, airfield_elevation_ft + 10 * 27.5, 5.0);
  air.set_altimeters_to_qnh();
  air.update(flight);
  EXPECT_NEAR(air.indicated_altitude_ft, airfield_elevation_ft, 1e-6);
}

}  // namespace
}  // namespace host::simulation
