/// Vertical speed on the left with its thumb wheel, the selected heading on the right.
#include <cmath>
#include <string>

#include "resources/art.h"
#include "resources/kit/flight.h"
#include "resources/kit/knob.h"
#include "resources/kit/lamp.h"
#include "resources/kit/legend.h"
#include "resources/kit/records.h"
#include "resources/rows/board.h"

namespace artwork::panels::apcourse {

constexpr std::string_view wheel = "vertical_speed_wheel", source = "navigation_source_button";
constexpr Spot thumb = between("vertical_speed_thumb_wheel_up", "vertical_speed_thumb_wheel_down");

/// The marks beside the window between which the selected speed stands.
void draw_index(const Board& board) {
  const Box window = part_box(board.gauge, wheel).grown(1.8);
  const double y = window.centre().y;
  edged(board.canvas, {{window.x + 0.6, y}, {window.x - 5, y - 3.4}, {window.x - 5, y + 3.4}},
        palette::symbol);
  edged(board.canvas,
        {{window.right() - 0.6, y}, {window.right() + 5, y - 3.4}, {window.right() + 5, y + 3.4}},
        palette::symbol);
}

void draw_controls(const Board& board) {
  const Point at = where(board, thumb);
  thumb_wheel(board.canvas, {at.x - 8.5, at.y - 26, 17, 52});
  knob_seat(board.canvas, hub_of(board.gauge, source), 9.5);
}

constexpr Item items[] = {
    CornerScrews{},
    DrumFrame{wheel, wheel},
    Ornament{draw_index},
    Ornament{draw_controls},
    Legend{at(wheel, 0, -28), "V/S \u00d7100"},
    Legend{at(source, 0, 14.4), "RNAV"},
    beginning(thumb.moved(12, -21), "UP", 7),
    beginning(thumb.moved(12, 21), "DN", 7),
    DrumFrame{"selected_heading_hundreds", "selected_heading_units"},
    Legend{at("selected_heading_tens", 0, -16), "HEADING"},
    FixedKnob{between("selected_heading_knob_down", "selected_heading_knob_up"), 12.6, 14, -20},
};

/// An arrow beside a figure says climb or descent.
void draw_figure(const Canvas& canvas, double y, double hundreds) {
  constexpr double middle = 24, arrow = 9;
  const int way = hundreds > 0 ? -1 : 1;
  print(canvas, {middle, y}, std::to_string(std::lround(std::abs(hundreds))),
        {.size = 10, .colour = palette::mark});
  if (hundreds == 0) return;
  const Point tip[] = {{arrow, y + 3 * way}, {arrow - 3, y - 2.4 * way}, {arrow + 3, y - 2.4 * way}};
  fill(canvas, polygon(tip), palette::mark);
}

/// Hundreds of feet a minute, climb above descent; where the record's range puts them.
void draw_wheel(const Canvas& canvas, int) {
  const Box box = whole(canvas.size());
  const MovingAxis& axis = part(gauge("Apcourse"), wheel).moving_image.y;
  const double window = box.height / 10;
  const auto place = [&](double value) {
    return window / 2 + (value - axis.minimum) / (axis.maximum - axis.minimum) * (box.height - window);
  };
  fill(canvas, rounded(box, 0), palette::face_dark);
  for (int hundreds = -65; hundreds <= 65; ++hundreds) {
    const double y = place(100.0 * hundreds);
    const bool five = hundreds % 5 == 0;
    line(canvas, {box.right() - (five ? 6 : 3.5), y}, {box.right(), y}, five ? 1.2 : 0.7,
         palette::mark);
    if (five) draw_figure(canvas, y, hundreds);
  }
}

/// It shines no farther than the ring in which it stands.
void draw_source_button(const Canvas& canvas, int image) {
  const Point centre = whole(canvas.size()).centre();
  const Saved saved(canvas);
  circle(centre, 6)(canvas.cr());
  cairo_clip(canvas.cr());
  round_light(canvas, centre, 5.4, palette::lamp_green, image == 1);
}

constexpr Art art[] = {
    plate(98, items),
    drawn_art("vertical_speed_wheel", {40, 400}, draw_wheel),
    drawn_art("navigation_source_button", {12, 12}, draw_source_button),
};

constinit Unit unit{"Apcourse", art};

}  // namespace artwork::panels::apcourse
