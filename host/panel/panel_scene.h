/// Pictures of a cockpit for files: everything that is open, one window or one gauge.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "host/drawing/painter.h"
#include "host/panel/cockpit.h"
#include "host/panel/layout.h"

namespace host {

/// What stands around and between the windows, 0xFFRRGGBB.
inline constexpr std::uint32_t surround_color = 0xFF15171Au;

/// Throws std::runtime_error with the size for a picture of more pixels than a machine should be asked
/// for.
void check_picture_size(double width, double height);

/// Copies `from` to x,y of `to`, as much as fits.
void copy_picture(Canvas& to, const Canvas& from, int x, int y);

/// The open windows that are drawn, in the order in which they like to stand.
std::vector<std::size_t> open_windows(const Cockpit& cockpit);

/// The sizes of windows in panel pixels.
std::vector<PanelSize> window_sizes(const Cockpit& cockpit, const std::vector<std::size_t>& windows);

/// What a picture of the captain's view is called, and its size at zoom 1.
inline constexpr std::string_view view_name = "outside";
inline constexpr PanelSize view_size{1280, 360};

/// Draws the captain's view out of the window. `zoom` is for the picture's size.
Canvas picture_of_view(const AircraftModel& aircraft, double zoom);

/// Draws what the cockpit shows now: everything that is open where `what` is empty, the window with
/// that ident where it is a number, the view out of the window where it is "outside", else the gauge of
/// that name. `zoom` is picture pixels per panel pixel. Throws std::runtime_error when there is no such
/// window or gauge, or the picture would be too large.
Canvas picture_of(const Cockpit& cockpit, const std::string& what, double zoom);

/// Throws as picture_of() does for a window or a gauge that is not there, and draws nothing.
void check_picture(const Cockpit& cockpit, const std::string& what);

}  // namespace host
