/// Digests: numbers that tell one content from another.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace artwork {

/// Fowler, Noll and Vo's hash: small, and good enough to tell two builds apart.
class Digest {
 public:
  void add(const void* data, std::size_t size) {
    const auto* byte = static_cast<const unsigned char*>(data);
    for (std::size_t i = 0; i < size; ++i) state_ = (state_ ^ byte[i]) * 0x100000001B3u;
  }
  /// A number; of a structure, each field by itself, because the room between them is not defined.
  template <class Number>
  void add(Number number) {
    add(&number, sizeof number);
  }
  void add(std::string_view text) {
    add(text.size());
    add(text.data(), text.size());
  }
  std::uint64_t value() const { return state_; }

 private:
  std::uint64_t state_ = 0xCBF29CE484222325u;
};

}  // namespace artwork
