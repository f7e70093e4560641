#include "platform/paths.h"

#include <windows.h>

#include <algorithm>
#include <cstring>
#include <filesystem>

#include "platform/ascii.h"

namespace platform {
namespace {

namespace fs = std::filesystem;

/// Empty until set: the process's own directory, even if that changes.
std::string& current_directory() {
  static std::string directory;
  return directory;
}

fs::path base_directory() {
  std::error_code error;
  return current_directory().empty() ? fs::current_path(error) : fs::path(current_directory());
}

/// The entry of `directory` that has this name but for letter case. Of several, always the same one.
std::optional<fs::path> find_entry(const fs::path& directory, const std::string& name) {
  std::error_code error;
  const fs::path exact = directory / name;
  if (fs::exists(exact, error)) return exact;
  std::optional<fs::path> found;
  for (fs::directory_iterator entry(directory, error), end; !error && entry != end;
       entry.increment(error)) {
    const fs::path& candidate = entry->path();
    if (!same_name(candidate.filename().native(), name)) continue;
    if (!found || candidate < *found) found = candidate;
  }
  return found;
}

}  // namespace

std::optional<std::string> find_path(std::string_view path) {
  if (path.empty()) return std::nullopt;
  std::string slashed(path);
  std::ranges::replace(slashed, '\\', '/');
  const fs::path wanted(slashed);
  fs::path found = wanted.has_root_directory() ? fs::path("/") : base_directory();
  for (const fs::path& part : wanted.relative_path()) {
    if (part.empty()) continue;  // a slash at the end
    const auto entry = find_entry(found, part.native());
    if (!entry) return std::nullopt;
    found = *entry;
  }
  return found.native();
}

}  // namespace platform

BOOL SetCurrentDirectoryA(LPCSTR path) {
  if (path == nullptr) return FALSE;
  const auto found = platform::find_path(path);
  std::error_code error;
  if (!found || !std::filesystem::is_directory(*found, error)) return FALSE;
  platform::current_directory() = std::filesystem::path(*found).lexically_normal().native();
  return TRUE;
}

DWORD GetCurrentDirectoryA(DWORD size, LPSTR path) {
  const std::string directory = platform::base_directory().native();
  const auto length = static_cast<DWORD>(directory.size());
  if (path == nullptr || size <= length) return length + 1;
  std::memcpy(path, directory.c_str(), length + 1);
  return length;
}
