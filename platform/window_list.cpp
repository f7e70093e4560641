#include "platform/window_list.h"

#include <algorithm>
#include <string>
#include <vector>

#include "platform/ascii.h"
#include "platform/export.h"
#include "platform/platform_host.h"

namespace platform {
namespace {

struct Window {
  std::string window_class;
  HWND handle;
};

std::vector<Window>& windows() {
  static std::vector<Window> registered;
  return registered;
}

}  // namespace

bool window_exists(HWND window) {
  const auto is_it = [=](const Window& known) { return known.handle == window; };
  return window != nullptr && std::ranges::any_of(windows(), is_it);
}

}  // namespace platform

PLATFORM_EXPORT void platform_register_window(const char* window_class, void* window) {
  auto& windows = platform::windows();
  std::erase_if(windows, [=](const auto& known) {
    return platform::same_name(known.window_class, window_class);
  });
  if (window != nullptr) windows.push_back({window_class, static_cast<HWND>(window)});
}

HWND FindWindowA(LPCSTR class_name, LPCSTR title) {
  if (class_name == nullptr || title != nullptr) return nullptr;
  for (const auto& window : platform::windows()) {
    if (platform::same_name(window.window_class, class_name)) return window.handle;
  }
  return nullptr;
}
