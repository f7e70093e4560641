#include "resources/tool/stamp.h"

#include <fstream>
#include <iterator>

#include "resources/kit/records.h"

namespace artwork {
namespace {

/// Fowler, Noll and Vo's hash: small, and good enough to tell two builds apart.
class Digest {
 public:
  void add(const void* data, std::size_t size) {
    const auto* byte = static_cast<const unsigned char*>(data);
    for (std::size_t i = 0; i < size; ++i) state_ = (state_ ^ byte[i]) * 0x100000001B3u;
  }
  template <class Value>
  void add(const Value& value) {
    add(&value, sizeof value);
  }
  std::string text() const { return std::to_string(state_); }

 private:
  std::uint64_t state_ = 0xCBF29CE484222325u;
};

void add_needle(Digest& digest, const NeedlePart& needle) {
  digest.add(needle.center);
  for (u32 i = 0; needle.table != nullptr && i < needle.table_length; ++i) {
    digest.add(needle.table[i]);
  }
}

void add_gauge(Digest& digest, const GaugeHeader& of) {
  for (const Element* e : parts(of)) {
    digest.add(e->kind);
    digest.add(e->resource_id);
    digest.add(e->position);
    if (e->kind == ELEMENT_NEEDLE) add_needle(digest, e->needle);
  }
  for (const Box& box : click_boxes(of)) digest.add(box);
}

void add_file(Digest& digest, const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(file), {}};
  digest.add(bytes.data(), bytes.size());
}

}  // namespace

std::string records_stamp(const std::filesystem::path& kit) {
  Digest digest;
  add_file(digest, kit);
  for (const GaugeHeader* each : gauges()) add_gauge(digest, *each);
  return digest.text();
}

bool stamp_matches(const std::filesystem::path& file, const std::string& stamp) {
  std::ifstream in(file);
  std::string found;
  return static_cast<bool>(std::getline(in, found)) && found == stamp;
}

void write_stamp(const std::filesystem::path& file, const std::string& stamp) {
  std::ofstream(file) << stamp << '\n';
}

}  // namespace artwork
