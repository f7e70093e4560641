#include "host/loader/foreign_records.h"

#include <cstring>
#include <map>

#include "host/loader/element_chain.h"
#include "host/loader/pe_file.h"
#include "host/loader/record_layout.h"

namespace host {
namespace {

constexpr std::size_t most_areas = 1024;

/// Copies records out of an image. Addresses are those of the image as it lies in this program; a
/// record that is asked for twice is copied once.
class Copier {
 public:
  using Storage = std::vector<std::unique_ptr<std::byte[]>>;

  Copier(const PeFile& file, Storage& copies)
      : file_(file), copies_(copies), image_(ranges_of(file)), ranges_(ranges_of(file)) {}

  LinkageRecord* linkage(const std::byte* at) {
    constexpr std::size_t gauges = LINKAGE_GAUGE_COUNT + 1;
    const std::size_t head = layout::end_of(layout::linkage, pointer_);
    auto* copy = room<LinkageRecord>(at, head + gauges * pointer_);
    if (copy == nullptr) return nullptr;
    take(at, layout::linkage, copy);
    for (std::size_t i = 0; i < gauges; ++i)
      copy->gauges[i] = gauge(static_cast<std::byte*>(pointer_at(at + head + i * pointer_)));
    copy_pending();
    return copy;
  }

  ImportTableRecord* imports(const std::byte* at) {
    const std::size_t entry = layout::end_of(layout::import_entry, pointer_);
    auto* copy = room<ImportTableRecord>(at, 2 * entry);
    for (std::size_t i = 0; copy != nullptr && i < 2; ++i)
      take(at + i * entry, layout::import_entry, copy->entries + i);
    return copy;
  }

  std::vector<MemoryMap::Range> ranges() const { return ranges_; }

 private:
  static std::vector<MemoryMap::Range> ranges_of(const PeFile& file) {
    std::vector<MemoryMap::Range> ranges;
    const auto start = reinterpret_cast<std::uintptr_t>(file.image().data());
    for (const PeFile::Section& section : file.sections())
      ranges.push_back(
          {start + section.address, start + section.address + section.size, section.rights});
    return ranges;
  }

  /// Where a pointer of the library leads: into the image, or as it is where that leads nowhere.
  void* followed(std::uint64_t pointer) const {
    const std::uint64_t offset = pointer - file_.base();
    const bool inside = pointer >= file_.base() && offset < file_.image().size();
    return inside ? const_cast<std::byte*>(file_.image().data()) + offset
                  : reinterpret_cast<void*>(static_cast<std::uintptr_t>(pointer));
  }

  void* pointer_at(const std::byte* at) const {
    std::uint64_t pointer = 0;
    std::memcpy(&pointer, at, pointer_);
    return followed(pointer);
  }

  /// Copies the fields of a record. Both begin at a multiple of eight, or hold nothing as large.
  void take(const std::byte* from, layout::Fields fields, void* to) const {
    std::size_t source = 0, target = 0;
    for (; *fields != 0; ++fields) {
      const std::size_t size = layout::bytes_of(*fields, pointer_);
      const std::size_t own_size = layout::bytes_of(*fields, layout::own);
      source = layout::aligned(source, size);
      target = layout::aligned(target, own_size);
      auto* place = static_cast<std::byte*>(to) + target;
      if (*fields == 'p') {
        void* pointer = pointer_at(from + source);
        std::memcpy(place, &pointer, own_size);
      } else {
        std::memcpy(place, from + source, size);
      }
      source += size;
      target += own_size;
    }
  }

  /// Room for the copies of `count` records of `size` bytes each in the image; null where they do not
  /// lie there as records do. The copies have the rights of what is copied.
  template <typename Record>
  Record* room(const std::byte* at, std::size_t size, std::size_t count = 1) {
    if (reinterpret_cast<std::uintptr_t>(at) % 4 != 0 || !image_.readable(at, size * count))
      return nullptr;
    const std::size_t bytes = sizeof(Record) * count;
    auto* copy = copies_.emplace_back(new std::byte[bytes]()).get();
    const unsigned rights =
        image_.writable(at, size) ? MemoryMap::read | MemoryMap::write : MemoryMap::read;
    const auto start = reinterpret_cast<std::uintptr_t>(copy);
    ranges_.push_back({start, start + bytes, rights});
    return reinterpret_cast<Record*>(copy);
  }

