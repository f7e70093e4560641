// How the aircraft flies, against what mechanics say of any aircraft and what its figures say of this one.

#include "host/simulation/world/terrain.h"
#include "tests/simulation/flown.h"

namespace host::simulation {
namespace {

constexpr double g = 9.80665;

TEST(Flight, Trimmed_it_stays_for_ten_minutes_hands_off) {
  for (const InFlight& where :
       {InFlight{.altitude_ft = 5000, .airspeed_kt = 250}, InFlight{.altitude_ft = 33000, .mach = 0.75},
        InFlight{.altitude_ft = 3000, .airspeed_kt = 150, .flap_detent = 3, .gear_down = true},
        InFlight{.altitude_ft = 2000, .airspeed_kt = 130, .flap_detent = 5, .gear_down = true}}) {
    Aircraft aircraft = flying(where);
    const auto [furthest_ft, most_turn_deg] = greatest(
        aircraft, 600.0, [&] { return std::abs(aircraft.flight.altitude_ft - where.altitude_ft); },
        [&] { return std::abs(magnetic_heading_deg(aircraft.flight) - where.heading_deg); });
    // With full flaps half a ton burns, 1.4 % of the weight and so of the drag: V (D/W) 1.4 % t^2 / 2 T is
    // a climb of 80 ft in all, of which the thrust set for the middle leaves a third either way.
    EXPECT_LT(furthest_ft, where.flap_detent == 5 ? 27.0 : 20.0) << where.altitude_ft;
    EXPECT_LT(most_turn_deg, 0.01) << where.altitude_ft;
  }
}

// Lift carries the weight: V = sqrt(2 m g / (rho S CLmax)), CLmax by the flap table, the tail's download aside.
TEST(Flight, Stalls_where_lift_no_longer_carries_the_weight) {
  struct Case {
    std::size_t detent;
    double greatest_lift, least_kt, most_kt;
  };
  for (const auto& [detent, greatest_lift, least_kt, most_kt] :
       {Case{0, 1.74, 125, 130}, Case{3, 2.22, 108, 114}, Case{5, 2.72, 98, 105}}) {
    const auto flies_at = [&, flaps = detent](double kt) {
      Aircraft aircraft;
      return aircraft.place_in_flight({.altitude_ft = 1000, .airspeed_kt = kt, .flap_detent = flaps});
    };
    double slow_kt = 80.0, fast_kt = 160.0;
    while (fast_kt - slow_kt > 0.1) {
      const double middle_kt = (slow_kt + fast_kt) / 2.0;
      (flies_at(middle_kt) ? fast_kt : slow_kt) = middle_kt;
    }
    const double lift_equation_kt =
        std::sqrt(2.0 * 36080.0 * g / (1.225 * 79.0 * greatest_lift)) / 0.514444;
    EXPECT_NEAR(fast_kt, lift_equation_kt, 0.05 * lift_equation_kt) << "flap detent " << detent;
    EXPECT_GT(fast_kt, least_kt) << "flap detent " << detent;
    EXPECT_LT(fast_kt, most_kt) << "flap detent " << detent;
  }
}

TEST(Flight, A_stall_buffets_first_then_drops_the_nose_and_is_left_by_letting_go) {
  Aircraft aircraft = flying({.altitude_ft = 12000, .airspeed_kt = 150});
  aircraft.controls.throttle = {0, 0};
  double buffet_kt = 0.0, highest_pitch_deg = 0.0;
  run(aircraft, 40.0, [&] {
    aircraft.controls.elevator = std::fmin(1.0, aircraft.controls.elevator + 0.0004);
    // At 1 g; the pull adds to the weight.
    const double load = -aircraft.flight.specific_force_mps2.z / g;
    if (aircraft.flight.buffeting && buffet_kt == 0.0) {
      buffet_kt = aircraft.air.indicated_airspeed_kt / std::sqrt(load);
    }
    highest_pitch_deg = std::fmax(highest_pitch_deg, pitch_deg(aircraft));
  });
  EXPECT_NEAR(buffet_kt, 132.0, 5.0);
  EXPECT_LT(pitch_deg(aircraft), highest_pitch_deg - 5.0)
      << "the nose has dropped against the elevator";
  EXPECT_LT(aircraft.flight.vertical_speed_fpm, -1500.0);
  aircraft.controls.elevator = -0.1;
  run(aircraft, 5.0);
  EXPECT_FALSE(aircraft.flight.buffeting);
  EXPECT_LT(degrees(aircraft.flight.angle_of_attack_rad), 12.0);
}

// Turn rate = g tan(bank) / V; both ways, so that left and right are told apart.
TEST(Flight, Turns_by_bank_and_speed_toward_the_low_wing) {
  for (double bank : {-30.0, 20.0, 30.0}) {
    Aircraft aircraft = flying({.altitude_ft = 5000, .airspeed_kt = 220});
    const double pitch = pitch_deg(aircraft);
    const auto hold = [&] {
      hold_attitude(aircraft, pitch + 1.5 - aircraft.flight.vertical_speed_fpm / 500.0, bank);
    };
    run(aircraft, 30.0, hold);
    const double before_deg = magnetic_heading_deg(aircraft.flight);
    const double flown_bank_deg = bank_deg(aircraft);
    run(aircraft, 10.0, hold);
    const double turned_deg =
        std::remainder(magnetic_heading_deg(aircraft.flight) - before_deg, 360.0) / 10.0;
    const double expected_deg =
        degrees(g * std::tan(flown_bank_deg * M_PI / 180.0) / aircraft.flight.true_airspeed_mps);
    EXPECT_NEAR(flown_bank_deg, bank, 4.0);
    EXPECT_NEAR(turned_deg, expected_deg, 0.06 * std::abs(expected_deg)) << bank;
  }
}

TEST(Flight, Each_control_moves_its_own_axis_its_own_way) {
  struct Case {
    const char* what;
    double FlightControls::*control;
    double Vector::*axis;
    double part = 0.3;
  };
  for (const Case& c : {Case{"aileron", &FlightControls::aileron, &Vector::x},
                        Case{"aileron trim", &FlightControls::aileron_trim, &Vector::x, 1.0},
                        Case{"elevator", &FlightControls::elevator, &Vector::y},
                        Case{"rudder", &FlightControls::rudder, &Vector::z},
                        Case{"rudder trim", &FlightControls::rudder_trim, &Vector::z, 1.0}}) {
    for (double sign : {-1.0, 1.0}) {
      Aircraft aircraft = flying({});
      aircraft.controls.*c.control = c.part * sign;
      run(aircraft, 0.5);
      const Vector& rate = aircraft.flight.rate_rad_per_s;
      EXPECT_GT(rate.*c.axis * sign, 0.02) << c.what;
      EXPECT_GE(std::abs(rate.*c.axis), length(rate) * 0.7) << c.what << " moves most about its axis";
    }
  }
  Aircraft aircraft = flying({.altitude_ft = 5000, .airspeed_kt = 200});
  aircraft.controls.aileron = 1.0;
  run(aircraft, 1.25);
  EXPECT_NEAR(degrees(aircraft.flight.rate_rad_per_s.x), 20.0, 2.5) << "full aileron at 200 kt";
}

TEST(Flight, Near_the_ground_the_same_lift_costs_less_drag) {
  AirMotion motion;
  motion.airspeed_mps = {68.0, 0.0, 8.0};
  const AirForces high = air_forces(motion, {});
  motion.height_m = 3.0;
  const AirForces low = air_forces(motion, {});
  EXPECT_GT(low.lift_coefficient, high.lift_coefficient);
  EXPECT_LT(low.drag_coefficient, 0.93 * high.drag_coefficient);
}

TEST(Flight, The_radio_altimeter_measures_from_the_hills_and_the_approach_is_level) {
  const Aircraft out = flying({.altitude_ft = 5000, .along_m = 26000, .right_m = 3000});
  const double hill_m = ground_elevation_m(out.airframe.position_m) - 364.0 * 0.3048;
  EXPECT_GT(hill_m, 1.0);
  EXPECT_LT(hill_m, 151.0);
  EXPECT_NEAR(out.flight.height_ft, 5000.0 - 364.0 - hill_m / 0.3048, 1.0);
  EXPECT_EQ(ground_elevation_m(on_runway_axes(-5900.0, 0.0)), 364.0 * 0.3048);
}

TEST(Flight, Senseless_controls_count_as_the_nearest_sensible_ones) {
  const double nonsense = std::nan("");
  Aircraft aircraft = flying({.airspeed_kt = 150, .flap_detent = 99, .gear_down = true});
  EXPECT_EQ(aircraft.airframe.surfaces.flap_deg, 42.0);
  aircraft.controls.throttle = {nonsense, 7.0};
  aircraft.controls.elevator = aircraft.controls.brake[0] = nonsense;
  aircraft.controls.speed_brake = -3.0;
  aircraft.step();
  EXPECT_EQ(aircraft.controls.throttle, (std::array{0.0, 1.0}));
  EXPECT_EQ(aircraft.controls.elevator, 0.0);
  EXPECT_EQ(aircraft.controls.speed_brake, 0.0);
  EXPECT_TRUE(std::isfinite(aircraft.airframe.position_m.z));
}

/// The greatest swing of a signal in each of the windows that follow one another.
template <typename Signal>
std::vector<double> swings(Aircraft& aircraft, double window_s, int windows, Signal signal) {
  std::vector<double> found;
  for (int i = 0; i < windows; ++i) {
    double low = 1e9, high = -1e9;
    run(aircraft, window_s, [&] {
      low = std::fmin(low, signal());
      high = std::fmax(high, signal());
    });
    found.push_back((high - low) / 2.0);
  }
  return found;
}

TEST(Flight, Short_period_and_dutch_roll_die_at_once_and_the_phugoid_slowly) {
  Aircraft pitching = flying({});
  pitching.airframe.rate_rad_per_s.y = 0.1;
  const auto short_period = swings(pitching, 2.0, 3, [&] { return pitching.flight.rate_rad_per_s.y; });
  EXPECT_LT(short_period[2], 0.1 * short_period[0]);

  Aircraft yawing = flying({.airspeed_kt = 160, .flap_detent = 3});
  yawing.airframe.rate_rad_per_s.z = 0.1;
  const auto dutch_roll = swings(yawing, 5.0, 3, [&] { return yawing.flight.sideslip_rad; });
  EXPECT_LT(dutch_roll[2], 0.35 * dutch_roll[0]);

  // Lanchester: a phugoid takes pi sqrt(2) V / g, whatever the aircraft.
  Aircraft faster = flying({});
  const double period_s = M_PI * std::sqrt(2.0) * faster.flight.true_airspeed_mps / g;
  faster.airframe.velocity_mps = faster.airframe.velocity_mps * 1.03;
  const auto phugoid = swings(faster, period_s, 3, [&] { return faster.flight.true_airspeed_mps; });
  EXPECT_LT(phugoid[2], 0.9 * phugoid[0]);
  EXPECT_GT(phugoid[2], 0.3 * phugoid[0]) << "lightly damped";
}

// In a glide the air takes what height and speed lose: d(m g h + m V^2/2) = -(D - T) V dt.
TEST(Flight, A_glide_loses_the_work_of_its_drag) {
  Aircraft aircraft = flying({.altitude_ft = 8000, .airspeed_kt = 230});
  aircraft.controls.throttle = {0, 0};
  const auto energy_j = [&] {
    return mass_kg(aircraft) *
           (-g * aircraft.airframe.position_m.z + std::pow(aircraft.flight.true_airspeed_mps, 2) / 2.0);
  };
  run(aircraft, 20.0);
  const double before_j = energy_j();
  double work_j = 0.0;
  run(aircraft, 60.0, [&] {
    const double v = aircraft.flight.true_airspeed_mps;
    const double drag_n =
        aircraft.airframe.air.drag_coefficient * 0.5 * aircraft.air.density_kg_per_m3 * v * v * 79.0;
    const double thrust_n = (aircraft.engines[0].thrust_n + aircraft.engines[1].thrust_n) *
                            std::cos(aircraft.flight.angle_of_attack_rad);
    work_j += (thrust_n - drag_n) * v / 60.0;
  });
  EXPECT_LT(work_j, -5e7);
  EXPECT_NEAR(energy_j() - before_j, work_j, 0.02 * std::abs(work_j));
}

TEST(Flight, Climbs_and_cruises_as_its_class_does) {
  Aircraft low = flying({.altitude_ft = 2000, .airspeed_kt = 200});
  low.controls.throttle = {0.95, 0.95};
  run(low, 60.0, [&] { hold_attitude(low, 11.0, 0.0); });
  EXPECT_GT(low.flight.vertical_speed_fpm, 2500.0);
  EXPECT_LT(low.flight.vertical_speed_fpm, 5000.0);
  const Aircraft high = flying({.altitude_ft = 33000, .mach = 0.75});
  EXPECT_LT(high.controls.throttle[0], 0.97) << "something is left";
  EXPECT_NEAR(high.air.indicated_airspeed_kt, 265.0, 2.0);
  EXPECT_NEAR(2.0 * high.engines[0].fuel_flow_kg_per_h, 1750.0, 150.0);
}

TEST(Flight, What_slows_it_slows_it_and_moves_in_its_own_time) {
  struct Case {
    const char* what;
    void (*pull)(FlightControls&);
    double seconds;
    double (*position)(const Surfaces&);
    double least_drag;
  };
  for (const Case& c : {Case{"speed brake", [](FlightControls& f) { f.speed_brake = 1; }, 3.0,
                             [](const Surfaces& s) { return s.speed_brake; }, 0.03},
                        Case{"gear", [](FlightControls& f) { f.gear_down = true; }, 9.5,
                             [](const Surfaces& s) { return s.gear[2]; }, 0.015},
                        Case{"flaps", [](FlightControls& f) { f.flap_detent = 5; }, 16.8,
                             [](const Surfaces& s) { return s.flap_deg / 42.0; }, 0.06}}) {
    Aircraft aircraft = flying({.altitude_ft = 5000, .airspeed_kt = 180});
    const double clean = aircraft.airframe.air.drag_coefficient;
    c.pull(aircraft.controls);
    run(aircraft, c.seconds - 0.3);
    EXPECT_LT(c.position(aircraft.airframe.surfaces), 1.0) << c.what;
    run(aircraft, 0.5);
    EXPECT_EQ(c.position(aircraft.airframe.surfaces), 1.0) << c.what;
    EXPECT_GT(aircraft.airframe.air.drag_coefficient - clean, c.least_drag) << c.what;
  }
}

TEST(Flight, Wind_carries_it_along_and_turbulence_shakes_it) {
  Aircraft aircraft;
  aircraft.air.weather.wind = {.from_true_deg = 162.0, .speed_kt = 40.0};
  ASSERT_TRUE(aircraft.place_in_flight({.heading_deg = 70}));
  const RunwayAxes start = runway_axes(aircraft.airframe.position_m);
  run(aircraft, 60.0);
  const RunwayAxes end = runway_axes(aircraft.airframe.position_m);
  EXPECT_NEAR(start.right_m - end.right_m, 40.0 * 0.514444 * 60.0, 20.0)
      << "from the right to the left";

  Aircraft rough = flying({});
  rough.air.weather.wind.gust_mps = 2.0;
  const auto load = [&] { return -rough.flight.specific_force_mps2.z / g; };
  const auto [high, low] = greatest(rough, 60.0, load, [&] { return -load(); });
  EXPECT_LT(-low, 0.9);
  EXPECT_GT(high, 1.1);
}

}  // namespace
}  // namespace host::simulation
