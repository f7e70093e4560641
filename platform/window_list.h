/// The windows that the host made known.
#pragma once

#include <windows.h>

namespace platform {

/// Whether a window is registered.
bool window_exists(HWND window);

}  // namespace platform
