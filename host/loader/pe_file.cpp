#include "host/loader/pe_file.h"

#include <algorithm>

#include "host/loader/foreign_records.h"
#include "host/loader/pe_resources.h"

namespace host {
namespace {

struct CoffHeader {
  std::uint16_t machine, sections;
  std::uint32_t time, symbols, symbol_count;
  std::uint16_t optional_size, characteristics;
};
static_assert(sizeof(CoffHeader) == 20);

struct SectionHeader {
  char name[8];
  std::uint32_t virtual_size, address, raw_size, raw_offset, relocations, lines;
  std::uint16_t relocation_count, line_count;
  std::uint32_t characteristics;
};
static_assert(sizeof(SectionHeader) == 40);

struct ExportTable {
  std::uint32_t characteristics, time, version, name, ordinal_base, functions, names, function_table,
      name_table, ordinal_table;
};
static_assert(sizeof(ExportTable) == 40);

// Where things stand in the file, and in what is called the optional header.
constexpr std::size_t place_of_headers = 0x3C, place_of_base = 28, place_of_wide_base = 24,
                      place_of_image_size = 56, place_of_headers_size = 60, place_of_directories = 92,
                      place_of_wide_directories = 108;
constexpr std::uint32_t signature = 0x00004550;  // "PE"
constexpr std::uint16_t i386 = 0x14C, x86_64 = 0x8664, narrow_magic = 0x10B, wide_magic = 0x20B;
constexpr std::uint16_t relocations_stripped = 0x0001, is_library = 0x2000;
constexpr std::uint32_t executable = 0x20000000, readable = 0x40000000, writable = 0x80000000;
constexpr std::size_t export_directory = 0, resource_directory = 2;
constexpr std::uint64_t largest_image = std::uint64_t{512} << 20;
constexpr std::uint32_t most_directories = 16, most_exports = 4096;

[[noreturn]] void cut_short() {
  throw LibraryError("is cut short: parts that it names lie past its end");
}

[[noreturn]] void outside() { throw LibraryError("is damaged: a section lies outside of it"); }

template <typename Record>
Record needed(Bytes bytes, std::uint64_t at) {
  const auto record = read<Record>(bytes, at);
  if (!record) cut_short();
  return *record;
}

unsigned rights_of(std::uint32_t characteristics) {
  const auto has = [&](std::uint32_t bit, MemoryMap::Right right) {
    return (characteristics & bit) != 0 ? unsigned{right} : 0u;
  };
  return has(readable, MemoryMap::read) | has(writable, MemoryMap::write) |
         has(executable, MemoryMap::execute);
}

}  // namespace

// Where the headers stand in the file.
struct PeFile::Headers {
  CoffHeader coff;
  std::uint64_t optional;

