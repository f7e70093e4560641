/// Pressurisation drive panel (overhead): two guarded switches, each with its light. Nothing else in
/// the aircraft follows them.
#include "module/catalogue.h"
#include "module/controls.h"

namespace tarnvale {
namespace {

constinit Guarded a;
constinit Guarded b;

}  // namespace

constinit Gauge<13, 4> spdrive{
    Face{.name = "Spdrive", .width_mm = 125, .background = 1390},
    {
        lamp(1410, {99, 12}, lit_at<b.position>),
        lamp(1410, {56, 12}, lit_at<a.position>),
        icon(2180, {92, 83}, 2, guard_image<b>),
        icon(2170, {92, 83}, 2, guarded_image<b>),
        icon(2180, {7, 84}, 2, guard_image<a>),
        icon(2170, {7, 84}, 2, guarded_image<a>),
    },
    {
        click({7, 84, 30, 24}, moves_guard<a>),
        click({7, 110, 30, 40}, works_guarded<a>),
        click({92, 83, 30, 24}, moves_guard<b>),
        click({92, 109, 30, 40}, works_guarded<b>),
    },
};

}  // namespace tarnvale
