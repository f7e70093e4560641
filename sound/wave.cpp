#include "sound/wave.h"

#include <algorithm>
#include <cstdint>

namespace tarnvale {
namespace {

constexpr std::size_t chunk_header = 8;   // id, size
constexpr std::size_t riff_header = 12;   // "RIFF", size, "WAVE"
constexpr std::size_t least_format = 14;  // up to the block size: all that every format has

std::uint32_t word(Bytes image, std::size_t at) {
  const auto byte = [&](std::size_t i) { return std::to_integer<std::uint32_t>(image[at + i]); };
  return byte(0) | byte(1) << 8 | byte(2) << 16 | byte(3) << 24;
}

/// A four-character id as it is read from the image.
constexpr std::uint32_t id(const char (&name)[5]) {
  std::uint32_t value = 0;
  for (int i = 3; i >= 0; --i) value = value << 8 | static_cast<unsigned char>(name[i]);
  return value;
}

bool is_wave(Bytes image) {
  return image.size() >= riff_header && word(image, 0) == id("RIFF") && word(image, 8) == id("WAVE");
}

struct Chunk {
  std::uint32_t id;
  std::uint64_t next;  ///< where the next chunk starts: data are padded to an even length
  Bytes data;          ///< what of it is really there
};

Chunk chunk_at(Bytes image, std::size_t at) {
  const std::uint64_t size = word(image, at + 4);
  const Bytes rest = image.subspan(at + chunk_header);
  return {word(image, at), at + chunk_header + size + (size & 1),
          rest.first(static_cast<std::size_t>(std::min<std::uint64_t>(size, rest.size())))};
}

}  // namespace

bool parse_wave(Bytes image, Bytes* format, Bytes* samples) {
  bool format_missing = format != nullptr;
  bool samples_missing = samples != nullptr;
  if (format_missing) *format = {};
  if (samples_missing) *samples = {};
  if (!is_wave(image)) return false;
  const std::uint64_t riff_end = std::uint64_t{word(image, 4)} + chunk_header;
  std::uint64_t at = riff_header;
  while (at < riff_end && at + chunk_header <= image.size()) {
    const Chunk chunk = chunk_at(image, static_cast<std::size_t>(at));
    if (chunk.id == id("fmt ") && format_missing) {
      if (chunk.data.size() < least_format) return false;
      *format = chunk.data;
      format_missing = false;
    } else if (chunk.id == id("data") && samples_missing) {
      *samples = chunk.data;
      samples_missing = false;
    }
    if (!format_missing && !samples_missing) return true;
    at = chunk.next;
  }
  return false;
}

}  // namespace tarnvale
