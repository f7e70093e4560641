/// What a WAV file says about itself.
#pragma once

#include <cstdint>
#include <filesystem>

namespace host {

struct WavFacts {
  std::uint32_t rate = 0;  ///< samples a second
  std::uint16_t channels = 0;
  std::uint16_t bits = 0;
  double seconds = 0;
};

/// Reads the format and the length; zeros for a file that is no sound.
WavFacts read_wav_facts(const std::filesystem::path& file);

}  // namespace host
