/// The cabin: the lighted signs over the seats.
#pragma once

namespace host::simulation {

struct Cabin {
  bool left_sign = false;   ///< no smoking
  bool right_sign = false;  ///< fasten seat belts
};

}  // namespace host::simulation
