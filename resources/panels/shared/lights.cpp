/// Lamps that stand on many panels, and the switches of lights.
#include "module/bitmaps.h"
#include "resources/art.h"
#include "resources/kit/lamp.h"

namespace artwork::panels::lights {

namespace bitmap = tarnvale::bitmap;

/// A rocker that leans to one side, with a white bar that shows which.
void draw_rocker(const Canvas& canvas, int image) {
  const Box box = whole(canvas.size()).grown(-1);
  const Box upper{box.x, box.y, box.width, box.height / 2};
  const Box lower{box.x, box.y + box.height / 2, box.width, box.height / 2};
  fill(canvas, rounded(box, 1.6), palette::mould_dark);
  const auto half = [&](Box part, bool pressed) {
    set_linear(canvas, {part.x, part.y}, {part.x, part.bottom()},
               {{0, pressed ? palette::mould_dark : palette::steel},
                {0.25, pressed ? palette::mould : palette::mould_light},
                {1, pressed ? palette::mould_dark : palette::mould}});
    fill(canvas, rounded(part.grown(-0.6), 1.2));
  };
  half(upper, image == 1);
  half(lower, image == 0);
  const Box bar{box.x + 5, upper.y + upper.height / 2 - 1, box.width - 10, 2};
  if (image == 1) soft(canvas, rounded(bar, 1), faded(palette::lamp_green, 0.9), 1.4);
  fill(canvas, rounded(bar, 1),
       image == 1 ? mixed(palette::lamp_green, palette::white, 0.5) : palette::steel);
}

/// The lens alone: the button about it is the plate's.
void draw_test_lamp(const Canvas& canvas, int image) {
  const Box box = whole(canvas.size());
  fill(canvas, rounded(box, 1.6), palette::well);
  lamp_lens(canvas, box.grown(-1), {lens::blue}, image == 1);
}

constexpr Art art[] = {
    button_art(bitmap::warning_button, {24, 24}, lens::green, "ON", 7.5),
    drawn_art(bitmap::test_lamp, {10, 12}, draw_test_lamp),
    round_light_art(bitmap::round_light, {26, 26},
                    {.colour = lens::amber, .radius = 9.6, .centre = 12.5, .lit_first = true}),
    lamp_art(bitmap::off_lamp, {27, 22}, lens::amber, "OFF"),
    drawn_art(bitmap::landing_light_lever, {20, 23}, draw_rocker),
    button_art(bitmap::light_button, {24, 24}, lens::white, "ON", 7.5),
    button_art(bitmap::panel_lights_button, {26, 26}, lens::white, "ON"),
    // From the lower left to straight up: on the right of the captain's knob is no room for words.
    knob_art(bitmap::instrument_lights_knob, {26, 26}, {-120, -60, 0},
             {.radius = 11, .seat = 1.4, .grip = Grip::pointer, .ticks = {2.4, 4.4}}),
};

constinit Unit unit{"", art};

}  // namespace artwork::panels::lights
