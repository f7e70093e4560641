#include "host/loader/dynamic_checks.h"

#include <elf.h>

#include <algorithm>
#include <array>
#include <vector>

namespace host {
namespace {

template <typename Record>
std::vector<Record> records(Bytes bytes, std::uint64_t at, std::uint64_t count) {
  std::vector<Record> all;
  for (std::uint64_t i = 0; i < count; ++i) {
    const auto record = read<Record>(bytes, at + i * sizeof(Record));
    if (!record) break;
    all.push_back(*record);
  }
  return all;
}

struct Table {
  Elf64_Sxword address;
  Elf64_Sxword size;  // the entry that tells it; DT_NULL: none does
  const char* name;
};

constexpr std::array tables{
    Table{DT_STRTAB, DT_STRSZ, "table of names"},
    Table{DT_SYMTAB, DT_NULL, "symbol table"},
    Table{DT_HASH, DT_NULL, "hash table"},
    Table{DT_GNU_HASH, DT_NULL, "hash table"},
    Table{DT_RELA, DT_RELASZ, "relocation table"},
    Table{DT_JMPREL, DT_PLTRELSZ, "relocation table of routines"},
    Table{DT_VERSYM, DT_NULL, "version table"},
    Table{DT_VERNEED, DT_NULL, "table of needed versions"},
    Table{DT_INIT, DT_NULL, "start routine"},
    Table{DT_FINI, DT_NULL, "end routine"},
    Table{DT_INIT_ARRAY, DT_INIT_ARRAYSZ, "list of start routines"},
    Table{DT_FINI_ARRAY, DT_FINI_ARRAYSZ, "list of end routines"},
};

class DynamicTables {
 public:
  explicit DynamicTables(Bytes library) : library_(library) {
    const auto header = read<Elf64_Ehdr>(library, 0);
    if (header) segments_ = records<Elf64_Phdr>(library, header->e_phoff, header->e_phnum);
    const auto own = std::ranges::find(segments_, Elf64_Word{PT_DYNAMIC}, &Elf64_Phdr::p_type);
    if (own == segments_.end()) return;
    entries_ = records<Elf64_Dyn>(library, own->p_offset, own->p_filesz / sizeof(Elf64_Dyn));
    const auto end = std::ranges::find(entries_, Elf64_Sxword{DT_NULL}, &Elf64_Dyn::d_tag);
    ends_ = end != entries_.end();
    entries_.erase(end, entries_.end());
  }

  std::string fault() const {
    if (entries_.empty()) return "it has no dynamic section";
    if (!ends_) return "its dynamic section has no end";
    for (const Elf64_Sxword needed : {DT_STRTAB, DT_SYMTAB})
      if (!value(needed)) return "its dynamic section names no table of symbols";
    for (const Table& table : tables)
      if (!lies_inside(table)) return std::string("its ") + table.name + " lies outside of the library";
    for (const auto& [table, size] : {std::pair{DT_RELA, DT_RELASZ}, std::pair{DT_JMPREL, DT_PLTRELSZ}})
      if (!relocations_fit(table, size)) return "its relocations reach outside of the library";
    return {};
  }

 private:
  std::optional<std::uint64_t> value(Elf64_Sxword tag) const {
    const auto entry = std::ranges::find(entries_, tag, &Elf64_Dyn::d_tag);
    return entry == entries_.end() ? std::nullopt : std::optional<std::uint64_t>(entry->d_un.d_val);
  }

  const Elf64_Phdr* segment_of(std::uint64_t address, std::uint64_t size) const {
    for (const Elf64_Phdr& segment : segments_)
      if (segment.p_type == PT_LOAD && address >= segment.p_vaddr &&
          address - segment.p_vaddr <= segment.p_memsz &&
          size <= segment.p_memsz - (address - segment.p_vaddr))
        return &segment;
    return nullptr;
  }

  bool lies_inside(const Table& table) const {
    const auto address = value(table.address);
    if (!address) return true;
    const std::uint64_t size = table.size == DT_NULL ? 1 : value(table.size).value_or(~std::uint64_t{});
    return segment_of(*address, size) != nullptr;
  }

  // Where it writes, and the symbol it asks for.
  bool relocations_fit(Elf64_Sxword table, Elf64_Sxword size) const {
    const auto address = value(table), bytes = value(size);
    if (!address || !bytes) return true;
    const Elf64_Phdr* segment = segment_of(*address, *bytes);
    const std::uint64_t at = segment->p_offset + (*address - segment->p_vaddr);
    return std::ranges::all_of(
        records<Elf64_Rela>(library_, at, *bytes / sizeof(Elf64_Rela)), [this](const Elf64_Rela& each) {
          const std::uint64_t symbol = ELF64_R_SYM(each.r_info) * sizeof(Elf64_Sym);
          return segment_of(each.r_offset, 8) != nullptr &&
                 segment_of(*value(DT_SYMTAB) + symbol, sizeof(Elf64_Sym)) != nullptr;
        });
  }

  Bytes library_;
  std::vector<Elf64_Phdr> segments_;
  std::vector<Elf64_Dyn> entries_;
  bool ends_ = false;
};

}  // namespace

std::string fault_of_dynamic_tables(Bytes library) { return DynamicTables(library).fault(); }

}  // namespace host
