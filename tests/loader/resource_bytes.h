/// Writes bitmaps and resource sections byte by byte.
#pragma once

#include <cstdint>
#include <cstring>
#include <span>
#include <string_view>
#include <vector>

#include "host/loader/byte_view.h"
#include "interface/panel_interface.h"

namespace host {

using ByteList = std::vector<std::byte>;

inline void append(ByteList& bytes, const void* data, std::size_t size) {
  const auto* from = static_cast<const std::byte*>(data);
  for (std::size_t i = 0; i < size; ++i) bytes.push_back(from[i]);
}

template <typename Value>
void append(ByteList& bytes, Value value) {
  append(bytes, &value, sizeof value);
}

/// What a bitmap's header says; `rows` are bottom-up and come with their padding.
struct DibBytes {
  std::int32_t width = 2;
  std::int32_t height = 1;
  std::uint16_t bits = 8;
  std::vector<std::uint32_t> palette{};  // 0xOORRGGBB
  std::vector<std::uint8_t> rows{};
  std::uint32_t colours_used = 0;  // 0: as many as there are
  std::uint32_t compression = 0;
  std::uint32_t header_size = 40;

  ByteList bytes() const {
    ByteList out;
    const std::uint32_t used = colours_used ? colours_used : static_cast<std::uint32_t>(palette.size());
    append(out, header_size), append(out, width), append(out, height);
    append(out, std::uint16_t{1}), append(out, bits), append(out, compression);
    for (int i = 0; i < 3; ++i) append(out, std::uint32_t{0});
    append(out, used), append(out, std::uint32_t{0});
    append(out, palette.data(), palette.size() * 4);
    append(out, rows.data(), rows.size());
    return out;
  }
};

/// A bitmap of one colour, 8 bits a pixel.
inline ByteList plain_dib(int width, int height, std::uint32_t colour) {
  const std::size_t row = (std::size_t(width) + 3) / 4 * 4;
  return DibBytes{.width = width,
                  .height = height,
                  .palette = {colour},
                  .rows = std::vector<std::uint8_t>(row * height)}
      .bytes();
}

struct NumberedDib {
  std::uint32_t id;
  ByteList bytes;
};

/// A whole section: directory, then the bitmaps, each at a multiple of 16.
inline ByteList section_bytes(const std::vector<NumberedDib>& dibs) {
  ByteList directory, body;
  PanelResourceHeader header{{}, PANEL_RESOURCE_VERSION, static_cast<u32>(dibs.size())};
  std::memcpy(header.magic, PANEL_RESOURCE_MAGIC, sizeof header.magic);
  append(directory, header);
  const std::size_t start = sizeof header + dibs.size() * sizeof(PanelResourceEntry);
  for (const NumberedDib& dib : dibs) {
    PanelResourceEntry entry{};
    entry.id = dib.id;
    entry.offset = static_cast<u32>(start + body.size());
    entry.size = static_cast<u32>(dib.bytes.size());
    append(directory, entry);
    append(body, dib.bytes.data(), dib.bytes.size());
    body.resize((start + body.size() + 15) / 16 * 16 - start);
  }
  append(directory, body.data(), body.size());
  return directory;
}

inline std::string_view text_of(std::span<const std::byte> bytes) {
  return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

}  // namespace host
