/// Marker beacon light (main panel): one lens that shines in the colour of the marker passed.
#include "module/catalogue.h"
#include "module/host.h"

namespace tarnvale {
namespace {

/// 1 to 3 for the markers, 0 for none.
f64 marker_light(Element* light) { return light->icon.source.value - 1; }

constinit Body body{
    markers,
    {
        lamp("Marker light", {12250, 3}, {0, 0}, marker_light).from(token::marker_beacon),
    },
};

}  // namespace

constinit Gauge markers{{.name = "Markers", .width_mm = 23, .background = 12240}, body};

}  // namespace tarnvale
