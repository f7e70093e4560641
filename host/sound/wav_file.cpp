#include "host/sound/wav_file.h"

#include <algorithm>
#include <bit>
#include <cerrno>
#include <cstring>
#include <stdexcept>
#include <string_view>
#include <type_traits>

#include "platform/platform_host.h"

namespace host {
namespace {

static_assert(std::endian::native == std::endian::little, "samples are written as they lie");

constexpr std::uint32_t header_size = 44;
constexpr std::uint16_t pcm = 1;
constexpr std::uint16_t sample_size = sizeof(std::int16_t);
constexpr std::uint16_t frame_size = sample_size * PLATFORM_AUDIO_CHANNELS;

void put(std::ofstream& out, std::string_view id) { out << id; }

template <typename Number>
requires std::is_unsigned_v<Number>
void put(std::ofstream& out, Number number) {
  out.write(reinterpret_cast<const char*>(&number), sizeof number);
}

}  // namespace

WavFile::WavFile(const std::string& path) : path_(path), out_(path, std::ios::binary) {
  check();
  write_header();
  check();
}

WavFile::~WavFile() {
  try {
    finish();
  } catch (const std::runtime_error&) {
    // Whoever wants to know calls finish.
  }
}

void WavFile::write(std::span<const std::int16_t> samples) {
  if (!out_.is_open()) return;
  out_.write(reinterpret_cast<const char*>(samples.data()),
             static_cast<std::streamsize>(samples.size_bytes()));
  data_bytes_ += samples.size_bytes();
  check();
}

void WavFile::finish() {
  if (!out_.is_open()) return;
  out_.seekp(0);
  write_header();
  out_.close();
  check();
}

void WavFile::write_header() {
  // Sizes have 32 bits; after six hours they stop, and players read on to the end of the file.
  constexpr std::uint64_t largest = 0xFFFFFFFFu - header_size;
  const auto data_size = static_cast<std::uint32_t>(std::min(data_bytes_, largest));
  put(out_, "RIFF");
  put(out_, data_size + header_size - 8);
  put(out_, "WAVE");
  put(out_, "fmt ");
  put(out_, std::uint32_t{16});
  put(out_, pcm);
  put(out_, std::uint16_t{PLATFORM_AUDIO_CHANNELS});
  put(out_, std::uint32_t{PLATFORM_AUDIO_RATE});
  put(out_, std::uint32_t{PLATFORM_AUDIO_RATE * frame_size});
  put(out_, frame_size);
  put(out_, std::uint16_t{sample_size * 8});
  put(out_, "data");
  put(out_, data_size);
}

void WavFile::check() const {
  if (out_) return;
  const int error = errno;
  throw std::runtime_error("cannot write sound file '" + path_ + "': " + std::strerror(error));
}

}  // namespace host
