/// Standby attitude indicator.
#include "resources/art.h"
#include "resources/kit/flight.h"
#include "resources/kit/legend.h"
#include "resources/rows/board.h"

namespace artwork::panels::adisafe {

constexpr int open = 35;  // radius of the opening

void print_face(const Board& board, Colour ink) {
  bank_scale(board.canvas, hub_of(board.gauge, "bank_pointer"), open + 3.2, 5, ink);
  print(board.canvas, {53, 94.5}, "STBY", {.size = 6.5, .colour = ink});
}

void draw_symbol(const Board& board) {
  aircraft_symbol(board.canvas, hub_of(board.gauge, "horizon"),
                  {.from = 8.5, .to = 20.5, .thick = 2, .drop = 5}, symbol_paint(Lighting::off));
}

constexpr Item items[] = {
    CornerScrews{7, 3},
    Face{{4.5, 5.5, 96, 96}, 48, print_face},
    // Between the points about which ball and pointer turn.
    Opening{between("horizon", "bank_pointer"), {2 * open, 2 * open}, open},
    Ornament{draw_symbol},
};

void draw_bank_pointer(const Canvas& canvas, int) {
  edged(canvas, {{2.5, 0.2}, {5, 7}, {0, 7}}, palette::symbol);
}

constexpr Art art[] = {
    plate(106, items),
    ball_art("horizon", {107, 140},
             {.per_degree = 1, .ladder = 22, .figure_size = 5.5, .mark_step = 5, .seen = open})
        .in_full_colour(),
    drawn_art("bank_pointer", {5, 39}, draw_bank_pointer),
};

constinit Unit unit{"Adisafe", art};

}  // namespace artwork::panels::adisafe
