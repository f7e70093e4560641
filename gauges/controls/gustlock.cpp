/// Gust lock (throttle panel): a handle.
#include "module/catalogue.h"
#include "module/controls.h"

namespace tarnvale {
namespace {

constinit u32 locked;

constinit Body body{
    gustlock,
    {
        icon("Gust lock handle", 24060, {0, 0}, shows<&locked>),
    },
    {
        click("Gust lock handle", {1, 1, 20, 20}, toggles<&locked>),
    },
};

}  // namespace

constinit Gauge gustlock{{.name = "Gustlock", .width_mm = 21, .background = 24050}, body};

}  // namespace tarnvale
