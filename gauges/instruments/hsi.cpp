/// Horizontal situation indicator (main panel): compass card with heading bug, course pointer and
/// deviation bar, glide slope, to and from, an annunciator, and read-outs of course and distances.
#include "gauges/instruments/glide_slope.h"
#include "gauges/instruments/heading_test.h"
#include "module/autopilot_modes.h"
#include "module/catalogue.h"
#include "module/controls.h"
#include "module/digits.h"

namespace tarnvale {
namespace {

/// The upper left read-out counts the distance in units of this many metres.
constexpr f64 metres_per_unit = 832;

f64 test_switch(Element*) {
  const u32 position = aircraft.nav_test_switch;
  return position == up || position == down ? position : 0;
}

/// The course against the heading, half a degree on, as the heading bug is.
f64 course_on_card(Element*) {
  constexpr f64 offset = 0.5;
  return heading_test() ? 0 : read(token::selected_course) - read(token::heading) + offset;
}

f64 heading_bug(Element*) {
  constexpr f64 offset = 0.5, from_top = 90;
  return read(token::heading_bug) + offset - (read(token::heading) + from_top);
}

f64 to_from(Element*) {
  constexpr u32 localizer_code = 0x87;
  if ((whole_u32(read(token::nav1_code)) & 0xFF) == localizer_code) return 0;
  return receives(receives_localizer) ? -1 : read(token::to_from) + 1;
}

f64 test_flag(Element*) { return heading_test() ? 0 : -1; }

/// Area navigation drives this instrument, and the autopilot follows it.
bool area_navigation_selected() {
  return aircraft.apcourse_switch_on == 1 && aircraft.ap_mode_selector == autopilot_mode::navigation;
}

f64 approach_light(Element*) {
  constexpr f64 near = 10;
  return read(token::hsi_distance) / metres_per_unit < near && area_navigation_selected();
}

f64 annunciator(Element*) {
  constexpr f64 heading_hold = 0, off = 1, hold = 2, navigation = 3;
  if (heading_test() || aircraft.nav_test_switch > 0) return navigation;
  if (aircraft.ap_master_on == 0) return off;
  if (aircraft.ap_sel2_hold_on == 1) return hold;
  return area_navigation_selected() ? navigation : heading_hold;
}

/// The bar stands in the middle while the course comes from elsewhere.
f64 deviation(Element*) {
  if (!(read(token::hsi_source) == 0)) return 0;
  return read(token::hsi_deviation) * 5 * 25.4;  // 127 to a full scale
}

template <u32 range>
f64 distance_in_units(Element* drum) {
  return std::fmod(drum_source(drum) / metres_per_unit / 10, range);
}

/// Tenths of nautical miles, of which a metre is 0.0054.
template <u32 range>
f64 distance_in_miles(Element* drum) {
  return std::fmod(drum_source(drum) * 0.0054, range);
}

constexpr Row figure(const char* words, PanelPoint at, Range range, u32 source, ValueRoutine value) {
  return drum(words, 11310, at, range, value).from(source);
}

constexpr Rows<10> read_outs() {
  constexpr u32 distance = token::hsi_distance, course = token::selected_course;
  return {
      figure("Left distance hundreds", {25, 21}, {0, 1000}, distance, distance_in_units<1000>),
      figure("Left distance tens", {35, 21}, {0, 100}, distance, distance_in_units<100>),
      figure("Left distance units", {48, 21}, {0, 10}, distance, distance_in_units<10>),
      figure("Course hundreds", {24, 153}, {0, 9}, course, digit<100>),
      figure("Course tens", {33, 153}, {0, 9}, course, digit<10>),
      figure("Course units", {42, 153}, {0, 9}, course, rolling<10>),
      figure("Right distance thousands", {121, 19}, {0, 10000}, distance, distance_in_miles<10000>),
      figure("Right distance hundreds", {130, 19}, {0, 1000}, distance, distance_in_miles<1000>),
      figure("Right distance tens", {139, 19}, {0, 100}, distance, distance_in_miles<100>),
      figure("Right distance units", {150, 19}, {0, 10}, distance, distance_in_miles<10>),
  };
}

constexpr PanelPoint middle{92, 95};

constinit Body body{
    hsi,
    rows(lighting_overlay(11330), icon("Test switch", {23180, 3}, {23, 56}, test_switch),
         needle("Course knob", 11320, {147, 154}, {12, 12}).from(token::selected_course),
         sprite("Compass card", 11210, {0, 0}, middle,
                {.x = {}, .y = {}, .rotation = {token::heading, card_heading, 1}}),
         needle("Course pointer", 11260, middle, {38, 52}, course_on_card),
         icon("Lubber line", {11220, 1}, {87, 32}),
         needle("Heading bug", 11230, middle, {0, 5}, heading_bug),
         icon("To and from", {11240, 3}, {88, 70}, to_from),
         icon("Test flag", {23160, 1}, {88, 70}, test_flag),
         slider("Glide slope pointer", 11280, {160, 89},
                {.x = {}, .y = {token::glide_slope_deviation, glide_slope_pointer, 0.24}}),
         icon("Glide slope flag", {11281, 1}, {159, 65}, glide_slope_flag),
         icon("Approach light", 11290, {17, 91}, approach_light),
         icon("Annunciator", {11270, 4}, {82, 19}, annunciator),
         sprite("Course deviation bar", 11250, {66, 73}, {92, 93},
                {.x = {token::localizer_deviation, deviation, -0.14},
                 .y = {},
                 .rotation = {token::course_bearing, course_on_card, -1}}),
         read_outs()),
    {
        decrease("Course knob down", {128, 138, 20, 30}, turns_by_one<event::course_down>,
                 Press::left_held),
        increase("Course knob up", {150, 138, 20, 30}, turns_by_one<event::course_up>,
                 Press::left_held),
    },
};

}  // namespace

constinit Gauge hsi{{.name = "Hsi", .width_mm = 183, .background = 11120}, body};

}  // namespace tarnvale
