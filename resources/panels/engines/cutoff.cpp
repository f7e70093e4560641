/// Fuel control: levers, pumps, crossfeed, and the lights of valves and low pressure.
#include "resources/art.h"
#include "resources/kit/knob.h"
#include "resources/kit/metal.h"
#include "resources/rows/board.h"

namespace artwork::panels::cutoff {

constexpr std::string_view lever_1 = "engine_1_fuel_lever", lever_2 = "engine_2_fuel_lever";
constexpr std::string_view left_aux = "left_auxiliary_switch", right_aux = "right_auxiliary_switch";
constexpr std::string_view pump_1 = "pump_1_switch", pump_2 = "pump_2_switch";
constexpr std::string_view crossfeed = "crossfeed_switch";

constexpr Point crossfeed_hub{6, 8};
constexpr double crossfeed_radius = 11.5;

/// The knob round its flow bar, which alone is seen to turn.
void draw_crossfeed_knob(const Board& board) {
  const Point hub = hub_of(board.gauge, crossfeed);
  knob_seat(board.canvas, hub, crossfeed_radius + 1.3);
  plain_knob(board.canvas, hub, crossfeed_radius);
}

/// Closed, the bar stands across the line from tank to tank.
void draw_crossfeed(const Canvas& canvas, int image) {
  constexpr double reach = 4.2;
  const Point way = image == 1 ? Point{reach, 0} : Point{0, reach};
  plain_knob(canvas, crossfeed_hub, crossfeed_radius);
  const auto bar = [&](double radius) {
    return capsule(crossfeed_hub - way, crossfeed_hub + way, radius, radius);
  };
  fill(canvas, bar(1.9), palette::well);
  fill(canvas, bar(1.3), palette::legend);
}

/// The gate that a fuel lever runs in: run at its top, off at its foot.
void draw_gate(const Canvas& canvas, Box box) {
  sunk_field(canvas, box, 3, palette::mould_dark);
  const double x = box.centre().x;
  const Box slot{x - 3, box.y + 5, 6, box.height - 10};
  fill(canvas, rounded(slot, 3), palette::black);
  set_linear(canvas, {slot.x, 0}, {slot.right(), 0},
             {{0, faded(palette::black, 0.8)}, {1, faded(palette::white, 0.35)}});
  stroke(canvas, rounded(slot, 3), 0.8);
}

void draw_lever_head(const Canvas& canvas, Box head) {
  cast_shadow(canvas, rounded(head, 3), 2.2, 0.8);
  set_linear(canvas, {0, head.y}, {0, head.bottom()},
             {{0, palette::steel_bright},
              {0.18, palette::steel_light},
              {0.55, palette::steel},
              {1, palette::steel_dark}});
  fill(canvas, rounded(head, 3));
  stroke(canvas, rounded(head.grown(-0.4), 2.6), 0.7, faded(palette::white, 0.35));
  for (double x = head.x + 4; x < head.right() - 3; x += 2.6) {
    line(canvas, {x, head.y + 3}, {x, head.bottom() - 3}, 0.9, faded(palette::black, 0.5));
    line(canvas, {x + 0.8, head.y + 3}, {x + 0.8, head.bottom() - 3}, 0.6, faded(palette::white, 0.45));
  }
}

/// Off, run.
void draw_fuel_lever(const Canvas& canvas, int image) {
  const Box gate = whole(canvas.size()).grown(-1.5);
  draw_gate(canvas, gate);
  const Point c = gate.centre() + Point{0, image == 1 ? -9.5 : 9.5};
  fill(canvas, capsule(gate.centre(), c, 2.2, 2.6), palette::steel_dark);
  draw_lever_head(canvas, {c.x - 15, c.y - 6.5, 30, 13});
}

constexpr Positions lever_words(Spot spot, Anchor anchor) {
  return {.spot = spot, .up = "RUN", .down = "OFF", .anchor = anchor, .reach = 11};
}

constexpr Item items[] = {
    Screw{{6, 6.5}, 14, 2.6},
    Screw{{-6, 6.5}, 59, 2.6},
    Ornament{draw_crossfeed_knob},
    Legend{at(lever_1, -28), "1", 12},
    Legend{at(lever_2, 28), "2", 12},
    lever_words(at(lever_1, 22), Anchor::left),
    lever_words(at(lever_2, -22), Anchor::right),
    Line{at(lever_1, 22).level_with(crossfeed), at(crossfeed, -15)},
    Line{at(crossfeed, 15), at(lever_2, -22)},
    Legend{at(crossfeed, 0, 19.8), "X-FEED", 7.5},
    right_of(left_aux, {.reach = 8}, 12),
    right_of(pump_1, {.reach = 8}, 12),
    left_of(pump_2, {.reach = 8}, 12),
    left_of(right_aux, {.reach = 8}, 12),
    Legend{at(left_aux, 1, 20), "AUX"},
    Legend{at(pump_1, 0, 20), "PUMP 1"},
    Legend{at(pump_2, 0, 20), "PUMP 2"},
    Legend{at(right_aux, -1, 20), "AUX"},
    Screw{between(pump_1, pump_2), 21},
    Bracket{at(pump_1, 0, 32), at(pump_2)},
    Legend{between(pump_1, pump_2, 0, 40), "BOOST PUMPS"},
    heading(between(pump_1, pump_2).level_with("left_feed_light"), "FUEL CONTROL", 10),
    beginning(at("left_feed_light", 11), "L FEED"),
    ending(at("right_feed_light", -11), "R FEED"),
};

constexpr Art art[] = {
    plate(148, items).in_full_colour(),
    drawn_art("engine_1_fuel_lever", {39, 43}, draw_fuel_lever),
    flush_lamp_art("pump_1_left_low_pressure_light", {22, 14}, lens::amber, "LP", 7.5),
    drawn_art("crossfeed_switch", {12, 16}, draw_crossfeed, crossfeed_hub),
    lever_art("pump_1_switch", {15, 30}, {Throw::down, Throw::up}, {.reach = 9, .ball = 3}),
    lever_art("pump_2_switch", {14, 24}, {Throw::down, Throw::up}, {.reach = 8.4, .ball = 3}),
    // Lit while the valve is closed.
    lamp_art("engine_1_fuel_valve_light", {28, 13},
             {.colours = lens::red,
              .text = "SHUT",
              .text_size = 7,
              .setting = Setting::flush,
              .lit_first = true}),
    round_light_art("right_feed_light", {14, 14}, {.colour = lens::green, .radius = 5.6, .centre = 7}),
};

constinit Unit unit{"Cutoff", art};

}  // namespace artwork::panels::cutoff
