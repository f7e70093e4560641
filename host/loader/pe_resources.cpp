#include "host/loader/pe_resources.h"

#include <algorithm>

#include "interface/panel_interface.h"

namespace host {
namespace {

// A level of the tree: types, then names, then languages. Its entries follow it.
struct Level {
  std::uint32_t characteristics, time, version;
  std::uint16_t named, numbered;
};
static_assert(sizeof(Level) == 16);

struct Entry {
  std::uint32_t key;    // a number, or with the highest bit where the name stands
  std::uint32_t below;  // a leaf, or with the highest bit the next level
};

struct Leaf {
  std::uint32_t address, size, code_page, reserved;
};

constexpr std::uint32_t highest = 0x80000000u, bitmap_type = 2;
constexpr unsigned most_entries = 0xFFFF;
constexpr std::uint16_t longest_name = 255;

class Tree {
 public:
  Tree(Bytes image, std::uint32_t root) : image_(image), root_(root) {}

  std::vector<Entry> entries(std::uint32_t level, unsigned most = most_entries) const {
    std::vector<Entry> all;
    const std::uint64_t at = std::uint64_t{root_} + level;
    const auto head = read<Level>(image_, at);
    const unsigned count = head ? std::min(unsigned{head->named} + head->numbered, most) : 0;
    for (unsigned i = 0; i < count; ++i) {
      const auto entry = read<Entry>(image_, at + sizeof(Level) + i * sizeof(Entry));
      if (!entry) break;
      all.push_back(*entry);
    }
    return all;
  }

  /// The entries below an entry, `most` of them; none below a leaf.
  std::vector<Entry> below(const Entry& entry, unsigned most = most_entries) const {
    return (entry.below & highest) != 0 ? entries(entry.below & ~highest, most) : std::vector<Entry>{};
  }

  /// In UTF-16, its length before it; other letters than ASCII's become '?'.
  std::string name(const Entry& entry) const {
    const std::uint64_t at = std::uint64_t{root_} + (entry.key & ~highest);
    std::string text;
    const auto length = std::min(read<std::uint16_t>(image_, at).value_or(0), longest_name);
    for (unsigned i = 1; i <= length; ++i) {
      const auto letter = read<std::uint16_t>(image_, at + i * 2);
      if (!letter) break;
      text += *letter < 0x80 ? static_cast<char>(*letter) : '?';
    }
    return text;
  }

  std::optional<Bytes> bytes(const Entry& leaf) const {
    const auto data = read<Leaf>(image_, std::uint64_t{root_} + leaf.below);
    return data ? slice(image_, data->address, data->size) : std::nullopt;
  }

 private:
  Bytes image_;
  std::uint32_t root_;
};

}  // namespace

std::optional<std::vector<ListedBitmap>> bitmap_resources(Bytes image, std::uint32_t root) {
  const Tree tree(image, root);
  const std::vector<Entry> types = tree.entries(0);
  const auto branch = std::ranges::find(types, bitmap_type, &Entry::key);
  if (branch == types.end()) return std::nullopt;
  std::vector<ListedBitmap> bitmaps;
  for (const Entry& entry : tree.below(*branch)) {
    const std::vector<Entry> languages = tree.below(entry, 1);
    if (languages.empty()) continue;
    const bool named = (entry.key & highest) != 0;
    bitmaps.push_back({named ? PANEL_RESOURCE_NAMED : entry.key, named ? tree.name(entry) : "",
                       tree.bytes(languages.front())});
  }
  return bitmaps;
}

}  // namespace host
