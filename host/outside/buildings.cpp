#include "host/outside/buildings.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace host::outside {
namespace {

/// On the runway's axes, from the ground or from another one's roof up.
struct Block {
  double along_m, to_along_m, right_m, to_right_m, foot_m, roof_m;
  Rgb wall, roof;
};

constexpr Rgb glass{96, 116, 130}, plaster{196, 190, 178}, steel{150, 158, 164}, tar{104, 104, 102};
constexpr Rgb brick{150, 110, 88}, door{112, 124, 136};

constexpr std::array<Block, 14> blocks{{
    {-60, 250, 455, 495, 0, 5, plaster, tar},  // terminal
    {-60, 250, 452, 490, 5, 10, glass, tar},
    {-70, 260, 450, 495, 10, 11.5, plaster, tar},
    {284, 296, 462, 474, 0, 27, plaster, tar},  // tower
    {281, 299, 459, 477, 27, 31.5, glass, tar},
    {280, 300, 458, 478, 31.5, 33, plaster, tar},
    {330, 420, 455, 525, 0, 14, door, tar},  // hangars, all door below
    {328, 422, 454, 527, 14, 19, steel, {176, 178, 176}},
    {440, 530, 455, 525, 0, 14, door, tar},
    {438, 532, 454, 527, 14, 19, steel, {176, 178, 176}},
    {-150, -95, 455, 480, 0, 7, brick, {120, 88, 72}},  // fire station
    {-310, -230, 470, 500, 0, 8, brick, {120, 88, 72}},
    {560, 600, 460, 500, 0, 10, steel, tar},
    {640, 700, 440, 470, 0, 6, brick, tar},
}};

std::array<Vector, 4> face(const Block& block, std::array<std::array<double, 3>, 4> corners) {
  std::array<Vector, 4> places;
  for (std::size_t i = 0; i < 4; ++i) {
    const auto [along, right, up] = corners[i];
    places[i] = simulation::on_runway_axes(along != 0.0 ? block.to_along_m : block.along_m,
                                           right != 0.0 ? block.to_right_m : block.right_m);
    places[i].z -= up != 0.0 ? block.roof_m : block.foot_m;
  }
  return places;
}

// Corners by 0 and 1 on the three axes, so that the outer side's normal is the cross product of the
// first two edges.
constexpr std::array<std::array<std::array<double, 3>, 4>, 5> faces{{
    {{{0, 0, 0}, {0, 0, 1}, {0, 1, 1}, {0, 1, 0}}},
    {{{1, 1, 0}, {1, 1, 1}, {1, 0, 1}, {1, 0, 0}}},
    {{{1, 0, 0}, {1, 0, 1}, {0, 0, 1}, {0, 0, 0}}},
    {{{0, 1, 0}, {0, 1, 1}, {1, 1, 1}, {1, 1, 0}}},
    {{{0, 0, 1}, {1, 0, 1}, {1, 1, 1}, {0, 1, 1}}},
}};

void paint_block(const Block& block, SurfacePainter& painter, const Camera& camera, const Air& air) {
  for (std::size_t i = 0; i < faces.size(); ++i) {
    const auto corners = face(block, faces[i]);
    const bool roof = i == 4;
    Vector normal = cross(corners[1] - corners[0], corners[2] - corners[1]);
    normal = normal * (1.0 / length(normal));
    const Vector out = corners[0] - camera.eye_m();
    if (roof) normal = {0.0, 0.0, -1.0};
    if (dot(out, normal) >= 0.0) continue;
    const double sunny =
        std::max(0.0, dot(normal, air.daylight().sun)) * (air.daylight().sun_up_deg > 0.0);
    const Rgb colour = (roof ? block.roof : block.wall) * (0.62 + 0.42 * sunny);
    painter.paint(corners, packed(air.seen(colour, out)));
  }
}

double distance_m(const Block& block, const Vector& eye_m) {
  const auto eye = simulation::runway_axes(eye_m);
  return std::hypot(eye.along_m - 0.5 * (block.along_m + block.to_along_m),
                    eye.right_m - 0.5 * (block.right_m + block.to_right_m));
}

}  // namespace

void paint_buildings(SurfacePainter& painter, const Camera& camera, const Air& air) {
  std::array<const Block*, blocks.size()> order;
  std::ranges::transform(blocks, order.begin(), [](const Block& block) { return &block; });
  // The farther ones first; of those above one another the lower ones, unless the eye is below them.
  std::ranges::stable_sort(order, [&](const Block* a, const Block* b) {
    return distance_m(*a, camera.eye_m()) > distance_m(*b, camera.eye_m()) + 12.0;
  });
  for (const Block* block : order) paint_block(*block, painter, camera, air);
}

}  // namespace host::outside
