/// The bytes that a host reads: packed device-independent bitmaps and the section that lists them.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "resources/tool/indexed.h"

namespace artwork {

using Bytes = std::vector<std::uint8_t>;

/// A packed bitmap of eight bits a pixel: header, palette, rows from the bottom up.
Bytes packed(const Indexed& picture);

/// A bitmap of the section. A named one has an empty number.
struct SectionEntry {
  std::uint32_t id;
  std::string name;
  Bytes bitmap;
};

/// The whole section. `entries` are numbered ones ascending, then named ones.
Bytes section(const std::vector<SectionEntry>& entries);

}  // namespace artwork
