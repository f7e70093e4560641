#include "tests/window/x11_resources.h"

#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>

bool set_x11_resources(const std::string& display, const std::string& resources) {
  Display* connection = XOpenDisplay(display.c_str());
  if (!connection) return false;
  XChangeProperty(connection, DefaultRootWindow(connection), XA_RESOURCE_MANAGER, XA_STRING, 8,
                  PropModeReplace, reinterpret_cast<const unsigned char*>(resources.data()),
                  static_cast<int>(resources.size()));
  XCloseDisplay(connection);
  return true;
}

unsigned x11_pixel(const std::string& display, int x, int y) {
  Display* connection = XOpenDisplay(display.c_str());
  if (!connection) return 0;
  const int screen = DefaultScreen(connection);
  unsigned color = 0;
  if (x >= 0 && y >= 0 && x < DisplayWidth(connection, screen) &&
      y < DisplayHeight(connection, screen)) {
    XImage* image =
        XGetImage(connection, DefaultRootWindow(connection), x, y, 1, 1, AllPlanes, ZPixmap);
    if (image) {
      color = static_cast<unsigned>(XGetPixel(image, 0, 0) & 0xFFFFFF);
      XDestroyImage(image);
    }
  }
  XCloseDisplay(connection);
  return color;
}
