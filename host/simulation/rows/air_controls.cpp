#include "host/simulation/aircraft.h"
#include "host/simulation/table.h"

namespace host::simulation {
namespace {

constexpr EventRow events[] = {
    {{0x101ED, "engine_antiice_on", ""},
     [](Aircraft& a, std::uint32_t) { a.air_controls.engine_antiice_on = true; }},
    {{0x101EE, "engine_antiice_off", ""},
     [](Aircraft& a, std::uint32_t) { a.air_controls.engine_antiice_on = false; }},
    {{0x10519, "ram_air_toggle", ""},
     [](Aircraft& a, std::uint32_t) { a.air_controls.ram_air_open = !a.air_controls.ram_air_open; }},
};

}  // namespace

constinit const SystemRows air_controls_rows{{}, events};

}  // namespace host::simulation
