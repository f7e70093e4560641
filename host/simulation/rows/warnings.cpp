#include "host/simulation/aircraft.h"
#include "host/simulation/table.h"

namespace host::simulation {
namespace {

constexpr TokenRow tokens[] = {
    {{67, "stall_warning", "0/1"}, [](const Aircraft& a) { return on_off(a.stall_warning.shaking); }},
    {{607, "recorded_time", "1/100 minutes"},
     [](const Aircraft& a) { return 100.0 * a.flight_recorder.recorded_minutes; }},
    {{990, "ground_proximity_warning", "0/1"},
     [](const Aircraft& a) { return on_off(a.ground_proximity.warning != ProximityMode::none); }},
};

// The panel alone holds back the warning of a system that is off. Here each switching makes the
// computer start anew, with nothing in its memory.
constexpr EventRow events[] = {
    {{0x104A1, "ground_proximity_switched", ""},
     [](Aircraft& a, std::uint32_t) { a.ground_proximity = {}; }},
};

}  // namespace

constinit const SystemRows warnings_rows{tokens, events};

}  // namespace host::simulation
