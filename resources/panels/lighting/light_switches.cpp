/// The two light-switch panels of the pedestal.
#include "resources/kit/lamp.h"
#include "resources/kit/metal.h"
#include "resources/kit/records.h"
#include "resources/kit/window.h"
#include "resources/panels/panels.h"
#include "resources/panels/shared/fittings.h"

namespace artwork {
namespace {

void name_lever(const Canvas& canvas, std::string_view panel, int nth, std::string_view name,
                double below) {
  const Box lever = part_box(panel, 4260, nth);
  engrave(canvas, {lever.centre().x, lever.bottom() + below}, name);
}

void draw_plate_with_test(Canvas& canvas, int) {
  constexpr std::string_view panel = "Lightsp";
  painted_plate(canvas);
  fit_parts(canvas, panel);
  const Box test = click_boxes(gauge(panel))[3];
  engrave(canvas, {test.centre().x, test.y - 8}, "FIRE\nTEST");
  // The fire test has no picture of its own.
  fixed_button(canvas, test.centre(), test.width / 2 - 2.5, palette::guard);
  const Box left = part_box(panel, 4310, 2), right = part_box(panel, 4310);
  sunk_field(canvas, {left.x - 2, left.y - 2, right.right() - left.x + 4, left.height + 4}, 2.5,
             palette::mould_dark);
  engrave(canvas, {(left.x + right.right()) / 2, left.bottom() + 10}, "LANDING");
  name_lever(canvas, panel, 0, "NAV", 7);
  name_lever(canvas, panel, 1, "RECG", 7);
}

/// A rocker that leans to one side, with a white bar that shows which.
void draw_rocker(Canvas& canvas, int image) {
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

void draw_exterior_plate(Canvas& canvas, int) {
  constexpr std::string_view panel = "Lightspp";
  painted_plate(canvas);
  fit_parts(canvas, panel);
  name_lever(canvas, panel, 0, "PANEL", 6);
  name_lever(canvas, panel, 1, "STRB", 6);
  name_lever(canvas, panel, 2, "TAXI", 6);
  name_lever(canvas, panel, 3, "BCN", 6);
  const double left = hub_of("Lightspp", 4260, 1).x, right = hub_of("Lightspp", 4260, 3).x;
  engrave(canvas, {(left + right) / 2, 7.5}, "EXTERIOR");
  engrave(canvas, {hub_of(panel, 4260).x, 7.5}, "INT");
}

constexpr Art art[] = {
    background(4280, draw_plate_with_test, "light switches and fire test"),
    background(4290, draw_exterior_plate, "exterior and panel light switches"),
    {4310, 2, {20, 23}, draw_rocker, "landing light rocker: off, on"},
};

}  // namespace

const std::span<const Art> light_switches_art = art;

}  // namespace artwork
