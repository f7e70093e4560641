#include "host/simulation/aircraft.h"
#include "host/simulation/table.h"

namespace host::simulation {
namespace {

template <bool Lights::*lamp>
double lit(const Aircraft& aircraft) {
  return on_off(aircraft.lights.*lamp);
}

template <bool Lights::*lamp>
void toggle(Aircraft& aircraft, std::uint32_t) {
  aircraft.lights.*lamp = !(aircraft.lights.*lamp);
}

constexpr TokenRow tokens[] = {
    {{token::panel_lights, "panel_lights", "0/1"}, lit<&Lights::panel>},
    {{11, "strobe_lights", "0/1"}, lit<&Lights::strobe>},
    {{token::landing_lights, "landing_lights", "0/1"}, lit<&Lights::landing>},
    {{368, "beacon_lights", "0/1"}, lit<&Lights::beacon>},
    {{369, "navigation_lights", "0/1"}, lit<&Lights::navigation>},
    {{619, "taxi_lights", "0/1"}, lit<&Lights::taxi>},
    {{620, "recognition_lights", "0/1"}, lit<&Lights::recognition>},
};

constexpr EventRow events[] = {
    {{event::panel_lights_toggle, "panel_lights_toggle", ""}, toggle<&Lights::panel>},
    {{0x10018, "strobe_lights_toggle", ""}, toggle<&Lights::strobe>},
    {{0x100D7, "landing_lights_toggle", ""}, toggle<&Lights::landing>},
    {{0x102BF, "beacon_lights_toggle", ""}, toggle<&Lights::beacon>},
    {{0x102C0, "navigation_lights_toggle", ""}, toggle<&Lights::navigation>},
    {{0x1034B, "taxi_lights_toggle", ""}, toggle<&Lights::taxi>},
    {{0x10348, "recognition_lights_toggle", ""}, toggle<&Lights::recognition>},
};

}  // namespace

constinit const SystemRows lights_rows{tokens, events};

}  // namespace host::simulation
