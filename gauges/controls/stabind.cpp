/// Stabiliser indicator (main panel): bank, stabiliser and aileron trim, each with a button that
/// switches its read-out off.
#include "module/catalogue.h"
#include "module/controls.h"

namespace tarnvale {
namespace {

constexpr auto bank_on = &Aircraft::stabind_needle_on;
constexpr auto stabiliser_on = &Aircraft::stabind_vertical_on;
constexpr auto aileron_on = &Aircraft::stabind_horizontal_on;

/// Read-outs that are switched off rest at 0.
f64 bank(Element* bar) { return aircraft.*bank_on == 1 ? 360 - bar->needle.source.value : 0; }
f64 stabiliser(Element* pointer) {
  return aircraft.*stabiliser_on == 1 ? pointer->slider.y_source.value : 0;
}
f64 aileron_trim(Element* pointer) {
  return aircraft.*aileron_on == 1 ? pointer->slider.x_source.value : 0;
}

constexpr Bitmaps button{24080, 2};

constinit Body body{
    stabind,
    {
        icon("Bank button", button, {24, 66}, shows<bank_on>),
        icon("Aileron trim button", button, {70, 66}, shows<aileron_on>),
        icon("Stabiliser button", button, {46, 66}, shows<stabiliser_on>),
        needle("Bank wings", 13440, {26, 52}, {8, 1}, bank).from(token::bank_pointer),
        slider("Aileron trim pointer", 13430, {76, 49},
               {.x = {token::aileron_trim, aileron_trim, -30}, .y = {}}),
        slider("Stabiliser pointer", 13420, {48, 29},
               {.x = {}, .y = {token::stabiliser, stabiliser, -30}}),
    },
    {
        click("Bank button", {23, 65, 14, 14}, pushes<bank_on>),
        click("Stabiliser button", {45, 65, 14, 14}, pushes<stabiliser_on>),
        click("Aileron trim button", {69, 65, 14, 14}, pushes<aileron_on>),
    },
};

}  // namespace

constinit Gauge stabind{{.name = "Stabind", .width_mm = 102, .background = 13410}, body};

}  // namespace tarnvale