  std::uint64_t sections() const { return optional + coff.optional_size; }
};

bool PeFile::begins(Bytes bytes) {
  return bytes.size() >= 2 && bytes[0] == std::byte{'M'} && bytes[1] == std::byte{'Z'};
}

PeFile::PeFile(Bytes bytes) {
  const Headers headers = headers_of(bytes);
  wide_ = headers.coff.machine == x86_64;
  movable_ = (headers.coff.characteristics & relocations_stripped) == 0;
  if (needed<std::uint16_t>(bytes, headers.optional) != (wide_ ? wide_magic : narrow_magic))
    throw LibraryError("is damaged: its headers are for another kind of processor");
  base_ = wide_ ? needed<std::uint64_t>(bytes, headers.optional + place_of_wide_base)
                : needed<std::uint32_t>(bytes, headers.optional + place_of_base);
  read_directories(bytes,
                   headers.optional + (wide_ ? place_of_wide_directories : place_of_directories));
  lay_out(bytes, headers);
  read_exports();
}

PeFile::Headers PeFile::headers_of(Bytes bytes) {
  const std::uint64_t at = needed<std::uint32_t>(bytes, place_of_headers);
  if (needed<std::uint32_t>(bytes, at) != signature) throw LibraryError("is not a shared library");
  const auto coff = needed<CoffHeader>(bytes, at + sizeof signature);
  if (coff.machine != i386 && coff.machine != x86_64)
    throw LibraryError("is a library for another kind of processor (number " +
                       std::to_string(coff.machine) + ")");
  if ((coff.characteristics & is_library) == 0)
    throw LibraryError("is a program or an object file, not a shared library");
  return {coff, at + sizeof signature + sizeof coff};
}

// Their number stands before them.
void PeFile::read_directories(Bytes bytes, std::uint64_t at) {
  const auto count = std::min(needed<std::uint32_t>(bytes, at), most_directories);
  for (std::uint32_t i = 0; i < count; ++i)
    directories_.push_back(needed<Directory>(bytes, at + sizeof count + i * sizeof(Directory)));
}

void PeFile::lay_out(Bytes bytes, const Headers& headers) {
  const auto size = needed<std::uint32_t>(bytes, headers.optional + place_of_image_size);
  if (size > largest_image) throw LibraryError("is damaged: it is far too large");
  image_.resize(size);
  const auto size_of_headers = needed<std::uint32_t>(bytes, headers.optional + place_of_headers_size);
  take_over(bytes.first(std::min<std::size_t>(size_of_headers, bytes.size())), 0);
  for (unsigned i = 0; i < headers.coff.sections; ++i) {
    const auto header = needed<SectionHeader>(bytes, headers.sections() + i * sizeof(SectionHeader));
    const auto raw = slice(bytes, header.raw_offset, std::min(header.raw_size, header.virtual_size));
    if (!raw) cut_short();
    take_over(*raw, header.address);
    if (!slice(image_, header.address, header.virtual_size)) outside();
    sections_.push_back({header.address, header.virtual_size, rights_of(header.characteristics)});
  }
}

void PeFile::take_over(Bytes part, std::uint32_t address) {
  if (!slice(image_, address, part.size())) outside();
  std::ranges::copy(part, image_.begin() + static_cast<std::ptrdiff_t>(address));
}

PeFile::Directory PeFile::directory(std::size_t number) const {
  return number < directories_.size() ? directories_[number] : Directory{};
}

// What has an ordinal and no name is listed by its number.
void PeFile::read_exports() {
  const auto table = read<ExportTable>(image_, directory(export_directory).address);
  if (directory(export_directory).size == 0 || !table) return;
  std::vector<std::uint32_t> functions;
  for (std::uint32_t i = 0; i < std::min(table->functions, most_exports); ++i) {
    const auto address = read<std::uint32_t>(image_, table->function_table + std::uint64_t{i} * 4);
    if (address.value_or(0) == 0) continue;
    const std::uint32_t ordinal = table->ordinal_base + i;
    exports_.push_back({"number " + std::to_string(ordinal), 0, ordinal});
    addresses_.push_back(*address);
  }
  for (std::uint32_t i = 0; i < std::min(table->names, most_exports); ++i) {
    const auto name = read<std::uint32_t>(image_, table->name_table + std::uint64_t{i} * 4);
    const auto index = read<std::uint16_t>(image_, table->ordinal_table + std::uint64_t{i} * 2);
    if (!name || !index) return;
    const auto named =
        std::ranges::find(exports_, table->ordinal_base + *index, &ExportedSymbol::ordinal);
    if (named != exports_.end()) named->name = text_at(image_, *name);
  }
}

std::optional<std::uint32_t> PeFile::address_of(std::string_view symbol) const {
  const auto found = std::ranges::find(exports_, symbol, &ExportedSymbol::name);
  if (found == exports_.end()) return std::nullopt;
  return addresses_[static_cast<std::size_t>(found - exports_.begin())];
}

std::optional<std::vector<ListedBitmap>> PeFile::bitmaps() const {
  const Directory resources = directory(resource_directory);
  if (resources.size == 0) return std::nullopt;
  return bitmap_resources(image_, resources.address);
}

std::string PeFile::fault() const {
  return movable_ ? "" : "it has no relocations, and its address may be taken";
}

std::unique_ptr<ForeignRecords> PeFile::foreign_records() const {
  return std::make_unique<ForeignRecords>(*this);
}

}  // namespace host
