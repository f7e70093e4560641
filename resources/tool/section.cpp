#include "resources/tool/section.h"

#include <algorithm>
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

void put_header(Bytes& bytes, const Indexed& picture, std::uint32_t stride) {
  put(bytes, header_size, 4);
  put(bytes, static_cast<std::uint32_t>(picture.width), 4);
  put(bytes, static_cast<std::uint32_t>(picture.height), 4);
  put(bytes, 1, 2);  // planes
  put(bytes, 8, 2);  // bits a pixel
  put(bytes, 0, 4);  // no compression
  put(bytes, stride * static_cast<std::uint32_t>(picture.height), 4);
  put(bytes, dots_a_metre, 4);
  put(bytes, dots_a_metre, 4);
  put(bytes, static_cast<std::uint32_t>(picture.palette.size()), 4);
  put(bytes, 0, 4);  // all colours are important
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

Bytes packed(const Indexed& picture) {
  const auto width = static_cast<std::size_t>(picture.width);
  const std::size_t stride = (width + 3) / 4 * 4;
  Bytes bytes;
  bytes.reserve(header_size + picture.palette.size() * 4 +
                stride * static_cast<std::size_t>(picture.height));
  put_header(bytes, picture, static_cast<std::uint32_t>(stride));
  for (const PaletteEntry& c : picture.palette) {
    for (const std::uint8_t part : {c.blue, c.green, c.red, c.opacity}) bytes.push_back(part);
  }
  for (int y = picture.height - 1; y >= 0; --y) {
    const auto row = picture.pixels.begin() + static_cast<std::ptrdiff_t>(width) * y;
    bytes.insert(bytes.end(), row, row + picture.width);
    bytes.resize(bytes.size() + stride - width);
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
