#include "tests/loader/pe_bytes.h"

namespace host {
namespace {

constexpr std::uint64_t narrow_base = 0x10000000, wide_base = 0x180000000;

}  // namespace

/// Writes fields one after the other, each at a multiple of its size.
struct WindowsLibrary::Writer {
  ByteList bytes;
  std::size_t pointer;
  std::uint64_t at = 0;

  template <typename Value>
  void put(Value value) {
    std::memcpy(bytes.data() + at, &value, sizeof value);
    at += sizeof value;
  }
  void i(std::initializer_list<std::uint32_t> values) {
    for (const std::uint32_t value : values) put(value);
  }
  void d(double value) {
    at = (at + 7) / 8 * 8;
    put(value);
  }
  /// A pointer; `place` counts from the base, 0 is null.
  void p(std::uint64_t place) {
    at = (at + pointer - 1) / pointer * pointer;
    const std::uint64_t value = place == 0 ? 0 : place + (pointer == 8 ? wide_base : narrow_base);
    pointer == 8 ? put(value) : put(static_cast<std::uint32_t>(value));
  }
  void text(std::string_view letters) {
    for (const char letter : letters) put(letter);
  }
};

ByteList WindowsLibrary::bytes() const {
  Writer out{ByteList(size), pointer};
  put_headers(out);
  put_records(out);
  put_exports(out);
  put_resources(out);
  return out.bytes;
}

void WindowsLibrary::put_headers(Writer& out) const {
  const bool wide = pointer == 8;
  out.text("MZ");
  out.at = 0x3C;
  out.put(std::uint32_t{0x80});
  out.at = 0x80;
  out.text(std::string("PE\0\0", 4));
  out.put(machine != 0 ? machine : std::uint16_t(wide ? 0x8664 : 0x14C));
  out.put(std::uint16_t{4});  // sections
  out.i({0, 0, 0});
  out.put(std::uint16_t(wide ? 112 + 128 : 96 + 128));
  out.put(characteristics);
  const std::uint64_t optional = out.at;
  out.put(std::uint16_t(wide ? 0x20B : 0x10B));
  out.at = optional + (wide ? 24 : 28);
  wide ? out.put(wide_base) : out.put(static_cast<std::uint32_t>(narrow_base));
  out.i({0x1000, 0x1000});  // alignment in memory and in the file
  out.at = optional + 56;
  out.i({size, 0x1000});
  out.at = optional + (wide ? 108 : 92);
  out.i({16, exports_at, 0x100, 0, 0, resources_at, has_resources ? 0x1000u : 0});
  out.at = optional + (wide ? 112 : 96) + 128;
  put_sections(out);
}

void WindowsLibrary::put_sections(Writer& out) const {
  const auto section = [&](std::string_view name, std::uint32_t place, std::uint32_t rights) {
    const std::uint64_t start = out.at;
    out.text(name);
    out.at = start + 8;
    out.i({0x1000, place, 0x1000, place, 0, 0, 0, rights});
  };
  section(".text", code, 0x60000020);
  section(".data", imports_at, data_rights);
  section(".edata", exports_at, 0x40000040);
  section(".rsrc", resources_at, 0x40000040);
}

void WindowsLibrary::put_records(Writer& out) const {
  out.at = imports_at;
  out.i({IMPORT_PANEL_SERVICES});
  out.p(0);
  out.at = linkage_at;
  out.i({LINKAGE_MODULE_ID, 0});
  out.p(code), out.p(code);
  out.i({0, 0, LINKAGE_VERSION, 0});
  out.p(header_at);
  out.at = header_at;
  out.i({GAUGE_HEADER_VERSION, 0});
  for (const std::uint64_t place : {name_at, background_at, std::uint64_t{0}}) out.p(place);
  for (const std::uint64_t routine : {code, code, code, code, code, draw, code}) out.p(routine);
  out.i({40, 0});
  out.p(areas), out.p(code);
  put_element(out, background_at, false);
  put_element(out, icon_at, true);
  out.at = lists_at;
  out.p(icon), out.p(0);
  put_areas(out);
  out.at = name_at;
  out.text("Small");
}

void WindowsLibrary::put_element(Writer& out, std::uint64_t at, bool is_icon) const {
  out.at = at;
  out.i({is_icon ? ELEMENT_ICON : ELEMENT_STATIC_IMAGE, is_icon ? 20u : 10u, 2, 2});
  out.p(header_at);
  out.p(is_icon ? 0 : lists_at);
  out.p(0);
  out.i({3, 0});
  if (!is_icon) return;
  out.at = at + (pointer == 8 ? 48 : 40);
  out.i({0, 0});
  out.d(0);
  out.p(code);
  out.i({1, 2});
  out.d(1);
}

void WindowsLibrary::put_areas(Writer& out) const {
  out.at = areas_at;
  const auto area = [&](std::uint32_t kind, std::uint32_t side, std::uint64_t routine) {
    out.i({kind, 0, 0, side, side, ~0u, 0, side == 0 ? 0 : MOUSE_LEFT, 0, 0});
    out.p(routine), out.p(0);
  };
  area(MOUSE_GROUP, 0, 0);
  area(MOUSE_CLICK_AREA, 4, code);
  area(MOUSE_GROUP_END, 0, 0);
  area(MOUSE_END, 0, 0);
}

void WindowsLibrary::put_exports(Writer& out) const {
  out.at = exports_at;
  const std::uint32_t functions = exports_at + 40, names = functions + 32, ordinals = names + 8,
                      first = ordinals + 8, second = first + 12;
  out.i({0, 0, 0, 0, 1, 2u + surplus_exports, 2, functions, names, ordinals});
  const bool second_is_linkage = linkage_ordinal == 2;
  out.i({second_is_linkage ? std::uint32_t{imports_at} : std::uint32_t{linkage_at},
         second_is_linkage ? std::uint32_t{linkage_at} : std::uint32_t{imports_at}, imports_at});
  out.at = names;
  out.i({first, second});
  out.put(std::uint16_t(second_is_linkage ? 0 : 1));
  out.put(std::uint16_t(linkage_ordinal - 1));
  out.at = first;
  out.text("ImportTable");
  out.at = second;
  out.text("Linkage");
}

/// A tree of three levels: the type, four bitmaps of which the last but one has a name, one language each.
void WindowsLibrary::put_resources(Writer& out) const {
  constexpr std::uint32_t deeper = 0x80000000;
  out.at = resources_at;
  out.i({0, 0, 0, 0x10000, 2, deeper | 24});
  out.i({0, 0, 0, 0x30001});
  const std::uint32_t keys[] = {deeper | 0x300, 10, 20, 21};
  for (std::uint32_t i = 0; i < 4; ++i) out.i({keys[i], deeper | (0x100 + i * 0x20)});
  for (int i = 0; i < 4; ++i) put_bitmap(out, i, keys[i]);
  out.at = resources_at + 0x300;
  out.put(std::uint16_t{3});
  for (const char letter : {'I', 'D', 'B'}) out.put(std::uint16_t(letter));
}

void WindowsLibrary::put_bitmap(Writer& out, int index, std::uint32_t key) const {
  const auto number = static_cast<std::uint32_t>(index);
  const std::uint32_t leaf = 0x200 + number * 0x10, data = 0x400 + number * 0x100;
  ByteList bitmap = plain_dib(8, 8, 0x202020);
  if (key == 10) std::memcpy(bitmap.data() + 14, &background_bits, sizeof background_bits);
  out.at = resources_at + 0x100 + number * 0x20;
  out.i({0, 0, 0, 0x10000, 0, leaf});
  out.at = resources_at + leaf;
  out.i({static_cast<std::uint32_t>(resources_at) + data, static_cast<std::uint32_t>(bitmap.size()), 0,
         0});
  std::memcpy(out.bytes.data() + resources_at + data, bitmap.data(), bitmap.size());
}

}  // namespace host
