#include "host/journal/flight_journal.h"

namespace host {

FlightJournal::FlightJournal(JournalFile file, Cockpit& cockpit, const FlightIdentity& identity)
    : file_(std::move(file)), cockpit_(cockpit) {
  std::string lines;
  for (const std::string& line : {first_line(identity.rate), file_line("module", identity.module),
                                  file_line("panel", identity.panel)})
    lines += check_.with_check(line) + "\n";
  file_.append(lines);
}

FlightJournal::FlightJournal(JournalFile file, Cockpit& cockpit, const JournalEnd& end)
    : file_(std::move(file)), cockpit_(cockpit), check_(end.check), marked_(cockpit.frames()) {
  file_.cut(end.bytes);
}

FlightJournal::~FlightJournal() {
  if (cockpit_.frames() != marked_) mark();
}

void FlightJournal::taken(std::uint64_t frames, const Input& input) { write({frames, input, 0}); }

void FlightJournal::frame_passed() {
  if (cockpit_.frames() - marked_ >= frames_between_marks(cockpit_.rate())) mark();
}

void FlightJournal::mark() {
  marked_ = cockpit_.frames();
  write({marked_, std::nullopt, digest_of(cockpit_)});
}

void FlightJournal::write(const JournalEntry& entry) {
  if (left_) return;
  try {
    file_.append(check_.with_check(line_of(entry)) + "\n");
  } catch (const std::runtime_error& error) {
    left_ = true;
    if (on_fault) on_fault(error.what());
  }
}

}  // namespace host
