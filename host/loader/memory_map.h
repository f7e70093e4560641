/// Which memory may be read, written or called.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace host {

/// That of this process, as it is at the time of construction: take a new one after loading a library.
class MemoryMap {
 public:
  enum Right : unsigned { read = 1, write = 2, execute = 4 };
  struct Range {
    std::uintptr_t begin;
    std::uintptr_t end;
    unsigned rights;
  };

  /// Throws std::runtime_error when the system does not tell.
  MemoryMap();

  /// Just these ranges, which do not overlap.
  explicit MemoryMap(std::vector<Range> ranges);

  bool readable(const void* start, std::size_t size) const { return allows(start, size, read); }
  bool writable(const void* start, std::size_t size) const { return allows(start, size, read | write); }
  bool callable(const void* routine) const { return allows(routine, 1, execute); }

  /// The zero-terminated text at `start`; none if it runs out of readable memory or has more than
  /// `longest` characters.
  std::optional<std::string_view> text(const char* start, std::size_t longest) const;

  bool allows(const void* start, std::size_t size, unsigned rights) const;

 private:
  void add_line(const char* line);

  std::vector<Range> ranges_;  // ascending
};

}  // namespace host
