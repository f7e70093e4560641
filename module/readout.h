/// Text read-outs: writing a figure or a word into the buffer of a string element.
#pragma once

#include <windows.h>

#include <cstddef>
#include <cstring>

#include "interface/panel_interface.h"

namespace tarnvale {

/// Writes into a read-out what `format` and `values` say, as wsprintfA takes them. What does not fit
/// is cut off, so that a value beyond its figures cannot do harm.
template <std::size_t bytes, typename... Values>
void write(char (&readout)[bytes], const char* format, Values... values) {
  constexpr std::size_t longest = 1024;  // wsprintfA writes no more
  char whole[longest + 1] = "";
  wsprintfA(whole, format, values...);
  std::memcpy(readout, whole, bytes - 1);
  readout[bytes - 1] = 0;
}

}  // namespace tarnvale
