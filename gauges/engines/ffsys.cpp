/// Fuel computer (main panel): a display for each side, which the selectors beside it choose for, and
/// one for the weight, with mode buttons and indicator dots.
#include <algorithm>

#include "module/catalogue.h"
#include "module/controls.h"
#include "module/readout.h"
#include "module/systems.h"

namespace tarnvale {
namespace {

constinit u32 fuel_used_mode, held_readings, weight_mode;

/// What the selectors choose.
enum Selected : u32 { quantity, flow, display_check };

/// One side of the computer. Fuel used counts from the datum, the tank's reading at set-up or reset.
struct Side {
  u32 flow_token;
  u32 tank_token;
  u32& selector;
  f64 datum;
  char text[4];
};

constinit Side left{token::engine_1_fuel_flow, token::left_tank_quantity, aircraft.fuel_selector_left,
                    0, "   "};
constinit Side right{token::engine_2_fuel_flow, token::right_tank_quantity,
                     aircraft.fuel_selector_right, 0, "   "};
constinit char weight_text[4] = "   ";

/// A display has three figures: what is beyond them stands at 000 or at 999.
void write_reading(char (&text)[4], i32 value) { write_figures(text, std::clamp(value, 0, 999), 3); }

void write_blank(char (&text)[4]) { write(text, "   "); }

void write_flow(Side& side) {
  constexpr f64 highest = 9999;
  const f64 reading = read(side.flow_token) / 100;
  if (reading < highest) return write_reading(side.text, whole_i32(reading) / 10);
  write_blank(side.text);
}

void write_selected(Side& side) {
  switch (side.selector) {
    case quantity: return write_reading(side.text, whole_i32(read(side.tank_token) / 10));
    case flow: return write_flow(side);
    case display_check: return write(side.text, "000");
    default: return write_blank(side.text);
  }
}

template <auto side>
f64 write_side(Element*) {
  if (aircraft.dc_power_on == 0 || aircraft.fuel_computer_power == 0) {
    write_blank(side->text);
  } else if (fuel_used_mode == 0) {
    write_selected(*side);
  } else if (held_readings == 0) {
    write_reading(side->text, whole_i32(side->datum - read(side->tank_token)) / 10);
  }
  return 0;
}

/// The aircraft's weight in hundreds of kilograms: the fuel, from gallons by way of litres, on top of
/// the weight without fuel, which the weight mode leaves out.
f64 write_weight(Element* readout) {
  constexpr i32 without_fuel = 171;
  constexpr f64 litres_per_gallon = 3.7862, kilograms_per_litre = 0.7911;
  const f64 hundred_gallons = readout->string.source[0].value / 100;
  const i32 weight =
      whole_i32(hundred_gallons * litres_per_gallon * kilograms_per_litre + without_fuel);
  if (aircraft.dc_power_on == 0 || aircraft.fuel_computer_power != 1) {
    write_blank(weight_text);
  } else {
    const f64 shown = static_cast<f64>(weight) - (weight_mode == 1 ? without_fuel : 0);
    write_reading(weight_text, whole_i32(shown));
  }
  return 0;
}

/// The centre tank feeds both sides.
void take_first_datums() {
  const i32 half = whole_i32(read(token::centre_tank_quantity) / 2);
  left.datum = static_cast<f64>(whole_i32(read(left.tank_token))) + half;
  right.datum = static_cast<f64>(whole_i32(read(right.tank_token))) + half;
}

/// The same button resets the datums and holds what the displays show.
void press_reset() {
  left.datum = read(left.tank_token);
  right.datum = read(right.tank_token);
  push<&held_readings>();
}

template <auto side>
f64 low_fuel_dot(Element*) {
  return side->selector == flow && read(token::total_fuel) < low_fuel_gallons;
}

constexpr PanelSize display{50, 20};
constexpr Type amber{"QUARTZ", text_colour::amber};

constinit Body body{
    ffsys,
    {
        lamp("Weight mode dot", 14340, {44, 43}, shows<&weight_mode>),
        lamp("Fuel used mode dot", 14340, {25, 43}, shows<&fuel_used_mode>),
        lamp("Right low fuel dot", 14320, {107, 14}, low_fuel_dot<&right>),
        lamp("Left low fuel dot", 14320, {59, 14}, low_fuel_dot<&left>),
        lamp("Right check dot", 14330, {108, 41},
             lit_at<&Aircraft::fuel_selector_right, display_check>),
        lamp("Left check dot", 14330, {94, 41}, lit_at<&Aircraft::fuel_selector_left, display_check>),
        text("Weight display", {63, 36}, display, amber, weight_text, write_weight)
            .from(token::total_fuel),
        text("Right display", {84, 11}, display, amber, right.text, write_side<&right>),
        text("Left display", {37, 11}, display, amber, left.text, write_side<&left>),
    },
    {
        click("Fuel computer power button", {4, 23, 16, 18}, pushes<&Aircraft::fuel_computer_power>),
        click("Fuel used mode button", {21, 39, 14, 14}, pushes<&fuel_used_mode>),
        click("Reset button", {124, 11, 16, 18}, does<press_reset>),
        click("Weight mode button", {40, 39, 14, 14}, pushes<&weight_mode>),
    },
};

}  // namespace

constinit Gauge ffsys{
    {.name = "Ffsys", .width_mm = 147, .background = 14310, .services = {.set_up = take_first_datums}},
    body};

}  // namespace tarnvale
