#include "host/simulation/aircraft.h"
#include "host/simulation/table.h"

namespace host::simulation {
namespace {

template <bool ProgramWindows::*shown>
void toggle(Aircraft& aircraft, std::uint32_t) {
  aircraft.windows.*shown = !(aircraft.windows.*shown);
}

constexpr EventRow events[] = {
    {{event::atc_window_toggle, "atc_window_toggle", ""}, toggle<&ProgramWindows::atc_shown>},
    {{event::kneeboard_toggle, "kneeboard_toggle", ""}, toggle<&ProgramWindows::kneeboard_shown>},
    {{event::map_window_toggle, "map_window_toggle", ""}, toggle<&ProgramWindows::map_shown>},
};

}  // namespace

constinit const SystemRows program_windows_rows{{}, events};

}  // namespace host::simulation
