/// What the radio heads have in common: displays behind glass, tuning knobs, button bodies.
#pragma once

#include "resources/art.h"
#include "resources/kit/knob.h"
#include "resources/kit/lamp.h"
#include "resources/kit/legend.h"
#include "resources/kit/lever.h"
#include "resources/kit/records.h"
#include "resources/kit/window.h"
#include "resources/rows/board.h"

namespace artwork::panels::radios {

// ---- Displays

/// Figures of whole numbers are white on black, what follows the point black on white.
inline constexpr Size figure_strip{9, 161};
inline constexpr Drum whole_figures{.figure_size = 11.5};
inline constexpr Drum decimal_figures{
    .figure_size = 11.5, .ink = palette::well, .ground = palette::mark};

/// The frame of a display whose glass is that part.
inline void display_frame(const Board& board, std::string_view glass) {
  drum_frame(board.canvas, part_box(board.gauge, glass), board.lighting);
}

/// The drums round away at the upper and lower edge of their window.
inline void drum_shade(const Canvas& canvas, double strength) {
  const Box box = whole(canvas.size());
  set_linear(canvas, {0, 0}, {0, box.bottom()},
             {{0, faded(palette::black, strength)},
              {0.28, faded(palette::black, 0.04)},
              {0.72, faded(palette::black, 0.04)},
              {1, faded(palette::black, strength)}});
  fill(canvas, rounded(box, 1));
}

inline void glass_gloss(const Canvas& canvas, double strength) {
  const Box box = whole(canvas.size());
  set_linear(canvas, {0, 0}, {box.width * 0.55, box.bottom()},
             {{0, faded(palette::white, strength)},
              {0.5, faded(palette::white, strength * 0.3)},
              {0.52, faded(palette::white, 0)}});
  fill(canvas, rounded(box, 1));
}

inline void dark_glass(const Canvas& canvas) {
  const Box box = whole(canvas.size());
  set_linear(canvas, {0, 0}, {0, box.bottom()},
             {{0, rgb(0x050607)}, {0.4, rgb(0x0D1011)}, {1, rgb(0x14181A)}});
  fill(canvas, rounded(box, 0));
  glass_gloss(canvas, 0.12);
}

/// A display that the image shows: dark, then lit.
inline void draw_glass(const Canvas& canvas, int image) {
  if (image == 0) return dark_glass(canvas);
  glass_gloss(canvas, 0.09);
}

/// The same, and the shade of the drums behind it; of two that lie over one another each has half.
inline void draw_shaded_glass(const Canvas& canvas, int image) {
  if (image == 0) return dark_glass(canvas);
  drum_shade(canvas, 0.36);
  glass_gloss(canvas, 0.05);
}

/// A cover that the image draws: off, then on.
inline void draw_cover(const Canvas& canvas, int image) {
  if (image == 1) return dark_glass(canvas);
  drum_shade(canvas, 0.62);
}

/// The leading figure, which stands still: dark, then lit.
inline void draw_leading_one(const Canvas& canvas, int image) {
  const Box box = whole(canvas.size());
  fill(canvas, rounded(box, 0), palette::face_dark);
  if (image == 1) {
    print(canvas, box.centre(), "1", {.size = whole_figures.figure_size, .colour = whole_figures.ink});
  }
  for (const double x : {0.0, box.right()}) {
    line(canvas, {x, 0}, {x, box.height}, 1, faded(palette::black, 0.7));
  }
}

// ---- Knobs and buttons

/// Two knurled knobs on one shaft that turn without an end.
inline void tuning_knob(const Canvas& canvas, Point centre, double radius) {
  knob_seat(canvas, centre, radius + 1.5);
  plain_knob(canvas, centre, radius);
  plain_knob(canvas, centre, radius * 0.6);
}

/// The middle of the room that two halves of a control share.
inline Point shared_middle(const Board& board, std::string_view one, std::string_view other) {
  const Box a = part_box(board.gauge, one), b = part_box(board.gauge, other);
  return {(a.x + b.right()) / 2, (a.y + b.bottom()) / 2};
}

/// The body of a push button, in which its light stands.
inline void button_body(const Canvas& canvas, Box box) {
  lamp_housing(canvas, box);
  const Box face = box.grown(-1.4);
  set_linear(canvas, {face.x, face.y}, {face.right(), face.bottom()},
             {{0, palette::steel}, {0.4, palette::mould_light}, {1, palette::mould_dark}});
  fill(canvas, rounded(face, 1.4));
}

// ---- Frequency heads

/// What every head has: both displays, both knobs, the transfer button.
inline void draw_frequency_head(const Board& board, double knob_radius) {
  button_body(board.canvas, click_box(board.gauge, "transfer_button").grown(-0.5));
  display_frame(board, "active_display_power");
  display_frame(board, "standby_display_power");
  tuning_knob(board.canvas, shared_middle(board, "megahertz_knob_down", "megahertz_knob_up"),
              knob_radius);
  tuning_knob(board.canvas, shared_middle(board, "kilohertz_knob_down", "kilohertz_knob_up"),
              knob_radius);
}

/// What a navigation head has beside it.
inline void draw_checks(const Board& board) {
  button_body(board.canvas, click_box(board.gauge, "vor_check_button"));
  lever_mount(board.canvas, hub_of(board.gauge, "deviation_check_switch"), 5);
}

inline void draw_check_switch(const Canvas& canvas, int image) {
  const Point hub = whole(canvas.size()).centre();
  constexpr Throw throws[] = {Throw::centre, Throw::up, Throw::down};
  lever_nut(canvas, hub, 3.2);
  lever_handle(canvas, hub, 6.2, throws[image], 2);
}

inline void draw_check_light(const Canvas& canvas, int image) {
  const Box box = whole(canvas.size());
  fill(canvas, rounded(box.grown(-0.3), 1.2), palette::well);
  lamp_lens(canvas, box.grown(-1), {lens::white}, image == 1);
}

}  // namespace artwork::panels::radios
