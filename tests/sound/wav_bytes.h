/// WAV images, sound and damaged, as strings of bytes.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

inline std::string number(std::uint32_t value, int bytes) {
  std::string text;
  for (int i = 0; i < bytes; ++i) text += static_cast<char>(value >> (8 * i));
  return text;
}

/// A chunk that says it has `size` bytes, whatever it has.
inline std::string lying_chunk(std::string_view id, std::uint32_t size, std::string_view data) {
  return std::string(id) + number(size, 4) + std::string(data);
}

inline std::string chunk(std::string_view id, std::string_view data) {
  const auto size = static_cast<std::uint32_t>(data.size());
  return lying_chunk(id, size, data) + (size % 2 != 0 ? std::string(1, '\0') : "");
}

/// A file with these chunks, saying that `size` bytes follow its first eight.
inline std::string lying_riff(std::uint32_t size, std::string_view chunks) {
  return "RIFF" + number(size, 4) + "WAVE" + std::string(chunks);
}

inline std::string riff(std::string_view chunks) {
  return lying_riff(static_cast<std::uint32_t>(4 + chunks.size()), chunks);
}

/// The 16 bytes of a format: PCM, 16 bit, mono, 44.1 kHz.
inline std::string mono_format() {
  return number(1, 2) + number(1, 2) + number(44100, 4) + number(88200, 4) + number(2, 2) +
         number(16, 2);
}

inline std::string samples(const std::vector<std::int16_t>& values) {
  std::string bytes;
  for (const std::int16_t value : values) bytes += number(static_cast<std::uint16_t>(value), 2);
  return bytes;
}

/// A sound file of `frames` frames that all have one level.
inline std::string steady_sound(std::int16_t level, std::size_t frames) {
  return riff(chunk("fmt ", mono_format()) +
              chunk("data", samples(std::vector<std::int16_t>(frames, level))));
}