  /// The copy of what lies there, or the address itself where nothing can be copied.
  template <typename Record, typename Copy>
  Record* once(const Record* at, Copy copy) {
    const auto known = known_.find(at);
    if (known != known_.end()) return static_cast<Record*>(known->second);
    Record* made = copy(reinterpret_cast<const std::byte*>(at));
    if (made == nullptr) return const_cast<Record*>(at);
    known_.emplace(at, made);
    return made;
  }

  const GaugeHeader* gauge(const void* place) {
    return once(static_cast<const GaugeHeader*>(place), [this](const std::byte* at) {
      auto* copy = room<GaugeHeader>(at, layout::end_of(layout::gauge_header, pointer_));
      if (copy == nullptr) return copy;
      take(at, layout::gauge_header, copy);
      headers_.push_back(copy);
      return copy;
    });
  }

  Element* element(const Element* place) {
    return once(place, [this](const std::byte* at) {
      auto* copy = room<Element>(at, layout::element_size(pointer_));
      if (copy == nullptr) return copy;
      take(at, layout::element, copy);
      if (copy->kind < std::size(layout::parts))
        take(at + layout::part_offset(pointer_), layout::parts[copy->kind], &copy->icon);
      elements_.push_back(copy);
      return copy;
    });
  }

  /// The children's list as far as it can be read, with its end where it has one.
  Element* const* list(Element* const* place) {
    return once(place, [this](const std::byte* at) -> Element** {
      std::size_t count = 0;
      bool ends = false;
      while (!ends && count <= longest_chain && image_.readable(at + count * pointer_, pointer_))
        ends = pointer_at(at + count++ * pointer_) == nullptr;
      auto* copy = count > 0 ? room<Element*>(at, pointer_, count) : nullptr;
      for (std::size_t i = 0; copy != nullptr && i < count; ++i)
        copy[i] = element(static_cast<Element*>(pointer_at(at + i * pointer_)));
      return copy;
    });
  }

  const MouseArea* areas(const MouseArea* place) {
    return once(place, [this](const std::byte* at) {
      const std::size_t size = layout::end_of(layout::mouse_area, pointer_);
      std::size_t count = 0;
      std::uint32_t kind = ~0u;
      while (kind != MOUSE_END && count <= most_areas && image_.readable(at + count * size, size))
        std::memcpy(&kind, at + count++ * size, sizeof kind);
      auto* copy = count > 0 ? room<MouseArea>(at, size, count) : nullptr;
      for (std::size_t i = 0; copy != nullptr && i < count; ++i)
        take(at + i * size, layout::mouse_area, copy + i);
      return copy;
    });
  }

  /// What the copies point at, and so on: a chain may be as long as it likes.
  void copy_pending() {
    while (!headers_.empty() || !elements_.empty()) {
      if (!headers_.empty()) {
        GaugeHeader& header = *headers_.back();
        headers_.pop_back();
        for (Element*& root : header.element_list) root = element(root);
        header.mouse_areas = areas(header.mouse_areas);
      } else {
        Element& each = *elements_.back();
        elements_.pop_back();
        each.gauge = gauge(each.gauge);
        each.next = list(each.next);
      }
    }
  }

  const PeFile& file_;
  Storage& copies_;
  const MemoryMap image_;
  std::vector<MemoryMap::Range> ranges_;
  const std::size_t pointer_ = static_cast<std::size_t>(file_.pointer_size());
  std::map<const void*, void*> known_;
  std::vector<GaugeHeader*> headers_;
  std::vector<Element*> elements_;
};

const std::byte* place_of(const PeFile& file, std::string_view symbol) {
  const auto address = file.address_of(symbol);
  return address && *address < file.image().size() ? file.image().data() + *address : nullptr;
}

}  // namespace

ForeignRecords::ForeignRecords(const PeFile& file) {
  Copier copier(file, copies_);
  if (const std::byte* at = place_of(file, "Linkage")) linkage_ = copier.linkage(at);
  if (const std::byte* at = place_of(file, "ImportTable")) imports_ = copier.imports(at);
  memory_ = std::make_unique<MemoryMap>(copier.ranges());
}

ForeignRecords::~ForeignRecords() = default;

}  // namespace host
