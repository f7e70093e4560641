#include "resources/tool/section.h"

#include <span>
#include <string_view>

#include "interface/panel_interface.h"

namespace artwork {
namespace {

constexpr std::size_t header_size = 40;
constexpr std::size_t alignment = 16;
constexpr std::uint32_t dots_a_metre = 2835;  // 72 an inch

void put(Bytes& bytes, std::uint32_t value, int count) {
  for (int i = 0; i < count; ++i) bytes.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
}

/// What a packed bitmap is made of; `bits` is that of a pixel.
struct Format {
  int width, height, bits;
  std::size_t colours;

  std::size_t row() const { return static_cast<std::size_t>(width * bits + 31) / 32 * 4; }
  std::size_t rows() const { return row() * static_cast<std::size_t>(height); }
};

Bytes begun(const Format& format) {
  Bytes bytes;
  bytes.reserve(header_size + 4 * format.colours + format.rows());
  put(bytes, header_size, 4);
  put(bytes, static_cast<std::uint32_t>(format.width), 4);
  put(bytes, static_cast<std::uint32_t>(format.height), 4);
  put(bytes, 1, 2);  // planes
  put(bytes, static_cast<std::uint32_t>(format.bits), 2);
  put(bytes, 0, 4);  // no compression
  put(bytes, static_cast<std::uint32_t>(format.rows()), 4);
  put(bytes, dots_a_metre, 4);
  put(bytes, dots_a_metre, 4);
  put(bytes, static_cast<std::uint32_t>(format.colours), 4);
  put(bytes, 0, 4);  // all colours are important
  return bytes;
}

/// Two pixels a byte, the left one in its upper half.
void put_halves(Bytes& bytes, std::span<const std::uint8_t> row) {
  for (std::size_t x = 0; x < row.size(); x += 2) {
    const int right = x + 1 < row.size() ? row[x + 1] : 0;
    bytes.push_back(static_cast<std::uint8_t>(row[x] << 4 | right));
  }
}

void pad(Bytes& bytes, std::size_t to) {
  while (bytes.size() % to != 0) bytes.push_back(0);
}

void put_entry(Bytes& bytes, const SectionEntry& entry, std::size_t offset) {
  PanelResourceEntry record{};
  record.id = entry.id;
  record.offset = static_cast<std::uint32_t>(offset);
  record.size = static_cast<std::uint32_t>(entry.bitmap.size());
  entry.name.copy(record.name, sizeof record.name - 1);
  put(bytes, record.id, 4);
  put(bytes, record.offset, 4);
  put(bytes, record.size, 4);
  put(bytes, record.reserved, 4);
  bytes.insert(bytes.end(), record.name, record.name + sizeof record.name);
}

std::size_t aligned(std::size_t offset) { return (offset + alignment - 1) / alignment * alignment; }

}  // namespace

Bytes packed(const Indexed& picture, int bits) {
  Bytes bytes = begun({picture.width, picture.height, bits, picture.palette.size()});
  for (const PaletteEntry& c : picture.palette) {
    for (const std::uint8_t part : {c.blue, c.green, c.red, c.opacity}) bytes.push_back(part);
  }
  const auto width = static_cast<std::size_t>(picture.width);
  for (int y = picture.height - 1; y >= 0; --y) {
    const auto row = std::span(picture.pixels).subspan(width * static_cast<std::size_t>(y), width);
    if (bits == 4) {
      put_halves(bytes, row);
    } else {
      bytes.insert(bytes.end(), row.begin(), row.end());
    }
    pad(bytes, 4);
  }
  return bytes;
}

Bytes packed(const Canvas& picture) {
  const Pixels pixels = picture.pixels();
  Bytes bytes = begun({pixels.width, pixels.height, 24, 0});
  for (int y = pixels.height - 1; y >= 0; --y) {
    for (int x = 0; x < pixels.width; ++x) put(bytes, pixels.at(x, y), 3);
    pad(bytes, 4);
  }
  return bytes;
}

Bytes section(const std::vector<SectionEntry>& entries) {
  Bytes bytes;
  for (const char letter : std::string_view(PANEL_RESOURCE_MAGIC)) {
    bytes.push_back(static_cast<std::uint8_t>(letter));
  }
  put(bytes, PANEL_RESOURCE_VERSION, 4);
  put(bytes, static_cast<std::uint32_t>(entries.size()), 4);
  std::size_t offset =
      aligned(sizeof(PanelResourceHeader) + entries.size() * sizeof(PanelResourceEntry));
  for (const SectionEntry& entry : entries) {
    put_entry(bytes, entry, offset);
    offset = aligned(offset + entry.bitmap.size());
  }
  for (const SectionEntry& entry : entries) {
    pad(bytes, alignment);
    bytes.insert(bytes.end(), entry.bitmap.begin(), entry.bitmap.end());
  }
  return bytes;
}

}  // namespace artwork
