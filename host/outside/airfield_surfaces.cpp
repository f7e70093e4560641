#include "host/outside/airfield_surfaces.h"

#include <array>

namespace host::outside {
namespace {

constexpr std::uint32_t grass = 0x66803F, mown = 0x7A9150, concrete = 0x97958C, tarmac = 0x6E6F6D;
constexpr std::uint32_t yellow = 0xD6AE32;

// Where taxiways lead from the parallel one to the apron.
constexpr std::array apron_entry_along_m{0.0, 470.0};

void lay_grass(std::vector<Surface>& all) {
  all.push_back({{{-2100, -160},
                  {-1900, -330},
                  {1900, -330},
                  {2100, -160},
                  {2100, 260},
                  {1800, 620},
                  {-1800, 620},
                  {-2100, 260}},
                 grass});
  all.push_back(strip(-1620, 1620, -140, 120, mown));  // beside the runway
}

void lay_taxiways(std::vector<Surface>& all) {
  constexpr double taxi = taxiway_right_m, half = taxiway_half_width_m;
  all.push_back(strip(-1500, 1500, taxi - half, taxi + half, tarmac));
  for (const double along : connector_along_m)
    all.push_back(strip(along - 15, along + 15, runway_half_width_m, taxi, tarmac));
  for (const double along : apron_entry_along_m)
    all.push_back(strip(along - 13, along + 13, taxi, apron_right_m, tarmac));
}

// Slabs of concrete with their joints.
void lay_apron(std::vector<Surface>& all) {
  constexpr std::uint32_t joint = 0x77766F;
  all.push_back(strip(apron_from_m, apron_to_m, apron_right_m, apron_to_right_m, concrete));
  for (double along = apron_from_m + 38.5; along < apron_to_m; along += 38.5)
    all.push_back(strip(along, along + 0.25, apron_right_m, apron_to_right_m, joint));
  for (double right = apron_right_m + 38; right < apron_to_right_m; right += 38)
    all.push_back(strip(apron_from_m, apron_to_m, right, right + 0.25, joint));
}

void paint_lines(std::vector<Surface>& all) {
  constexpr double line = 0.15, taxi = taxiway_right_m, apron_line = 300;
  all.push_back(strip(-1490, 1490, taxi - line, taxi + line, yellow));
  for (const double along : connector_along_m) {
    all.push_back(strip(along - line, along + line, 8, taxi, yellow));
    // Holding positions, 90 m from the runway's middle.
    for (const double right : {89.0, 90.0, 91.2, 92.2})
      all.push_back(strip(along - 15, along + 15, right, right + (right > 91 ? 0.4 : 0.5), yellow));
  }
  for (const double along : apron_entry_along_m)
    all.push_back(strip(along - line, along + line, taxi, apron_line, yellow));
  all.push_back(
      strip(apron_from_m + 30, apron_to_m - 30, apron_line - line, apron_line + line, yellow));
  for (double along = 20; along < 600; along += 60)
    all.push_back(strip(along - line, along + line, apron_line, 385, yellow));
}

}  // namespace

Surface strip(double along_m, double to_along_m, double right_m, double to_right_m,
              std::uint32_t colour) {
  return {{{along_m, right_m}, {to_along_m, right_m}, {to_along_m, to_right_m}, {along_m, to_right_m}},
          colour};
}

std::vector<Surface> airfield_ground() {
  std::vector<Surface> all;
  lay_grass(all);
  lay_taxiways(all);
  lay_apron(all);
  paint_lines(all);
  return all;
}

}  // namespace host::outside
