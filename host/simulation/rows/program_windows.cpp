#include "host/simulation/aircraft.h"
#include "host/simulation/table.h"

namespace host::simulation {
namespace {

constexpr EventRow events[] = {
    {{0x10154, "kneeboard_toggle", ""},
     [](Aircraft& a, std::uint32_t) { a.windows.kneeboard_shown = !a.windows.kneeboard_shown; }},
};

}  // namespace

constinit const SystemRows program_windows_rows{{}, events};

}  // namespace host::simulation
