/// Sets what an X11 desktop tells its programs.
#pragma once

#include <string>

/// Puts the resources of the display's resource manager; false if there is no such display.
bool set_x11_resources(const std::string& display, const std::string& resources);
