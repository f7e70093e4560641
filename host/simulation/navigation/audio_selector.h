/// The audio selector: where the microphone goes, and what the crew listens to.
#pragma once

#include <array>

namespace host::simulation {

struct AudioSelector {
  int transmitter = 1;                      ///< 1 or 2
  bool receive_all = false;                 ///< both communication receivers are heard
  std::array<bool, 3> identification_on{};  ///< of receiver 1, receiver 2, the direction finder
};

}  // namespace host::simulation
