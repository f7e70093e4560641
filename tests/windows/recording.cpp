#include "tests/windows/recording.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <fstream>
#include <iterator>
#include <numeric>
#include <string_view>

namespace {

template <typename Number>
Number number_at(std::string_view bytes, std::size_t at) {
  Number number{};
  if (at + sizeof number <= bytes.size()) std::memcpy(&number, bytes.data() + at, sizeof number);
  return number;
}

/// What follows a chunk's name and size. One that is still being written says nothing of its size.
std::string_view chunk(std::string_view file, std::string_view name) {
  const std::size_t at = file.find(name);
  if (at == file.npos) return {};
  const auto size = number_at<std::uint32_t>(file, at + 4);
  return file.substr(at + 8, size == 0 ? file.npos : size);
}

double sample_at(std::string_view data, std::size_t at, int bits) {
  if (bits == 32) return number_at<float>(data, at);
  return number_at<std::int16_t>(data, at) / 32768.0;
}

double energy(const std::vector<double>& samples) {
  return std::inner_product(samples.begin(), samples.end(), samples.begin(), 0.0);
}

}  // namespace

Recording read_recording(const std::string& file) {
  std::ifstream in(file, std::ios::binary);
  const std::string bytes(std::istreambuf_iterator<char>(in), {});
  const std::string_view format = chunk(bytes, "fmt "), data = chunk(bytes, "data");
  const auto channels = number_at<std::uint16_t>(format, 2),
             bits = number_at<std::uint16_t>(format, 14);
  Recording recording{static_cast<double>(number_at<std::uint32_t>(format, 4)), {}};
  const std::size_t sample = bits / 8, frame = sample * channels;
  for (std::size_t at = 0; frame > 0 && at + frame <= data.size(); at += frame) {
    double sum = 0;
    for (std::size_t i = 0; i < channels; ++i) sum += sample_at(data, at + i * sample, bits);
    recording.samples.push_back(sum / channels);
  }
  return recording;
}

Recording without_silence(const Recording& recording) {
  const auto loud = [](double sample) { return std::abs(sample) > 1e-4; };
  const auto& all = recording.samples;
  const auto begin = std::find_if(all.begin(), all.end(), loud);
  const auto end = std::find_if(all.rbegin(), std::make_reverse_iterator(begin), loud).base();
  return {recording.rate, {begin, end}};
}

Recording resampled(const Recording& recording, double rate) {
  Recording result{rate, {}};
  const double step = recording.rate / rate;
  for (double at = 0; at + 1 < static_cast<double>(recording.samples.size()); at += step) {
    const auto before = static_cast<std::size_t>(at);
    const double part = at - std::floor(at);
    result.samples.push_back(recording.samples[before] * (1 - part) +
                             recording.samples[before + 1] * part);
  }
  return result;
}

double likeness(const Recording& one, const Recording& other) {
  const std::size_t length = other.samples.size();
  std::vector<double> whole(length);
  whole.insert(whole.end(), one.samples.begin(), one.samples.end());
  whole.resize(whole.size() + length);
  const double energies = std::sqrt(energy(one.samples) * energy(other.samples));
  double best = 0;
  for (std::size_t shift = 0; energies > 0 && shift + length <= whole.size(); ++shift)
    best = std::max(best, std::inner_product(other.samples.begin(), other.samples.end(),
                                             whole.begin() + static_cast<std::ptrdiff_t>(shift), 0.0));
  return energies > 0 ? best / energies : 0;
}
