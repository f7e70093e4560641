/// Generator control panel (overhead): a three-position switch and a warning lamp for each engine's
/// generator, and the guarded bus tie switch.
#include "module/catalogue.h"
#include "module/controls.h"
#include "module/host.h"

namespace tarnvale {
namespace {

constinit Guarded bus_tie;

/// Below this core speed, in percent, an engine does not turn its generator.
constexpr f64 turning_percent = 10.0;

/// Lit when the generator is switched off its bus, or on while its engine does not turn it.
template <u32& generator_switch, u32 core_speed>
f64 generator_warning(Element*) {
  if (generator_switch == 2) return 1;
  return generator_switch == 1 && read(core_speed) < turning_percent;
}

}  // namespace

constinit Gauge<13, 6> ctr{
    Face{.name = "Ctr", .width_mm = 182, .background = 120},
    {
        icon(2080, {62, 23}, 3, shows<aircraft.gen1_switch>, {.source = token::gen1_meter}),
        icon(2080, {104, 23}, 3, shows<aircraft.gen2_switch>, {.source = token::gen2_meter}),
        lamp(2120, {8, 32}, generator_warning<aircraft.gen1_switch, token::eng1_core_speed>),
        lamp(2120, {145, 31}, generator_warning<aircraft.gen2_switch, token::eng2_core_speed>),
        icon(2170, {76, 73}, 2, guarded_image<bus_tie>),
        icon(2180, {76, 73}, 2, guard_image<bus_tie>),
    },
    {
        click({58, 19, 20, 22}, lever_up<aircraft.gen1_switch>),
        click({58, 42, 20, 22}, lever_down<aircraft.gen1_switch>),
        click({100, 19, 20, 22}, lever_up<aircraft.gen2_switch>),
        click({100, 42, 20, 22}, lever_down<aircraft.gen2_switch>),
        click({76, 98, 30, 40}, works_guarded<bus_tie>),
        click({76, 74, 30, 22}, moves_guard<bus_tie>),
    },
};

}  // namespace tarnvale
