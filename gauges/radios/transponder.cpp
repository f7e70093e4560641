/// Transponder (pedestal): four code knobs under the code, the mode selector and the IDENT button. The
/// host keeps the code; mode and IDENT are the panel's alone.
#include "module/catalogue.h"
#include "module/controls.h"
#include "module/digits.h"

namespace tarnvale {
namespace {

constexpr u32 last_mode = 3;

constinit u32 ident;
constinit u32 counts[4];  // clicks of each code knob, from the left

bool is_on() { return aircraft.transponder_mode > 0; }

// ---- Code

template <u32 place>
f64 code_figure(Element* drum) {
  return is_on() ? packed_digit<place>(drum) : 0;
}

/// A knob goes round with its figure, for which it has a mark each, however often it has been turned.
template <u32 knob>
f64 code_knob(Element*) {
  constexpr u32 figures = 8;
  return counts[knob] % figures;
}

template <u32 knob, u32 event>
void turn_code_knob() {
  send(event, ++counts[knob]);
  request(toggle_click_sound_request);
}

// ---- IDENT and display

void press_ident() {
  ident = ident == 0 && is_on();
  request(click_sound_request);
}

f64 ident_light(Element*) { return ident == 1 && is_on(); }
f64 ident_button(Element*) { return is_on() ? ident : 0; }
f64 display(Element*) { return aircraft.avionics_master_on == 1 && is_on(); }

// ---- Panel

constexpr i32 knob_bitmap = 2410, figure_strip = 2270, glass = 24250;
constexpr PanelPoint knob_pivot{13, 13}, display_corner{83, 21};
constexpr Range figure{0, 9};

constexpr PanelPoint first_knob{45, 77}, second_knob{84, 77}, third_knob{125, 77}, fourth_knob{164, 77};
constexpr Scale<8> first_scale{{{45, 56}, 0}, {{60, 63}, 1}, {{64, 78}, 2}, {{60, 89}, 3},
                               {{45, 96}, 4}, {{30, 88}, 5}, {{26, 76}, 6}, {{31, 64}, 7}};
constexpr Scale<8> second_scale{{{84, 56}, 0}, {{98, 63}, 1}, {{103, 78}, 2}, {{100, 89}, 3},
                                {{84, 96}, 4}, {{70, 88}, 5}, {{66, 76}, 6},  {{73, 64}, 7}};
constexpr Scale<8> third_scale{{{124, 56}, 0}, {{138, 63}, 1}, {{143, 78}, 2}, {{135, 89}, 3},
                               {{125, 96}, 4}, {{110, 88}, 5}, {{106, 76}, 6}, {{110, 64}, 7}};
constexpr Scale<8> fourth_scale{{{162, 56}, 0}, {{176, 63}, 1}, {{182, 78}, 2}, {{177, 89}, 3},
                                {{163, 96}, 4}, {{149, 88}, 5}, {{144, 76}, 6}, {{147, 64}, 7}};

constinit Body body{
    transponder,
    {
        needle("First code knob", knob_bitmap, first_knob, knob_pivot, first_scale, code_knob<0>),
        needle("Second code knob", knob_bitmap, second_knob, knob_pivot, second_scale, code_knob<1>),
        needle("Third code knob", knob_bitmap, third_knob, knob_pivot, third_scale, code_knob<2>),
        needle("Fourth code knob", knob_bitmap, fourth_knob, knob_pivot, fourth_scale, code_knob<3>),
        drum("First figure", figure_strip, {86, 31}, figure, code_figure<3>)
            .from(token::transponder_code)
            .fails_with(failure::avionics),
        drum("Second figure", figure_strip, {96, 31}, figure, code_figure<2>)
            .from(token::transponder_code)
            .fails_with(failure::avionics),
        drum("Third figure", figure_strip, {106, 31}, figure, code_figure<1>)
            .from(token::transponder_code)
            .fails_with(failure::avionics),
        drum("Fourth figure", figure_strip, {116, 31}, figure, code_figure<0>)
            .from(token::transponder_code)
            .fails_with(failure::avionics),
        icon("IDENT light", 2390, {85, 22}, ident_light),
        icon("IDENT button", 2380, {34, 15}, ident_button),
        icon("Transponder selector", {2450, last_mode + 1}, {169, 15},
             shows<&Aircraft::transponder_mode>),
        icon("Display", glass, display_corner, display),
        icon("Display power", glass, display_corner).from(token::battery),
    },
    {
        decrease("Transponder selector down", {158, 14, 20, 23},
                 steps_down<&Aircraft::transponder_mode>),
        increase("Transponder selector up", {179, 14, 20, 23},
                 steps_up<&Aircraft::transponder_mode, last_mode>),
        click("IDENT button", {32, 13, 22, 14}, does<press_ident>),
        click("Fourth code knob", {151, 64, 27, 27},
              does<turn_code_knob<3, event::transponder_units_up>>),
        click("Third code knob", {112, 64, 27, 27},
              does<turn_code_knob<2, event::transponder_tens_up>>),
        click("Second code knob", {72, 64, 27, 27},
              does<turn_code_knob<1, event::transponder_hundreds_up>>),
        click("First code knob", {33, 64, 27, 27},
              does<turn_code_knob<0, event::transponder_thousands_up>>),
    },
};

}  // namespace

constinit Gauge transponder{{.name = "Transponder", .width_mm = 212, .background = 2370}, body};

}  // namespace tarnvale
