/// Pressurisation drive panel (overhead): two guarded switches, each with its light. Nothing else in
/// the aircraft follows them.
#include "module/catalogue.h"
#include "module/controls.h"
#include "module/guards.h"

namespace tarnvale {
namespace {

constinit Guarded a, b;

template <auto drive>
f64 drive_lamp(Element*) {
  return drive->position;
}

constinit Body body{
    spdrive,
    {
        lamp("Drive B lamp", 1410, {99, 12}, drive_lamp<&b>),
        lamp("Drive A lamp", 1410, {56, 12}, drive_lamp<&a>),
        icon("Drive B guard", bitmap::wide_guard, {92, 83}, guard_image<&b>),
        icon("Drive B switch", bitmap::wide_guarded_switch, {92, 83}, guarded_image<&b>),
        icon("Drive A guard", bitmap::wide_guard, {7, 84}, guard_image<&a>),
        icon("Drive A switch", bitmap::wide_guarded_switch, {7, 84}, guarded_image<&a>),
    },
    {
        click("Drive A guard", {7, 84, 30, 24}, moves_guard<&a>),
        click("Drive A switch", {7, 110, 30, 40}, works_guarded<&a>),
        click("Drive B guard", {92, 83, 30, 24}, moves_guard<&b>),
        click("Drive B switch", {92, 109, 30, 40}, works_guarded<&b>),
    },
};

}  // namespace

constinit Gauge spdrive{{.name = "Spdrive", .width_mm = 125, .background = 1390}, body};

}  // namespace tarnvale
