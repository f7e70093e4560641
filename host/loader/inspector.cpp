#include "host/loader/inspector.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace host {

std::string hex(std::uint64_t value) {
  char text[24];
  std::snprintf(text, sizeof text, "0x%llX", static_cast<unsigned long long>(value));
  return text;
}

void Inspector::error(const std::string& text) const {
  findings_.push_back({Finding::Severity::error, place_ + ": " + text});
}

void Inspector::warning(const std::string& text) const {
  findings_.push_back({Finding::Severity::warning, place_ + ": " + text});
}

bool Inspector::readable(const void* record, std::size_t size, const std::string& what) const {
  if (record != nullptr && memory_.readable(record, size)) return true;
  error(what + (record == nullptr ? " is null" : " points to memory that cannot be read"));
  return false;
}

bool Inspector::aligned(const void* record, std::size_t alignment, const std::string& what) const {
  if (reinterpret_cast<std::uintptr_t>(record) % alignment == 0) return true;
  error(what + " points to an odd address");
  return false;
}

bool Inspector::writable_bytes(const void* start, std::size_t size, const std::string& what) const {
  if (memory_.writable(start, size)) return true;
  error(what + " lies in memory that cannot be written");
  return false;
}

bool Inspector::callable_at(const void* routine, const std::string& what) const {
  if (routine != nullptr && memory_.callable(routine)) return true;
  error(what + (routine == nullptr ? " is null" : " points to something that is not code"));
  return false;
}

bool Inspector::text(const char* start, std::size_t longest, const std::string& what) const {
  if (!readable(start, 1, what)) return false;
  const auto text = memory_.text(start, longest);
  if (!text) {
    error(what + " has no end within " + std::to_string(longest) + " characters");
  } else if (text->empty()) {
    error(what + " is empty");
  } else if (!std::ranges::all_of(*text, [](char c) { return c >= ' ' && c <= '~'; })) {
    error(what + " holds characters that cannot be printed");
  } else {
    return true;
  }
  return false;
}

void Inspector::zero(std::uint64_t value, const std::string& what) const {
  if (value != 0) warning(what + " is " + hex(value) + ", not 0");
}

void Inspector::finite(double value, const std::string& what) const {
  if (!std::isfinite(value)) warning(what + " is not a number");
}

}  // namespace host
