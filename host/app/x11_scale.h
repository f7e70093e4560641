/// The scale that an X11 desktop asks for.
#pragma once

#include <optional>
#include <string_view>

namespace host {

/// From the Xft.dpi resource of the display's resource manager: 96 is 1. Without it, 1.
double x11_scale();

/// The same from the text of the resources; empty if they do not say or say nonsense.
std::optional<double> scale_in_resources(std::string_view resources);

}  // namespace host
