#include "host/simulation/aircraft.h"
#include "host/simulation/table.h"

namespace host::simulation {
namespace {

template <bool ProgramWindows::*shown>
void toggle(Aircraft& aircraft, std::uint32_t) {
  aircraft.windows.*shown = !(aircraft.windows.*shown);
}

constexpr EventRow events[] = {
    {{0x1001C, "atc_window_toggle", ""}, toggle<&ProgramWindows::atc_shown>},
    {{0x10154, "kneeboard_toggle", ""}, toggle<&ProgramWindows::kneeboard_shown>},
    {{0x10380, "map_window_toggle", ""}, toggle<&ProgramWindows::map_shown>},
};

}  // namespace

constinit const SystemRows program_windows_rows{{}, events};

}  // namespace host::simulation
