/// Gear position lights (main panel): a column for each leg, green when it is down and locked, and the
/// horn cutout switch.
#include "module/catalogue.h"
#include "module/controls.h"

namespace tarnvale {
namespace {

constexpr f64 up_below = 100, locked_above = 16000;

template <u32 leg>
f64 down(Element*) {
  return read(leg) > locked_above;
}

template <u32 leg>
f64 in_transit(Element*) {
  const f64 extension = read(leg);
  return extension >= up_below && extension <= locked_above;
}

constexpr Bitmaps green{20270, 2}, unlocked{20280, 2}, door{20290, 2};
constexpr u32 left = token::left_gear_position, nose = token::nose_gear_position,
              right = token::right_gear_position;

constinit u32 horn_cutout;

constinit Body body{
    gearind,
    {
        icon("Horn cutout switch", {20310, 2}, {6, 31}, shows<&horn_cutout>),
        lamp("Left upper down light", green, {23, 21}, down<left>),
        lamp("Left lower down light", green, {23, 35}, down<left>),
        lamp("Left unlocked light", unlocked, {23, 49}, in_transit<left>),
        lamp("Left door light", door, {23, 63}, in_transit<left>),
        lamp("Nose down light", green, {56, 35}, down<nose>),
        lamp("Nose unlocked light", unlocked, {56, 49}, in_transit<nose>),
        lamp("Right upper down light", green, {89, 21}, down<right>),
        lamp("Right lower down light", green, {89, 35}, down<right>),
        lamp("Right unlocked light", unlocked, {89, 49}, in_transit<right>),
        lamp("Right door light", door, {89, 63}, in_transit<right>),
    },
    {
        click("Horn cutout switch", {3, 30, 17, 37}, pushes<&horn_cutout>),
    },
};

}  // namespace

constinit Gauge gearind{{.name = "Gearind", .width_mm = 122, .background = 20260}, body};

}  // namespace tarnvale
