/// What an X11 desktop tells its programs, and what a person sees on it.
#pragma once

#include <string>

/// Puts the resources of the display's resource manager; false if there is no such display.
bool set_x11_resources(const std::string& display, const std::string& resources);

/// The colour of a pixel of the screen, 0xRRGGBB; black outside.
unsigned x11_pixel(const std::string& display, int x, int y);
