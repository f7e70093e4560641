/// Direction finder (pedestal): its frequency, and a knob for each figure but the first.
#include "module/catalogue.h"
#include "module/controls.h"
#include "module/digits.h"

namespace tarnvale {
namespace {

f64 display(Element*) { return aircraft.avionics_master_on != 0; }

constexpr Range figure{0, 9};
constexpr PanelPoint glass{69, 15};

template <u32 event>
constexpr Area knob(const char* tooltip, Box box) {
  return labelled(click(tooltip, box, switch_sends<event>));
}

constinit Body body{
    adf,
    rows(all_failing_with(
             failure::direction_finder,
             {
                 drum("Thousands", 2270, {71, 17}, figure, packed_digit<2>)
                     .from(token::adf_frequency_ends),
                 drum("Hundreds", 2270, {81, 17}, figure, packed_digit<2>).from(token::adf_frequency),
                 drum("Tens", 2270, {91, 17}, figure, packed_digit<1>).from(token::adf_frequency),
                 drum("Units", 2270, {101, 17}, figure, packed_digit<0>).from(token::adf_frequency),
                 drum("Tenths", 2260, {111, 17}, figure, packed_digit<0>)
                     .from(token::adf_frequency_ends),
             }),
         icon("Display", 2360, glass, display),
         icon("Display power", 2360, glass).from(token::battery).lit_flags(image_flag::transparent)),
    {
        knob<event::adf_tenths_up>("Set ADF Freq 0.1Hz", {118, 44, 24, 24}),
        knob<event::adf_units_up>("Set ADF Freq 1Hz", {95, 44, 15, 24}),
        knob<event::adf_tens_up>("Set ADF Freq 10Hz", {78, 44, 15, 24}),
        knob<event::adf_hundreds_up>("Set ADF Freq 100Hz", {45, 44, 24, 24}),
    },
};

}  // namespace

constinit Gauge adf{{.name = "Adf", .width_mm = 195, .background = 2350}, body};

}  // namespace tarnvale
