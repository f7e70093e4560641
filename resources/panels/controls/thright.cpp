/// Right half of the throttle pedestal: flap lever, throttle 2, two switches.
#include "resources/art.h"
#include "resources/kit/legend.h"
#include "resources/kit/metal.h"
#include "resources/kit/quadrant.h"
#include "resources/rows/board.h"

namespace artwork::panels::thright {

constexpr LeverTravel throttle{144.5, 164, 82, 146, 44};
constexpr Point throttle_corner{97, 0};

constexpr LeverTravel flaps{34.5, 167, 88, 151, 60};
constexpr Point flaps_corner{6, 30};
constexpr int last_detent = 5;

/// Up is pushed.
constexpr double flap_way(int detent) { return 1.0 - 1.0 * detent / last_detent; }

void draw_throttle(const Canvas& canvas, int image) {
  throttle_lever(canvas, throttle.within(throttle_corner), image / 10.0, "2");
}

void draw_quadrant(const Board& board) {
  throttle_quadrant(board.canvas, throttle);
  placard(board.canvas, {196, 29, 49, 61}, "STALL 36 T",
          "UP - 128\n6 - 122\n11 - 117\n18 - 112\n25 - 107\n42 - 100");
  placard(board.canvas, {196, 99, 49, 47}, "TAKE-OFF", "FLAPS 11\nTRIM SET\nDUMPERS IN\nSPD BRK IN");
}

/// The gate: a notch for each detent.
void draw_gate(const Board& board) {
  slot_field(board.canvas, flaps, 22, 46);
  lever_slot(board.canvas, flaps, 6);
  for (int detent = 0; detent <= last_detent; ++detent) {
    const Point foot = flaps.foot(flap_way(detent));
    level_mark(board.canvas, foot.x - 14, foot.x - 7, foot.y, 1.1, palette::legend);
    level_mark(board.canvas, foot.x + 7, foot.x + 26, foot.y, 1.1, palette::legend);
  }
}

/// The grip has the shape of a flap, seen along its span.
void draw_flap_lever(const Canvas& canvas, int detent) {
  const LeverTravel travel = flaps.within(flaps_corner);
  const double at = flap_way(detent);
  const Point foot = travel.foot(at), grip = travel.grip(at);
  lever_arm(canvas, foot, grip, 3.6, 4.4);
  const Box head{grip.x - 22, grip.y - 9, 44, 18};
  const Path shape = rounded(head, 7);
  cast_shadow(canvas, shape, 3, 0.7);
  set_linear(canvas, {0, head.y}, {0, head.bottom()},
             {{0, palette::white},
              {0.25, palette::legend},
              {0.7, mixed(palette::legend, palette::steel, 0.5)},
              {1, palette::steel_dark}});
  fill(canvas, shape);
  stroke(canvas, rounded(head.grown(-0.5), 6.5), 0.8, faded(palette::white, 0.6));
  print(canvas, grip, "FLAP", {.size = 8.5, .colour = palette::mould_dark});
}

constexpr Legend detent(int number, std::string_view degrees) {
  return beginning({62.5, flaps.foot(flap_way(number)).y}, degrees);
}

constexpr Item items[] = {
    Ornament{draw_quadrant},
    Ornament{draw_gate},
    heading({40, 14}, "FLAPS"),
    heading({150, 14}, "THROTTLES"),
    detent(0, "UP"),
    detent(1, "6"),
    detent(2, "11"),
    detent(3, "18"),
    detent(4, "25"),
    detent(5, "42"),
    beginning({168, throttle.foot_pushed}, "T.O."),
    beginning({168, throttle.foot_pulled}, "IDLE"),
    left_of("auxiliary_switch", {.up = "1", .down = "2"}),
    Legend{at("auxiliary_switch", 0, 26), "AUX"},
    ending(at("pedestal_selector_switch", -22), "1"),
    beginning(at("pedestal_selector_switch", 22), "2"),
    Legend{at("pedestal_selector_switch", 0, 18), "RECORDER"},
    Screw{{-10, 10}, 20},
    Screw{{-10, -10}, 65},
    Screw{{10, -10}, 40},
    Screw{{10, 10}, 5},
};

constexpr Art art[] = {
    plate(236, items).in_full_colour(),
    drawn_art("throttle_2_lever", {154, 178}, draw_throttle),
    lever_art("pedestal_selector_switch", {37, 16}, {Throw::centre, Throw::down, Throw::up},
              {.reach = 11, .ball = 3, .sideways = true, .mount = 7.6}),
    lever_art("auxiliary_switch", {30, 44}, {Throw::centre, Throw::down, Throw::up}),
    drawn_art("flap_lever", {57, 178}, draw_flap_lever),
};

constinit Unit unit{"Thright", art};

}  // namespace artwork::panels::thright
