/// Flight recorder panel (pedestal): five thumbwheels, a read-out of the time recorded or of the date,
/// a push button, and two lights that follow a selector on the throttle pedestal.
#include <iterator>

#include "module/catalogue.h"
#include "module/controls.h"
#include "module/readout.h"

namespace tarnvale {
namespace {

enum Readout : u32 { number, date };
constinit u32 readout;

constinit u32 digits[] = {1, 6, 0, 1, 1};
constexpr u32 highest_digit = 9;

template <u32 wheel>
f64 digit(Element*) {
  return digits[wheel];
}

/// The left button turns a wheel down, the right one up; it stops at both ends.
template <u32 wheel>
void turn_wheel(u32 mouse_flags) {
  u32& digit = digits[wheel];
  if (is_left(mouse_flags)) {
    if (digit > 0) --digit;
  } else if (digit < highest_digit) {
    ++digit;
  }
  request(click_sound_request);
}

void change_readout() { flip(readout); }
void press_button() { flip(aircraft.flight_recorder_button_on); }

f64 selected_light(Element*) { return aircraft.pedestal_selector_switch != 0; }

/// One place more than the number needs: the figures are then small enough to leave room between the
/// fields of the date.
using Text = char[7];
constinit Text number_text = " ", month_text = " ", day_text = " ";

f64 source_of(const Element* field) { return field->string.source[0].value; }

f64 write_number(Element* field) {
  if (readout == number) {
    write_figures(number_text, whole_i32(source_of(field) / 100), 5);
  } else {
    write(number_text, " ");
  }
  return 0;
}

f64 write_day(Element* field) {
  if (readout == date) {
    write_figures(day_text, whole_i32(source_of(field)), 2);
  } else {
    write(day_text, " ");
  }
  return 0;
}

/// The host counts the months that have passed. Past December the field stands at January, even where
/// it shows no date.
f64 write_month(Element* field) {
  constexpr f64 past_december = 13;
  const f64 month = source_of(field) + 1;
  if (readout == date) {
    write_figures(month_text, whole_i32(month), 2);
  } else {
    write(month_text, " ");
  }
  if (month == past_december) write(month_text, "01");
  return 0;
}

constexpr PanelSize field{50, 20};
constexpr Type amber{"QUARTZ", text_colour::amber};
constexpr Bitmaps status_light{23490, 2}, wheel{3070, 10};

constinit Body body{
    flightrec,
    {
        lamp("Voice recorder light", status_light, {87, 96}, selected_light),
        lamp("Flight recorder light", status_light, {55, 96}, selected_light),
        lamp("Event button", bitmap::warning_button, {126, 84},
             shows<&Aircraft::flight_recorder_button_on>),
        icon("Digit 1", wheel, {26, 39}, digit<0>),
        icon("Digit 2", wheel, {40, 39}, digit<1>),
        icon("Digit 3", wheel, {52, 39}, digit<2>),
        icon("Digit 4", wheel, {66, 39}, digit<3>),
        icon("Digit 5", wheel, {82, 39}, digit<4>),
        text("Number field", {140, 36}, field, amber, number_text, write_number)
            .from(token::recorded_time),
        text("Day field", {153, 36}, field, amber, day_text, write_day).from(token::day_of_month),
        text("Month field", {133, 36}, field, amber, month_text, write_month).from(token::months_past),
    },
    {
        click("Readout button", {184, 26, 12, 14}, does<change_readout>),
        click("Thumbwheel 1", {26, 57, 12, 14}, does<turn_wheel<0>>, Press::either),
        click("Thumbwheel 2", {39, 57, 12, 14}, does<turn_wheel<1>>, Press::either),
        click("Thumbwheel 3", {53, 57, 12, 14}, does<turn_wheel<2>>, Press::either),
        click("Thumbwheel 4", {66, 57, 12, 14}, does<turn_wheel<3>>, Press::either),
        click("Thumbwheel 5", {83, 57, 12, 14}, does<turn_wheel<4>>, Press::either),
        click("Event button", {125, 83, 26, 26}, does<press_button>),
    },
};

}  // namespace

constinit Gauge flightrec{{.name = "Flightrec", .width_mm = 196, .background = 3060}, body};

}  // namespace tarnvale
