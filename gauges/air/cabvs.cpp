/// Cabin rate of climb (overhead): the pressurisation lets the cabin climb and descend less than half
/// as fast as the aircraft, a third of what the host measures.
#include "module/catalogue.h"
#include "module/numbers.h"

namespace tarnvale {
namespace {

constexpr f64 full_scale = 2000;  // feet a minute

f64 cabin_rate(Element* needle) {
  return limited(needle->needle.source.value / 3, -full_scale, full_scale);
}

constexpr Scale<9> scale{{{63, 58}, -full_scale}, {{48, 69}, -1500}, {{24, 68}, -1000},
                         {{10, 56}, -500},        {{5, 38}, 0},      {{10, 21}, 500},
                         {{24, 9}, 1000},         {{49, 8}, 1500},   {{63, 18}, full_scale}};

constinit Body body{
    cabvs,
    {
        lighting_overlay(1380),
        needle("Cabin rate of climb", 1370, {38, 38}, {5, 2}, scale, cabin_rate)
            .from(token::vertical_speed),
    },
};

}  // namespace

constinit Gauge cabvs{{.name = "Cabvs", .width_mm = 77, .background = 1360}, body};

}  // namespace tarnvale
