/// Gauges that show their plate alone: their header and background are there, so that panels can be
/// laid out around them, and they neither move nor answer.
#include "module/catalogue.h"

namespace tarnvale {


// ---- Controls
constinit Gauge trim{{.name = "Trim", .width_mm = 192, .background = 3230}};
constinit Gauge stabind{{.name = "Stabind", .width_mm = 102, .background = 13410}};
constinit Gauge gear{{.name = "Gear", .width_mm = 36, .background = 14120}};
constinit Gauge flapind{{.name = "Flapind", .width_mm = 70, .background = 20010}};
constinit Gauge gearind{{.name = "Gearind", .width_mm = 122, .background = 20260}};
constinit Gauge gustlock{{.name = "Gustlock", .width_mm = 21, .background = 24050}};
constinit Gauge pushback{{.name = "Pushback", .width_mm = 252, .background = 24120}};

}  // namespace tarnvale
