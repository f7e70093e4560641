/// The bytes that a host reads: packed device-independent bitmaps and the section that lists them.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "resources/tool/indexed.h"

namespace artwork {

using Bytes = std::vector<std::uint8_t>;

/// A packed bitmap of eight bits a pixel, or of four where it has at most sixteen colours: header,
/// palette, rows from the bottom up.
Bytes packed(const Indexed& picture, int bits = 8);

/// One of 24 bits a pixel, of a picture whose pixels are opaque or pure black.
Bytes packed(const Canvas& picture);

/// A bitmap of the section.
struct SectionEntry {
  std::uint32_t id;  ///< PANEL_RESOURCE_NAMED where it has a name
  std::string name;
  Bytes bitmap;
};

/// The whole section. `entries` are numbered ones ascending, then named ones.
Bytes section(const std::vector<SectionEntry>& entries);

}  // namespace artwork
