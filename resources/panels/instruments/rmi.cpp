/// Radio magnetic indicator: a card, a single and a double bearing needle, and a distance for each.
#include "resources/art.h"
#include "resources/kit/flight.h"
#include "resources/kit/legend.h"
#include "resources/kit/needle.h"
#include "resources/kit/paint.h"
#include "resources/rows/board.h"

namespace artwork::panels::rmi {

constexpr int open = 43;  // radius of the opening

/// The card turns about a point 3 px lower by its own lamps than by day, and the needles the other way:
/// all is drawn about the middle between.
constexpr Spot card = between("compass_card", "left_bearing");

void print_face(const Board& board, Colour ink) {
  const Canvas& canvas = board.canvas;
  const Point centre = where(board, card);
  for (int degrees = 0; degrees < 360; degrees += 45) {
    if (degrees == 270) continue;
    line(canvas, polar(centre, open + 2.4, degrees), polar(centre, open + 5.4, degrees), 1.2, ink);
  }
  const Point index[] = {polar(centre, open - 1, -90), polar(centre, open + 7, -94.5),
                         polar(centre, open + 7, -85.5)};
  fill(canvas, polygon(index), ink);
  const Lettering words{.size = 7, .colour = ink}, small{.size = 6.5, .colour = ink};
  print(canvas, {41, 16}, "DME 1", words);
  print(canvas, {103, 16}, "DME 2", words);
  print(canvas, {21.5, 124.5}, "VOR", small);
  print(canvas, {120.5, 124.5}, "VOR", small);
  print(canvas, {44.5, 149.5}, "ADF", small);
  print(canvas, {98.5, 149.5}, "ADF", small);
}

constexpr Item items[] = {
    Face{{3, 3, 135, 154}, 12, print_face},
    Opening{card, {2 * open, 2 * open}, open},
    DrumFrame{"left_distance_hundreds", "left_distance_tenths"},
    DrumFrame{"right_distance_hundreds", "right_distance_tenths"},
};

/// The pivot of both needles in their pictures.
constexpr Point pivot{43.5, 6.5};

void draw_single_needle(const Canvas& canvas, int) {
  const double y = pivot.y, tip = pivot.x + 37, tail = pivot.x - 37;
  command_bar(canvas, {tail, y - 1.5, 74 - 8, 3}, palette::lamp_green);
  edged(canvas, {{tip, y}, {tip - 11, y - 4.6}, {tip - 11, y + 4.6}}, palette::lamp_green);
  needle_cap(canvas, pivot, 4.6);
}

/// Two bars with a broad head.
void draw_double_needle(const Canvas& canvas, int) {
  const double y = pivot.y, tip = pivot.x + 37, tail = pivot.x - 37;
  for (const double side : {-3.6, 3.6}) {
    command_bar(canvas, {tail, y + side - 1.1, 74 - 9, 2.2}, palette::command);
  }
  edged(canvas,
        {{tip, y},
         {tip - 11, y - 6.3},
         {tip - 11, y - 2.4},
         {tip - 7, y},
         {tip - 11, y + 2.4},
         {tip - 11, y + 6.3}},
        palette::command);
}

constexpr Drum figures{.figure_size = 12, .step = 1, .blank_below_zero = true};
constexpr Drum tenths{.figure_size = 12,
                      .step = 1,
                      .ink = palette::well,
                      .ground = palette::mark,
                      .blank_below_zero = true};

constexpr Art art[] = {
    plate(160, items),
    compass_card_art("compass_card", {145, 150},
                     {.radius = open + 3, .figure_size = 8.5, .off = {0, 1.5}}),
    knob_art("left_bearing_selector", {22, 22}, {0, 180},
             {.radius = 9.2, .seat = 1.4, .grip = Grip::pointer}),
    flag_art("left_signal_flag", {27, 9}, {"NAV"}),
    flag_art("right_signal_flag", {27, 9}, {"NAV"}),
    drawn_art("left_bearing", {87, 13}, draw_single_needle),
    drawn_art("right_bearing", {87, 13}, draw_double_needle),
    drum_art("left_distance_hundreds", {12, 16}, figures),
    drum_art("left_distance_tenths", {12, 16}, tenths),
};

constinit Unit unit{"Rmi", art};

}  // namespace artwork::panels::rmi
