/// Short numbers that stand for much: two flights whose digests are the same are the same flight.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include "host/panel/cockpit.h"

namespace host {

/// FNV-1a, 64 bits: http://www.isthe.com/chongo/tech/comp/fnv. The digest of "a" is 0xAF63DC4C8601EC8C.
class Digest {
 public:
  void add(std::string_view bytes);
  void add(std::uint64_t bits);
  void add(double value);

  std::uint64_t value() const { return value_; }

 private:
  std::uint64_t value_ = 0xCBF29CE484222325u;
};

/// A number in hexadecimal, with zeros in front to make it that many digits.
std::string hexadecimal(std::uint64_t number, int digits = 16);

/// Of every token of the aircraft and of everything that the gauges show, to the bit.
std::uint64_t digest_of(Cockpit& cockpit);

/// Throws std::runtime_error for a file that cannot be read.
std::uint64_t digest_of(const std::filesystem::path& file);

}  // namespace host
