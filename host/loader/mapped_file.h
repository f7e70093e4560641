/// A file's bytes, mapped read-only.
#pragma once

#include <cstddef>
#include <filesystem>
#include <span>

namespace host {

class MappedFile {
 public:
  /// Throws std::system_error if the file cannot be opened or mapped. An empty file has no bytes.
  explicit MappedFile(const std::filesystem::path& file);
  ~MappedFile();
  MappedFile(MappedFile&& other) noexcept;
  MappedFile& operator=(MappedFile&& other) noexcept;

  std::span<const std::byte> bytes() const { return bytes_; }

 private:
  std::span<const std::byte> bytes_;
};

}  // namespace host
