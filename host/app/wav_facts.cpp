#include "host/app/wav_facts.h"

#include <fstream>
#include <iterator>
#include <string>

namespace host {
namespace {

// A little-endian number; missing bytes count as 0.
std::uint32_t number_at(const std::string& bytes, std::size_t offset, std::size_t size) {
  std::uint32_t number = 0;
  for (std::size_t i = 0; i < size && offset + i < bytes.size(); ++i)
    number |= std::uint32_t(static_cast<unsigned char>(bytes[offset + i])) << 8 * i;
  return number;
}

void read_format(const std::string& bytes, std::size_t at, WavFacts& facts) {
  facts.channels = static_cast<std::uint16_t>(number_at(bytes, at + 2, 2));
  facts.rate = number_at(bytes, at + 4, 4);
  facts.bits = static_cast<std::uint16_t>(number_at(bytes, at + 14, 2));
}

}  // namespace

WavFacts read_wav_facts(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(stream), {}};
  WavFacts facts;
  for (std::size_t at = 12; at + 8 <= bytes.size();) {
    const std::string id = bytes.substr(at, 4);
    const std::uint32_t size = number_at(bytes, at + 4, 4);
    const double frame_bytes = facts.channels * (facts.bits / 8.0);
    if (id == "fmt ") read_format(bytes, at + 8, facts);
    if (id == "data" && frame_bytes > 0 && facts.rate > 0)
      facts.seconds = size / frame_bytes / facts.rate;
    at += 8 + std::size_t(size) + size % 2;
  }
  return facts;
}

}  // namespace host
