#include "host/journal/read_journal.h"

#include <stdexcept>

#include "host/files/read_file.h"

namespace host {
namespace {

/// The lines of a text that end, and hold against their checks.
class CheckedLines {
 public:
  explicit CheckedLines(std::string_view text) : text_(text) {}

  /// The next one without its check; empty at the end and where a line is bad.
  std::optional<std::string_view> next() {
    const std::string_view rest = text_.substr(end_.bytes);
    const std::size_t size = rest.find('\n');
    if (size == std::string_view::npos) return std::nullopt;
    const auto line = end_.check.without_check(rest.substr(0, size));
    if (line) end_.bytes += size + 1;
    return line;
  }

  const JournalEnd& end() const { return end_; }
  bool at_end() const { return end_.bytes == text_.size(); }

 private:
  std::string_view text_;
  JournalEnd end_;
};

// Some hundred hours of busy flight.
constexpr std::uintmax_t longest_journal = 256 * mebibyte;

std::string text_of(const std::filesystem::path& file) {
  if (!std::filesystem::exists(file))
    throw std::runtime_error(file.string() + ": there is no such journal");
  return read_file(file, longest_journal);
}

[[noreturn]] void refuse(const std::filesystem::path& file, int line, const std::string& why) {
  throw std::runtime_error(file.string() + ":" + std::to_string(line) + ": " + why);
}

double read_rate(CheckedLines& lines, const std::filesystem::path& file) {
  const auto line = lines.next();
  const auto first = line ? read_first_line(*line) : std::nullopt;
  if (!first) refuse(file, 1, "this is not the journal of a flight");
  if (first->version == journal_version) return first->rate;
  refuse(file, 1,
         "a journal of version " + std::to_string(first->version) + "; this program reads version " +
             std::to_string(journal_version));
}

FileIdentity read_file(CheckedLines& lines, const std::filesystem::path& file, int number,
                       const char* what) {
  const auto line = lines.next();
  if (auto read = line ? read_file_line(*line, what) : std::nullopt) return *std::move(read);
  refuse(file, number, "the journal is damaged before the flight begins");
}

// Marks stand everywhere in a flight: no line is farther from the one before it than the next mark.
bool follows(const JournalEntry& entry, const FlightRecord& record) {
  const std::uint64_t before = record.frames();
  return entry.frames >= before && entry.frames - before <= frames_between_marks(record.identity.rate);
}

void read_entries(CheckedLines& lines, FlightRecord& record) {
  record.end = lines.end();
  while (const auto line = lines.next()) {
    auto entry = read_line(*line);
    if (!entry || !follows(*entry, record)) break;
    record.entries.push_back(*std::move(entry));
    record.end = lines.end();
  }
}

std::string as_text(const FileIdentity& file) {
  return file.name + " (" + hexadecimal(file.digest) + ")";
}

void check_file(const FlightRecord& record, int line, const char* what, const FileIdentity& flown,
                const FileIdentity& here) {
  if (flown.digest != here.digest)
    refuse(record.file, line,
           "flown with another " + std::string(what) + ": " + as_text(flown) + ", this is " +
               as_text(here));
}

}  // namespace

std::string FlightRecord::place_of(std::size_t entry) const {
  return file.string() + ":" + std::to_string(line_of(entry));
}

FlightRecord read_journal(const std::filesystem::path& file) {
  const std::string text = text_of(file);
  CheckedLines lines(text);
  FlightRecord record{file, {}, {}, {}, {}};
  record.identity.rate = read_rate(lines, file);
  record.identity.module = read_file(lines, file, 2, "module");
  record.identity.panel = read_file(lines, file, 3, "panel");
  read_entries(lines, record);
  if (record.end.bytes != text.size())
    record.damage =
        record.place_of(record.entries.size()) + ": damaged or cut off; the flight is taken up to here";
  return record;
}

void check_identity(const FlightRecord& record, const FlightIdentity& here) {
  check_file(record, 2, "module", record.identity.module, here.module);
  check_file(record, 3, "panel", record.identity.panel, here.panel);
}

}  // namespace host
