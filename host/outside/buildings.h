/// What stands up on the airfield.
#pragma once

#include "host/outside/surface_painter.h"

namespace host::outside {

void paint_buildings(SurfacePainter& painter, const Camera& camera, const Air& air);

}  // namespace host::outside
