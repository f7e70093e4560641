// Tanks, valves and what becomes of the engines; one side at a time.

#include "tests/simulation/flown.h"

namespace host::simulation {
namespace {

constexpr std::size_t sides[] = {0, 1};

TEST(Fuel, Burned_is_what_flowed_and_each_tank_feeds_its_own_engine) {
  for (std::size_t side : sides) {
    Aircraft aircraft = flying({});
    aircraft.controls.throttle[side] = 0.9;
    const FuelControls before = aircraft.fuel;
    std::array<double, 2> flowed_kg{};
    run(aircraft, 120.0, [&] {
      aircraft.controls.throttle[1 - side] = 0.2;
      for (std::size_t i : sides)
        flowed_kg[i] += aircraft.engines[i].fuel_flow_kg_per_h / 3600.0 / 60.0;
    });
    for (std::size_t i : sides) {
      EXPECT_NEAR(before.wing_kg[i] - aircraft.fuel.wing_kg[i], flowed_kg[i], 0.5) << i;
    }
    EXPECT_GT(flowed_kg[side], 2.0 * flowed_kg[1 - side]);
  }
}

TEST(Fuel, An_empty_tank_stops_its_engine_unless_the_other_tank_feeds_both) {
  for (std::size_t empty : sides) {
    for (bool crossfeed : {false, true}) {
      Aircraft aircraft = flying({});
      aircraft.fuel.wing_kg[empty] = 0.0;
      if (crossfeed) aircraft.fuel.toggle_crossfeed();
      run(aircraft, 30.0);
      EXPECT_EQ(aircraft.engines[empty].lit, crossfeed) << empty;
      EXPECT_TRUE(aircraft.engines[1 - empty].lit) << empty;
    }
  }
}

TEST(Fuel, The_crews_choice_feeds_both_engines_from_one_tank) {
  for (std::size_t feeding : sides) {
    Aircraft aircraft = flying({});
    aircraft.fuel.feed = feeding == 0 ? FuelFeed::tank_1_both : FuelFeed::tank_2_both;
    const auto before = aircraft.fuel.wing_kg;
    run(aircraft, 1.0);
    EXPECT_LT(aircraft.fuel.wing_kg[1 - feeding], before[1 - feeding]) << "not with the valve shut";
    aircraft.fuel.crossfeed_open = true;
    const auto opened = aircraft.fuel.wing_kg;
    run(aircraft, 60.0);
    EXPECT_LT(aircraft.fuel.wing_kg[feeding], opened[feeding] - 20.0);
    EXPECT_EQ(aircraft.fuel.wing_kg[1 - feeding], opened[1 - feeding]);
  }
}

TEST(Fuel, With_crossfeed_open_the_only_running_pump_takes_both_engines) {
  for (std::size_t running : sides) {
    FuelControls fuel;
    fuel.crossfeed_open = true;
    fuel.boost_pump_on[running] = true;
    EXPECT_EQ(fuel.tank_of(0), running);
    EXPECT_EQ(fuel.tank_of(1), running);
    fuel.boost_pump_on[1 - running] = true;
    EXPECT_EQ(fuel.tank_of(0), 0u);
    EXPECT_EQ(fuel.tank_of(1), 1u);
  }
}

TEST(Fuel, High_up_an_engine_needs_its_boost_pump_low_down_it_does_not) {
  for (std::size_t side : sides) {
    for (double altitude_ft : {15000.0, 25000.0}) {
      Aircraft aircraft = flying({.altitude_ft = altitude_ft});
      aircraft.fuel.boost_pump_on[side] = false;
      run(aircraft, 10.0);
      EXPECT_EQ(aircraft.engines[side].lit, altitude_ft < 20000.0) << side << " at " << altitude_ft;
      EXPECT_TRUE(aircraft.engines[1 - side].lit);
    }
  }
}

TEST(Fuel, The_centre_tank_refills_the_wing_whose_pump_runs) {
  FuelControls fuel;
  fuel.centre_kg = 300.0;
  fuel.boost_pump_on = {true, false};
  const auto before = fuel.wing_kg;
  for (int i = 0; i < 6000; ++i) fuel.update(0.1, {.has_dc = true});
  EXPECT_NEAR(fuel.wing_kg[0], before[0] + 300.0, 1e-6);
  EXPECT_EQ(fuel.wing_kg[1], before[1]);
  EXPECT_NEAR(fuel.centre_kg, 0.0, 1e-6);
}

TEST(Fuel, The_truck_fills_the_wings_of_a_standing_aircraft_only) {
  for (bool standing : {true, false}) {
    FuelControls fuel;
    fuel.toggle_refuelling();
    for (int i = 0; i < 6000; ++i) fuel.update(0.1, {.standing = standing});
    EXPECT_NEAR(fuel.wing_kg[0] / kg_per_gallon, standing ? 1280.0 : 1000.0, 0.01);
    EXPECT_FALSE(fuel.refuelling);
  }
}

TEST(Fuel, Weight_and_balance_follow_what_is_left) {
  const MassProperties usual = mass_properties(usual_fuel);
  EXPECT_NEAR(usual.mass_kg, 36080.0, 1.0);
  const MassProperties left_heavy = mass_properties({2000.0, 1000.0, 0.0});
  EXPECT_NEAR(left_heavy.centre_m.y * left_heavy.mass_kg, -1000.0 * 4.2, 1.0);
  Aircraft aircraft = flying({});
  aircraft.fuel.wing_kg[1] -= 1000.0;
  run(aircraft, 5.0);
  EXPECT_LT(bank_deg(aircraft), -0.5) << "the heavy wing drops";
}

}  // namespace
}  // namespace host::simulation
