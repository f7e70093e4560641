#include "host/sound/wav_facts.h"

#include <sndfile.h>

namespace host {
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

}  // namespace

WavFacts read_wav_facts(const std::filesystem::path& file) {
  SF_INFO info{};
  SNDFILE* sound = sf_open(file.c_str(), SFM_READ, &info);
  if (!sound) return {};
  sf_close(sound);
  return {static_cast<std::uint32_t>(info.samplerate), static_cast<std::uint16_t>(info.channels),
          bits_of(info.format), static_cast<double>(info.frames) / info.samplerate};
}

}  // namespace host
