/// What a harness is: the fuzzer, or take_corpus.cpp, calls it with bytes.
#pragma once

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

/// Ends the program where something holds that must not.
inline void must(bool holds) {
  if (!holds) __builtin_trap();
}

}  // namespace fuzz
