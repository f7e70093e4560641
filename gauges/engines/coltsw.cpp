/// Fuel computer selectors (main panel): what the computer's left and right displays show.
#include "module/catalogue.h"
#include "module/controls.h"

namespace tarnvale {
namespace {

/// Where a selector's pointer stands.
enum Pointer : u32 { pointing_up, pointing_left, pointing_right };

constexpr auto left = &Aircraft::fuel_selector_left;
constexpr auto right = &Aircraft::fuel_selector_right;

constinit Body body{
    coltsw,
    {
        icon("Left selector", {14210, 3}, {16, 13}, shows<left>),
        icon("Right selector", {14210, 3}, {86, 13}, shows<right>),
    },
    {
        click("Left selector flow", {3, 6, 17, 46}, selects<left, pointing_left>),
        click("Left selector quantity", {21, 2, 17, 52}, selects<left, pointing_up>),
        click("Left selector check", {39, 6, 17, 46}, selects<left, pointing_right>),
        click("Right selector flow", {73, 6, 17, 46}, selects<right, pointing_left>),
        click("Right selector quantity", {91, 2, 17, 52}, selects<right, pointing_up>),
        click("Right selector check", {109, 6, 16, 46}, selects<right, pointing_right>),
    },
};

}  // namespace

constinit Gauge coltsw{{.name = "Coltsw", .width_mm = 126, .background = 14190}, body};

}  // namespace tarnvale
