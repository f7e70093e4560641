#include "host/simulation/table.h"

#include <algorithm>
#include <vector>

namespace host::simulation {
namespace {

constexpr const SystemRows* systems[] = {
    &air_controls_rows,
    &air_data_rows,
    &apu_rows,
    &autopilot_rows,
    &cabin_rows,
    &clock_rows,
    &electrics_rows,
    &engine_rows,
    &engine_start_rows,
    &flight_controls_rows,
    &flight_director_rows,
    &flight_rows,
    &fuel_rows,
    &lights_rows,
    &navigation_rows,
    &pedestal_rows,
    &program_windows_rows,
    &radios_rows,
    &warnings_rows,
};

/// Gathers the rows that `member` names from all systems, ascending by number.
template <typename Row>
std::vector<Row> gather(std::span<const Row> SystemRows::*member) {
  std::vector<Row> rows;
  for (const SystemRows* system : systems) {
    rows.insert(rows.end(), (system->*member).begin(), (system->*member).end());
  }
  std::ranges::sort(rows, {}, [](const Row& row) { return row.row.number; });
  return rows;
}

template <typename Row>
const Row* find(std::span<const Row> table, std::uint32_t number) {
  const auto number_of = [](const Row& row) { return row.row.number; };
  const auto found = std::ranges::lower_bound(table, number, {}, number_of);
  return found != table.end() && found->row.number == number ? &*found : nullptr;
}

}  // namespace

std::span<const TokenRow> token_table() {
  static const std::vector<TokenRow> rows = gather(&SystemRows::tokens);
  return rows;
}

std::span<const EventRow> event_table() {
  static const std::vector<EventRow> rows = gather(&SystemRows::events);
  return rows;
}

const TokenRow* find_token(std::uint32_t number) {
  // Gauges ask some ten thousand times a second; their tokens have small numbers.
  constexpr std::uint32_t most = 1024;
  static const std::vector<const TokenRow*> small = [] {
    std::vector<const TokenRow*> rows(most);
    for (std::uint32_t i = 0; i < most; ++i) rows[i] = find(token_table(), i);
    return rows;
  }();
  return number < most ? small[number] : find(token_table(), number);
}
const EventRow* find_event(std::uint32_t number) { return find(event_table(), number); }

}  // namespace host::simulation
