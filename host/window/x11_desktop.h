/// What an X11 desktop needs beyond the window library.
#pragma once

#include <optional>
#include <string_view>

namespace host {

/// The scale that the desktop asks for, from the Xft.dpi resource of the display's resource manager:
/// 96 is 1. Without it, 1.
double x11_scale();

/// The same from the text of the resources; empty if they do not say or say nonsense.
std::optional<double> scale_in_resources(std::string_view resources);

/// Whether a window manager places the windows of this display.
bool x11_has_window_manager();

/// Makes an event for a window that has just gone no error. The window library wakes itself by events
/// on a second connection, which may come too late; by default that would end the program. To be called
/// before that library starts: it falls back on the error handler that it finds. A window that another
/// program destroys, and a display that goes away, end the program with a line of its own.
void x11_forgive_late_events();

}  // namespace host
