/// A small library for Windows, made byte by byte: one gauge of a background and an icon, four bitmaps.
#pragma once

#include <string>

#include "tests/loader/resource_bytes.h"

namespace host {

/// What tests change about it; as it stands it is sound.
struct WindowsLibrary {
  std::size_t pointer = 4;  ///< bytes; 8 makes PE32+
  std::uint16_t machine = 0, characteristics = 0x2102;
  std::uint32_t data_rights = 0xC0000040;  ///< of the section with the records
  std::uint16_t linkage_ordinal = 2, surplus_exports = 0;
  std::uint16_t background_bits = 8;
  bool has_resources = true;
  std::uint64_t icon = icon_at, draw = code, areas = areas_at;  ///< where pointers lead, from the base

  /// Where things lie, from the base.
  static constexpr std::uint64_t code = 0x1000, imports_at = 0x2000, linkage_at = 0x2100,
                                 header_at = 0x2600, background_at = 0x2700, icon_at = 0x2800,
                                 lists_at = 0x2900, areas_at = 0x2A00, name_at = 0x2C00,
                                 exports_at = 0x3000, resources_at = 0x4000, size = 0x5000;

  ByteList bytes() const;

 private:
  struct Writer;
  void put_headers(Writer& out) const;
  void put_sections(Writer& out) const;
  void put_records(Writer& out) const;
  void put_element(Writer& out, std::uint64_t at, bool is_icon) const;
  void put_areas(Writer& out) const;
  void put_exports(Writer& out) const;
  void put_resources(Writer& out) const;
  void put_bitmap(Writer& out, int index, std::uint32_t key) const;
};

}  // namespace host
