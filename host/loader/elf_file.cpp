#include "host/loader/elf_file.h"

#include <elf.h>

#include <algorithm>
#include <bit>
#include <cstring>

#include "host/loader/dynamic_checks.h"
#include "host/loader/resource_section.h"
#include "interface/panel_interface.h"

namespace host {
namespace {

#if defined(__x86_64__)
constexpr int own_machine = EM_X86_64;
#elif defined(__aarch64__)
constexpr int own_machine = EM_AARCH64;
#elif defined(__riscv)
constexpr int own_machine = EM_RISCV;
#else
constexpr int own_machine = EM_NONE;  // not known: the system's own loader decides
#endif

static_assert(sizeof(void*) == 8, "32-bit libraries have other records");

constexpr int own_order = std::endian::native == std::endian::little ? ELFDATA2LSB : ELFDATA2MSB;

[[noreturn]] void cut_short() {
  throw LibraryError("is cut short: parts that it names lie past its end");
}

void check_identity(const Elf64_Ehdr& header) {
  if (header.e_ident[EI_CLASS] != ELFCLASS64 || header.e_ident[EI_DATA] != own_order)
    throw LibraryError("is a library for another kind of processor");
  if (own_machine != EM_NONE && header.e_machine != own_machine)
    throw LibraryError("is a library for another kind of processor (number " +
                       std::to_string(header.e_machine) + ")");
  if (header.e_type != ET_DYN)
    throw LibraryError("is a program or an object file, not a shared library");
}

Elf64_Ehdr header_of(Bytes bytes) {
  if (bytes.empty()) throw LibraryError("is empty");
  char magic[SELFMAG]{};
  std::memcpy(magic, bytes.data(), std::min<std::size_t>(SELFMAG, bytes.size()));
  if (std::memcmp(magic, ELFMAG, SELFMAG) != 0) throw LibraryError("is not a shared library");
  const auto header = read<Elf64_Ehdr>(bytes, 0);
  if (!header) cut_short();
  check_identity(*header);
  return *header;
}

// The system's loader maps segments without looking at the file's size and dies at the first touch
// of a page behind the end.
void check_segments(Bytes bytes, const Elf64_Ehdr& header) {
  for (unsigned i = 0; i < header.e_phnum; ++i) {
    const auto segment = read<Elf64_Phdr>(bytes, header.e_phoff + i * sizeof(Elf64_Phdr));
    if (!segment) cut_short();
    if (segment->p_type != PT_LOAD) continue;
    if (!slice(bytes, segment->p_offset, segment->p_filesz)) cut_short();
  }
}

}  // namespace

ElfFile::ElfFile(Bytes bytes) : bytes_(bytes) {
  check_segments(bytes_, header_of(bytes_));
  read_sections();
  read_exports();
}

void ElfFile::read_sections() {
  const Elf64_Ehdr header = *read<Elf64_Ehdr>(bytes_, 0);
  std::vector<Elf64_Shdr> headers;
  for (unsigned i = 0; i < header.e_shnum; ++i) {
    const auto section = read<Elf64_Shdr>(bytes_, header.e_shoff + i * sizeof(Elf64_Shdr));
    if (!section) cut_short();
    headers.push_back(*section);
  }
  const auto content = [&](const Elf64_Shdr& section) -> Bytes {
    if (section.sh_type == SHT_NOBITS || section.sh_type == SHT_NULL) return {};
    const auto bytes = slice(bytes_, section.sh_offset, section.sh_size);
    if (!bytes) cut_short();
    return *bytes;
  };
  const Bytes names =
      header.e_shstrndx < headers.size() ? content(headers[header.e_shstrndx]) : Bytes{};
  for (const Elf64_Shdr& section : headers)
    sections_.push_back({std::string(text_at(names, section.sh_name)), section.sh_type, section.sh_link,
                         content(section)});
}

std::optional<Bytes> ElfFile::section(std::string_view name) const {
  const auto found = std::ranges::find(sections_, name, &Section::name);
  if (found == sections_.end()) return std::nullopt;
  return found->bytes;
}

std::string ElfFile::bitmap_place() const { return "section " PANEL_RESOURCE_SECTION; }

std::optional<std::vector<ListedBitmap>> ElfFile::bitmaps() const {
  const auto bytes = section(PANEL_RESOURCE_SECTION);
  return bytes ? std::optional(listed_bitmaps(*bytes)) : std::nullopt;
}

std::string ElfFile::fault() const { return fault_of_dynamic_tables(bytes_); }

void ElfFile::read_exports() {
  const auto table = std::ranges::find(sections_, std::uint32_t{SHT_DYNSYM}, &Section::type);
  if (table == sections_.end() || table->link >= sections_.size()) return;
  const Bytes names = sections_[table->link].bytes;
  for (std::uint64_t at = 0; auto symbol = read<Elf64_Sym>(table->bytes, at); at += sizeof(Elf64_Sym)) {
    const int binding = ELF64_ST_BIND(symbol->st_info);
    const int visibility = ELF64_ST_VISIBILITY(symbol->st_other);
    if (symbol->st_shndx == SHN_UNDEF || (binding != STB_GLOBAL && binding != STB_WEAK)) continue;
    if (visibility != STV_DEFAULT && visibility != STV_PROTECTED) continue;
    exports_.push_back({std::string(text_at(names, symbol->st_name)), symbol->st_size, 0});
  }
}

}  // namespace host
