/// Ram-air panel (overhead): the guarded ram-air switch, a guarded four-position switch beside it that
/// is connected to nothing else, and a test light.
#include "module/catalogue.h"
#include "module/controls.h"
#include "module/guards.h"
#include "module/holds.h"

namespace tarnvale {
namespace {

constinit Guarded ram_air;
constinit Guarded four_way;
constinit HoldClock test_clock;
constinit u32 testing;

/// Every move of the switch by hand works the host's ram air; a guard that closes over it does not.
void press_ram_air() {
  send(event::ram_air_toggle);
  work_guarded<&ram_air>();
}

constinit Body body{
    ramair,
    {
        lamp("Test light", bitmap::round_light, {6, 10}, test_light<&test_clock, &testing>),
        icon("Outlet guard", 1340, {102, 5}, guard_image<&four_way>),
        icon("Outlet switch", {1350, 4}, {102, 5}, guarded_image<&four_way>),
        icon("Inlet guard", 1320, {72, 3}, guard_image<&ram_air>),
        icon("Inlet switch", 1330, {72, 3}, guarded_image<&ram_air>),
    },
    {
        click("Inlet switch", {72, 27, 28, 38}, does<press_ram_air>),
        click("Inlet guard", {72, 3, 28, 22}, moves_guard<&ram_air>),
        click("Outlet switch", {102, 27, 25, 38}, works_guarded<&four_way, 3>),
        click("Outlet guard", {102, 5, 25, 20}, moves_guard<&four_way>),
        click("Test light", {7, 10, 24, 26}, tests<&test_clock, &testing>),
    },
};

}  // namespace

constinit Gauge ramair{{.name = "Ramair", .width_mm = 141, .background = 1310}, body};

}  // namespace tarnvale
