/// Fuel computer: a display for each side over that of the weight, mode buttons, and dots.
#include "resources/art.h"
#include "resources/kit/legend.h"
#include "resources/kit/window.h"
#include "resources/rows/board.h"

namespace artwork::panels::ffsys {

// The boxes of the displays are wider than their figures and overlap one another.
constexpr Box sides{35.5, 10, 88, 24.5}, weight{61.5, 38, 41, 18.5};

void draw_displays(const Board& board) {
  display_window(board.canvas, sides);
  display_window(board.canvas, weight);
  const double x = board.canvas.snapped(79.5);
  line(board.canvas, {x, sides.y}, {x, sides.bottom()}, 2, palette::mould);
  line(board.canvas, {x + 1, sides.y}, {x + 1, sides.bottom()}, 0.6, faded(palette::white, 0.2));
}

void draw_dot(const Canvas& canvas, Point c, Colour colour, bool lit) {
  if (lit) soft(canvas, circle(c, 2), faded(colour, 0.9), 0.9);
  fill(canvas, circle(c, 2.4), palette::well);
  set_radial(canvas, c, c, 1.9,
             {{0, lit ? mixed(colour, palette::white, 0.6) : mixed(palette::well, colour, 0.45)},
              {1, lit ? colour : mixed(palette::well, colour, 0.25)}});
  fill(canvas, circle(c, 1.9));
}

/// Its word and dot stand in the lower edge of the glass, below the figures.
void draw_low_fuel_dot(const Canvas& canvas, int image) {
  const Colour amber = palette::lamp_amber;
  const Box room = whole(canvas.size());
  const double y = room.height - 3.5;
  draw_dot(canvas, {room.width - 3, y}, amber, image == 1);
  print(canvas, {2, y}, "LO", {.size = 6, .colour = mixed(palette::well, amber, image == 1 ? 1 : 0.4)},
        Anchor::left);
}

/// Right of the weight's figures.
void draw_test_dot(const Canvas& canvas, int image) {
  const Box room = whole(canvas.size());
  draw_dot(canvas, {room.width - 3, room.centre().y}, palette::lamp_green, image == 1);
}

void draw_mode_dot(const Canvas& canvas, int image) {
  draw_dot(canvas, whole(canvas.size()).centre(), palette::lamp_green, image == 1);
}

constexpr FixedButton button(std::string_view area, double radius) {
  return {at(area), radius, palette::mould_light};
}

constexpr std::string_view power = "fuel_computer_power_button", reset = "reset_button",
                           used = "fuel_used_mode_button", weight_mode = "weight_mode_button";

constexpr Item items[] = {
    Legend{{17, 9}, "FUEL", 7},
    Legend{{17, 17}, "CMPTR", 7},
    button(power, 7.6),
    button(reset, 7.6),
    button(used, 6.8),
    button(weight_mode, 6.8),
    Legend{at(power, 0, 13), "PWR", 7},
    ending({-2.5, 5}, "RESET", 6),
    Legend{at(used, 0, 12), "USED", 7},
    Legend{at(weight_mode, 0, 12), "WT", 7},
    Ornament{draw_displays},
    Legend{{120, 55}, "TEST", 7},
};

constexpr Art art[] = {
    plate(64, items),
    drawn_art("left_low_fuel_dot", {16, 21}, draw_low_fuel_dot),
    drawn_art("left_check_dot", {22, 8}, draw_test_dot),
    drawn_art("weight_mode_dot", {6, 6}, draw_mode_dot),
};

constinit Unit unit{"Ffsys", art};

}  // namespace artwork::panels::ffsys
