/// Avionics master panel (overhead): one switch with its lamp.
#include "module/catalogue.h"
#include "module/controls.h"

namespace tarnvale {
namespace {

constinit Body body{
    avimaster,
    {
        icon("Avionics master switch", 2320, {37, 19},
             mirrors<token::avionics, &Aircraft::avionics_master_on>),
        lamp("Avionics lamp", 2330, {86, 51}, lit_at<&Aircraft::avionics_master_on>),
    },
    {
        click("Avionics master switch", {39, 21, 36, 36},
              toggles<&Aircraft::avionics_master_on, event::avionics_toggle>),
    },
};

}  // namespace

constinit Gauge avimaster{{.name = "Avimaster", .width_mm = 122, .background = 2310}, body};

}  // namespace tarnvale
