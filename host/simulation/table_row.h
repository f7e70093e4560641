/// The aircraft's tokens and key events as the rest of the host names them.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace host {

/// A row of the token table or of the event table, for listings and for scripts.
struct TableRow {
  std::uint32_t number;
  std::string_view name;  ///< lower_snake_case, unique within its table
  std::string_view unit;  ///< "feet", "percent", "0/1"...; for events what the value means, or ""
};

/// The row of that number or of that name; null if there is none.
const TableRow* find_row(std::span<const TableRow> rows, std::uint32_t number);
const TableRow* find_row(std::span<const TableRow> rows, std::string_view name);

/// The numbers that the host's own code works with. All others stand in the rows of their systems.
namespace token {
inline constexpr std::uint32_t landing_lights = 14;  ///< 0/1
inline constexpr std::uint32_t panel_lights = 10;    ///< 0/1: on, the cockpit is seen by night
}  // namespace token
namespace event {
inline constexpr std::uint32_t panel_lights_toggle = 0x100D6;
inline constexpr std::uint32_t atc_window_toggle = 0x1001C;
inline constexpr std::uint32_t kneeboard_toggle = 0x10154;
inline constexpr std::uint32_t map_window_toggle = 0x10380;
}  // namespace event

}  // namespace host
