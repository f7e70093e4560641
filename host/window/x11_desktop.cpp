#include "host/window/x11_desktop.h"

#include <X11/Xlib.h>
#include <X11/Xproto.h>

#include <cstdlib>
#include <memory>
#include <string>

#include "host/panel/text.h"

namespace host {
namespace {

XErrorHandler next_handler = nullptr;

int forgive(Display* display, XErrorEvent* error) {
  if (error->error_code == BadWindow && error->request_code == X_SendEvent) return 0;
  return next_handler ? next_handler(display, error) : 0;
}

}  // namespace

void x11_forgive_late_events() {
  const XErrorHandler before = XSetErrorHandler(forgive);
  if (before != forgive) next_handler = before;
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
  const std::unique_ptr<Display, int (*)(Display*)> display(XOpenDisplay(nullptr), XCloseDisplay);
  if (!display) return 1.0;
  const char* resources = XResourceManagerString(display.get());
  return resources ? scale_in_resources(resources).value_or(1.0) : 1.0;
}

}  // namespace host
