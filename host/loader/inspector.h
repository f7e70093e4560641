/// Asks the questions that every record check asks, and notes the answers with their place.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "host/loader/check.h"
#include "host/loader/memory_map.h"

namespace host {

/// Bound to one place of one module, as "Tarnvale.GAU: gauge 12 (Acdc)". Questions return whether
/// the answer is good, and note an error if it is not.
class Inspector {
 public:
  Inspector(const MemoryMap& memory, std::vector<Finding>& findings, std::string place)
      : memory_(memory), findings_(findings), place_(std::move(place)) {}

  /// The same for a part of this place; `first` is the first part below the file.
  Inspector part(const std::string& name) const { return {memory_, findings_, place_ + ", " + name}; }
  Inspector first(const std::string& name) const { return {memory_, findings_, place_ + ": " + name}; }

  void error(const std::string& text) const;
  void warning(const std::string& text) const;

  /// `record` is aligned and all of its `size` bytes can be read.
  bool readable(const void* record, std::size_t size, const std::string& what) const;
  template <typename Record>
  bool readable(const Record* record, const std::string& what, std::size_t count = 1) const {
    return aligned(record, alignof(Record), what) &&
           readable(static_cast<const void*>(record), sizeof(Record) * count, what);
  }

  /// As readable(), and the host may write there.
  template <typename Record>
  bool writable(const Record* record, const std::string& what, std::size_t count = 1) const {
    return readable(record, what, count) && writable_bytes(record, sizeof(Record) * count, what);
  }

  template <typename Routine>
  bool callable(Routine routine, const std::string& what) const {
    return callable_at(reinterpret_cast<const void*>(routine), what);
  }
  template <typename Routine>
  bool callable_or_null(Routine routine, const std::string& what) const {
    return routine == nullptr || callable(routine, what);
  }

  /// A terminated text of 1 to `longest` printable characters.
  bool text(const char* start, std::size_t longest, const std::string& what) const;

  /// Warns when a reserved field is used.
  void zero(std::uint64_t value, const std::string& what) const;

  /// Warns when a number of a record is NaN or infinite.
  void finite(double value, const std::string& what) const;

  const MemoryMap& memory() const { return memory_; }

 private:
  bool aligned(const void* record, std::size_t alignment, const std::string& what) const;
  bool writable_bytes(const void* start, std::size_t size, const std::string& what) const;
  bool callable_at(const void* routine, const std::string& what) const;

  const MemoryMap& memory_;
  std::vector<Finding>& findings_;
  std::string place_;
};

/// "0x..." for a number that is a bit set or an address.
std::string hex(std::uint64_t value);

}  // namespace host
