/// Knows sounds again by their samples.
#pragma once

#include <cstddef>
#include <filesystem>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

namespace host {

/// The WAV files below a folder.
class SoundBook {
 public:
  /// Reads them all. A folder that is not there has none.
  explicit SoundBook(const std::filesystem::path& folder);

  /// The file's name without its ending and the aircraft's prefix: "v1" for `Tarv_v1.wav`; "?" for
  /// samples of none of them.
  std::string name_of(std::span<const std::byte> samples) const;

 private:
  struct Page {
    std::string name, bytes;
  };
  std::vector<Page> pages_;
  mutable std::unordered_map<std::string, std::string>
      known_;  ///< names of parts of files: a search is slow
};

}  // namespace host
