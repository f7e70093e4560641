#include <bit>
#include <limits>
#include <vector>

#include "tests/simulation/aircraft_rig.h"

namespace host {
namespace {

std::vector<std::uint64_t> all_bits(const AircraftModel& aircraft) {
  std::vector<std::uint64_t> bits;
  for (const TableRow& row : AircraftModel::tokens()) {
    bits.push_back(std::bit_cast<std::uint64_t>(aircraft.token(row.number)));
  }
  return bits;
}

/// A morning's work: power, APU, both engines, some lights, one engine off again.
std::vector<std::uint64_t> flown_in_slices(double slice_s) {
  struct Action {
    double at_s;
    const char* event;
  };
  constexpr Action actions[] = {
      {1, "battery_toggle"},        {2, "apu_start"},
      {40, "starter_1_engage"},     {52, "fuel_lever_1_toggle"},
      {90, "starter_2_engage"},     {91, "fuel_lever_2_toggle"},
      {120, "avionics_toggle"},     {121, "landing_lights_toggle"},
      {150, "fuel_lever_1_toggle"},
  };
  AircraftModel aircraft;
  double now_s = 0.0;
  for (const Action& action : actions) {
    for (; now_s < action.at_s - slice_s / 2; now_s += slice_s) aircraft.advance(slice_s);
    // The start panel goes on asking for its starter.
    const int times = std::string_view(action.event).starts_with("starter") ? 10 : 1;
    for (int i = 0; i < times; ++i) send(aircraft, action.event);
  }
  return all_bits(aircraft);
}

TEST(Determinism, Slices_of_time_do_not_matter_to_the_bit) {
  const auto whole = flown_in_slices(1.0);
  for (int parts : {3, 7, 10, 60, 144, 1000}) {
    EXPECT_EQ(flown_in_slices(1.0 / parts), whole) << "in " << parts << " slices a second";
  }
}

TEST(Determinism, Only_whole_steps_count_and_time_neither_stops_nor_runs_backwards) {
  AircraftModel aircraft;
  for (double seconds :
       {-0.005, 0.0, std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()}) {
    aircraft.advance(seconds);
    EXPECT_EQ(aircraft.seconds(), 0.0) << seconds;
  }
  aircraft.advance(0.01);
  EXPECT_EQ(aircraft.seconds(), 0.0);
  aircraft.advance(0.01);
  EXPECT_EQ(aircraft.seconds(), 1.0 / 60.0) << "the rest is kept";
  for (int i = 0; i < 30'000; ++i) aircraft.advance(0.1);
  EXPECT_EQ(aircraft.seconds(), 3000.0 + 1.0 / 60.0);
  EXPECT_GE(reading(aircraft, "clock_seconds"), 20.0 + 3000.0);
}

}  // namespace
}  // namespace host
