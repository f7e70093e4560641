#include "host/loader/library_file.h"

#include "host/loader/elf_file.h"
#include "host/loader/foreign_records.h"
#include "host/loader/pe_file.h"

namespace host {

std::unique_ptr<LibraryFile> read_library(Bytes bytes) {
  if (PeFile::begins(bytes)) return std::make_unique<PeFile>(bytes);
  return std::make_unique<ElfFile>(bytes);
}

}  // namespace host
