/// A WAV file that grows: 44.1 kHz, 16 bit, stereo.
#pragma once

#include <cstdint>
#include <fstream>
#include <span>
#include <string>

namespace host {

/// All errors are std::runtime_error and name the file.
class WavFile {
 public:
  /// No file: what is written is dropped.
  WavFile() = default;
  /// Makes or replaces the file.
  explicit WavFile(const std::string& path);
  /// Finishes the file if that has not been done; an error is not reported any more.
  ~WavFile();
  WavFile(const WavFile&) = delete;
  WavFile& operator=(const WavFile&) = delete;

  /// Appends interleaved samples, left first.
  void write(std::span<const std::int16_t> samples);

  /// Puts the sizes into the header and closes the file. A second time does nothing.
  void finish();

 private:
  void write_header();
  void check() const;

  std::string path_;
  std::ofstream out_;
  std::uint64_t data_bytes_ = 0;
};

}  // namespace host
