/// The pushback console: the tail's heading on the left; left, straight and right beside one another, each with
/// its programme's button, the button by hand, and its setting below.
#include <cmath>

#include "resources/art.h"
#include "resources/kit/dial.h"
#include "resources/kit/lamp.h"
#include "resources/kit/legend.h"
#include "resources/kit/metal.h"
#include "resources/kit/records.h"
#include "resources/kit/window.h"
#include "resources/rows/board.h"

namespace artwork::panels::pushback {

// ---- Buttons

enum class Way { left, back, right };

/// An arrow toward where the tail goes.
void draw_arrow(const Canvas& canvas, Point c, double size, Way way, Colour ink) {
  constexpr double turned[] = {90, 0, -90};
  const Saved saved(canvas);
  cairo_translate(canvas.cr(), c.x, c.y);
  cairo_rotate(canvas.cr(), radians(turned[static_cast<int>(way)]));
  const Point shape[] = {{0, size},
                         {-size * 0.95, 0},
                         {-size * 0.38, 0},
                         {-size * 0.38, -size},
                         {size * 0.38, -size},
                         {size * 0.38, 0},
                         {size * 0.95, 0}};
  fill(canvas, polygon(shape), ink);
}

void draw_cap(const Canvas& canvas, Box box, double corner) {
  const Box cap = box.grown(-1);
  cast_shadow(canvas, rounded(cap, corner), 1.4, 0.7);
  set_slope(canvas, cap, {{0, palette::steel_dark}, {0.5, palette::mould}, {1, palette::mould_dark}});
  fill(canvas, rounded(cap, corner));
  set_slope(canvas, cap,
            {{0, faded(palette::white, 0.45)},
             {0.5, faded(palette::white, 0.06)},
             {1, faded(palette::black, 0.6)}});
  stroke(canvas, rounded(cap.grown(-0.5), corner - 0.4), 0.8);
}

void draw_key(const Board& board, std::string_view area, bool up) {
  const Box box = click_box(board.gauge, area);
  draw_cap(board.canvas, box, 2);
  const Point c = box.centre();
  line(board.canvas, {c.x - 2.6, c.y}, {c.x + 2.6, c.y}, 1.3, palette::legend);
  if (up) line(board.canvas, {c.x, c.y - 2.6}, {c.x, c.y + 2.6}, 1.3, palette::legend);
}

constexpr Lettering cap_words{.size = 5.5};

void draw_hand_button(const Board& board, std::string_view area, Way way) {
  const Box box = click_box(board.gauge, area);
  const Point c = box.centre();
  draw_cap(board.canvas, box, 3);
  draw_arrow(board.canvas, c - Point{8, 0}, 4.4, way, palette::legend);
  print(board.canvas, c + Point{5.5, 0}, "MAN", cap_words);
}

void draw_programme_button(const Board& board, std::string_view area) {
  const Box box = click_box(board.gauge, area);
  draw_cap(board.canvas, box, 3);
  print(board.canvas, {box.centre().x, box.bottom() - 3.8}, "AUTO", cap_words);
}

void draw_buttons(const Board& board) {
  for (const std::string_view area :
       {"automatic_push_left", "automatic_push_back", "automatic_push_right"}) {
    draw_programme_button(board, area);
  }
  draw_hand_button(board, "manual_push_left", Way::left);
  draw_hand_button(board, "manual_push_back", Way::back);
  draw_hand_button(board, "manual_push_right", Way::right);
  for (const std::string_view setting :
       {"heading_setting", "left_angle_setting", "distance_setting", "right_angle_setting"}) {
    draw_key(board, std::string(setting) + "_down", false);
    draw_key(board, std::string(setting) + "_up", true);
  }
}

// ---- Faces

/// The glass over a read-out of so many figures, which are left in their box.
void draw_window(const Board& board, std::string_view text, double width) {
  const Box box = part_box(board.gauge, text);
  display_window(board.canvas, {box.x - 2.5, box.y - 0.5, width, 19});
}

/// In the middle over a setting's two keys.
Point above_keys(const Board& board, std::string_view setting) {
  const Box down = click_box(board.gauge, std::string(setting) + "_down");
  const Box up = click_box(board.gauge, std::string(setting) + "_up");
  return {(down.x + up.right()) / 2, down.y - 5};
}

void print_heading(const Board& board, Colour ink) {
  const Lettering words{.size = 7, .colour = ink};
  print(board.canvas, {51, 58}, "TAIL HDG", words);
  print(board.canvas, {51, 161.5}, "SET HDG", words);
}

void print_push(const Board& board, Colour ink) {
  const Lettering words{.size = 7, .colour = ink}, small{.size = 6, .colour = ink};
  print(board.canvas, {109.5, 46}, "LEFT", words);
  print(board.canvas, {210.5, 46}, "RIGHT", words);
  for (const std::string_view side : {"left_angle_setting", "right_angle_setting"}) {
    print(board.canvas, above_keys(board, side), "ANGLE", small);
  }
  print(board.canvas, above_keys(board, "distance_setting"), "DIST", small);
}

void draw_windows(const Board& board) {
  draw_window(board, "tail_heading", 41);
  draw_window(board, "heading_setting", 41);
  draw_window(board, "left_angle_setting", 28);
  draw_window(board, "right_angle_setting", 28);
  draw_window(board, "distance_setting", 28);
}

constexpr Item items[] = {
    CornerScrews{7.5, 3.4},
    Legend{{51, 27}, "PUSHBACK", 10.5},
    Face{{19, 45, 64, 128}, 6, print_heading},
    Face{{85, 20, 157, 153}, 6, print_push},
    Ornament{draw_windows},
    Ornament{draw_buttons},
};

// ---- Lights

void draw_arrow_light(const Canvas& canvas, Way way, int image) {
  const Box frame = whole(canvas.size()).grown(-1);
  const bool lit = image == 1;
  lamp_housing(canvas, frame);
  lamp_lens(canvas, frame.grown(-1.6), {palette::lamp_green, ""}, lit);
  draw_arrow(canvas, frame.centre(), 4.2, way,
             lit ? rgb(0x14120C) : mixed(palette::well, palette::lamp_green, 0.7));
}

void draw_left(const Canvas& canvas, int image) { draw_arrow_light(canvas, Way::left, image); }
void draw_back(const Canvas& canvas, int image) { draw_arrow_light(canvas, Way::back, image); }
void draw_right(const Canvas& canvas, int image) { draw_arrow_light(canvas, Way::right, image); }

struct Message {
  std::string_view text;
  Colour colour;
};

void draw_status(const Canvas& canvas, int image) {
  constexpr Message messages[] = {
      {"", palette::black},
      {"PARK BRAKE", palette::lamp_amber},
      {"TUG ON", palette::lamp_white},
      {"PUSHING", palette::lamp_green},
      {"ALL CLEAR", palette::lamp_green},
      {"TAIL LEFT", palette::lamp_green},
      {"TAIL RIGHT", palette::lamp_green},
      {"MANUAL", palette::lamp_blue},
  };
  const Box glass = whole(canvas.size()).grown(-2);
  display_window(canvas, glass);
  const Message& message = messages[image];
  const Lettering lettering{.size = 8, .colour = mixed(message.colour, palette::white, 0.25)};
  haze(canvas, 1.2, 0.6, [&] { print(canvas, glass.centre(), message.text, lettering); });
  print(canvas, glass.centre(), message.text, lettering);
}

/// A lamp for tug crews that the aircraft tells whether its wheels are held.
void draw_parking_brake(const Canvas& canvas, bool on) {
  lamp(canvas, whole(canvas.size()), {lens::amber, "PARK\nBRAKE", 7.5}, on);
}
void draw_brake_off(const Canvas& canvas, int) { draw_parking_brake(canvas, false); }
void draw_brake_on(const Canvas& canvas, int) { draw_parking_brake(canvas, true); }

constexpr Art art[] = {
    plate(178, items).in_full_colour(),
    drawn_art("left_programme_light", {23, 15}, draw_left),
    drawn_art("back_programme_light", {19, 15}, draw_back),
    drawn_art("right_programme_light", {23, 15}, draw_right),
    lamp_art("turn_light", {31, 15},
             {.colours = lens::amber,
              .text = "TURN",
              .text_size = 7,
              .setting = Setting::flush,
              .lit_first = true}),
    drawn_art("status_light", {63, 22}, draw_status),
    flush_lamp_art("manual_light", {31, 13}, lens::white, "MANUAL", 5.5),
    flush_lamp_art("automatic_light", {31, 13}, lens::green, "AUTO", 6.5),
    named_art("IDB_PB_PBRAKE_OFF", {46, 30}, draw_brake_off),
    named_art("IDB_PB_PBRAKE_ON", {46, 30}, draw_brake_on),
};

constinit Unit unit{"Pushback", art};

}  // namespace artwork::panels::pushback
