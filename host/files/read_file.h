/// Reads files of which anything may be wrong.
#pragma once

#include <cstdint>
#include <filesystem>
#include <stdexcept>
#include <string>

namespace host {

/// A file that cannot be used; what() is "FILE: what is wrong".
struct FileFault : std::runtime_error {
  using std::runtime_error::runtime_error;
};

inline constexpr std::uintmax_t mebibyte = 1u << 20;

/// The bytes of a regular file of at most `limit` bytes. Nothing else is read: a pipe would be waited
/// for, a device may have no end. Throws FileFault.
std::string read_file(const std::filesystem::path& file, std::uintmax_t limit);

/// Why that would throw, without the file's name; empty if it would not. Reads nothing.
std::string fault_of_file(const std::filesystem::path& file, std::uintmax_t limit);

}  // namespace host
