#include "host/app/installation.h"

#include <unistd.h>
#include <windows.h>

#include <stdexcept>

namespace host {

namespace fs = std::filesystem;

fs::path program_folder() {
  std::error_code error;
  const fs::path program = fs::read_symlink("/proc/self/exe", error);
  return error ? fs::current_path() : program.parent_path();
}

CockpitOptions located(CockpitOptions options) {
  const auto beside = [](const fs::path& given, const char* name) {
    return given.empty() ? program_folder() / name : fs::absolute(given);
  };
  options.module = beside(options.module, "Tarnvale.GAU");
  options.panel = beside(options.panel, "panel.cfg");
  return options;
}

fs::path find_flow(const std::string& typed) {
  if (fs::is_regular_file(typed)) return typed;
  const fs::path shipped = program_folder() / "flows" / typed;
  for (const fs::path& candidate : {shipped, fs::path(shipped.string() + ".lua")})
    if (fs::is_regular_file(candidate)) return candidate;
  throw std::runtime_error(typed + ": there is no such flow");
}

void use_display(const std::string& name) {
  if (name.empty()) return;
  setenv("DISPLAY", name.c_str(), 1);
  unsetenv("WAYLAND_DISPLAY");
}

void prepare_folder(const fs::path& folder) {
  std::error_code error;
  fs::create_directories(folder, error);
  if (!fs::is_directory(folder) || access(folder.c_str(), W_OK) != 0)
    throw std::runtime_error(folder.string() + ": cannot write to this folder");
}

void prepare_platform(const CockpitOptions& options, PlatformAudio audio) {
  static int main_window;  // headless or not, the module wants to find some window
  platform_register_window(PLATFORM_MAIN_WINDOW, &main_window);
  platform_choose_audio(audio);
  SetCurrentDirectoryA(options.module.parent_path().c_str());
}

}  // namespace host
