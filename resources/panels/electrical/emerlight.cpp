/// Emergency lights: off, armed, on and back over armed, with a light for each state.
#include "resources/kit/lamp.h"
#include "resources/kit/lever.h"
#include "resources/kit/metal.h"
#include "resources/panels/panels.h"
#include "resources/panels/shared/fittings.h"

namespace artwork {
namespace {

constexpr std::string_view panel = "Emerlight";
constexpr Point hub{6.5, 23.5};

void draw_plate(Canvas& canvas, int) {
  painted_plate(canvas);
  const Box lever = part_box(panel, 1230);
  const Point at = Point{lever.x, lever.y} + hub;
  polish(canvas, at, 17);
  lever_mount(canvas, at);
  // One word for the lever's upper position and for the bar of light beside it.
  engrave(canvas, {at.x + 12, part_box(panel, 1240).centre().y}, "ON", {}, Anchor::left);
  engrave(canvas, {at.x + 12, at.y + 14.5}, "OFF", {}, Anchor::left);
  engrave(canvas, {canvas.size().width / 2.0, part_box(panel, 1260).y - 2.5}, "EMER LTS");
  screw(canvas, {canvas.size().width - 7.5, 7.5}, 3, 40);
}

void draw_switch(Canvas& canvas, int image) {
  constexpr Throw thrown[] = {Throw::down, Throw::centre, Throw::up, Throw::centre};
  lever_nut(canvas, hub, 6);
  lever_handle(canvas, hub, 12.5, thrown[image], 3);
}

/// A bar of light over the lever.
void draw_on_bar(Canvas& canvas, int image) {
  const Box bar = whole(canvas.size()).grown(-1);
  if (image == 1) soft(canvas, rounded(bar, 1), faded(palette::lamp_green, 0.7), 0.8);
  lamp_housing(canvas, bar);
  const Box lens = bar.grown(-0.8);
  lamp_lens(canvas, lens, {palette::lamp_green}, image == 1);
  // So small a lens would lose its tint among its own edges.
  if (image == 0) fill(canvas, rounded(lens, 1), faded(palette::lamp_green, 0.28));
}

void draw_armed_lamp(Canvas& canvas, int image) {
  lamp(canvas, whole(canvas.size()), {palette::lamp_green, "ARM", 7.5}, image == 1);
}

void draw_unarmed_lamp(Canvas& canvas, int image) {
  lamp(canvas, whole(canvas.size()), {palette::lamp_amber, "NOT ARM", 7.5}, image == 1);
}

constexpr Art art[] = {
    background(1220, draw_plate, "emergency lights panel"),
    {1230, 4, {13, 43}, draw_switch, "emergency lights lever: off, arm, on, arm"},
    {1240, 2, {13, 6}, draw_on_bar, "on bar: dark, lit"},
    {1250, 2, {31, 20}, draw_armed_lamp, "armed lamp: dark, lit"},
    {1260, 2, {50, 20}, draw_unarmed_lamp, "not armed lamp: dark, lit"},
};

}  // namespace

const std::span<const Art> emerlight_art = art;

}  // namespace artwork
