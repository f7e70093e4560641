/// Gauges that show their plate alone: their header and background are there, so that panels can be
/// laid out around them, and they neither move nor answer.
#include "module/catalogue.h"

namespace tarnvale {


// ---- Controls

}  // namespace tarnvale
