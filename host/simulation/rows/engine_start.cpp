#include "host/simulation/aircraft.h"
#include "host/simulation/table.h"

namespace host::simulation {
namespace {

template <std::size_t engine>
void engage_starter(Aircraft& aircraft, std::uint32_t) {
  aircraft.engine_start.starters[engine].engage(aircraft.engines[engine].core_speed_percent);
}

constexpr EventRow events[] = {
    {{0x100EE, "ignition_arm", ""},
     [](Aircraft& a, std::uint32_t) { a.engine_start.ignition_armed = true; }},
    {{0x102FC, "starter_1_engage", ""}, engage_starter<0>},
    {{0x102FD, "starter_2_engage", ""}, engage_starter<1>},
    {{0x102B0, "automatic_start", ""}, [](Aircraft& a, std::uint32_t) { a.start_automatically(); }},
};

}  // namespace

constinit const SystemRows engine_start_rows{{}, events};

}  // namespace host::simulation
