#include <cmath>
#include <set>

#include "tests/simulation/aircraft_rig.h"

namespace host {
namespace {

bool is_snake_case(std::string_view name) {
  return !name.empty() &&
         name.find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789_") == std::string_view::npos;
}

TEST(Tables, Rows_ascend_with_unique_numbers_and_names) {
  for (std::span<const TableRow> table : {AircraftModel::tokens(), AircraftModel::events()}) {
    std::set<std::string_view> names;
    std::uint32_t last = 0;
    for (const TableRow& row : table) {
      EXPECT_GT(row.number, last) << row.name;
      EXPECT_TRUE(names.insert(row.name).second) << row.name;
      EXPECT_TRUE(is_snake_case(row.name)) << row.name;
      last = row.number;
    }
  }
}

TEST(Tables, Every_token_has_a_unit_and_a_finite_value_cold_and_running) {
  const AircraftModel cold;
  const AircraftModel ready(StartCondition::ready);
  for (const TableRow& row : AircraftModel::tokens()) {
    EXPECT_FALSE(row.unit.empty()) << row.name;
    EXPECT_TRUE(std::isfinite(cold.token(row.number))) << row.name;
    EXPECT_TRUE(std::isfinite(ready.token(row.number))) << row.name;
  }
}

TEST(Tables, Every_event_is_taken_with_any_value_in_any_order) {
  AircraftModel aircraft;
  for (std::uint32_t value : {0u, 1u, 16384u, 0xFFFFFFFFu}) {
    for (const TableRow& row : AircraftModel::events()) {
      EXPECT_TRUE(aircraft.key_event(row.number, value)) << row.name;
      aircraft.advance(1.0);
    }
  }
  for (const TableRow& row : AircraftModel::tokens()) {
    EXPECT_TRUE(std::isfinite(aircraft.token(row.number))) << row.name;
  }
}

TEST(Tables, Strangers_are_refused) {
  AircraftModel aircraft;
  for (std::uint32_t number : {0u, 2u, 0xFFFFFFFFu}) {
    EXPECT_FALSE(aircraft.key_event(number, 0)) << number;
    EXPECT_EQ(aircraft.token(number), 0.0) << number;
  }
}

}  // namespace
}  // namespace host
