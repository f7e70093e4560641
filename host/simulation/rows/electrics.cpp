#include "host/simulation/aircraft.h"
#include "host/simulation/rows/meter_scales.h"
#include "host/simulation/table.h"

namespace host::simulation {
namespace {

// The load meters run from 0 to 125 percent. The generators' loads are also what the frequency
// meter is fed: its 0..40 stands for 380..420 Hz, the selector adds 2 to 6, and so the usual load
// of 12 to 18 percent reads near 400 Hz and a stopped generator at the foot of the scale. The
// APU's meter adds the 45 percent that its generator carries by itself.
constexpr TokenRow tokens[] = {
    {{364, "battery", "0/1"}, [](const Aircraft& a) { return on_off(a.electrics.battery_on); }},
    {{740, "avionics", "0/1"}, [](const Aircraft& a) { return on_off(a.electrics.avionics_on); }},
    // The ammeter's own zero is in the middle: -120 a full discharge, 120 a full charge.
    {{750, "dc_amperes", "amperes, discharge negative"},
     [](const Aircraft& a) { return a.electrics.battery.amperes; }},
    {{752, "dc_voltmeter", "meter divisions"},
     [](const Aircraft& a) {
       return dc_voltmeter_source(a.electrics.dc_volts, a.electrics.main_bus_powered());
     }},
    {{761, "ac_bus_1_voltmeter", "meter divisions"},
     [](const Aircraft& a) { return ac_voltmeter_source(a.electrics.bus_volts[0]); }},
    {{762, "generator_1_load", "percent"},
     [](const Aircraft& a) { return a.electrics.generator_load_percent[0]; }},
    {{763, "ac_bus_2_voltmeter", "meter divisions"},
     [](const Aircraft& a) { return ac_voltmeter_source(a.electrics.bus_volts[1]); }},
    {{764, "generator_2_load", "percent"},
     [](const Aircraft& a) { return a.electrics.generator_load_percent[1]; }},
    {{766, "auxiliary_load", "percent"},
     [](const Aircraft& a) { return a.electrics.auxiliary_load_percent; }},
};

constexpr EventRow events[] = {
    {{0x10346, "battery_toggle", ""},
     [](Aircraft& a, std::uint32_t) { a.electrics.battery_on = !a.electrics.battery_on; }},
    {{0x102F5, "avionics_toggle", ""},
     [](Aircraft& a, std::uint32_t) { a.electrics.avionics_on = !a.electrics.avionics_on; }},
    {{0x102C1, "external_power_connect", ""},
     [](Aircraft& a, std::uint32_t) { a.connect_ground_power(); }},
    {{0x102C2, "alternators_with_battery", ""},
     [](Aircraft& a, std::uint32_t) { a.electrics.align_alternators(); }},
    {{0x1033B, "alternator_1_with_battery", ""},
     [](Aircraft& a, std::uint32_t) { a.electrics.align_alternator(0); }},
    {{0x1033C, "alternator_2_with_battery", ""},
     [](Aircraft& a, std::uint32_t) { a.electrics.align_alternator(1); }},
    {{0x1033D, "apu_alternator_with_battery", ""},
     [](Aircraft& a, std::uint32_t) { a.electrics.align_alternator(2); }},
};

}  // namespace

constinit const SystemRows electrics_rows{tokens, events};

}  // namespace host::simulation
