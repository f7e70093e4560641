/// Bank, stabiliser and aileron trim beside one another, a lit button below each.
#include <string>

#include "resources/art.h"
#include "resources/kit/flight.h"
#include "resources/kit/legend.h"
#include "resources/kit/metal.h"
#include "resources/kit/records.h"
#include "resources/rows/board.h"

namespace artwork::panels::stabind {

constexpr Size stabiliser{11, 3}, aileron{3, 9};

/// Pixels to a degree, as the sliders' scales put them.
double per_degree(const Board& board, std::string_view slider) {
  const SliderPart& part = artwork::part(board.gauge, slider).slider;
  const double scale = part.x_scale != 0 ? part.x_scale : part.y_scale;
  return scale / 10;
}

void mark(const Canvas& canvas, Point from, Point to, double width) {
  line(canvas, from, to, width, palette::mark);
  canvas.note_mark({from, to});
}

/// Where the wing tips stand, and the middle above.
void print_bank(const Board& board) {
  const Point hub = hub_of(board.gauge, "bank_wings");
  for (const int degrees : {0, 30, 150, 180, 210, 330}) {
    const double reach = degrees % 180 == 0 ? 4 : 2.6;
    mark(board.canvas, polar(hub, 10.5, degrees), polar(hub, 10.5 + reach, degrees),
         degrees % 180 == 0 ? 1.3 : 0.8);
  }
}

void print_stabiliser(const Board& board) {
  const Point zero = part_box(board.gauge, "stabiliser_pointer").centre();
  const double pixels = per_degree(board, "stabiliser_pointer"), x = zero.x - 7.5;
  for (int degrees = -3; degrees <= 9; ++degrees) {
    const bool third = degrees % 3 == 0;
    const double y = zero.y + pixels * degrees;
    mark(board.canvas, {x - (third ? 5 : 3), y}, {x, y}, third ? 1.2 : 0.7);
  }
  const Lettering figures{.size = 6.5, .colour = palette::mark};
  for (const int degrees : {-3, 0, 3, 6}) {
    print(board.canvas, {x - 6.5, zero.y + pixels * degrees}, std::to_string(degrees), figures,
          Anchor::right);
  }
  print(board.canvas, {x - 6.5, zero.y + pixels * 9 + 2.5}, "9", figures, Anchor::right);
}

void print_aileron_trim(const Board& board) {
  const Point zero = part_box(board.gauge, "aileron_trim_pointer").centre();
  const double pixels = per_degree(board, "aileron_trim_pointer"), y = zero.y - 6;
  for (int degrees = -5; degrees <= 5; ++degrees) {
    const bool fifth = degrees % 5 == 0;
    const double x = zero.x + pixels * degrees;
    mark(board.canvas, {x, y - (fifth ? 5 : 3)}, {x, y}, fifth ? 1.2 : 0.7);
  }
  const Lettering letters{.size = 7, .colour = palette::mark};
  print(board.canvas, {zero.x + pixels * 5, y - 11}, "L", letters);
  print(board.canvas, {zero.x - pixels * 5, y - 11}, "R", letters);
}

constexpr Box glass{3, 1.2, 96, 62};

void draw_sheen(const Canvas& canvas) {
  set_linear(canvas, {glass.x, glass.y}, {glass.x + glass.width * 0.5, glass.bottom()},
             {{0, faded(palette::white, 0.16)},
              {0.5, faded(palette::white, 0.04)},
              {0.51, faded(palette::white, 0)}});
  fill(canvas, rounded(glass, 4));
}

void draw_face(const Board& board) {
  sunk_field(board.canvas, glass, 4, palette::face_dark);
  draw_sheen(board.canvas);
  line(board.canvas, {57.5, 6}, {57.5, 59}, 0.8, faded(palette::white, 0.16));
  print_bank(board);
  print_stabiliser(board);
  print_aileron_trim(board);
}

constexpr Item items[] = {
    Ornament{draw_face},
    Legend{at("bank_button", -1, 12.5), "BANK", 6},
    Legend{at("stabiliser_button", 0, 12.5), "STAB", 6},
    Legend{at("aileron_trim_button", 0, 12.5), "AIL", 6},
};

/// The wings from behind, the fuselage between them.
void draw_wings(const Canvas& canvas, int) {
  const Box picture = whole(canvas.size());
  fill(canvas, rounded({0, picture.height / 2 - 0.8, picture.width, 1.6}, 0.8), palette::symbol);
  fill(canvas, circle(picture.centre(), 1.5), palette::symbol);
}

void draw_stabiliser(const Canvas& canvas, int) {
  side_pointer(canvas, whole(canvas.size()), -1, palette::command);
}

void draw_aileron(const Canvas& canvas, int) {
  edged(canvas, {{1.5, 0}, {3, 3}, {3, 9}, {0, 9}, {0, 3}}, palette::command);
}

constexpr Art art[] = {
    plate(90, items),
    drawn_art("bank_wings", {17, 3}, draw_wings),
    drawn_art("stabiliser_pointer", stabiliser, draw_stabiliser),
    drawn_art("aileron_trim_pointer", aileron, draw_aileron),
    round_light_art("bank_button", {14, 14}, {.colour = lens::green, .radius = 5.6, .centre = 7}),
};

constinit Unit unit{"Stabind", art};

}  // namespace artwork::panels::stabind
