/// Reads the journal of a flight.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "host/journal/journal_line.h"

namespace host {

/// Where a journal can be continued.
struct JournalEnd {
  std::uintmax_t bytes = 0;
  LineCheck check;
};

struct FlightRecord {
  std::filesystem::path file;
  FlightIdentity identity;
  std::vector<JournalEntry> entries;
  JournalEnd end;      ///< of the last good line
  std::string damage;  ///< which line is not; empty: all are

  /// The number of an entry's line.
  static std::size_t line_of(std::size_t entry) { return journal_header_lines + 1 + entry; }

  /// "FILE:LINE"
  std::string place_of(std::size_t entry) const;

  std::uint64_t frames() const { return entries.empty() ? 0 : entries.back().frames; }
};

/// Reads up to the first line that is cut off or damaged. Throws std::runtime_error, with file and
/// line, when there is no such file or when it does not begin as a journal does.
FlightRecord read_journal(const std::filesystem::path& file);

/// Throws std::runtime_error, with the file's name, for the flight of another module or panel.
void check_identity(const FlightRecord& record, const FlightIdentity& here);

}  // namespace host
