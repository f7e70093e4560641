/// Parking-brake light and the top temperature control's switch (throttle pedestal); nothing else reads
/// the switch.
#include "module/catalogue.h"
#include "module/controls.h"

namespace tarnvale {
namespace {

constinit Body body{
    ttc,
    {
        lamp("Parking brake light", 4330, {2, 35}).from(token::parking_brake),
        icon("Top temperature control switch", bitmap::light_lever, {57, 3},
             shows<&Aircraft::ttc_switch_on>),
    },
    {
        click("Top temperature control switch", {50, 2, 24, 40}, toggles<&Aircraft::ttc_switch_on>),
    },
};

}  // namespace

constinit Gauge ttc{{.name = "Ttc", .width_mm = 75, .background = 4320}, body};

}  // namespace tarnvale
