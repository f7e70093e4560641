/// How much of the main window the view out of the window gets.
#pragma once

#include <optional>
#include <span>

#include "host/panel/layout.h"

namespace host {

/// The height that a view takes above the panels, in pixels; 0 where they need the whole area.
///
/// Instruments that cannot be read are worse than no view: the panels keep seven tenths of their own
/// size, or the zoom that was chosen, and the view gets at most what it needs beside that.
int height_above(std::span<const PanelSize> panels, const LayoutArea& area, std::optional<double> zoom,
                 double scale);

}  // namespace host
