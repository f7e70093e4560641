/// A file's bytes, mapped read-only.
#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <system_error>
#include <vector>

namespace host {

class MappedFile {
 public:
  /// Throws std::system_error if the file cannot be opened or mapped, is no regular one or larger than
  /// `largest`. An empty file has no bytes.
  explicit MappedFile(const std::filesystem::path& file);
  ~MappedFile();
  MappedFile(MappedFile&& other) noexcept;
  MappedFile& operator=(MappedFile&& other) noexcept;

  std::span<const std::byte> bytes() const { return bytes_; }

  /// Reads a part of bytes() from the file, which may have changed since it was mapped; nothing where
  /// the file does not have it any more.
  std::optional<std::vector<std::byte>> copy(std::span<const std::byte> part) const;

  /// Gives back the memory of what has been looked at; a further look reads it again.
  void forget() const;

  /// What a failure to map a file means, without the file's name.
  static std::string fault(const std::error_code& error);

  static constexpr std::size_t largest = std::size_t{512} << 20;  ///< bytes

 private:
  explicit MappedFile(int descriptor)
      : descriptor_(descriptor) {}  // its destructor closes what follows fails on

  std::span<const std::byte> bytes_;
  int descriptor_ = -1;
};

}  // namespace host
