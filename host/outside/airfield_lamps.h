/// The lights of the airfield and of the villages around it.
#pragma once

#include "host/outside/ground.h"
#include "host/outside/point_of_light.h"

namespace host::outside {

struct Lamp {
  Vector at_m;  ///< north, east, down
  Rgb colour;
  double power;               ///< 1: a runway edge light
  Vector toward{};            ///< the direction that it shines in; none: all round
  double flash_phase = -1.0;  ///< 0 to 1 of half a second, for those that flash
};

/// Edge, threshold, end, middle line, touchdown zone and approach lights, taxiways and apron.
std::vector<Lamp> airfield_lamps();

/// Whether any of those that flash shines toward the eye.
bool sees_flashes(const Vector& eye_m);

/// Adds those that are seen from the eye, as bright as they look in the light of the hour.
void paint_lamps(Picture picture, const Camera& camera, const Air& air, const std::vector<Lamp>& lamps,
                 double time_s);
void paint_papi(Picture picture, const Camera& camera, const Air& air);
void paint_village_lamps(Picture picture, const Camera& camera, const Air& air, double elevation_m);

}  // namespace host::outside
