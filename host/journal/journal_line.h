/// The lines of a journal: a small text file that holds everything that entered a flight.
///
///     9cb82a85 tarnvale-journal 1 rate 18
///     11c4f32e module 5c0f9a1183b2d4e6 Tarnvale.GAU
///     7d0be1a2 panel 88ef01c2a7355d10 panel.cfg
///     f0a31c5b 0 start_page
///     2b77e09d 18 mark 0b3f5d7c9e1a2846
///     90cd1e34 25 press left 47 99 Masterbat
///     5ad2f816 28 release
///
/// Every line begins with a check, which counts all lines before it too. Then, after the three lines
/// that say which flight it is, come the number of frames that had been flown, and what entered: an
/// input, or the mark that stands after every second of flight, with the digest of the cockpit.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "host/inputs/input.h"
#include "host/journal/digest.h"

namespace host {

inline constexpr int journal_version = 1;
inline constexpr std::size_t journal_header_lines = 3;

/// A file that a flight depends on.
struct FileIdentity {
  std::string name;
  std::uint64_t digest = 0;
};

/// What must be the same for a flight to be the same.
struct FlightIdentity {
  double rate = 0;  ///< gauge frames a second
  FileIdentity module;
  FileIdentity panel;
};

/// Throws std::runtime_error for a file that cannot be read.
FlightIdentity identity_of(const std::filesystem::path& module, const std::filesystem::path& panel,
                           double rate);

struct JournalEntry {
  std::uint64_t frames = 0;    ///< flown when it took place
  std::optional<Input> input;  ///< empty: a mark
  std::uint64_t digest = 0;    ///< of a mark
};

/// Marks stand as many frames apart.
std::uint64_t frames_between_marks(double rate);

/// The lines without their checks.
std::string first_line(double rate);
std::string file_line(std::string_view what, const FileIdentity& file);
std::string line_of(const JournalEntry& entry);

/// The readers return nothing for another kind of line; the version of a first line may be any.
struct FirstLine {
  int version;
  double rate;
};
std::optional<FirstLine> read_first_line(std::string_view line);
std::optional<FileIdentity> read_file_line(std::string_view line, std::string_view what);
std::optional<JournalEntry> read_line(std::string_view line);

/// Puts checks before lines, and holds lines against their checks. Each counts all the lines before it.
class LineCheck {
 public:
  std::string with_check(std::string_view line);

  /// The line without its check; empty if the check is wrong, and then the line does not count.
  std::optional<std::string_view> without_check(std::string_view line);

 private:
  Digest digest_;
};

}  // namespace host
