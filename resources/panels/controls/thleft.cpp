/// Left half of the throttle pedestal: brake pressures, parking brake, throttle 1, speed brake.
#include "resources/kit/metal.h"
#include "resources/kit/quadrant.h"
#include "resources/panels/controls/accumulator_dial.h"
#include "resources/rows/board.h"

namespace artwork::panels::thleft {

constexpr std::string_view parking_brake = "parking_brake_lever", speed_brake = "speed_brake_switch";
constexpr std::string_view brake_control = "brake_control_switch";

constexpr LeverTravel throttle{112.5, 266, 190, 248, 162};
constexpr Point throttle_corner{28, 114};

constexpr LeverTravel speed_brake_travel{13, 130, 74, 120, 56};  // in its picture

void draw_throttle(const Canvas& canvas, int image) {
  throttle_lever(canvas, throttle.within(throttle_corner), image / 10.0, "1");
}

void draw_quadrant(const Board& board) {
  throttle_quadrant(board.canvas, throttle);
  placard(board.canvas, {9, 205, 60, 47}, "LANDING", "GEAR DOWN\nFLAPS 42\nDUMPERS ARM\nSPD BRK IN");
}

void draw_speed_brake_slot(const Board& board) {
  const Box picture = part_box(board.gauge, speed_brake);
  lever_slot(board.canvas, speed_brake_travel.within({-picture.x, -picture.y}), 6);
}

/// In, out: pulled back it is out.
void draw_speed_brake(const Canvas& canvas, int image) {
  const double at = image == 0 ? 1 : 0;
  const Point foot = speed_brake_travel.foot(at), grip = speed_brake_travel.grip(at);
  lever_arm(canvas, foot, grip, 3, 3.6);
  const Box head{grip.x - 11, grip.y - 7, 22, 14};
  cast_shadow(canvas, rounded(head, 4), 2.4, 0.7);
  set_linear(canvas, {0, head.y}, {0, head.bottom()},
             {{0, palette::steel_bright},
              {0.2, palette::steel_light},
              {0.6, palette::steel},
              {1, palette::steel_dark}});
  fill(canvas, rounded(head, 4));
  stroke(canvas, rounded(head.grown(-0.4), 3.6), 0.7, faded(palette::white, 0.4));
  for (double y = head.y + 3.5; y < head.bottom() - 2; y += 2.4) {
    line(canvas, {head.x + 3, y}, {head.right() - 3, y}, 0.9, faded(palette::black, 0.5));
    line(canvas, {head.x + 3, y + 0.8}, {head.right() - 3, y + 0.8}, 0.6, faded(palette::white, 0.4));
  }
}

/// The handle comes up out of its well, and its red shank with it.
void draw_parking_brake(const Canvas& canvas, int image) {
  const double x = canvas.size().width / 2.0, foot = 54;
  const double grip = image == 1 ? 12 : 40;
  const Box well{x - 9, foot - 6, 18, 12};
  sunk_field(canvas, well, 6, palette::well);
  if (image == 1) {
    const Box shank{x - 4, grip, 8, foot - grip};
    cast_shadow(canvas, rounded(shank, 2), 2.5, 0.6);
    set_linear(canvas, {shank.x, 0}, {shank.right(), 0},
               {{0, palette::guard_dark},
                {0.3, palette::guard_light},
                {0.6, palette::guard},
                {1, palette::guard_dark}});
    fill(canvas, rounded(shank, 2));
  }
  const Path bar = capsule({x - 10, grip}, {x + 10, grip}, 6, 6);
  cast_shadow(canvas, bar, image == 1 ? 1.8 : 1.2, 0.7);
  set_linear(canvas, {0, grip - 6}, {0, grip + 6},
             {{0, mixed(palette::mould_light, palette::steel_light, 0.5)},
              {0.4, palette::mould},
              {1, palette::mould_dark}});
  fill(canvas, bar);
  line(canvas, {x - 10, grip - 3.6}, {x + 9, grip - 3.6}, 1, faded(palette::white, 0.35));
}

/// The sensors' hundreds are thousands of psi divided by ten: 160 is 1,600 psi.
constexpr Print brake_psi[] = {
    Marks{0, 3, 1, 4.2, 1.4},
    Marks{0, 3, 0.5, 3.2, 0.9},
    Marks{0, 3, 0.1, 2, 0.5},
    Figures{{0, 1, 2, 3}, 5, 6},
};

constexpr Dial brake_dial(std::string_view left, std::string_view right, double rim, double off) {
  return {.radius = 32.5,
          .scales = {{.needle = left, .print = brake_psi, .per = 100, .rim = rim},
                     {.needle = right, .print = brake_psi, .per = 100, .rim = rim}},
          .words = {{"L", {-5, -19}, 6.5}, {"R", {5, -19}, 6.5}, {"PSI\u00d71000", {0, 19}, 5}},
          .boss = 2.8,
          .bezel = 3,
          .off = {off, 0}};
}

constexpr Item items[] = {
    Ornament{draw_quadrant},
    Ornament{draw_speed_brake_slot},
    brake_dial("upper_left_brake_pressure", "upper_right_brake_pressure", 22.5, 4),
    thousands_dial("upper_accumulator_pressure", "ACCU"),
    brake_dial("lower_left_brake_pressure", "lower_right_brake_pressure", 20.5, 6),
    thousands_dial("lower_accumulator_pressure", "ACCU"),
    heading({226, 24}, "BRAKES"),
    Legend{at("brake_test_light", 0, -18), "TEST"},
    FixedButton{at("brake_test_light"), 9.5, palette::mould_light},
    Legend{at(brake_control, 0, -29), "CONTROL", 7},
    left_of(brake_control),
    Legend{at(parking_brake, 0, 41), "PARK", 7.5},
    Legend{at(parking_brake, 0, 49), "BRAKE", 7.5},
    Legend{{245, 128}, "SPEED", 7.5},
    Legend{{245, 136}, "BRAKE", 7.5},
    beginning({136, throttle.foot_pushed}, "T.O."),
    beginning({136, throttle.foot_pulled}, "IDLE"),
    ending({229, 160}, "IN"),
    ending({229, 224}, "OUT"),
    Screw{{10, 10}, 20},
    Screw{{-10, -10}, 65},
    Screw{{10, -10}, 40},
    Screw{{-10, 10}, 5},
};

constexpr Art art[] = {
    plate(292, items).in_full_colour(),
    needle_art("upper_left_brake_pressure", {.length = 19.5, .half_width = 1.3}),
    drawn_art("throttle_1_lever", {142, 164}, draw_throttle),
    drawn_art("speed_brake_switch", {26, 144}, draw_speed_brake),
    drawn_art("parking_brake_lever", {36, 66}, draw_parking_brake),
};

constinit Unit unit{"Thleft", art};

}  // namespace artwork::panels::thleft
