#include "host/sound/wav_facts.h"

#include <sndfile.h>
#include <strings.h>

#include <utility>

#include "host/files/read_file.h"

namespace host {

namespace fs = std::filesystem;

namespace {

std::uint16_t bits_of(int format) {
  switch (format & SF_FORMAT_SUBMASK) {
    case SF_FORMAT_PCM_U8: return 8;
    case SF_FORMAT_PCM_16: return 16;
    case SF_FORMAT_PCM_24: return 24;
    case SF_FORMAT_PCM_32:
    case SF_FORMAT_FLOAT: return 32;
    default: return 0;
  }
}

bool is_played(const SF_INFO& info) {
  const int type = info.format & SF_FORMAT_TYPEMASK, samples = info.format & SF_FORMAT_SUBMASK;
  return (type == SF_FORMAT_WAV || type == SF_FORMAT_WAVEX) &&
         (samples == SF_FORMAT_PCM_U8 || samples == SF_FORMAT_PCM_16) && info.channels <= 2;
}

}  // namespace

WavFacts read_wav_facts(const std::filesystem::path& file) {
  if (std::string fault = fault_of_file(file, largest_sound); !fault.empty())
    return {0, 0, 0, 0, std::move(fault)};
  SF_INFO info{};
  SNDFILE* sound = sf_open(file.c_str(), SFM_READ, &info);
  if (!sound) return {0, 0, 0, 0, "is no sound"};
  sf_close(sound);
  return {static_cast<std::uint32_t>(info.samplerate), static_cast<std::uint16_t>(info.channels),
          bits_of(info.format), static_cast<double>(info.frames) / info.samplerate,
          is_played(info) ? "" : "is not heard: only PCM of 8 or 16 bits in one or two channels is"};
}

std::map<fs::path, WavFacts> sounds_in(const fs::path& folder) {
  std::map<fs::path, WavFacts> sounds;
  std::error_code error;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder, error))
    if (!entry.is_directory(error) && ::strcasecmp(entry.path().extension().c_str(), ".wav") == 0)
      sounds[entry.path()] = read_wav_facts(entry.path());
  return sounds;
}

std::vector<std::string> sound_faults(const std::map<fs::path, WavFacts>& sounds) {
  std::vector<std::string> faults;
  for (const auto& [file, facts] : sounds)
    if (!facts.fault.empty()) faults.push_back(file.string() + ": " + facts.fault);
  return faults;
}

}  // namespace host
