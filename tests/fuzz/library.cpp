#include "host/loader/elf_file.h"
#include "host/loader/foreign_records.h"
#include "host/loader/pe_file.h"
#include "host/loader/record_checks.h"
#include "tests/fuzz/harness.h"

namespace {

/// Libraries of this system are loaded only after this; of others everything is looked at.
void look_over(const host::LibraryFile& library) {
  library.fault();
  if (const auto bitmaps = library.bitmaps()) const host::ResourceSection section(*bitmaps);
  const auto records = library.foreign_records();
  if (records == nullptr || records->linkage() == nullptr || records->imports() == nullptr) return;
  std::vector<host::Finding> findings;
  host::check_records(*records->linkage(), *records->imports(),
                      host::Inspector(records->memory(), findings, "library"));
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  try {
    look_over(*host::read_library(fuzz::bytes_of(data, size)));
  } catch (const host::LibraryError&) {
  } catch (const host::ResourceError&) {
  }
  return 0;
}
