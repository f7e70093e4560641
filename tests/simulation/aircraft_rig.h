/// What the simulation tests share: the aircraft worked by the names of its tables.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>

#include "host/simulation/aircraft_model.h"

namespace host {

/// The number of the row of that name; fails the test and returns 0 if there is none.
inline std::uint32_t number_of(std::span<const TableRow> table, std::string_view name) {
  const auto row = std::ranges::find(table, name, &TableRow::name);
  if (row != table.end()) return row->number;
  ADD_FAILURE() << "no row " << name;
  return 0;
}

inline double reading(const AircraftModel& aircraft, std::string_view name) {
  return aircraft.token(number_of(AircraftModel::tokens(), name));
}

inline void send(AircraftModel& aircraft, std::string_view name) {
  EXPECT_TRUE(aircraft.key_event(number_of(AircraftModel::events(), name), 0)) << name;
}

/// Advances until the token has passed `level` upward (or downward); returns the seconds it took.
inline double seconds_until(AircraftModel& aircraft, std::string_view name, double level,
                            bool upward = true) {
  constexpr double patience_s = 300.0;
  const double start = aircraft.seconds();
  const auto passed = [&] {
    const double value = reading(aircraft, name);
    return upward ? value > level : value < level;
  };
  while (!passed() && aircraft.seconds() - start < patience_s) aircraft.advance(1.0 / 60.0);
  EXPECT_TRUE(passed()) << name << " stays at " << reading(aircraft, name);
  return aircraft.seconds() - start;
}

/// Stories of one engine, one generator, one side at a time: told for both, while the other one rests.
/// A # in a row's name stands for the side's number.
class EachSide : public testing::TestWithParam<int> {
 protected:
  std::string own(std::string_view row) const { return numbered(row, GetParam()); }
  std::string other(std::string_view row) const { return numbered(row, 3 - GetParam()); }

 private:
  static std::string numbered(std::string_view row, int side) {
    std::string name(row);
    std::ranges::replace(name, '#', static_cast<char>('0' + side));
    return name;
  }
};

}  // namespace host
