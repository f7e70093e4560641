/// A host's reading of the bitmaps' section, for checks of the bytes.
#pragma once

#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <vector>

namespace artwork_test {

/// What a bitmap's header says, and where its parts lie.
struct ReadBitmap {
  std::uint32_t offset = 0;  ///< from the section's start
  int width = 0;
  int height = 0;
  int bits = 0;
  std::vector<std::uint32_t> palette;  ///< 0xOORRGGBB, opacity first
  std::vector<std::uint8_t> pixels;    ///< top row first, without padding
};

/// All numbered bitmaps by id. Anything that a host would refuse is a failed expectation.
std::map<std::uint32_t, ReadBitmap> read_section(std::span<const std::uint8_t> bytes);

/// A file's bytes. Empty when there is no such file.
std::vector<std::uint8_t> file_bytes(const std::string& path);

/// The bytes of a section of an ELF file, found as a host finds it.
std::vector<std::uint8_t> elf_section(const std::string& path, const std::string& name);

}  // namespace artwork_test
