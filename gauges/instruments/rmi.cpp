/// Radio magnetic indicator (main panel): a compass card, two bearing needles with their selectors and
/// flags, and a distance read-out for each receiver.
#include <cmath>

#include "gauges/instruments/heading_test.h"
#include "module/catalogue.h"
#include "module/controls.h"
#include "module/holds.h"

namespace tarnvale {
namespace {

constexpr HoldTimes receiver_test{.seconds = 2, .margin = 3};

constinit u32 right_selector;

// ---- Distances

/// The figures of one read-out: hundreds, tens, units, tenths; -1 is the drums' blank.
struct Distance {
  f64 digits[4];
};
constinit Distance left_distance{}, right_distance{};

Distance distance_digits(f64 x) {
  const f64 whole_hundreds = std::trunc(x / 100);
  return {{whole_hundreds, std::trunc((x / 100 - whole_hundreds) * 10),
           std::trunc((x / 10 - std::trunc(x / 10)) * 10), std::trunc((x - std::trunc(x)) * 10)}};
}

Distance shown_distance(u32 selector, u32 distance_token) {
  const f64 x = read(distance_token);
  return selector == 0 && x >= 0 ? distance_digits(x) : Distance{{-1, -1, -1, -1}};
}

void take_distances() {
  left_distance = shown_distance(aircraft.rmi_left_selector, token::nav1_distance);
  right_distance = shown_distance(right_selector, token::nav2_distance);
}

/// While its receiver is tested a read-out stands at zero. The drums time the test.
template <u32 place>
f64 left_drum(Element*) {
  SharedHoldClock timer{aircraft.nav1_timer_deadline, aircraft.nav1_timer_now};
  const bool tested = hold_goes_on(timer, aircraft.nav1_test_active, receiver_test);
  return tested ? 0 : left_distance.digits[place];
}

template <u32 place>
f64 right_drum(Element*) {
  SharedHoldClock timer{aircraft.nav2_timer_deadline, aircraft.nav2_timer_now};
  const bool tested = hold_goes_on(timer, aircraft.nav2_test_active, receiver_test);
  return tested ? 0 : right_distance.digits[place];
}

constexpr Range blank_and_figures{-1, 9};

// ---- Bearings; the needles' pictures point to the right, a bearing counts from the top

f64 right_bearing(Element*) {
  return read(right_selector == 0 ? token::nav2_bearing : token::adf_bearing) - 90;
}

f64 left_bearing(Element*) {
  if (heading_test()) return 90;
  return read(aircraft.rmi_left_selector == 0 ? token::nav1_bearing : token::adf_bearing) - 90;
}

f64 right_flag(Element*) { return right_selector == 0 && read(token::nav2_signal) > 0; }

f64 left_flag(Element*) {
  return heading_test() || (aircraft.rmi_left_selector == 0 && read(token::nav1_signal) > 0);
}

constexpr PanelPoint face{0, 0}, upper_middle{72, 100}, lower_middle{72, 103};
constexpr PanelPoint needle_pivot{43, 6};

constinit Body body{
    rmi,
    rows(lighting_overlay(11110),
         all_failing_with(failure::compass,
                          {
                              sprite("Compass card", 11020, face, upper_middle,
                                     {.x = {}, .y = {}, .rotation = {token::heading, card_heading, 1}})
                                  .lit_centre(lower_middle),
                          }),
         icon("Right bearing selector", 11090, {110, 131}, shows<&right_selector>),
         icon("Left bearing selector", 11090, {11, 131}, shows<&Aircraft::rmi_left_selector>),
         all_failing_with(
             failure::compass,
             {
                 icon("Right signal flag", 11080, {98, 53}, right_flag),
                 icon("Left signal flag", 11070, {19, 53}, left_flag),
                 needle("Right bearing", 11060, lower_middle, needle_pivot, right_bearing)
                     .rate(1)
                     .lit_at(upper_middle),
                 needle("Left bearing", 11050, lower_middle, needle_pivot, left_bearing)
                     .rate(1)
                     .lit_at(upper_middle),
                 drum("Right distance hundreds", 11030, {79, 26}, blank_and_figures, right_drum<0>),
                 drum("Right distance tens", 11030, {91, 26}, blank_and_figures, right_drum<1>),
                 drum("Right distance units", 11030, {103, 26}, blank_and_figures, right_drum<2>),
                 drum("Right distance tenths", 11040, {115, 26}, blank_and_figures, right_drum<3>),
                 drum("Left distance hundreds", 11030, {17, 26}, blank_and_figures, left_drum<0>),
                 drum("Left distance tens", 11030, {29, 26}, blank_and_figures, left_drum<1>),
                 drum("Left distance units", 11030, {41, 26}, blank_and_figures, left_drum<2>),
                 drum("Left distance tenths", 11040, {53, 26}, blank_and_figures, left_drum<3>),
             })),
    {
        click("Left bearing selector", {11, 131, 22, 22}, pushes<&Aircraft::rmi_left_selector>),
        click("Right bearing selector", {110, 131, 22, 22}, pushes<&right_selector>),
    },
};

}  // namespace

constinit Gauge rmi{
    {.name = "Rmi", .width_mm = 141, .background = 11010, .services = {.before_draw = take_distances}},
    body};

}  // namespace tarnvale
