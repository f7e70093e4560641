#include "host/window/desk.h"
#include "tests/fuzz/harness.h"

// What is kept is read again as it was.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string notes, none;
  const host::Desk desk = host::parse_desk(fuzz::text_of(data, size), "windows.cfg", notes);
  const std::string kept = host::text_of(desk);
  fuzz::must(host::text_of(host::parse_desk(kept, "windows.cfg", none)) == kept);
  fuzz::must(none.empty() && notes.size() < 1000);
  return 0;
}
