/// The hills around the airfield where they stand above the horizon.
#pragma once

#include "host/outside/surface_painter.h"

namespace host::outside {

void paint_skyline(SurfacePainter& painter, const Camera& camera, const Air& air);

}  // namespace host::outside
