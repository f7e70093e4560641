/// Text read-outs: writing a word or a figure into the buffer of a string element. What does not fit is
/// cut off, so that a value beyond its figures cannot do harm.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string_view>

#include "interface/panel_interface.h"

namespace tarnvale {

/// Writes a word into a read-out.
template <std::size_t bytes>
void write(char (&readout)[bytes], std::string_view word) {
  const std::size_t length = std::min(word.size(), bytes - 1);
  std::memcpy(readout, word.data(), length);
  std::memset(readout + length, 0, bytes - length);
}

/// Writes a value, with zeros in front to make it at least that many characters, counting a minus sign.
template <std::size_t bytes>
void write_figures(char (&readout)[bytes], i32 value, std::size_t least) {
  constexpr std::size_t most = 11;  // -2147483648
  char figures[most];
  std::size_t first = most;
  u32 rest = value < 0 ? 0u - static_cast<u32>(value) : static_cast<u32>(value);
  const std::size_t signs = value < 0 ? 1 : 0;
  do {
    figures[--first] = static_cast<char>('0' + rest % 10);
  } while ((rest /= 10) != 0);
  while (most - first + signs < std::min(least, most)) figures[--first] = '0';
  if (value < 0) figures[--first] = '-';
  write(readout, {figures + first, most - first});
}

}  // namespace tarnvale
