/// Keeps the journal of a flight while it is flown.
#pragma once

#include <functional>

#include "host/inputs/cockpit_inputs.h"
#include "host/journal/journal_file.h"
#include "host/journal/read_journal.h"

namespace host {

/// Writes a line for each input, and a mark after each second of flight and at the end. When the file
/// can no longer be written to, says so once and leaves it.
class FlightJournal : public InputListener {
 public:
  /// Begins a journal. Throws std::runtime_error if it cannot be written.
  FlightJournal(JournalFile file, Cockpit& cockpit, const FlightIdentity& identity);

  /// Continues one behind its last good line. Throws as above.
  FlightJournal(JournalFile file, Cockpit& cockpit, const JournalEnd& end);

  ~FlightJournal() override;
  FlightJournal(const FlightJournal&) = delete;
  FlightJournal& operator=(const FlightJournal&) = delete;

  void taken(std::uint64_t frames, const Input& input) override;
  void frame_passed() override;

  /// Gets the message when the journal is left.
  std::function<void(const std::string&)> on_fault;

 private:
  void mark();
  void write(const JournalEntry& entry);

  JournalFile file_;
  Cockpit& cockpit_;
  LineCheck check_;
  std::uint64_t marked_ = 0;  ///< frames at the last mark
  bool left_ = false;
};

}  // namespace host
