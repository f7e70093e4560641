/// Files that the program writes.
#pragma once

#include <filesystem>
#include <string_view>
#include <vector>

namespace host {

/// Writes a file as a whole: it stands there complete or as it was before. The bytes are written beside
/// it and then put in its place; a device or a pipe gets them straight. Throws std::runtime_error with
/// the file's name.
void write_whole_file(const std::filesystem::path& file, std::string_view bytes);

/// A file that a command reads or writes, and the words of the command line that named it.
struct NamedFile {
  const char* what;
  std::filesystem::path file;  ///< empty: not asked for
};

/// Throws std::runtime_error if a file would be written over another that the command reads or writes,
/// and for a pipe that nobody reads: opening it would wait for ever.
void check_outputs(const std::vector<NamedFile>& outputs, const std::vector<NamedFile>& inputs);

}  // namespace host
