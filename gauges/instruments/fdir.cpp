/// Flight director switch (main panel). The flight director's state is the host's.
#include "module/catalogue.h"
#include "module/controls.h"

namespace tarnvale {
namespace {

constinit Body body{
    fdir,
    {
        icon("Flight director switch", bitmap::toggle_switch, {10, 9}).from(token::flight_director),
    },
    {
        click("Flight director switch", {7, 7, 20, 45}, switch_sends<event::flight_director_toggle>),
    },
};

}  // namespace

constinit Gauge fdir{{.name = "Fdir", .width_mm = 30, .background = 24090}, body};

}  // namespace tarnvale
