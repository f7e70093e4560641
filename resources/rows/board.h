/// The plate of a gauge while it is drawn: its canvas, and where its parts stand.
#pragma once

#include <string_view>

#include "interface/panel_interface.h"
#include "resources/kit/canvas.h"
#include "resources/kit/dial.h"
#include "resources/rows/spot.h"

namespace artwork {

struct Board {
  const Canvas& canvas;
  const GaugeHeader& gauge;
  Lighting lighting = Lighting::off;
};

/// The size of the window behind which a strip moves.
Size window_of(const Element& strip);

/// The room that a part's picture, a text or a click area takes on its plate. A name that the gauge has
/// not ends the program.
Box part_box(const GaugeHeader& gauge, std::string_view name);

/// Where a part turns; for what does not turn, the middle of its room.
Point hub_of(const GaugeHeader& gauge, std::string_view name);

/// Where a spot lies on the plate.
Point where(const Board& board, const Spot& spot);

}  // namespace artwork
