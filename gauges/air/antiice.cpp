/// Engine anti-ice panel (overhead): a four-position knob for each engine, and the lever between them
/// that lets one engine's supply run up to full pressure.
#include "module/catalogue.h"
#include "module/controls.h"

namespace tarnvale {
namespace {

/// Positions 1 and 3 are on. The host has one engine anti-ice, which both knobs work.
template <auto knob>
void turn_knob() {
  advance<knob, 3>();
  send(variable<knob>() % 2 == 1 ? event::engine_antiice_on : event::engine_antiice_off);
}
template <auto knob>
constexpr MouseRoutine turns_knob = does<turn_knob<knob>>;

constinit Body body{
    antiice,
    {
        icon("Pressure lever", bitmap::three_way_lever, {27, 5},
             shows<&Aircraft::antiice_upper_switch>),
        icon("Right engine anti-ice knob", {1170, 4}, {47, 49}, shows<&Aircraft::engine_antiice_right>),
        icon("Left engine anti-ice knob", {1170, 4}, {11, 49}, shows<&Aircraft::engine_antiice_left>),
    },
    {
        click("Left engine anti-ice knob", {6, 50, 22, 38}, turns_knob<&Aircraft::engine_antiice_left>),
        click("Right engine anti-ice knob", {42, 50, 22, 38},
              turns_knob<&Aircraft::engine_antiice_right>),
        click("Pressure lever up", {19, 2, 29, 23}, lever_up<&Aircraft::antiice_upper_switch>),
        click("Pressure lever down", {19, 26, 29, 23}, lever_down<&Aircraft::antiice_upper_switch>),
    },
};

}  // namespace

constinit Gauge antiice{{.name = "Antiice", .width_mm = 69, .background = 1160}, body};

}  // namespace tarnvale
