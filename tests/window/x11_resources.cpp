#include "tests/window/x11_resources.h"

#include <X11/Xatom.h>
#include <X11/Xlib.h>

bool set_x11_resources(const std::string& display, const std::string& resources) {
  Display* connection = XOpenDisplay(display.c_str());
  if (!connection) return false;
  XChangeProperty(connection, DefaultRootWindow(connection), XA_RESOURCE_MANAGER, XA_STRING, 8,
                  PropModeReplace, reinterpret_cast<const unsigned char*>(resources.data()),
                  static_cast<int>(resources.size()));
  XCloseDisplay(connection);
  return true;
}
