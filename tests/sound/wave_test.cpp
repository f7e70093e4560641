// WAV images as they come from a disk: odd ones are understood, damaged ones are never read beyond
// their end.
#include "sound/wave.h"

#include <gtest/gtest.h>

#include <cstring>
#include <memory>

#include "tests/sound/wav_bytes.h"

namespace {

using tarnvale::Bytes;
using tarnvale::parse_wave;

/// An image in memory of exactly its size, so that the sanitizer sees a step beyond it.
struct Image {
  explicit Image(std::string_view contents)
      : memory(new std::byte[contents.size()]), bytes(memory.get(), contents.size()) {
    std::memcpy(memory.get(), contents.data(), contents.size());
  }
  std::unique_ptr<std::byte[]> memory;
  Bytes bytes;
};

std::string text(Bytes bytes) { return {reinterpret_cast<const char*>(bytes.data()), bytes.size()}; }

const std::string format = mono_format();
const std::string fmt = chunk("fmt ", format);
const std::string samples_chunk = chunk("data", "abcd");

TEST(Wave, FormatAndSamplesAreFoundOrTheImageIsRefused) {
  const struct {
    const char* what;
    std::string image;
    bool found;
    std::string samples = "abcd";
  } cases[] = {
      {"ordinary", riff(fmt + samples_chunk), true},
      {"an odd chunk between", riff(fmt + chunk("fact", "odd") + samples_chunk), true},
      {"an odd number of samples", riff(fmt + chunk("data", "abc")), true, "abc"},
      {"samples before the format", riff(samples_chunk + fmt), true},
      {"the first of two", riff(fmt + samples_chunk + chunk("data", "efgh")), true},
      {"bytes after the end", riff(fmt + samples_chunk) + "tail", true},
      {"samples cut off", riff(fmt + lying_chunk("data", 4000, "abcd")), true},
      {"samples of a huge size", riff(fmt + lying_chunk("data", 0xFFFFFFFF, "abcd")), true},
      {"riff size beyond the file", lying_riff(0xFFFFFFFF, fmt + samples_chunk), true},
      {"riff ends before the samples", lying_riff(28, fmt + samples_chunk), false},
      {"riff ends in the samples", lying_riff(29, fmt + samples_chunk), true},
      {"format of 13 bytes", riff(chunk("fmt ", format.substr(0, 13)) + samples_chunk), false},
      {"format cut off", riff(samples_chunk + lying_chunk("fmt ", 16, "short")), false},
      {"huge chunk before", riff(lying_chunk("junk", 0xFFFFFFFF, "") + fmt + samples_chunk), false},
      {"no format", riff(samples_chunk), false},
      {"no samples", riff(fmt), false},
      {"only the first words", "RIFF" + number(4, 4), false},
      {"empty", "", false},
      {"another kind of RIFF", "RIFF" + number(40, 4) + "AVI " + fmt + samples_chunk, false},
      {"no RIFF", "RIFX" + number(40, 4) + "WAVE" + fmt + samples_chunk, false},
  };
  for (const auto& test : cases) {
    const Image image(test.image);
    Bytes found_format;
    Bytes found_samples;
    EXPECT_EQ(parse_wave(image.bytes, &found_format, &found_samples), test.found) << test.what;
    if (!test.found) continue;
    EXPECT_EQ(text(found_format).substr(0, 16), format) << test.what;
    EXPECT_EQ(text(found_samples), test.samples) << test.what;
  }
}

}  // namespace
