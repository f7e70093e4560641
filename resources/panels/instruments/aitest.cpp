/// Approach timers, the quick and the slow one: a lamp, a window and a button.
#include "resources/art.h"
#include "resources/kit/window.h"
#include "resources/rows/board.h"

namespace artwork::panels::aitest {

/// As much of the read-out's window as the plate has room for.
void draw_window(const Board& board) {
  const Box text = part_box(board.gauge, "timer_window");
  display_window(board.canvas, {text.x, text.y, 24, text.height - 4});
}

constexpr Item items[] = {
    Ornament{draw_window},
    FixedButton{at("timer_button", 2, 0), 9.4, palette::mould_light},
    Legend{middle(30), "TIMER", 7},
    Legend{middle(79), "START", 6.5},
};

constexpr Art art[] = {plate(84, items)};

constinit Unit unit{"Aitest", art};

}  // namespace artwork::panels::aitest
