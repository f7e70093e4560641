/// A WAV file that grows: 44.1 kHz, 16 bit, stereo.
#pragma once

#include <sndfile.h>

#include <cstdint>
#include <memory>
#include <span>
#include <string>

namespace host {

/// All errors are std::runtime_error and name the file. The header is true after every write: a run
/// that is broken off leaves a file that plays.
class WavFile {
 public:
  /// No file: what is written is dropped.
  WavFile() = default;
  /// Makes or replaces the file.
  explicit WavFile(const std::string& path);

  /// Appends interleaved samples, left first.
  void write(std::span<const std::int16_t> samples);

  /// Closes the file; what is written afterwards is dropped. Destruction does the same, but silently.
  void finish();

 private:
  struct Close {
    void operator()(SNDFILE* file) const { sf_close(file); }
  };

  [[noreturn]] void fail() const;

  std::string path_;
  std::unique_ptr<SNDFILE, Close> file_;
};

}  // namespace host
