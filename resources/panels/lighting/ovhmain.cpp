/// The overhead's front row of light switches.
#include "resources/kit/lamp.h"
#include "resources/kit/lever.h"
#include "resources/kit/metal.h"
#include "resources/panels/panels.h"
#include "resources/panels/shared/fittings.h"

namespace artwork {
namespace {

constexpr std::string_view panel = "Ovhmain";
constexpr Point lever_hub{6.5, 21};
constexpr int rockers = 4;

void draw_plate(Canvas& canvas, int) {
  painted_plate(canvas);
  const Box plate = whole(canvas.size());
  constexpr std::string_view names[] = {"STRB", "TAXI", "BCN"};
  for (int nth = 0; nth < 3; ++nth) {
    const Box button = part_box(panel, 13230, nth);
    engrave(canvas, {button.centre().x, plate.height - 7}, names[nth]);
  }
  const Box lever = part_box(panel, 13240);
  const Point hub = Point{lever.x, lever.y} + lever_hub;
  polish(canvas, hub, 15);
  lever_mount(canvas, hub, 8);
  engrave(canvas, {hub.x - 14, hub.y}, "NAV", {.size = heading_size}, Anchor::right);
  const Box bank = part_box(panel, 13220);
  engrave(canvas, {bank.right() + 15, bank.height / 2}, "LDG\nLTS", {.size = heading_size});
  screw(canvas, {198, 8}, 3, 12);
  screw(canvas, {198, plate.height - 8}, 3, 77);
  screw(canvas, {316, 8}, 3, 40);
  screw(canvas, {316, plate.height - 8}, 3, 5);
}

void draw_rocker(const Canvas& canvas, Box box, bool on) {
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
  lamp_lens(canvas, {cap.x + 4, cap.y + 4, cap.width - 8, 8}, {palette::lamp_green}, on);
}

/// Four rockers under one bar: they move together.
void draw_bank(Canvas& canvas, int image) {
  const Box frame = whole(canvas.size()).grown(-2.5);
  cast_shadow(canvas, rounded(frame, 3), 1.2, 0.5);
  set_linear(canvas, {frame.x, frame.y}, {frame.x, frame.bottom()},
             {{0, palette::mould_light}, {0.5, palette::mould}, {1, palette::mould_dark}});
  fill(canvas, rounded(frame, 3));
  stroke(canvas, rounded(frame.grown(-0.4), 2.8), 0.7, faded(palette::white, 0.25));
  const double pitch = (frame.width - 6) / rockers;
  for (int i = 0; i < rockers; ++i) {
    draw_rocker(canvas, {frame.x + 3 + i * pitch + 2, frame.y + 3.5, pitch - 4, frame.height - 7},
                image == 1);
  }
}

void draw_button(Canvas& canvas, int image) {
  push_button(canvas, whole(canvas.size()), {palette::lamp_white, "ON", 7.5}, image == 1);
}

void draw_lever(Canvas& canvas, int image) {
  lever_nut(canvas, lever_hub, 6);
  lever_handle(canvas, lever_hub, 14, image == 0 ? Throw::down : Throw::up, 3.2);
}

constexpr Art art[] = {
    background(13210, draw_plate, "overhead light switches"),
    {13220, 2, {160, 40}, draw_bank, "landing light bank: off, on"},
    {13230, 2, {24, 24}, draw_button, "light button: dark, lit"},
    {13240, 2, {13, 42}, draw_lever, "navigation light lever: down, up"},
};

}  // namespace

const std::span<const Art> ovhmain_art = art;

}  // namespace artwork
