#include "resources/kit/guard.h"

#include "resources/kit/knob.h"
#include "resources/kit/lever.h"
#include "resources/kit/metal.h"

namespace artwork {
namespace {

constexpr double hinge_share = 0.34;  // of the frame's height, from its top to the well

void well(const Canvas& canvas, Box frame) {
  const Box box = guarded_well(frame);
  fill(canvas, rounded(box, 3), palette::steel_deep);
  set_slope(canvas, box, {{0, palette::well}, {0.6, palette::mould_dark}, {1, palette::mould}});
  fill(canvas, rounded(box.grown(-0.8), 2.4));
  set_slope(canvas, box,
            {{0, faded(palette::black, 0.8)},
             {0.5, faded(palette::black, 0.2)},
             {1, faded(palette::white, 0.35)}});
  stroke(canvas, rounded(box.grown(-0.4), 2.8), 0.8);
}

void switch_in_well(const Canvas& canvas, Box frame, Throw thrown) {
  const Point hub = guarded_hub(frame);
  well(canvas, frame);
  lever_nut(canvas, hub, 6);
  lever_handle(canvas, hub, guarded_well(frame).height / 2 - 5.6, thrown, 3);
}

/// The two cheeks and the pin about which the cover turns.
void hinge(const Canvas& canvas, Box frame) {
  const double y = frame.y + 4;
  const Box block{frame.x + 3, y - 2.6, frame.width - 6, 5.2};
  cast_shadow(canvas, rounded(block, 1.4), 0.9);
  set_linear(canvas, {0, block.y}, {0, block.bottom()},
             {{0, palette::steel_light}, {0.35, palette::steel}, {1, palette::steel_dark}});
  fill(canvas, rounded(block, 1.4));
  for (const double x : {block.x + 2, block.right() - 2}) {
    fill(canvas, circle({x, y}, 1.1), palette::steel_deep);
    fill(canvas, circle({x - 0.2, y - 0.3}, 0.5), faded(palette::white, 0.4));
  }
}

void cover_shading(const Canvas& canvas, Box box) {
  set_slope(canvas, box, {{0, palette::guard_light}, {0.4, palette::guard}, {1, palette::guard_dark}});
}

void cover_edges(const Canvas& canvas, Box box, double corner) {
  set_slope(canvas, box,
            {{0, faded(palette::white, 0.55)},
             {0.45, faded(palette::white, 0.12)},
             {0.6, faded(palette::black, 0.15)},
             {1, faded(palette::black, 0.5)}});
  stroke(canvas, rounded(box.grown(-0.5), corner - 0.5), 1);
}

/// Pressed ribs that a finger finds in the dark.
void ribs(const Canvas& canvas, Box cover) {
  for (int i = 0; i < 3; ++i) {
    const double y = cover.y + 7 + 3.2 * i;
    line(canvas, {cover.x + 5, y}, {cover.right() - 5, y}, 1.2, faded(palette::guard_dark, 0.8));
    line(canvas, {cover.x + 5, y + 0.9}, {cover.right() - 5, y + 0.9}, 0.6,
         faded(palette::guard_light, 0.8));
  }
}

/// The raised box of the cover over the lever.
void dome(const Canvas& canvas, Box cover) {
  const Box box{cover.x + 4.5, cover.y + 19, cover.width - 9, cover.height - 24};
  soft(canvas, rounded(box.grown(0.6), 3), faded(palette::black, 0.35), 0.9);
  set_slope(canvas, box,
            {{0, mixed(palette::guard_light, palette::white, 0.12)},
             {0.35, mixed(palette::guard, palette::guard_light, 0.4)},
             {1, mixed(palette::guard, palette::guard_dark, 0.45)}});
  fill(canvas, rounded(box, 3));
  line(canvas, {box.x + 2.4, box.y + 1.2}, {box.right() - 3, box.y + 1.2}, 0.8,
       faded(palette::white, 0.5));
  line(canvas, {box.x + 1.1, box.y + 2.4}, {box.x + 1.1, box.bottom() - 3}, 0.8,
       faded(palette::white, 0.35));
}

}  // namespace

Box guarded_well(Box frame) {
  const double top = frame.height * hinge_share;
  return {frame.x + 2.5, frame.y + top + 1, frame.width - 6, frame.height - top - 4};
}

Point guarded_hub(Box frame) { return guarded_well(frame).centre(); }

void guarded_switch_off(const Canvas& canvas, Box frame) { switch_in_well(canvas, frame, Throw::down); }

void guarded_switch_on(const Canvas& canvas, Box frame) { switch_in_well(canvas, frame, Throw::up); }

void guarded_rotary(const Canvas& canvas, Box frame, int position) {
  well(canvas, frame);
  const double radius = guarded_well(frame).width / 2 - 2;
  // Each position looks at its name on the right of the well.
  pointer_knob(canvas, guarded_hub(frame), radius, 127 - 24.5 * position);
}

void guard_closed(const Canvas& canvas, Box frame) {
  const Box cover{frame.x + 1, frame.y + 3.5, frame.width - 3.4, frame.height - 6.4};
  cast_shadow(canvas, rounded(cover, 3.5), 1.6, 0.6);
  hinge(canvas, frame);
  cover_shading(canvas, cover);
  fill(canvas, rounded(cover, 3.5));
  cover_edges(canvas, cover, 3.5);
  dome(canvas, cover);
  ribs(canvas, cover);
}

/// Standing up from the plate the cover shows its inside edge: short, and dark within.
void guard_open(const Canvas& canvas, Box frame) {
  const double height = frame.height * hinge_share - 2.5;
  const Box cover{frame.x + 0.6, frame.y + 0.6, frame.width - 2.6, height};
  cast_shadow(canvas, rounded({cover.x, cover.y + 4, cover.width, cover.height}, 2.5), 2.2, 0.65);
  cover_shading(canvas, cover);
  fill(canvas, rounded(cover, 2.5));
  cover_edges(canvas, cover, 2.5);
  const Box inside{cover.x + 2.6, cover.y + 2.4, cover.width - 5.2, cover.height - 6};
  set_linear(canvas, {0, inside.y}, {0, inside.bottom()},
             {{0, mixed(palette::guard_dark, palette::black, 0.75)},
              {1, mixed(palette::guard_dark, palette::black, 0.3)}});
  fill(canvas, rounded(inside, 1.8));
  hinge(canvas, {frame.x, cover.bottom() - 5.2, frame.width - 1.4, 10});
}

}  // namespace artwork
