/// Generator control panel (overhead): a three-position switch and a warning lamp for each engine's
/// generator, and the guarded bus tie switch.
#include "module/catalogue.h"
#include "module/controls.h"
#include "module/guards.h"
#include "module/systems.h"

namespace tarnvale {
namespace {

constinit Guarded bus_tie;

/// Lit when the generator is switched off its bus, or on while its engine does not turn it.
template <auto generator_switch, u32 core_speed>
f64 generator_warning(Element*) {
  const u32 lever = variable<generator_switch>();
  if (lever == down) return 1;
  return lever == up && read(core_speed) < generator_turning_percent;
}

constinit Body body{
    ctr,
    {
        icon("Generator 1 switch", bitmap::three_way_lever, {62, 23}, shows<&Aircraft::gen1_switch>)
            .from(token::ac_bus_1_voltmeter),
        icon("Generator 2 switch", bitmap::three_way_lever, {104, 23}, shows<&Aircraft::gen2_switch>)
            .from(token::ac_bus_2_voltmeter),
        lamp("Generator 1 lamp", bitmap::off_lamp, {8, 32},
             generator_warning<&Aircraft::gen1_switch, token::engine_1_core_speed>),
        lamp("Generator 2 lamp", bitmap::off_lamp, {145, 31},
             generator_warning<&Aircraft::gen2_switch, token::engine_2_core_speed>),
        icon("Bus transfer switch", bitmap::wide_guarded_switch, {76, 73}, guarded_image<&bus_tie>),
        icon("Bus transfer guard", bitmap::wide_guard, {76, 73}, guard_image<&bus_tie>),
    },
    {
        click("Generator 1 switch up", {58, 19, 20, 22}, lever_up<&Aircraft::gen1_switch>),
        click("Generator 1 switch down", {58, 42, 20, 22}, lever_down<&Aircraft::gen1_switch>),
        click("Generator 2 switch up", {100, 19, 20, 22}, lever_up<&Aircraft::gen2_switch>),
        click("Generator 2 switch down", {100, 42, 20, 22}, lever_down<&Aircraft::gen2_switch>),
        click("Bus transfer switch", {76, 98, 30, 40}, works_guarded<&bus_tie>),
        click("Bus transfer guard", {76, 74, 30, 22}, moves_guard<&bus_tie>),
    },
};

}  // namespace

constinit Gauge ctr{{.name = "Ctr", .width_mm = 182, .background = 120}, body};

}  // namespace tarnvale
