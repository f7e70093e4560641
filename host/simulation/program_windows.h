/// Windows of the program itself that the cockpit's buttons open and close.
#pragma once

namespace host::simulation {

struct ProgramWindows {
  bool kneeboard_shown = false;
};

}  // namespace host::simulation
