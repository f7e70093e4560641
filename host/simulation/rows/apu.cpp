#include "host/simulation/aircraft.h"
#include "host/simulation/table.h"

namespace host::simulation {
namespace {

constexpr EventRow events[] = {
    {{0x10490, "apu_start", ""}, [](Aircraft& a, std::uint32_t) { a.apu.start(a.electrics.has_dc()); }},
    {{0x10491, "apu_stop", ""}, [](Aircraft& a, std::uint32_t) { a.apu.stop(); }},
    // Moved either way, the master switch leaves the fuel valve closed until the next start.
    {{0x10492, "apu_master_moved", ""}, [](Aircraft& a, std::uint32_t) { a.apu.stop(); }},
};

}  // namespace

constinit const SystemRows apu_rows{{}, events};

}  // namespace host::simulation
