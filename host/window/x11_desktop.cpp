#include "host/window/x11_desktop.h"

#include <X11/Xlib.h>
#include <X11/Xproto.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <utility>

#include "host/panel/text.h"

namespace host {
namespace {

XErrorHandler next_handler = nullptr;

// A window that another program has destroyed does not come back: the flight ends as on a signal.
void leave_once() {
  static bool told = false;
  if (std::exchange(told, true)) return;
  std::fprintf(stderr, "tarnvale: its window was destroyed by another program\n");
  kill(getpid(), SIGTERM);
}

int take_error(Display* display, XErrorEvent* error) {
  const bool window_gone = error->error_code == BadWindow || error->error_code == BadDrawable;
  if (window_gone && error->request_code == X_SendEvent) return 0;
  if (window_gone) return leave_once(), 0;
  return next_handler ? next_handler(display, error) : 0;
}

// From here on nothing can be drawn, and Xlib does not let a program continue. The journal is on the
// disk.
int end_without_display(Display*) {
  std::fprintf(stderr, "tarnvale: the display is gone\n");
  _exit(1);
}

std::unique_ptr<Display, int (*)(Display*)> open_display() {
  return {XOpenDisplay(nullptr), XCloseDisplay};
}

}  // namespace

// The one client that is asked before a window of the root moves.
bool x11_has_window_manager() {
  const auto display = open_display();
  XWindowAttributes root{};
  return !display || !XGetWindowAttributes(display.get(), DefaultRootWindow(display.get()), &root) ||
         (root.all_event_masks & SubstructureRedirectMask) != 0;
}

void x11_forgive_late_events() {
  const XErrorHandler before = XSetErrorHandler(take_error);
  if (before != take_error) next_handler = before;
  XSetIOErrorHandler(end_without_display);
}

std::optional<double> scale_in_resources(std::string_view resources) {
  for (std::string_view line : split(resources, '\n')) {
    const std::size_t colon = line.find(':');
    if (colon == std::string_view::npos || trimmed(line.substr(0, colon)) != "Xft.dpi") continue;
    const double dpi = std::strtod(std::string(trimmed(line.substr(colon + 1))).c_str(), nullptr);
    if (dpi >= 48 && dpi <= 768) return dpi / 96;
  }
  return std::nullopt;
}

double x11_scale() {
  const auto display = open_display();
  if (!display) return 1.0;
  const char* resources = XResourceManagerString(display.get());
  return resources ? scale_in_resources(resources).value_or(1.0) : 1.0;
}

}  // namespace host
