/// Attitude director indicator: the ball under its bank scale, speed deviation on the left, glide slope
/// on the right, the slip ball below.
#include "resources/art.h"
#include "resources/kit/flight.h"
#include "resources/kit/lamp.h"
#include "resources/kit/legend.h"
#include "resources/kit/records.h"
#include "resources/rows/board.h"

namespace artwork::panels::adi {

constexpr int open = 58;  // radius of the opening
constexpr double slope_dots = 13.1, speed_marks = 7.2;

void print_face(const Board& board, Colour ink) {
  const Canvas& canvas = board.canvas;
  const Point ball = hub_of(board.gauge, "bank_pointer");
  bank_scale(canvas, ball, open + 3, 6.5, ink);
  deviation_dots(canvas, {156.7, ball.y + 0.5}, slope_dots, ink);
  for (const double mark : {-2.0, -1.0, 0.0, 1.0, 2.0}) {
    const double half = mark == 0 ? 3 : 1.9, y = ball.y + mark * speed_marks;
    line(canvas, {13.5 - half, y}, {13.5 + half, y}, mark == 0 ? 1.6 : 0.9, ink);
  }
  const Lettering small{.size = 7, .colour = ink};
  print(canvas, {20, ball.y - 29}, "FAST", small);
  print(canvas, {20.5, ball.y + 29}, "SLOW", small);
  print(canvas, {165, ball.y + 38}, "GS", small);
  print(canvas, hub_of(board.gauge, "decision_height_light") + Point{0, -13.5}, "DH", small);
}

/// The tube's bed: pale liquid, in which the ball is seen.
void draw_slip_bed(const Canvas& canvas, Box tube) {
  const Box bed = tube.grown(-2);
  fill(canvas, rounded(tube, 7), palette::mould_dark);
  set_linear(canvas, {0, bed.y}, {0, bed.bottom()},
             {{0, rgb(0x8E9A6C)}, {0.45, rgb(0xDDE3B8)}, {1, rgb(0x7C8760)}});
  fill(canvas, rounded(bed, 6));
}

void draw_fixed(const Board& board) {
  aircraft_symbol(board.canvas, hub_of(board.gauge, "horizon"),
                  {.from = 13.5, .to = 33.5, .thick = 3, .drop = 7}, symbol_paint(board.lighting));
  round_light(board.canvas, hub_of(board.gauge, "decision_height_light"), 7, palette::lamp_amber,
              false);
  draw_slip_bed(board.canvas, part_box(board.gauge, "slip_ball_tube"));
}

constexpr Item items[] = {
    Screw{{9, 13}, 20, 3.2},
    Screw{{-9, 13}, 65, 3.2},
    Face{{4, 27, 175, 191}, 14, print_face},
    Opening{at("horizon"), {2 * open, 2 * open}, open},
    Ornament{draw_fixed},
};

void draw_command_bar(const Canvas& canvas, int) {
  command_bar(canvas, whole(canvas.size()), palette::command);
}

/// A sky pointer: its tip is at the bank scale.
void draw_bank_pointer(const Canvas& canvas, int) {
  edged(canvas, {{3.5, 0.2}, {7, 9}, {0, 9}}, palette::symbol);
}

void draw_slope_pointer(const Canvas& canvas, int) {
  side_pointer(canvas, whole(canvas.size()), -1, palette::command);
}

void draw_speed_pointer(const Canvas& canvas, int) {
  side_pointer(canvas, whole(canvas.size()), -1, palette::symbol);
}

/// The runway's near end; it widens toward the pilot.
void draw_rising_runway(const Canvas& canvas, int) {
  const Point outline[] = {{6, 1}, {19, 1}, {24, 17}, {1, 17}};
  const Path runway = polygon(outline);
  fill(canvas, runway, faded(palette::steel_deep, 0.75));
  const Saved saved(canvas);
  runway(canvas.cr());
  cairo_clip(canvas.cr());
  stroke(
      canvas, [&](cairo_t* cr) { runway(cr), cairo_close_path(cr); }, 2.6, palette::mark);
  cairo_reset_clip(canvas.cr());
  line(canvas, {12.5, 3.5}, {12.5, 8}, 1.2, palette::mark);
}

void draw_runway_symbol(const Canvas& canvas, int) {
  edged(canvas, {{6.5, 0.5}, {12.5, 9.5}, {0.5, 9.5}}, palette::lamp_green);
}

void draw_decision_height_light(const Canvas& canvas, int) {
  round_light(canvas, whole(canvas.size()).centre(), 7, palette::lamp_amber, true);
}

void draw_slip_ball(const Canvas& canvas, int) {
  const Point c = whole(canvas.size()).centre();
  set_radial(canvas, c + Point{-1.8, -2.2}, c, 5.3,
             {{0, palette::steel}, {0.35, palette::mould}, {1, palette::well}});
  fill(canvas, circle(c, 5.3));
}

/// Two wires and the glass.
void draw_slip_tube(const Canvas& canvas, int) {
  const Box tube = whole(canvas.size());
  const Point c = tube.centre();
  for (const double side : {-6.5, 6.5}) {
    line(canvas, {c.x + side, 2}, {c.x + side, tube.bottom() - 2}, 1.4, palette::well);
  }
  fill(canvas, rounded({6, 3, tube.width - 12, 2.2}, 1.1), faded(palette::white, 0.5));
  stroke(canvas, rounded(tube.grown(-1), 6.5), 2, palette::mould);
  set_linear(canvas, {0, 0}, {0, tube.bottom()},
             {{0, faded(palette::black, 0.5)},
              {0.6, faded(palette::white, 0.05)},
              {1, faded(palette::white, 0.35)}});
  stroke(canvas, rounded(tube.grown(-0.4), 7), 0.8);
}

/// Lamps at the tube's ends.
void draw_slip_lighting(const Canvas& canvas, int image) {
  const Box bed = whole(canvas.size()).grown(-2);
  const double strength = image == 1 ? 0.55 : 0.12;
  set_linear(canvas, {bed.x, 0}, {bed.right(), 0},
             {{0, faded(palette::filament_wash, strength)},
              {0.38, faded(palette::filament, strength * 0.1)},
              {0.62, faded(palette::filament, strength * 0.1)},
              {1, faded(palette::filament_wash, strength)}});
  fill(canvas, rounded(bed, 6));
}

constexpr Art art[] = {
    plate(222, items).in_full_colour(),
    flag_art("attitude_flag", {50, 16}, {"ATT", InView::second, 9}),
    ball_art("horizon", {187, 272},
             {.per_degree = 2, .ladder = 42, .figure_size = 7.5, .mark_step = 2.5, .seen = open})
        .in_full_colour(),
    drawn_art("flight_director_pitch_bar", {55, 3}, draw_command_bar),
    drawn_art("flight_director_bank_bar", {3, 75}, draw_command_bar),
    drawn_art("glide_slope_pointer", {13, 8}, draw_slope_pointer),
    drawn_art("runway_symbol", {13, 10}, draw_runway_symbol),
    drawn_art("rising_runway", {25, 18}, draw_rising_runway),
    flag_art("glide_slope_flag", {16, 11}, {"GS", InView::always}),
    drawn_art("bank_pointer", {7, 60}, draw_bank_pointer),
    drawn_art("speed_deviation_pointer", {13, 6}, draw_speed_pointer),
    drawn_art("decision_height_light", {19, 19}, draw_decision_height_light),
    drawn_art("slip_ball", {11, 12}, draw_slip_ball),
    drawn_art("slip_ball_lighting", {53, 17}, draw_slip_lighting),
    drawn_art("slip_ball_tube", {53, 17}, draw_slip_tube),
};

constinit Unit unit{"Adi", art};

}  // namespace artwork::panels::adi
