#include "resources/tool/windows_resources.h"

#include <cstring>

#include "interface/panel_interface.h"
#include "resources/kit/records.h"

namespace artwork {
namespace {

constexpr std::uint32_t by_number = 0xFFFF;  // stands before a number where a name could stand
constexpr std::uint32_t bitmap_type = 2;
constexpr std::uint32_t highest_number = 0xFFFF;
constexpr std::uint32_t moveable_pure_discardable = 0x1030;

void put(Bytes& bytes, std::uint32_t value, int count) {
  for (int i = 0; i < count; ++i) bytes.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
}

void put_number(Bytes& bytes, std::uint32_t number) {
  put(bytes, by_number, 2);
  put(bytes, number, 2);
}

void put_name(Bytes& bytes, const char* name) {
  for (; *name != 0; ++name) put(bytes, static_cast<std::uint8_t>(*name), 2);
  put(bytes, 0, 2);
}

void pad(Bytes& bytes) {
  while (bytes.size() % 4 != 0) bytes.push_back(0);
}

/// One resource without its bytes. `names` is its type and its name.
void put_header(Bytes& bytes, std::uint32_t size, Bytes names, std::uint32_t flags) {
  pad(names);
  constexpr std::uint32_t besides = 24;
  put(bytes, size, 4);
  put(bytes, besides + static_cast<std::uint32_t>(names.size()), 4);
  bytes.insert(bytes.end(), names.begin(), names.end());
  put(bytes, 0, 4);  // version of the data
  put(bytes, flags, 2);
  put(bytes, 0, 2);  // any language
  put(bytes, 0, 4);  // version
  put(bytes, 0, 4);  // characteristics
}

/// What every such file begins with.
void put_empty_resource(Bytes& bytes) {
  Bytes names;
  put_number(names, 0);
  put_number(names, 0);
  put_header(bytes, 0, names, 0);
}

Bytes names_of(const PanelResourceEntry& entry) {
  Bytes names;
  put_number(names, bitmap_type);
  if (entry.id == PANEL_RESOURCE_NAMED) {
    put_name(names, entry.name);
  } else if (entry.id <= highest_number) {
    put_number(names, entry.id);
  } else {
    wrong("no resource can have the number " + std::to_string(entry.id));
  }
  return names;
}

template <typename Record>
Record record_at(const Bytes& bytes, std::size_t at) {
  Record record;
  std::memcpy(&record, bytes.data() + at, sizeof record);
  return record;
}

}  // namespace

Bytes windows_resources(const Bytes& section) {
  Bytes bytes;
  bytes.reserve(section.size());
  put_empty_resource(bytes);
  const u32 count = record_at<PanelResourceHeader>(section, 0).count;
  for (std::size_t i = 0; i < count; ++i) {
    const auto entry = record_at<PanelResourceEntry>(
        section, sizeof(PanelResourceHeader) + i * sizeof(PanelResourceEntry));
    put_header(bytes, entry.size, names_of(entry), moveable_pure_discardable);
    const auto bitmap = section.begin() + entry.offset;
    bytes.insert(bytes.end(), bitmap, bitmap + entry.size);
    pad(bytes);
  }
  return bytes;
}

}  // namespace artwork
