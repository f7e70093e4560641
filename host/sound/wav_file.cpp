#include "host/sound/wav_file.h"

#include <cerrno>
#include <cstring>
#include <stdexcept>

#include "platform/platform_host.h"

namespace host {
namespace {

std::string reason(SNDFILE* file) {
  const int error = errno;
  return sf_error(file) == SF_ERR_SYSTEM ? std::strerror(error) : sf_strerror(file);
}

}  // namespace

WavFile::WavFile(const std::string& path) : path_(path) {
  SF_INFO info{};
  info.samplerate = PLATFORM_AUDIO_RATE;
  info.channels = PLATFORM_AUDIO_CHANNELS;
  info.format = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
  file_.reset(sf_open(path.c_str(), SFM_WRITE, &info));
  if (!file_) fail();
  sf_command(file_.get(), SFC_SET_UPDATE_HEADER_AUTO, nullptr, SF_TRUE);
}

void WavFile::write(std::span<const std::int16_t> samples) {
  if (!file_) return;
  const auto count = static_cast<sf_count_t>(samples.size());
  if (sf_write_short(file_.get(), samples.data(), count) != count) fail();
}

void WavFile::finish() {
  if (file_ && sf_close(file_.release()) != 0) fail();
}

void WavFile::fail() const {
  throw std::runtime_error("cannot write sound file '" + path_ + "': " + reason(file_.get()));
}

}  // namespace host
