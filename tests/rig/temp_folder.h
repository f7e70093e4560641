/// A folder of a test's own, gone when the test ends.
#pragma once

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <span>
#include <string>
#include <string_view>

class TempFolder {
 public:
  TempFolder() {
    std::string pattern = std::filesystem::temp_directory_path() / ("cockpit-" + std::string(6, 'X'));
    path_ = mkdtemp(pattern.data());
  }
  ~TempFolder() {
    std::error_code error;
    std::filesystem::remove_all(path_, error);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  const std::filesystem::path& path() const { return path_; }
  std::string operator/(const std::string& name) const { return (path_ / name).string(); }

  /// Writes a file, and the folders it lies in. Returns its path.
  std::string write(const std::string& name, std::string_view contents) const {
    const std::filesystem::path file = path_ / name;
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << contents;
    return file.native();
  }

 private:
  std::filesystem::path path_;
};
