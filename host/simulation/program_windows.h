/// Windows of the program itself that the cockpit's buttons open and close.
#pragma once

namespace host::simulation {

struct ProgramWindows {
  bool atc_shown = false;
  bool kneeboard_shown = false;
  bool map_shown = false;
};

}  // namespace host::simulation
