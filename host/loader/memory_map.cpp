#include "host/loader/memory_map.h"

#include <algorithm>
#include <cinttypes>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <stdexcept>
#include <string>

namespace host {

MemoryMap::MemoryMap() {
  std::ifstream file("/proc/self/maps");
  for (std::string line; std::getline(file, line);) add_line(line.c_str());
  if (ranges_.empty()) throw std::runtime_error("the system does not list this program's memory");
}

MemoryMap::MemoryMap(std::vector<Range> ranges) : ranges_(std::move(ranges)) {
  std::ranges::sort(ranges_, {}, &Range::begin);
}

void MemoryMap::add_line(const char* line) {
  std::uintptr_t begin = 0, end = 0;
  char marks[5] = {};
  if (std::sscanf(line, "%" SCNxPTR "-%" SCNxPTR " %4s", &begin, &end, marks) != 3) return;
  const auto has = [&](char mark, Right right) {
    return std::strchr(marks, mark) ? unsigned{right} : 0u;
  };
  ranges_.push_back({begin, end, has('r', read) | has('w', write) | has('x', execute)});
}

// One record may reach over several neighbouring ranges.
bool MemoryMap::allows(const void* start, std::size_t size, unsigned rights) const {
  auto at = reinterpret_cast<std::uintptr_t>(start);
  if (size > UINTPTR_MAX - at) return false;
  const std::uintptr_t end = at + size;
  auto range = std::ranges::upper_bound(ranges_, at, {}, &Range::begin);
  if (range == ranges_.begin()) return false;
  for (--range; range != ranges_.end() && range->begin <= at; ++range) {
    if (at >= range->end || (range->rights & rights) != rights) return false;
    at = range->end;
    if (at >= end) return true;
  }
  return false;
}

std::optional<std::string_view> MemoryMap::text(const char* start, std::size_t longest) const {
  for (std::size_t length = 0; length <= longest; ++length) {
    if (!readable(start + length, 1)) return std::nullopt;
    if (start[length] == 0) return std::string_view(start, length);
  }
  return std::nullopt;
}

}  // namespace host
