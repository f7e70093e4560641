/// The three small panels of the ice protection: engine anti-ice, pitot heat, windshield heat.
#include "resources/kit/knob.h"
#include "resources/kit/lamp.h"
#include "resources/kit/lever.h"
#include "resources/kit/metal.h"
#include "resources/panels/panels.h"
#include "resources/panels/shared/fittings.h"

namespace artwork {
namespace {

constexpr Point engine_hub{8.5, 20};
constexpr Point heat_hub{6.5, 21};

void draw_engine_plate(Canvas& canvas, int) {
  constexpr std::string_view panel = "Antiice";
  painted_plate(canvas);
  fit_parts(canvas, panel);
  const Point lever = hub_of(panel, 2080);
  lever_words(canvas, lever, {.up = "HI 1", .down = "HI 2", .aside = -12});
  lever_words(canvas, lever, {.up = "", .down = "", .centre = "NRM", .aside = 11});
  for (int nth = 0; nth < 2; ++nth) {
    const Box knob = part_box(panel, 1170, nth);
    const Point hub = Point{knob.x, knob.y} + engine_hub;
    knob_seat(canvas, hub, 9.2);
    engrave(canvas, {hub.x + (nth == 0 ? -1 : 1), hub.y - 14.5}, nth == 0 ? "ENG 2" : "ENG 1");
  }
  engrave(canvas, {canvas.size().width / 2.0, canvas.size().height - 10.0}, "ANTI-ICE",
          {.size = heading_size});
}

/// The bar lies in line while the valve is open, at every other position.
void draw_engine_knob(Canvas& canvas, int image) {
  bar_knob(canvas, engine_hub, 8.2, -90 + 90.0 * image);
}

void draw_pitot_plate(Canvas& canvas, int) {
  constexpr std::string_view panel = "Pitot";
  painted_plate(canvas);
  fit_parts(canvas, panel);
  const Point left = hub_of(panel, 2130), right = hub_of(panel, 2130, 1);
  lever_words(canvas, {(left.x + right.x) / 2 - 7, left.y}, {.aside = 0});
  engrave(canvas, {canvas.size().width / 2.0, canvas.size().height - 11.0}, "PITOT HEAT");
}

void draw_windshield_plate(Canvas& canvas, int) {
  constexpr std::string_view panel = "Windshield";
  painted_plate(canvas);
  const Point power = part_box(panel, 1010).centre();
  polish(canvas, power, 16);
  lever_mount(canvas, power);
  engrave(canvas, {power.x - 12, power.y + 13}, "OFF");
  engrave(canvas, {power.x + 12, power.y + 13}, "ON");
  for (int nth = 0; nth < 2; ++nth) {
    const Box lever = part_box(panel, 2190, nth);
    const Point hub = Point{lever.x, lever.y} + heat_hub;
    polish(canvas, hub, 17);
    lever_mount(canvas, hub);
    engrave(canvas, {hub.x, hub.y + 25.5}, nth == 0 ? "F/O" : "CAPT");
  }
  const double middle = power.x + 3;
  engrave(canvas, {middle, power.y + 29}, "HI");
  engrave(canvas, {middle, power.y + 42}, "LO");
  engrave(canvas, {middle, power.y + 55}, "OFF");
  engrave(canvas, {canvas.size().width / 2.0, canvas.size().height - 6.5}, "WINDSHIELD");
}

/// Off, low, high and back over low.
void draw_heat_lever(Canvas& canvas, int image) {
  constexpr Throw thrown[] = {Throw::down, Throw::centre, Throw::up, Throw::centre};
  lever_nut(canvas, heat_hub, 6);
  lever_handle(canvas, heat_hub, 13.5, thrown[image], 3.2);
}

void draw_power_lever(Canvas& canvas, int image) {
  const Point hub = whole(canvas.size()).centre();
  lever_nut(canvas, hub, 6);
  const Saved saved(canvas);
  cairo_translate(canvas.cr(), hub.x, hub.y);
  cairo_rotate(canvas.cr(), radians(90));
  lever_handle(canvas, {0, 0}, 13, image == 0 ? Throw::down : Throw::up, 3.2);
}

void draw_heat_light(Canvas& canvas, int image) {
  round_light(canvas, {11.5, 11.5}, 9.2, palette::lamp_green, image == 1);
}

constexpr Art art[] = {
    background(490, draw_windshield_plate, "windshield heat panel"),
    {1010, 2, {40, 14}, draw_power_lever, "windshield heat lever: off, on"},
    {1020, 2, {24, 24}, draw_heat_light, "windshield heat light: dark, lit"},
    background(1050, draw_pitot_plate, "pitot heat panel"),
    background(1160, draw_engine_plate, "engine anti-ice panel"),
    {1170, 4, {17, 40}, draw_engine_knob, "engine anti-ice knob: off, on, off, on"},
    {2190, 4, {13, 42}, draw_heat_lever, "windshield heat selector: off, low, high, low"},
};

}  // namespace

const std::span<const Art> ice_panel_art = art;

}  // namespace artwork
