#include "host/loader/pe_file.h"

#include <algorithm>
#include <cstring>

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

constexpr std::size_t place_of_headers = 0x3C;
constexpr std::uint32_t signature = 0x00004550;  // "PE"
constexpr std::uint16_t i386 = 0x14C, x86_64 = 0x8664, narrow_magic = 0x10B, wide_magic = 0x20B;
constexpr std::uint16_t relocations_stripped = 0x0001, is_library = 0x2000;
constexpr std::uint32_t executable = 0x20000000, readable = 0x40000000, writable = 0x80000000;
constexpr std::size_t export_directory = 0, resource_directory = 2;
constexpr std::uint64_t largest_image = std::uint64_t{512} << 20;
constexpr std::uint32_t most_directories = 16, most_exports = 0xFFFF;

[[noreturn]] void cut_short() {
  throw LibraryError("is cut short: parts that it names lie past its end");
}

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

struct PeFile::Headers {
  CoffHeader coff;
  std::uint64_t optional, sections;  // where they stand in the file
  std::uint32_t size_of_image, size_of_headers;
};

bool PeFile::begins(Bytes bytes) {
  return bytes.size() >= 2 && bytes[0] == std::byte{'M'} && bytes[1] == std::byte{'Z'};
}

PeFile::PeFile(Bytes bytes) {
  const std::uint64_t at = needed<std::uint32_t>(bytes, place_of_headers);
  if (needed<std::uint32_t>(bytes, at) != signature) throw LibraryError("is not a shared library");
  Headers headers{};
  headers.coff = needed<CoffHeader>(bytes, at + 4);
  const CoffHeader& coff = headers.coff;
  if (coff.machine != i386 && coff.machine != x86_64)
    throw LibraryError("is a library for another kind of processor (number " +
                       std::to_string(coff.machine) + ")");
  if ((coff.characteristics & is_library) == 0)
    throw LibraryError("is a program or an object file, not a shared library");
  movable_ = (coff.characteristics & relocations_stripped) == 0;
  headers.optional = at + 4 + sizeof(CoffHeader);
  headers.sections = headers.optional + coff.optional_size;
  wide_ = coff.machine == x86_64;
  if (needed<std::uint16_t>(bytes, headers.optional) != (wide_ ? wide_magic : narrow_magic))
    throw LibraryError("is damaged: its headers are for another kind of processor");
  base_ = wide_ ? needed<std::uint64_t>(bytes, headers.optional + 24)
                : needed<std::uint32_t>(bytes, headers.optional + 28);
  headers.size_of_image = needed<std::uint32_t>(bytes, headers.optional + 56);
  headers.size_of_headers = needed<std::uint32_t>(bytes, headers.optional + 60);
  const std::uint64_t table = headers.optional + (wide_ ? 108 : 92);
  const auto count = std::min(needed<std::uint32_t>(bytes, table), most_directories);
  for (std::uint32_t i = 0; i < count; ++i)
    directories_.push_back(needed<Directory>(bytes, table + 4 + i * sizeof(Directory)));
  lay_out(bytes, headers);
  read_exports();
}

void PeFile::lay_out(Bytes bytes, const Headers& headers) {
  if (headers.size_of_image > largest_image) throw LibraryError("is damaged: it is far too large");
  image_.resize(headers.size_of_image);
  const auto copy = [&](std::uint64_t from, std::uint64_t to, std::uint64_t size) {
    const auto part = slice(bytes, from, size);
    if (!part) cut_short();
    if (!slice(image_, to, size)) throw LibraryError("is damaged: a section lies outside of it");
    if (size > 0) std::memcpy(image_.data() + to, part->data(), size);
  };
  copy(0, 0, std::min<std::uint64_t>(headers.size_of_headers, bytes.size()));
  for (unsigned i = 0; i < headers.coff.sections; ++i) {
    const auto header = needed<SectionHeader>(bytes, headers.sections + i * sizeof(SectionHeader));
    copy(header.raw_offset, header.address, std::min(header.raw_size, header.virtual_size));
    if (!slice(image_, header.address, header.virtual_size))
      throw LibraryError("is damaged: a section lies outside of it");
    sections_.push_back({header.address, header.virtual_size, rights_of(header.characteristics)});
  }
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
