/// What a WAV file says about itself.
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace host {

struct WavFacts {
  std::uint32_t rate = 0;  ///< samples a second
  std::uint16_t channels = 0;
  std::uint16_t bits = 0;
  double seconds = 0;
  std::string fault;  ///< why it is no sound, or one that is not played; empty: it is heard
};

inline constexpr std::uintmax_t largest_sound = 64u << 20;  ///< bytes of one file

/// Reads the format and the length; zeros for a file that is no sound.
WavFacts read_wav_facts(const std::filesystem::path& file);

/// The facts of every WAV file below a folder, by their paths; of a folder that is not there none.
std::map<std::filesystem::path, WavFacts> sounds_in(const std::filesystem::path& folder);

/// A line with path and reason for each one that is no sound or will not be heard.
std::vector<std::string> sound_faults(const std::map<std::filesystem::path, WavFacts>& sounds);

}  // namespace host
