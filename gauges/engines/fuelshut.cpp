/// Fuel shut-off flag (main panel): in view unless both fuel levers are fully open.
#include "module/catalogue.h"
#include "module/host.h"

namespace tarnvale {
namespace {

f64 flag_withdrawn(Element*) {
  return read(token::fuel_lever_1) == 1.0 && read(token::fuel_lever_2) == 1.0;
}

constinit Body body{
    fuelshut,
    {
        icon("Fuel shut-off flag", 13030, {7, 6}, flag_withdrawn),
    },
};

}  // namespace

constinit Gauge fuelshut{{.name = "Fuelshut", .width_mm = 81, .background = 13020}, body};

}  // namespace tarnvale
