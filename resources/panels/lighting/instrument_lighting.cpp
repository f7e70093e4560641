/// The pilots' lighting panels: a knob for the instruments, a button for the panels.
#include "resources/kit/knob.h"
#include "resources/kit/lamp.h"
#include "resources/kit/metal.h"
#include "resources/panels/panels.h"
#include "resources/panels/shared/fittings.h"

namespace artwork {
namespace {

/// From the lower left to straight up: on the right of the captain's knob is no room for words.
constexpr double turned(int position) { return -120 + 60.0 * position; }
constexpr double radius = 11;

void draw_knob_plate(const Canvas& canvas, Point hub) {
  knob_seat(canvas, hub, radius + 1.4);
  for (int position = 0; position < 3; ++position) {
    const double way = turned(position) - 90;
    engraved_line(canvas, polar(hub, radius + 2.4, way), polar(hub, radius + 4.4, way));
  }
  engrave(canvas, hub + Point{-16, 10}, "OFF", {}, Anchor::right);
  engrave(canvas, hub + Point{-16, -10}, "DIM", {}, Anchor::right);
  engrave(canvas, hub + Point{0, -20.5}, "BRT");
  engrave(canvas, hub + Point{0, 20}, "INSTR");
}

/// Where the two panels differ: which corner each screw has, and whose panel it is.
struct Panel {
  std::string_view gauge, owner;
  Point heading;
  std::initializer_list<Point> screws;
};

void draw_panel(const Canvas& canvas, const Panel& panel) {
  painted_plate(canvas);
  double slot = 15;
  for (const Point at : panel.screws) screw(canvas, at, 3.4, slot += 47);
  draw_knob_plate(canvas, part_box(panel.gauge, 13290).centre());
  const Box button = part_box(panel.gauge, 13310);
  engrave(canvas, {button.centre().x, button.y - 6}, "PANEL");
  engrave(canvas, panel.heading, panel.owner, {.size = heading_size});
}

void draw_captains_plate(Canvas& canvas, int) {
  draw_panel(canvas, {"Cainstlg", "CAPT\nLIGHTS", {67, 84}, {{8, 8}, {88, 8}, {8, 98}, {88, 98}}});
}

void draw_first_officers_plate(Canvas& canvas, int) {
  draw_panel(canvas, {"Foinstlg", "F/O\nLIGHTS", {78, 28}, {{96, 8}, {8, 90}, {96, 90}}});
}

void draw_knob(Canvas& canvas, int image) {
  pointer_knob(canvas, whole(canvas.size()).centre(), radius, turned(image));
}

void draw_button(Canvas& canvas, int image) {
  push_button(canvas, whole(canvas.size()), {palette::lamp_white, "ON"}, image == 1);
}

constexpr Art art[] = {
    background(13280, draw_captains_plate, "captain's lighting panel"),
    {13290, 3, {26, 26}, draw_knob, "instrument lighting knob: off, dim, bright"},
    {13310, 2, {26, 26}, draw_button, "panel lighting button: dark, lit"},
    background(20180, draw_first_officers_plate, "first officer's lighting panel"),
};

}  // namespace

const std::span<const Art> instrument_lighting_art = art;

}  // namespace artwork
