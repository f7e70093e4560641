/// The cabin: the lighted signs over the seats, and the door.
#pragma once

namespace host::simulation {

struct Cabin {
  bool left_sign = false;   ///< no smoking
  bool right_sign = false;  ///< fasten seat belts
  bool door_open = false;
};

}  // namespace host::simulation
