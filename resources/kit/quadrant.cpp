#include "resources/kit/quadrant.h"

#include "resources/kit/legend.h"
#include "resources/kit/metal.h"

namespace artwork {
namespace {

constexpr double ball_radius = 15.5;

/// Bristles from both sides, meeting in the middle.
void brushes(const Canvas& canvas, Box slot) {
  const double middle = slot.x + slot.width / 2;
  for (double y = slot.y + slot.width / 2; y < slot.bottom() - slot.width / 2; y += 1.6) {
    line(canvas, {slot.x + 0.6, y}, {middle - 0.4, y + 0.5}, 0.8, faded(palette::steel_dark, 0.75));
    line(canvas, {middle + 0.4, y + 0.5}, {slot.right() - 0.6, y}, 0.8,
         faded(palette::mould_light, 0.6));
  }
}

/// A turned black ball, worn to a shine above left.
void lever_ball(const Canvas& canvas, Point c, double radius) {
  soft(canvas, circle(c + Point{radius * 0.3, radius * 0.42}, radius), faded(palette::black, 0.55),
       2.4);
  fill(canvas, circle(c, radius + 0.6), palette::well);
  set_radial(canvas, {c.x - radius * 0.36, c.y - radius * 0.44}, c, radius,
             {{0, mixed(palette::mould_light, palette::steel_light, 0.42)},
              {0.28, mixed(palette::mould_light, palette::steel, 0.2)},
              {0.62, palette::mould},
              {0.9, palette::mould_dark},
              {1, mixed(palette::mould_dark, palette::steel, 0.3)}});
  fill(canvas, circle(c, radius));
  const Point shine{c.x - radius * 0.38, c.y - radius * 0.5};
  set_radial(canvas, shine, shine, radius * 0.42,
             {{0, faded(palette::white, 0.75)},
              {0.35, faded(palette::white, 0.25)},
              {1, faded(palette::white, 0)}});
  fill(canvas, circle(shine, radius * 0.42));
}

/// The bar across a throttle's foot that points at the scale.
void foot_index(const Canvas& canvas, Point foot) {
  const Box bar{foot.x - 11, foot.y - 1.6, 22, 3.2};
  cast_shadow(canvas, rounded(bar, 1.6), 1.2, 0.6);
  set_linear(canvas, {0, bar.y}, {0, bar.bottom()}, {{0, palette::white}, {1, palette::steel}});
  fill(canvas, rounded(bar, 1.6));
}

/// Tenths on both sides of the slot.
void throttle_scale(const Canvas& canvas, const LeverTravel& travel) {
  for (int tenth = 0; tenth <= 10; ++tenth) {
    const bool long_mark = tenth % 5 == 0;
    const Point foot = travel.foot(tenth / 10.0);
    const double length = long_mark ? 7 : 4, width = long_mark ? 1.4 : 0.8;
    level_mark(canvas, foot.x - 13 - length, foot.x - 13, foot.y, width, palette::legend);
    level_mark(canvas, foot.x + 13, foot.x + 13 + length, foot.y, width, palette::legend);
  }
}

}  // namespace

void lever_slot(const Canvas& canvas, const LeverTravel& travel, double width) {
  const double top = travel.foot_pushed - width, bottom = travel.foot_pulled + width;
  const Box slot{travel.x - width / 2, top, width, bottom - top};
  const Box frame = slot.grown(2.5);
  set_slope(canvas, frame,
            {{0, palette::steel_light}, {0.5, palette::steel}, {1, palette::steel_dark}});
  fill(canvas, rounded(frame, width / 2 + 2.5));
  stroke(canvas, rounded(frame.grown(-0.2), width / 2 + 2.3), 0.6, faded(palette::black, 0.5));
  fill(canvas, rounded(slot, width / 2), palette::black);
  brushes(canvas, slot);
  set_linear(canvas, {0, slot.y}, {0, slot.bottom()},
             {{0, faded(palette::black, 0.7)}, {0.2, faded(palette::black, 0)}});
  fill(canvas, rounded(slot, width / 2));
}

void lever_arm(const Canvas& canvas, Point foot, Point grip, double at_foot, double at_grip) {
  const Path arm = capsule(grip, foot, at_grip, at_foot);
  cast_shadow(canvas, arm, 3, 0.6);
  fill(canvas, capsule(grip, foot, at_grip + 0.5, at_foot + 0.5), palette::steel_deep);
  set_linear(canvas, {foot.x - at_grip, 0}, {foot.x + at_grip, 0},
             {{0, palette::steel_dark},
              {0.18, palette::steel},
              {0.38, palette::steel_bright},
              {0.55, palette::steel_light},
              {0.82, palette::steel},
              {1, palette::steel_dark}});
  fill(canvas, arm);
  set_linear(canvas, {0, grip.y}, {0, foot.y},
             {{0.4, faded(palette::black, 0)}, {1, faded(palette::black, 0.45)}});
  fill(canvas, arm);
}

void throttle_lever(const Canvas& canvas, const LeverTravel& travel, double at,
                    std::string_view number) {
  const Point foot = travel.foot(at), grip = travel.grip(at), top = grip + Point{0, 1};
  lever_arm(canvas, foot, grip, 5.2, 6.4);
  foot_index(canvas, foot);
  lever_ball(canvas, grip, ball_radius);
  stroke(canvas, circle(top, 7.4), 0.9, faded(palette::legend, 0.75));
  print(canvas, top, number, {.size = 10, .colour = palette::legend});
}

void slot_field(const Canvas& canvas, const LeverTravel& travel, double left, double right) {
  constexpr double above = 15, below = 15;
  const double top = travel.foot_pushed - above, bottom = travel.foot_pulled + below;
  sunk_field(canvas, {travel.x - left, top, left + right, bottom - top}, 5, palette::mould);
}

void placard(const Canvas& canvas, Box box, std::string_view heading, std::string_view lines) {
  constexpr double heading_height = 12;
  cast_shadow(canvas, rounded(box, 2), 1, 0.5);
  fill(canvas, rounded(box, 2), palette::mould_dark);
  stroke(canvas, rounded(box.grown(-0.5), 1.6), 0.6, faded(palette::white, 0.25));
  const Point top{box.centre().x, box.y + heading_height / 2 + 1};
  print(canvas, top, heading, {.size = 6.5, .colour = palette::legend});
  level_mark(canvas, box.x + 4, box.right() - 4, box.y + heading_height, 0.7, palette::legend);
  const Point rest{top.x, box.y + (heading_height + box.height) / 2};
  print(canvas, rest, lines, {.size = 6, .colour = palette::legend});
}

void throttle_quadrant(const Canvas& canvas, const LeverTravel& travel) {
  slot_field(canvas, travel, 30, 46);
  throttle_scale(canvas, travel);
  lever_slot(canvas, travel, 8);
}

}  // namespace artwork
