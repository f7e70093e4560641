/// Outside air temperature (main panel), degrees Celsius.
#include "module/catalogue.h"
#include "module/needles.h"

namespace tarnvale {
namespace {

/// The scale has nothing between -40 and -20: the needle rests there.
constexpr Scale<7> scale{{{13, 52}, -60}, {{5, 33}, -40}, {{5, 33}, -20}, {{32, 4}, 0},
                         {{52, 13}, 20},  {{60, 33}, 40}, {{52, 53}, 60}};

constinit Body body{
    oat,
    {
        lighting_overlay(20060),
        needle("Outside air temperature", 20050, {33, 32}, {6, 5}, scale, shows_within<-60, 60>)
            .from(token::outside_air_temperature)
            .rate(1),
    },
};

}  // namespace

constinit Gauge oat{{.name = "Oat", .width_mm = 67, .background = 20040}, body};

}  // namespace tarnvale
