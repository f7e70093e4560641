#include "sound/wave.h"

#include "tests/fuzz/harness.h"

namespace {

bool inside(tarnvale::Bytes part, tarnvale::Bytes image) {
  return part.empty() ||
         (part.data() >= image.data() && part.data() + part.size() <= image.data() + image.size());
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const tarnvale::Bytes image = fuzz::bytes_of(data, size);
  tarnvale::Bytes format, samples, alone;
  const bool both = tarnvale::parse_wave(image, &format, &samples);
  const bool one = tarnvale::parse_wave(image, nullptr, &alone);
  fuzz::must(inside(format, image) && inside(samples, image) && inside(alone, image));
  fuzz::must(!both || (one && format.size() >= 14));
  return 0;
}
