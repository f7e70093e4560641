#include "host/loader/dynamic_checks.h"
#include "host/loader/elf_file.h"
#include "interface/panel_interface.h"
#include "tests/fuzz/harness.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const host::Bytes bytes = fuzz::bytes_of(data, size);
  try {
    const host::ElfFile file(bytes);
    file.section(PANEL_RESOURCE_SECTION);
    host::fault_of_dynamic_tables(bytes);
  } catch (const host::LibraryError&) {
  }
  return 0;
}
