#include "host/loader/resource_section.h"
#include "tests/fuzz/harness.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  try {
    const host::ResourceSection section(fuzz::bytes_of(data, size));
    for (const auto& [id, dib] : section.numbered())
      for (const auto use : {host::BitmapUse::background, host::BitmapUse::image})
        fuzz::must(host::decode(dib, use).pixels.size() == std::size_t(dib.width) * dib.height);
  } catch (const host::ResourceError&) {
  }
  return 0;
}
