/// What a harness is: the fuzzer, or take_corpus.cpp, calls it with bytes.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace fuzz {

inline std::string_view text_of(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

inline std::span<const std::byte> bytes_of(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const std::byte*>(data), size};
}

/// Calls `take` with each line.
template <typename Take>
void each_line(std::string_view text, Take take) {
  while (!text.empty()) {
    const std::string_view line = text.substr(0, text.find('\n'));
    take(line);
    text.remove_prefix(std::min(text.size(), line.size() + 1));
  }
}

/// Ends the program where something holds that must not.
inline void must(bool holds) {
  if (!holds) __builtin_trap();
}

}  // namespace fuzz
