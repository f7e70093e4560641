#include "host/simulation/aircraft.h"
#include "host/simulation/table.h"

namespace host::simulation {
namespace {

constexpr TokenRow tokens[] = {
    {{604, "clock_seconds", "seconds"}, [](const Aircraft& a) { return a.clock.reading_s(); }},
};

}  // namespace

constinit const SystemRows clock_rows{tokens, {}};

}  // namespace host::simulation
