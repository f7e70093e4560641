/// The rows by which the cockpit reads and works the aircraft. Every system lists its own in a
/// file of its own; a new row goes there and nowhere else.
#pragma once

#include <cstdint>
#include <span>

#include "host/simulation/table_row.h"

namespace host::simulation {

struct Aircraft;

/// A token variable: what it is called, and how it is read.
struct TokenRow {
  TableRow row;
  double (*read)(const Aircraft& aircraft);
};

/// A key event: what it is called, and what it does.
struct EventRow {
  TableRow row;
  void (*apply)(Aircraft& aircraft, std::uint32_t value);
};

/// One system's part of both tables.
struct SystemRows {
  std::span<const TokenRow> tokens;
  std::span<const EventRow> events;
};

extern const SystemRows air_controls_rows;
extern const SystemRows air_data_rows;
extern const SystemRows apu_rows;
extern const SystemRows autopilot_rows;
extern const SystemRows cabin_rows;
extern const SystemRows clock_rows;
extern const SystemRows electrics_rows;
extern const SystemRows engine_rows;
extern const SystemRows engine_start_rows;
extern const SystemRows flight_rows;
extern const SystemRows flight_director_rows;
extern const SystemRows fuel_rows;
extern const SystemRows lights_rows;
extern const SystemRows navigation_rows;
extern const SystemRows program_windows_rows;

/// All rows of all systems, ascending by number.
std::span<const TokenRow> token_table();
std::span<const EventRow> event_table();

/// The row of that number; null if there is none.
const TokenRow* find_token(std::uint32_t number);
const EventRow* find_event(std::uint32_t number);

constexpr double on_off(bool on) { return on ? 1.0 : 0.0; }

}  // namespace host::simulation
