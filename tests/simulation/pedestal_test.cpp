// What the levers of the pedestal do: throttles, flaps, speed brake, lift dumpers, brakes; and the
// hydraulics behind them.

#include "tests/simulation/flown.h"

namespace host::simulation {
namespace {

TEST(Pedestal, Each_throttle_goes_where_its_lever_is_put) {
  struct Row {
    std::int32_t sent;
    double read;
  };
  for (const auto& [sent, read] :
       {Row{12580, 12580}, {0, 0}, {16384, 16384}, {20000, 16384}, {-74, 0}}) {
    for (const auto& [event_number, own, other] :
         {std::tuple{65820u, 128u, 163u}, {65821u, 163u, 128u}}) {
      Aircraft aircraft;
      send(aircraft, event_number, static_cast<std::uint32_t>(sent));
      EXPECT_EQ(token(aircraft, own), read) << sent;
      EXPECT_EQ(token(aircraft, other), 0.0) << sent;
    }
  }
}

TEST(Pedestal, The_flap_lever_goes_from_detent_to_detent_and_stops_at_both_ends) {
  Aircraft aircraft;
  for (std::size_t detent : {1u, 2u, 3u, 4u, 5u, 5u}) {
    send(aircraft, 0x100DE);
    EXPECT_EQ(aircraft.controls.flap_detent, detent);
  }
  EXPECT_EQ(token(aircraft, 328), 16384.0);
  for (int i = 0; i < 7; ++i) send(aircraft, 0x100DF);
  EXPECT_EQ(aircraft.controls.flap_detent, 0u);
}

TEST(Pedestal, The_speed_brake_goes_out_and_in_and_slows_the_flight) {
  Aircraft clean = flying({.altitude_ft = 10000, .airspeed_kt = 280}), braked = clean;
  send(braked, 0x10357);
  EXPECT_EQ(token(braked, 869), 1.0);
  run(braked, 23.0), run(clean, 23.0);
  EXPECT_LT(braked.air.indicated_airspeed_kt, clean.air.indicated_airspeed_kt - 10.0);
  send(braked, 0x10357);
  EXPECT_EQ(token(braked, 869), 0.0);
  run(braked, 3.1);
  EXPECT_EQ(braked.airframe.surfaces.speed_brake, 0.0);
}

/// Out or in, by what was sent, on the ground and with closed throttles or not.
TEST(Pedestal, Lift_dumpers_run_out_on_the_ground_alone_when_sent_or_armed_with_closed_throttles) {
  struct Row {
    const char* when;
    std::vector<std::uint32_t> events;
    bool on_ground;
    double throttle;
    double out;
  };
  constexpr std::uint32_t deploy = 0x10210, stow = 0x10211, arm = 0x10212, disarm = 0x10213;
  for (const Row& row :
       {Row{"sent out", {deploy}, true, 0.5, 16384}, Row{"sent out and in", {deploy, stow}, true, 0, 0},
        Row{"armed, closed", {arm}, true, 0, 16384},
        Row{"armed, one throttle open", {arm}, true, 0.2, 0},
        Row{"armed and disarmed", {arm, disarm}, true, 0, 0},
        Row{"sent out in the air", {deploy, arm}, false, 0, 0}}) {
    Aircraft aircraft = row.on_ground ? on_the_runway() : flying({});
    aircraft.controls.throttle = {0.0, row.throttle};
    for (std::uint32_t number : row.events) send(aircraft, number);
    run(aircraft, 0.5);
    EXPECT_LT(token(aircraft, 326), 16384.0) << row.when << ": it takes 0.8 s";
    run(aircraft, 0.5);
    EXPECT_EQ(token(aircraft, 326), row.out) << row.when;
    EXPECT_EQ(token(aircraft, 327), row.out) << row.when;
  }
}

TEST(Brakes, Pressure_follows_pedals_and_parking_brake_in_three_tenths_of_a_second) {
  Aircraft aircraft;
  aircraft.controls.brake = {0.5, 0.0};
  run(aircraft, 0.1);
  EXPECT_NEAR(token(aircraft, 320), 32767.0 / 3.0, 600.0);
  run(aircraft, 0.1);
  EXPECT_EQ(token(aircraft, 320), 0.5 * 32767.0);
  EXPECT_EQ(token(aircraft, 321), 0.0);
  send(aircraft, 0x100D8);
  run(aircraft, 0.5);
  EXPECT_EQ(token(aircraft, 320), 32767.0);
  EXPECT_EQ(token(aircraft, 321), 32767.0);
}

struct Stop {
  double metres, celsius;
  Aircraft after;
};

Stop stop_from(double knots, bool antiskid, double brake_celsius = 15.0) {
  Aircraft aircraft = on_the_runway();
  aircraft.controls.parking_brake_set = false;
  aircraft.controls.throttle = {1, 1};
  while (aircraft.air.indicated_airspeed_kt < knots + 10.0) aircraft.step();
  aircraft.controls.throttle = {0, 0};
  while (aircraft.engines[0].thrust_n > 5000.0 || aircraft.air.indicated_airspeed_kt > knots)
    aircraft.step();
  if (!antiskid) send(aircraft, 0x104A0);
  aircraft.brakes.temperature_celsius.fill(brake_celsius);
  aircraft.controls.brake = {1, 1};
  const Vector start_m = aircraft.airframe.position_m;
  while (speed_mps(aircraft) > 0.1) aircraft.step();
  return {length(aircraft.airframe.position_m - start_m), aircraft.brakes.temperature_celsius[0],
          aircraft};
}

// The brakes take most of m V^2 / 2, half on each side, in 60 kJ/K.
TEST(Brakes, Take_the_energy_of_a_stop_as_heat) {
  for (const double knots : {60.0, 110.0}) {
    const double mps = knots * 0.514444;
    const double all_celsius = 36000.0 * mps * mps / 2.0 / 2.0 / 60e3;
    const Stop stop = stop_from(knots, true);
    EXPECT_LT(stop.celsius - 15.0, all_celsius) << knots << stop.metres;
    EXPECT_GT(stop.celsius - 15.0, 0.7 * all_celsius) << knots;
    EXPECT_NEAR(stop.after.brakes.temperature_celsius[1], stop.celsius, 1.0) << "both alike";
  }
}

TEST(Brakes, Cool_faster_in_the_slipstream) {
  struct Row {
    double slipstream_mps, half_cold_s;
  };
  for (const auto& [slipstream_mps, half_cold_s] : {Row{0.0, 1386.0}, {70.0, 173.0}}) {
    Brakes brakes;
    brakes.temperature_celsius = {315.0, 15.0};
    for (int second = 0; second < half_cold_s; ++second) {
      brakes.update(1.0, {.slipstream_mps = slipstream_mps});
    }
    EXPECT_NEAR(brakes.temperature_celsius[0], 165.0, 1.0) << slipstream_mps;
    EXPECT_EQ(brakes.temperature_celsius[1], 15.0);
  }
}

TEST(Brakes, Need_more_runway_when_hot_or_without_antiskid) {
  const double usual_m = stop_from(110.0, true).metres;
  EXPECT_GT(stop_from(110.0, true, 700.0).metres, 1.15 * usual_m);
  EXPECT_GT(stop_from(110.0, false).metres, 1.15 * usual_m);
}

TEST(Hydraulics, Come_up_with_an_engine_and_keep_their_pressure_for_minutes_without) {
  Aircraft aircraft;
  EXPECT_EQ(token(aircraft, 150), 0.0);
  EXPECT_NEAR(token(aircraft, 151), 16384.0, 1e-6) << "all of it in the reservoir";
  EXPECT_NEAR(token(aircraft, 186), 0.94 * 16384.0, 1.0) << "less what the gear's jacks hold";
  aircraft.make_ready();
  for (std::uint32_t pressure : {150u, 185u}) {
    EXPECT_NEAR(token(aircraft, pressure), 3000 * 3625, 20 * 3625) << pressure;
  }
  EXPECT_NEAR(token(aircraft, 151), 0.88 * 16384.0, 100.0) << "the accumulator is full";
  aircraft.fuel.lever_open = {false, false};
  run(aircraft, 60.0);
  EXPECT_GT(token(aircraft, 150), 2000 * 3625);
  run(aircraft, 1800.0);
  EXPECT_LT(token(aircraft, 150), 500 * 3625);
}

TEST(Hydraulics, What_moves_draws_on_its_own_system) {
  struct Row {
    const char* what;
    void (*move)(FlightControls&);
    double utility_psi, flight_psi;  ///< by which the pressure dips
  };
  for (const Row& row : {Row{"gear", [](FlightControls& f) { f.gear_down = true; }, 85, 0},
                         Row{"flaps", [](FlightControls& f) { f.flap_detent = 5; }, 22, 0},
                         Row{"elevator", [](FlightControls& f) { f.elevator = 0.5; }, 0, 113}}) {
    Aircraft aircraft = flying({.altitude_ft = 3000, .airspeed_kt = 180});
    run(aircraft, 1.0);
    const double utility_psi = aircraft.hydraulics.utility.pressure_psi;
    const double flight_psi = aircraft.hydraulics.flight.pressure_psi;
    double least_utility_psi = utility_psi, least_flight_psi = flight_psi;
    row.move(aircraft.controls);
    run(aircraft, 1.0, [&] {
      least_utility_psi = std::fmin(least_utility_psi, aircraft.hydraulics.utility.pressure_psi);
      least_flight_psi = std::fmin(least_flight_psi, aircraft.hydraulics.flight.pressure_psi);
    });
    EXPECT_NEAR(utility_psi - least_utility_psi, row.utility_psi, 0.2 * row.utility_psi + 2.0)
        << row.what;
    EXPECT_NEAR(flight_psi - least_flight_psi, row.flight_psi, 0.2 * row.flight_psi + 2.0) << row.what;
  }
}

}  // namespace
}  // namespace host::simulation
