#include "module/aircraft.h"

namespace tarnvale {

constinit Aircraft aircraft{};

}  // namespace tarnvale
