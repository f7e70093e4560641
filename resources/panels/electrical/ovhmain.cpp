/// The overhead's front row of light switches.
#include "resources/art.h"
#include "resources/kit/lamp.h"
#include "resources/kit/legend.h"

namespace artwork::panels::ovhmain {

// The lamps in the wings and on the nose gear.
constexpr std::string_view rockers[] = {"L WING", "L NOSE", "R NOSE", "R WING"};

constexpr Item items[] = {
    Legend{at("strobe_lights_button", 0, 19), "STRB"},
    Legend{at("taxi_lights_button", 0, 19), "TAXI"},
    Legend{at("beacon_lights_button", 0, 19), "BCN"},
    ending(at("navigation_lights_switch", -14), "NAV", heading_size),
    heading(at("landing_lights_bank", 95), "LDG\nLTS"),
    Screw{{198, 8}, 12},
    Screw{{198, -8}, 77},
    Screw{{316, 8}, 40},
    Screw{{316, -8}, 5},
};

void draw_rocker(const Canvas& canvas, Box box, std::string_view name, bool on) {
  fill(canvas, rounded(box, 2), palette::well);
  const Box cap = box.grown(-1);
  set_linear(canvas, {cap.x, cap.y}, {cap.x, cap.bottom()},
             {{0, on ? palette::mould_dark : palette::steel},
              {0.12, on ? palette::mould : palette::mould_light},
              {0.5, palette::mould},
              {0.88, on ? palette::mould_light : palette::mould_dark},
              {1, on ? palette::steel : palette::mould_dark}});
  fill(canvas, rounded(cap, 1.6));
  line(canvas, {cap.x + 2, cap.centre().y}, {cap.right() - 2, cap.centre().y}, 0.8,
       faded(palette::black, 0.5));
  lamp_lens(canvas, {cap.x + 4, cap.y + 4, cap.width - 8, 9}, {palette::lamp_green, "ON", 6.5}, on);
  print(canvas, {cap.centre().x, cap.bottom() - 6.5}, name, {.size = 6, .colour = palette::white});
}

/// Four rockers under one bar: they move together.
void draw_bank(const Canvas& canvas, int image) {
  const Box frame = whole(canvas.size()).grown(-2.5);
  cast_shadow(canvas, rounded(frame, 3), 1.2, 0.5);
  set_linear(canvas, {frame.x, frame.y}, {frame.x, frame.bottom()},
             {{0, palette::mould_light}, {0.5, palette::mould}, {1, palette::mould_dark}});
  fill(canvas, rounded(frame, 3));
  stroke(canvas, rounded(frame.grown(-0.4), 2.8), 0.7, faded(palette::white, 0.25));
  const double pitch = (frame.width - 6) / std::size(rockers);
  double x = frame.x + 5;
  for (const std::string_view name : rockers) {
    draw_rocker(canvas, {x, frame.y + 3.5, pitch - 4, frame.height - 7}, name, image == 1);
    x += pitch;
  }
}

constexpr Art art[] = {
    plate(44, items),
    drawn_art("landing_lights_bank", {160, 40}, draw_bank),
    lever_art("navigation_lights_switch", {13, 42}, {Throw::down, Throw::up},
              {.ball = 3.2, .polish = 15, .mount = 8}),
};

constinit Unit unit{"Ovhmain", art};

}  // namespace artwork::panels::ovhmain
