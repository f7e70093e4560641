/// Transponder: a mark on the plate for each figure of the code knobs.
#include "resources/kit/metal.h"
#include "resources/panels/radios/radio_parts.h"

namespace artwork::panels::transponder {

constexpr std::string_view knobs[] = {"first_code_knob", "second_code_knob", "third_code_knob",
                                      "fourth_code_knob"};
constexpr double knob_radius = 12.5;

void draw_code_knob_place(const Board& board, std::string_view name) {
  const Element& knob = part(board.gauge, name);
  const Point hub = hub_of(board.gauge, name);
  knob_seat(board.canvas, hub, knob_radius + 1.2);
  for (int figure = 0; figure < 8; ++figure) {
    const double degrees = needle_angle(knob, figure);
    engraved_line(board.canvas, polar(hub, knob_radius + 2.6, degrees),
                  polar(hub, knob_radius + (figure == 0 ? 5.6 : 4.4), degrees));
  }
}

void draw_head(const Board& board) {
  radios::display_frame(board, "display_power");
  radios::button_body(board.canvas, click_box(board.gauge, "ident_button"));
  for (const std::string_view knob : knobs) draw_code_knob_place(board, knob);
}

constexpr Legend mode(Point off, std::string_view text, Anchor anchor) {
  return {at("transponder_selector", off.x, off.y), text, 6.5, anchor};
}

constexpr Item items[] = {
    Screw{{7.5, 7.5}, 25, 3.4},
    Screw{{-7.5, 7.5}, 140, 3.4},
    Screw{{7.5, -7.5}, 82, 3.4},
    Screw{{-7.5, -7.5}, 11, 3.4},
    Ornament{draw_head},
    Legend{at("ident_button", 0, 13), "IDENT", 7},
    mode({-14, 8}, "OFF", Anchor::right),
    mode({-11, -10}, "SBY", Anchor::right),
    mode({11, -10}, "ON", Anchor::left),
    mode({14, 8}, "ALT", Anchor::left),
    heading(at("ident_button", 0, 27), "XPDR"),
};

/// It points to the right; the needle's record turns it.
void draw_code_knob(const Canvas& canvas, int) { pointer_knob(canvas, {13.5, 13.5}, knob_radius, 90); }

/// Caps for those who tell the knobs apart by touch: with a grip, with a flat, and small.
void draw_grip_cap(const Canvas& canvas, int) { bar_knob(canvas, {13.5, 13.5}, knob_radius, 90); }

void draw_flat_cap(const Canvas& canvas, int) {
  plain_knob(canvas, {13.5, 13.5}, knob_radius);
  fill(canvas, capsule({16.5, 13.5}, {23.5, 13.5}, 1.4, 0.7), palette::legend);
}

void draw_small_cap(const Canvas& canvas, int) {
  pointer_knob(canvas, {13.5, 13.5}, knob_radius * 0.72, 90);
}

void draw_ident_light(const Canvas& canvas, int image) {
  const Box box = whole(canvas.size());
  fill(canvas, rounded(box, 0.8), palette::well);
  lamp_lens(canvas, box.grown(-0.8), {lens::green, "IDENT", 6}, image == 1);
}

void draw_ident_button(const Canvas& canvas, int image) {
  const Box box = whole(canvas.size()).grown(-1);
  fill(canvas, rounded(box, 1.2), palette::well);
  lamp_lens(canvas, box.grown(-0.7), {lens::white}, image == 1);
}

constexpr Art art[] = {
    plate(106, items),
    drawn_art("first_code_knob", {27, 27}, draw_code_knob),
    drawn_art(spare(2420), {27, 27}, draw_grip_cap),
    drawn_art(spare(2430), {27, 27}, draw_flat_cap),
    drawn_art(spare(2440), {27, 27}, draw_small_cap),
    drawn_art("ident_light", {41, 8}, draw_ident_light),
    drawn_art("ident_button", {18, 10}, draw_ident_button),
    knob_art("transponder_selector", {19, 21}, {-120, -40, 40, 120},
             {.radius = 8.4, .seat = 1.2, .grip = Grip::pointer, .ticks = {2, 3.8}}),
    drawn_art("display_power", {45, 28}, radios::draw_shaded_glass),
};

constinit Unit unit{"Transponder", art};

}  // namespace artwork::panels::transponder
