#include "host/journal/session_files.h"

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <stdexcept>
#include <string>
#include <vector>

namespace host {
namespace {

namespace fs = std::filesystem;

constexpr const char* extension = ".journal";

struct Session {
  fs::path file;
  fs::file_time_type flown;
};

// The one that was flown last comes first.
std::vector<Session> sessions_in(const fs::path& folder) {
  std::vector<Session> sessions;
  std::error_code error;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder, error))
    if (entry.path().extension() == extension && entry.is_regular_file(error))
      sessions.push_back({entry.path(), entry.last_write_time(error)});
  std::ranges::sort(sessions, std::greater{}, &Session::flown);
  return sessions;
}

std::string date_and_time() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  char text[32];
  std::strftime(text, sizeof text, "%Y-%m-%d-%H%M%S", &local);
  return text;
}

}  // namespace

fs::path session_folder() {
  const char* state = std::getenv("XDG_STATE_HOME");
  if (state && fs::path(state).is_absolute()) return fs::path(state) / "tarnvale";
  const char* home = std::getenv("HOME");
  if (home && *home) return fs::path(home) / ".local/state/tarnvale";
  throw std::runtime_error("neither XDG_STATE_HOME nor HOME is set: there is no folder for journals");
}

fs::path new_session(const fs::path& folder) {
  std::error_code error;
  fs::create_directories(folder, error);
  if (!fs::is_directory(folder))
    throw std::runtime_error(folder.string() + ": cannot make this folder");
  const std::vector<Session> sessions = sessions_in(folder);
  for (std::size_t i = kept_sessions - 1; i < sessions.size(); ++i) fs::remove(sessions[i].file, error);
  const fs::path name = folder / date_and_time();
  fs::path file = name.string() + extension;
  for (int next = 2; fs::exists(file); ++next)
    file = name.string() + "-" + std::to_string(next) + extension;
  return file;
}

fs::path last_session(const fs::path& folder) {
  const std::vector<Session> sessions = sessions_in(folder);
  if (sessions.empty()) throw std::runtime_error(folder.string() + ": there is no session to take up");
  return sessions.front().file;
}

}  // namespace host
