/// Horizontal situation indicator: the card with bug, course pointer and deviation bar; distances above,
/// course below, glide slope on the right.
#include "resources/art.h"
#include "resources/kit/dial.h"
#include "resources/kit/flight.h"
#include "resources/kit/knob.h"
#include "resources/kit/lamp.h"
#include "resources/kit/legend.h"
#include "resources/kit/lever.h"
#include "resources/kit/window.h"
#include "resources/rows/board.h"

namespace artwork::panels::hsi {

constexpr int open = 58;  // radius of the opening; the card is a little smaller
constexpr double slope_dots = 14.3, course_dots = 8.9;

void print_face(const Board& board, Colour ink) {
  const Canvas& canvas = board.canvas;
  const Point card = hub_of(board.gauge, "compass_card");
  for (int degrees = 0; degrees < 360; degrees += 45) {
    if (degrees == 180 || degrees == 270) continue;  // approach light and lubber line
    const Point mark[] = {polar(card, open + 2.6, degrees), polar(card, open + 6.6, degrees - 2.2),
                          polar(card, open + 6.6, degrees + 2.2)};
    fill(canvas, polygon(mark), ink);
  }
  deviation_dots(canvas, {167.5, card.y}, slope_dots, ink);
  const Lettering small{.size = 6.5, .colour = ink};
  print(canvas, {41, 13}, "DIST", small);
  print(canvas, {140, 11}, "NM", small);
  print(canvas, {37.5, 146.5}, "COURSE", small);
  print(canvas, {168, 134}, "GS", small);
  print(canvas, {20, 49}, "TEST", small);
  print(canvas, {18.5, 111}, "APP", small);
  print(canvas, {152, 174}, "CRS", small);
}

/// From above, in the middle of the card.
void draw_aircraft(const Canvas& canvas, Point c, Colour paint) {
  for (const Box part :
       {Box{c.x - 1, c.y - 6, 2, 15}, Box{c.x - 7, c.y - 1, 14, 2}, Box{c.x - 3, c.y + 6, 6, 2}}) {
    fill_hard(canvas, rounded(part, 0), paint);
  }
}

void draw_fixed(const Board& board) {
  draw_aircraft(board.canvas, hub_of(board.gauge, "compass_card"), symbol_paint(board.lighting));
  knob_seat(board.canvas, hub_of(board.gauge, "course_knob"), 12.6);
  lever_mount(board.canvas, hub_of(board.gauge, "test_switch"), 6.4);
}

constexpr Item items[] = {
    Face{{4, 4, 175, 178}, 13, print_face},
    Opening{at("compass_card"), {2 * open, 2 * open}, open},
    DrumFrame{"left_distance_hundreds", "left_distance_units"},
    DrumFrame{"right_distance_thousands", "right_distance_units"},
    DrumFrame{"course_hundreds", "course_units"},
    Ornament{draw_fixed},
};

void draw_test_switch(const Canvas& canvas, int image) {
  const Point hub = whole(canvas.size()).centre();
  constexpr Throw throws[] = {Throw::centre, Throw::up, Throw::down};
  lever_nut(canvas, hub, 4.4);
  lever_handle(canvas, hub, 9, throws[image], 2.4);
}

void draw_course_knob(const Canvas& canvas, int) {
  pointer_knob(canvas, whole(canvas.size()).centre(), 11.2, 0);
}

/// Head, tail and the scale of the deviation bar, which moves between them.
void draw_course_pointer(const Canvas& canvas, int) {
  const Point c{38.5, 52.5};
  const Colour ink = palette::command;
  edged(canvas,
        {{c.x, c.y - 41},
         {c.x + 6, c.y - 30},
         {c.x + 1.6, c.y - 30},
         {c.x + 1.6, c.y - 21},
         {c.x - 1.6, c.y - 21},
         {c.x - 1.6, c.y - 30},
         {c.x - 6, c.y - 30}},
        ink);
  command_bar(canvas, {c.x - 1.6, c.y + 21, 3.2, 19}, ink);
  for (const int dot : {-2, -1, 1, 2}) {
    stroke(canvas, circle({c.x + dot * course_dots, c.y}, 1.6), 0.9, palette::mark);
  }
}

/// On the card, in the gap of the pointer.
void draw_deviation_bar(const Canvas& canvas, int) {
  command_bar(canvas, {92.5 - 1.6, 93.5 - 20, 3.2, 40}, palette::command);
}

void draw_lubber_line(const Canvas& canvas, int) {
  edged(canvas, {{5.5, 9}, {1, 0.3}, {10, 0.3}}, palette::symbol);
}

/// Two lugs on the edge of the card.
void draw_heading_bug(const Canvas& canvas, int) {
  edged(canvas, {{51, 0.5}, {58.5, 0.5}, {58.5, 10.5}, {51, 10.5}, {51, 8.2}, {54, 5.5}, {51, 2.8}},
        palette::bug);
}

void draw_to_from(const Canvas& canvas, int image) {
  const Box slot = whole(canvas.size());
  const double x = slot.centre().x;
  if (image == 0)
    return line(canvas, {x - 2, slot.bottom() - 1}, {x + 2, slot.bottom() - 1}, 0.8,
                faded(palette::mark, 0.5));
  const double tip = image == 1 ? 0.5 : slot.bottom() - 0.5,
               base = image == 1 ? slot.bottom() - 0.5 : 0.5;
  edged(canvas, {{x, tip}, {slot.right() - 0.2, base}, {0.2, base}}, palette::mark);
}

void draw_slope_pointer(const Canvas& canvas, int) {
  side_pointer(canvas, whole(canvas.size()), 1, palette::command);
}

void draw_bearing_head(const Canvas& canvas, int) {
  edged(canvas, {{116, 5.5}, {104, 0.5}, {104, 4}, {88, 4}, {88, 7}, {104, 7}, {104, 10.5}},
        palette::lamp_green);
}

void draw_bearing_tail(const Canvas& canvas, int) {
  edged(canvas,
        {{2, 4}, {14, 4}, {14, 1}, {26, 1}, {30, 4}, {30, 7}, {26, 10}, {14, 10}, {14, 7}, {2, 7}},
        palette::lamp_green);
}

struct Word {
  std::string_view text;
  Colour colour;
};

void draw_annunciator(const Canvas& canvas, int image) {
  const Box box = whole(canvas.size());
  constexpr Word words[] = {{"HDG", palette::lamp_green},
                            {"OFF", palette::flag_red},
                            {"HLD", palette::lamp_amber},
                            {"NAV", palette::lamp_green}};
  drum_frame(canvas, box.grown(-1.8), Lighting::off);
  const Word& word = words[image];
  const Lettering lettering{.size = 7, .colour = image == 1 ? faded(word.colour, 0.75) : word.colour};
  if (image != 1) haze(canvas, 1.2, 0.7, [&] { print(canvas, box.centre(), word.text, lettering); });
  print(canvas, box.centre(), word.text, lettering);
}

constexpr Art art[] = {
    plate(186, items).in_full_colour(),
    drawn_art("test_switch", {13, 26}, draw_test_switch),
    drawn_art("course_knob", {25, 25}, draw_course_knob),
    compass_card_art("compass_card", {185, 191}, {.radius = 57.2, .figure_size = 9.5}),
    drawn_art("course_pointer", {77, 105}, draw_course_pointer),
    drawn_art("lubber_line", {11, 10}, draw_lubber_line),
    drawn_art("heading_bug", {60, 11}, draw_heading_bug),
    drawn_art("to_and_from", {9, 9}, draw_to_from),
    flag_art("test_flag", {9, 9}, {"T", InView::always}),
    drawn_art("glide_slope_pointer", {6, 13}, draw_slope_pointer),
    flag_art("glide_slope_flag", {16, 11}, {"GS", InView::always}),
    round_light_art("approach_light", {15, 15}, {.colour = lens::green, .radius = 5.6, .centre = 7.5}),
    drawn_art("annunciator", {21, 12}, draw_annunciator),
    drawn_art("course_deviation_bar", {185, 187}, draw_deviation_bar),
    drum_art("course_hundreds", {9, 14}, {.figure_size = 10.5}),
    // The bearing of a beacon, about the card's middle.
    drawn_art(spare(11130), {118, 11}, draw_bearing_head),
    drawn_art(spare(11140), {118, 11}, draw_bearing_tail),
};

constinit Unit unit{"Hsi", art};

}  // namespace artwork::panels::hsi
