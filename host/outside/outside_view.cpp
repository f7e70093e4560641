#include "host/outside/outside_view.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "host/drawing/pixels.h"
#include "host/outside/airfield_lamps.h"
#include "host/outside/airfield_surfaces.h"
#include "host/outside/buildings.h"
#include "host/outside/sky.h"
#include "host/outside/skyline.h"
#include "host/simulation/world/terrain.h"

namespace host::outside {
namespace {

/// A surface where it lies in the world.
struct Laid {
  std::vector<Vector> corners;
  std::uint32_t colour;
};

std::vector<Laid> laid(const std::vector<Surface>& surfaces) {
  std::vector<Laid> all;
  for (const Surface& surface : surfaces) {
    Laid& one = all.emplace_back(Laid{{}, 0xFF000000u | surface.colour});
    for (const auto& corner : surface.corners)
      one.corners.push_back(simulation::on_runway_axes(corner.along_m, corner.right_m));
  }
  return all;
}

/// Whether the eye is at a place of this world; a flight that went wrong may be anywhere.
bool is_somewhere(const Sight& sight) {
  constexpr double farthest_m = 1e7;
  const auto& [x, y, z] = sight.eye_m;
  const double turns = sight.attitude.bank_rad + sight.attitude.pitch_rad + sight.attitude.heading_rad;
  return std::abs(x) < farthest_m && std::abs(y) < farthest_m && std::abs(z) < farthest_m &&
         std::isfinite(turns + sight.time_of_day_s + sight.look.right_deg + sight.look.up_deg);
}

}  // namespace

struct OutsideView::Scene {
  std::vector<Laid> ground = laid(airfield_ground()), runway = laid(runway_surfaces());
  std::vector<Lamp> lamps = airfield_lamps();
  Canvas cover;  ///< what lies on the land; empty between pictures
  std::optional<Coverage> coverage;

  void fit(int width, int height) {
    if (coverage && cover.width == width && cover.height == height) return;
    coverage.emplace(width, height);
    cover = Canvas(width, height);
    std::ranges::fill(cover.pixels, 0u);
  }
};

OutsideView::OutsideView() : scene_(std::make_unique<Scene>()) {}
OutsideView::~OutsideView() = default;

void OutsideView::draw(Canvas& canvas, const Rect& place, const Sight& sight) {
  if (is_empty(place)) return;
  if (!is_somewhere(sight)) return fill_pixels(surface_of(canvas), place, 0xFF000000u);
  const Picture picture{surface_of(canvas).at(place.x, place.y), canvas.width, place.width,
                        place.height};
  const Camera camera(sight, place.width, place.height);
  const Daylight light = daylight_at(sight.time_of_day_s);
  const Air air(sight, camera, light);
  // The land is level as far as one sees, as high as it is below the eye.
  const double elevation_m = simulation::ground_elevation_m(sight.eye_m);
  scene_->fit(place.width, place.height);
  Canvas& cover = scene_->cover;
  SurfacePainter on_picture(picture, camera, *scene_->coverage);
  SurfacePainter on_land({cover.pixels.data(), cover.width, cover.width, cover.height}, camera,
                         *scene_->coverage);

  paint_sky(picture, camera, light);
  paint_skyline(on_picture, camera, air);
  for (const auto* surfaces : {&scene_->ground, &scene_->runway})
    for (const Laid& surface : *surfaces) on_land.paint(surface.corners, surface.colour);
  Ground(camera, air, elevation_m).paint(picture.pixels, picture.stride, cover.pixels.data());
  paint_village_lamps(picture, camera, air, elevation_m);
  paint_lamps(picture, camera, air, scene_->lamps, sight.time_of_day_s);
  paint_papi(picture, camera, air);
  paint_buildings(on_picture, camera, air);
}

}  // namespace host::outside
