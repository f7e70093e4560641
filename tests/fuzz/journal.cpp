#include "host/journal/journal_line.h"
#include "tests/fuzz/harness.h"

// Without the checks, which would let nothing of a fuzzer's through.
static void take(std::string_view line) {
  host::read_first_line(line);
  host::read_file_line(line, "module");
  const auto entry = host::read_line(line);
  if (!entry) return;
  const std::string written = host::line_of(*entry);
  const auto again = host::read_line(written);
  fuzz::must(again && host::line_of(*again) == written);
}

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::each_line(fuzz::text_of(data, size), take);
  return 0;
}
