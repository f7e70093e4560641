/// The sky: its colours, the sun and the stars.
#pragma once

#include "host/outside/camera.h"
#include "host/outside/daylight.h"
#include "host/outside/point_of_light.h"

namespace host::outside {

/// Fills all that lies above the horizon.
void paint_sky(Picture picture, const Camera& camera, const Daylight& light);

/// The sky's colour in a direction of length 1.
Rgb sky_colour(const Vector& direction, const Daylight& light);

}  // namespace host::outside
