/// Altitude preselector (main panel): the selected altitude on drums under a power flag, and its knob.
/// Its night picture comes with the recognition lights.
#include "module/catalogue.h"
#include "module/controls.h"
#include "module/digits.h"

namespace tarnvale {
namespace {

constexpr i32 figures = 14080;

constexpr Row altitude_drum(const char* words, i32 strip, PanelPoint at, Range range,
                            ValueRoutine value) {
  return drum(words, strip, at, range, value).from(token::selected_altitude);
}

constinit Body body{
    apalt,
    {
        altitude_drum("Ten thousands of feet", figures, {23, 12}, {0, 9}, digit<10000>),
        altitude_drum("Thousands of feet", figures, {32, 12}, {0, 9}, digit<1000>),
        altitude_drum("Hundreds of feet", 14090, {41, 11}, {0, 900}, rolling<1000>),
        icon("Power flag", 14070, {23, 11}).from(token::battery).lit_flags(image_flag::transparent),
    },
    {
        decrease("Selected altitude knob down", {74, 6, 16, 30},
                 button_sends<event::selected_altitude_down>, Press::left_held),
        increase("Selected altitude knob up", {92, 6, 16, 30},
                 button_sends<event::selected_altitude_up>, Press::left_held),
    },
};

}  // namespace

constinit Gauge apalt{
    {.name = "Apalt", .width_mm = 116, .background = 14060, .light_token = token::recognition_lights},
    body};

}  // namespace tarnvale
