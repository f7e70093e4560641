#include "tests/resources/section_reader.h"

#include <elf.h>
#include <gtest/gtest.h>

#include <cstring>
#include <fstream>
#include <iterator>

#include "interface/panel_interface.h"

namespace artwork_test {
namespace {

template <class Value>
Value at(std::span<const std::uint8_t> bytes, std::size_t offset) {
  Value value{};
  if (offset + sizeof value <= bytes.size()) {
    std::memcpy(&value, bytes.data() + offset, sizeof value);
  } else {
    ADD_FAILURE() << "nothing at byte " << offset;
  }
  return value;
}

ReadBitmap read_bitmap(std::span<const std::uint8_t> bitmap, std::uint32_t id) {
  EXPECT_EQ(at<std::uint32_t>(bitmap, 0), 40u) << id;
  EXPECT_EQ(at<std::uint16_t>(bitmap, 12), 1u) << id;
  EXPECT_EQ(at<std::uint32_t>(bitmap, 16), 0u) << id << " is compressed";
  ReadBitmap read;
  read.width = at<std::int32_t>(bitmap, 4);
  read.height = at<std::int32_t>(bitmap, 8);
  read.bits = at<std::uint16_t>(bitmap, 14);
  const auto colours = at<std::uint32_t>(bitmap, 32);
  for (std::uint32_t i = 0; i < colours; ++i) {
    read.palette.push_back(at<std::uint32_t>(bitmap, 40 + 4 * i));
  }
  const std::size_t stride = (static_cast<std::size_t>(read.width) + 3) / 4 * 4;
  const std::size_t start = 40 + 4 * colours;
  EXPECT_EQ(bitmap.size(), start + stride * static_cast<std::size_t>(read.height)) << id;
  for (int y = read.height - 1; y >= 0; --y) {
    const auto row = bitmap.subspan(start + stride * static_cast<std::size_t>(y),
                                    static_cast<std::size_t>(read.width));
    read.pixels.insert(read.pixels.end(), row.begin(), row.end());
  }
  return read;
}

}  // namespace

std::map<std::uint32_t, ReadBitmap> read_section(std::span<const std::uint8_t> bytes) {
  std::map<std::uint32_t, ReadBitmap> bitmaps;
  const auto header = at<PanelResourceHeader>(bytes, 0);
  EXPECT_EQ(std::string(header.magic, 8), PANEL_RESOURCE_MAGIC);
  EXPECT_EQ(header.version, PANEL_RESOURCE_VERSION);
  std::uint32_t last = 0;
  for (std::uint32_t i = 0; i < header.count; ++i) {
    const auto entry = at<PanelResourceEntry>(bytes, sizeof header + i * sizeof(PanelResourceEntry));
    EXPECT_EQ(entry.offset % 16, 0u) << entry.id;
    EXPECT_LE(std::size_t{entry.offset} + entry.size, bytes.size()) << entry.id;
    if (entry.id == PANEL_RESOURCE_NAMED || entry.offset + entry.size > bytes.size()) continue;
    EXPECT_GT(entry.id, last) << "numbered bitmaps ascend";
    last = entry.id;
    bitmaps[entry.id] = read_bitmap(bytes.subspan(entry.offset, entry.size), entry.id);
    bitmaps[entry.id].offset = entry.offset;
  }
  return bitmaps;
}

std::vector<std::uint8_t> file_bytes(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::uint8_t> elf_section(const std::string& path, const std::string& name) {
  const std::vector<std::uint8_t> file = file_bytes(path);
  const auto header = at<Elf64_Ehdr>(file, 0);
  const auto section_at = [&](std::size_t i) {
    return at<Elf64_Shdr>(file, header.e_shoff + i * sizeof(Elf64_Shdr));
  };
  const Elf64_Shdr names = section_at(header.e_shstrndx);
  for (std::size_t i = 0; i < header.e_shnum; ++i) {
    const Elf64_Shdr section = section_at(i);
    const char* found = reinterpret_cast<const char*>(file.data()) + names.sh_offset + section.sh_name;
    if (name != found) continue;
    const auto from = file.begin() + static_cast<std::ptrdiff_t>(section.sh_offset);
    return {from, from + static_cast<std::ptrdiff_t>(section.sh_size)};
  }
  return {};
}

}  // namespace artwork_test
