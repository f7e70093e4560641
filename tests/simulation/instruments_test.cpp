// What the instruments' tokens read in flight, with the sign in which each pointer moves.

#include "tests/simulation/flown.h"

namespace host::simulation {
namespace {

TEST(Instruments, Read_a_climbing_right_turn) {
  Aircraft aircraft = flying({.altitude_ft = 5000, .airspeed_kt = 220, .heading_deg = 70});
  aircraft.controls.throttle = {0.8, 0.8};
  run(aircraft, 20.0, [&] { hold_attitude(aircraft, 8.0, 20.0); });
  EXPECT_NEAR(token(aircraft, 77), -8.0, 2.0) << "nose up is negative";
  EXPECT_EQ(token(aircraft, 78), -token(aircraft, 77));
  EXPECT_NEAR(token(aircraft, 79), -20.0, 2.5) << "right bank is negative";
  EXPECT_EQ(token(aircraft, 80), token(aircraft, 79));
  EXPECT_GT(token(aircraft, 81), 75.0) << "turning right";
  EXPECT_NEAR(token(aircraft, 65), 1.30048 * aircraft.flight.vertical_speed_fpm, 0.1);
  EXPECT_GT(token(aircraft, 65), 1000.0);
  EXPECT_NEAR(token(aircraft, 64) / 20480.0, aircraft.air.mach, 1e-9);
  EXPECT_NEAR(token(aircraft, 69), 0.0, 3.0) << "in balance";
}

TEST(Instruments, The_ball_rolls_to_the_low_side_and_against_the_pedal) {
  for (double sign : {-1.0, 1.0}) {
    Aircraft aircraft = flying({.airspeed_kt = 200});
    aircraft.controls.rudder = 0.4 * sign;
    run(aircraft, 3.0, [&] {
      aircraft.controls.aileron = std::fmin(1.0, std::fmax(-1.0, -0.1 * bank_deg(aircraft)));
    });
    EXPECT_LT(sign * token(aircraft, 69), -1.0) << "right pedal, wings level: the ball goes left";
  }
}

TEST(Instruments, Limits_and_levers) {
  Aircraft low = flying({.altitude_ft = 5000});
  EXPECT_NEAR(token(low, 63) / 128.0, 330.0, 0.01);
  const Aircraft high = flying({.altitude_ft = 33000, .mach = 0.75});
  EXPECT_NEAR(token(high, 63) / 128.0, 284.6, 1.0) << "Mach 0.80 at 33,000 ft";
  low.controls.throttle = {0.75, 0.25};
  low.controls.flap_detent = 3;
  run(low, 10.0);
  EXPECT_NEAR(token(low, 128), 12288.0, 1.0) << "engine 1";
  EXPECT_NEAR(token(low, 328), 9831.0, 1.0) << "flaps 18";
  EXPECT_NEAR(token(low, 614), low.flight.height_ft * 0.3048, 1e-6);
  low.fuel.wing_kg = {3.04 * 500, 3.04 * 700};
  EXPECT_NEAR(token(low, 304), 500.0, 0.01) << "left";
  EXPECT_NEAR(token(low, 303), 700.0, 0.01) << "right";
  EXPECT_NEAR(token(low, 386), 1200.0, 0.01);
}

TEST(Instruments, Bars_and_pointers_move_toward_where_to_fly) {
  // Right of the localizer and high on the slope: fly left and down.
  Aircraft aircraft = flying({.altitude_ft = 2100,
                              .airspeed_kt = 150,
                              .heading_deg = 70,
                              .along_m = -10000,
                              .right_m = 300,
                              .flap_detent = 3});
  run(aircraft, 2.0);
  EXPECT_EQ(token(aircraft, 46), 0xC0);
  EXPECT_EQ(token(aircraft, 44), 1.0);
  EXPECT_LT(token(aircraft, 40), -30.0) << "the beam lies to the left";
  EXPECT_NEAR(token(aircraft, 849), -token(aircraft, 40) / 127.0, 1e-9);
  EXPECT_GT(token(aircraft, 41), 20.0) << "the pointer stands low";
  EXPECT_GT(token(aircraft, 793), token(aircraft, 77)) << "wanted: nose further down";
  EXPECT_GT(token(aircraft, 794), token(aircraft, 80)) << "wanted: bank further left";
  EXPECT_NEAR(token(aircraft, 835), token(aircraft, 31) * 1852.0, 0.01);
  EXPECT_EQ(token(aircraft, 853), -1.0);

  aircraft.electrics.avionics_on = false;
  aircraft.step();
  EXPECT_LT(token(aircraft, 31), 0.0);
  EXPECT_LT(token(aircraft, 35), 0.0);
  EXPECT_EQ(token(aircraft, 46), 0.0);
}

// 10 km before the runway's middle on its course: the landing system and the beacon lie straight ahead, the
// station TRN (15 km north, 9 km east of the middle) where geometry has it.
TEST(Instruments, Each_needle_and_window_shows_its_own_station) {
  const Aircraft aircraft = flying({.altitude_ft = 2100, .airspeed_kt = 180, .along_m = -10000});
  const double north_m = 15000.0 + 10000.0 * std::cos(72.0 * M_PI / 180.0);
  const double east_m = 9000.0 + 10000.0 * std::sin(72.0 * M_PI / 180.0);
  const double up_m = (2100.0 - 364.0) * 0.3048;
  const double relative_deg = degrees(std::atan2(east_m, north_m)) - 72.0 + 360.0;
  EXPECT_NEAR(token(aircraft, 59), relative_deg, 0.1);
  EXPECT_NEAR(token(aircraft, 35), std::hypot(north_m, east_m, up_m) / 1852.0, 0.01);
  EXPECT_NEAR(token(aircraft, 31), std::hypot(11800.0, up_m) / 1852.0, 0.01);
  for (std::uint32_t ahead : {550u, 39u}) {
    EXPECT_NEAR(std::remainder(token(aircraft, ahead), 360.0), 0.0, 0.1) << ahead;
  }
}

TEST(Instruments, Knobs_turn_what_they_say) {
  struct Case {
    std::uint32_t up, down, token;
    double step;
  };
  for (const Case& c : {Case{0x1007F, 0x1007E, 45, 1}, Case{0x1015B, 0x1015C, 75, 1},
                        Case{0x10168, 0x10169, 116, 1}, Case{0x1007C, 0x1007B, 4, 1}}) {
    Aircraft aircraft;
    const double before = token(aircraft, c.token);
    send(aircraft, c.up);
    send(aircraft, c.up);
    EXPECT_NEAR(token(aircraft, c.token), before + 2 * c.step, 1e-9) << c.token;
    send(aircraft, c.down);
    EXPECT_NEAR(token(aircraft, c.token), before + c.step, 1e-9) << c.token;
  }
  Aircraft aircraft;
  for (int i = 0; i < 70; ++i) send(aircraft, 0x1007E);
  EXPECT_EQ(token(aircraft, 45), 0.0);
  send(aircraft, 0x1007E);
  EXPECT_EQ(token(aircraft, 45), 359.0) << "round by way of north";
  send(aircraft, 0x1007B);
  EXPECT_EQ(token(aircraft, 3), 9.0) << "a minute before ten";
  EXPECT_EQ(token(aircraft, 4), 59.0);
  send(aircraft, 0x102F0);
  EXPECT_EQ(token(aircraft, 792), 1.0);
}

}  // namespace
}  // namespace host::simulation
