/// The file that a journal is written to.
#pragma once

#include <filesystem>
#include <string_view>

namespace host {

/// Everything appended is with the system at once: it is there after the program has been killed. All
/// errors are std::runtime_error and name the file.
class JournalFile {
 public:
  /// Makes the file, or empties it.
  static JournalFile create(const std::filesystem::path& file);

  /// Opens a file to continue it. Refused while another program has it open like this.
  static JournalFile reopen(const std::filesystem::path& file);

  JournalFile(JournalFile&& other) noexcept;
  JournalFile& operator=(JournalFile&& other) noexcept;
  ~JournalFile();

  const std::filesystem::path& path() const { return path_; }

  void append(std::string_view text);

  /// Drops everything from `size` bytes on.
  void cut(std::uintmax_t size);

 private:
  JournalFile(const std::filesystem::path& file, int flags);
  [[noreturn]] void fail(const char* what) const;

  std::filesystem::path path_;
  int descriptor_ = -1;
};

}  // namespace host
