#include <dlfcn.h>
#include <windows.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "platform/export.h"
#include "platform/platform_host.h"

namespace {

struct MessageSink {
  PlatformMessageRoutine routine = nullptr;
  void* context = nullptr;
};

constinit MessageSink message_sink;

bool is_set(const char* variable) {
  const char* value = std::getenv(variable);
  return value != nullptr && *value != '\0';
}

/// Whether someone sits in front of a screen: a display, and not a video driver that draws nowhere.
bool has_display() {
  const char* driver = std::getenv("SDL_VIDEODRIVER");
  const std::string_view chosen = driver != nullptr ? driver : "";
  if (chosen == "dummy" || chosen == "offscreen") return false;
  return is_set("DISPLAY") || is_set("WAYLAND_DISPLAY");
}

/// Shows a message window. The window library is loaded only now: most runs never need it.
bool show_window(const char* text, const char* caption) {
  using ShowMessage = int (*)(std::uint32_t flags, const char* title, const char* text, void* owner);
  constexpr std::uint32_t warning_icon = 0x20;
  void* library = dlopen("libSDL2-2.0.so.0", RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr) return false;
  const auto show = reinterpret_cast<ShowMessage>(dlsym(library, "SDL_ShowSimpleMessageBox"));
  return show != nullptr && show(warning_icon, caption, text, nullptr) == 0;
}

}  // namespace

PLATFORM_EXPORT void platform_on_message(PlatformMessageRoutine routine, void* context) {
  message_sink = {routine, context};
}

int MessageBoxA(HWND, LPCSTR text, LPCSTR caption, UINT) {
  const char* shown_text = text != nullptr ? text : "";
  const char* shown_caption = caption != nullptr ? caption : "Error";
  if (message_sink.routine != nullptr) {
    message_sink.routine(shown_text, shown_caption, message_sink.context);
  } else if (!has_display() || !show_window(shown_text, shown_caption)) {
    std::fprintf(stderr, "%s: %s\n", shown_caption, shown_text);
  }
  return IDOK;
}
