/// Fuel request: the lever that calls for fuel, and a placard of what the tanks take.
#include "resources/art.h"
#include "resources/kit/legend.h"
#include "resources/kit/metal.h"
#include "resources/rows/board.h"

namespace artwork::panels::fuelreq {

/// Usable gallons.
void draw_capacities(const Board& board) {
  constexpr Box placard{94, 8, 90, 54};
  constexpr std::string_view lines[][2] = {
      {"LEFT", "1280"}, {"CENTRE", "830"}, {"RIGHT", "1280"}, {"TOTAL", "3390"}};
  constexpr Lettering small{.size = 7, .colour = palette::mark};
  const Canvas& canvas = board.canvas;
  sunk_field(canvas, placard, 1.5, palette::mould_dark);
  print(canvas, {placard.centre().x, placard.y + 7}, "CAPACITY US GAL", small);
  line(canvas, {placard.x + 4, placard.y + 12}, {placard.right() - 4, placard.y + 12}, 0.7,
       faded(palette::mark, 0.6));
  double y = placard.y + 18;
  for (const auto& line : lines) {
    print(canvas, {placard.x + 6, y}, line[0], small, Anchor::left);
    print(canvas, {placard.right() - 6, y}, line[1], small, Anchor::right);
    y += 9.6;
  }
}

constexpr Item items[] = {
    Screw{{7.5, 8.5}, 33, 3.2},
    Screw{{7.5, -8.5}, 78, 3.2},
    right_of("fuel_request_lever", {.up = "REQ", .down = "OFF"}, 12),
    heading(at("fuel_request_lever", 11, -26.5), "FUEL REQUEST"),
    Ornament{draw_capacities},
};

constexpr Art art[] = {
    plate(70, items),
};

constinit Unit unit{"Fuelreq", art};

}  // namespace artwork::panels::fuelreq
