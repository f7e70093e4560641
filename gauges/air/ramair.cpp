/// Ram-air panel (overhead): the guarded ram-air switch, a guarded four-position switch beside it that
/// is connected to nothing else, and a test light.
#include "module/catalogue.h"
#include "module/controls.h"
#include "module/host.h"

namespace tarnvale {
namespace {

constinit Guarded ram_air;
constinit Guarded four_way;
constinit TestClock test_clock;
constinit u32 testing;

/// Every move of the switch by hand works the host's ram air; a guard that closes over it does not.
i32 press_ram_air(PanelPoint point, u32 flags) {
  send(event::ram_air_toggle);
  return works_guarded<ram_air>(point, flags);
}

}  // namespace

constinit Gauge<11, 5> ramair{
    Face{.name = "Ramair", .width_mm = 141, .background = 1310},
    {
        lamp(2110, {6, 10}, test_light<test_clock, testing>),
        icon(1340, {102, 5}, 2, guard_image<four_way>),
        icon(1350, {102, 5}, 4, guarded_image<four_way>),
        icon(1320, {72, 3}, 2, guard_image<ram_air>),
        icon(1330, {72, 3}, 2, guarded_image<ram_air>),
    },
    {
        click({72, 27, 28, 38}, press_ram_air),
        click({72, 3, 28, 22}, moves_guard<ram_air>),
        click({102, 27, 25, 38}, works_guarded<four_way, 3>),
        click({102, 5, 25, 20}, moves_guard<four_way>),
        click({7, 10, 24, 26}, tests<test_clock, testing>),
    },
};

}  // namespace tarnvale
