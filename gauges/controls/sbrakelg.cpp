/// Speed-brake light (main panel).
#include "module/catalogue.h"
#include "module/controls.h"

namespace tarnvale {
namespace {

constinit Body body{
    sbrakelg,
    {
        lamp("Speed brake light", 13390, {1, 1}, lit_at<&Aircraft::speedbrake_armed>),
    },
};

}  // namespace

constinit Gauge sbrakelg{{.name = "Sbrakelg", .width_mm = 29, .background = 13380}, body};

}  // namespace tarnvale
