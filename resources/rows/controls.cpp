/// Levers, guards, knobs and lamps: their images, and what the plate has of them.
#include "resources/kit/guard.h"
#include "resources/kit/knob.h"
#include "resources/kit/lamp.h"
#include "resources/kit/lever.h"
#include "resources/kit/metal.h"
#include "resources/rows/draw.h"
#include "resources/rows/overloaded.h"

namespace artwork {
namespace {

bool is_nowhere(Point point) { return point.x == 0 && point.y == 0; }

Point hub_or_middle(Point hub, Box box) {
  return is_nowhere(hub) ? box.centre() : Point{box.x, box.y} + hub;
}

void draw_lever(const Canvas& canvas, const Lever& lever, int image) {
  const Point hub = hub_or_middle(lever.hub, whole(canvas.size()));
  const Throw thrown = lever.throws[static_cast<std::size_t>(image)];
  lever_nut(canvas, hub, lever.nut);
  if (!lever.sideways) return lever_handle(canvas, hub, lever.reach, thrown, lever.ball);
  const Saved saved(canvas);
  cairo_translate(canvas.cr(), hub.x, hub.y);
  cairo_rotate(canvas.cr(), radians(90));
  lever_handle(canvas, {0, 0}, lever.reach, thrown, lever.ball);
}

void draw_knob(const Canvas& canvas, const Knob& knob, int image) {
  const Point hub = hub_or_middle(knob.hub, whole(canvas.size()));
  const auto grip = knob.grip == Grip::bar ? bar_knob : pointer_knob;
  grip(canvas, hub, knob.radius, knob.marks[static_cast<std::size_t>(image)]);
}

Box centred(Size size, Size picture) {
  const double width = size.width, height = size.height;
  return {(picture.width - width) / 2, (picture.height - height) / 2, width, height};
}

void draw_lamp(const Canvas& canvas, const Lamp& row, int image) {
  const auto colour = static_cast<std::size_t>(image == 0 || row.lit_first ? 0 : image - 1);
  const bool lit = (image > 0) != row.lit_first;
  const Lens lens{row.colours.list[colour], row.text, row.text_size};
  const Box picture = row.size == Size{} ? whole(canvas.size()) : centred(row.size, canvas.size());
  switch (row.setting) {
    case Setting::frame: return lamp(canvas, picture, lens, lit);
    case Setting::button: return push_button(canvas, picture, lens, lit);
    case Setting::cap: return lit_cap(canvas, picture, lens, lit);
    case Setting::flush: break;
  }
  const Box frame = picture.grown(-1);
  lamp_housing(canvas, frame);
  lamp_lens(canvas, frame.grown(-1.6), lens, lit);
}

void draw_lens_stack(const Canvas& canvas, const LensStack& stack, int image) {
  const Box frame = lamp_frame(whole(canvas.size()));
  const auto lit = static_cast<std::size_t>(image) - 1;
  if (image > 0) {
    soft(canvas, rounded(frame, 1.8), faded(stack.lenses[lit].colour, 0.4), lamp_spill * 0.7);
  }
  lamp_housing(canvas, frame);
  const Box field = frame.grown(-2);
  const auto count = static_cast<double>(stack.lenses.size());
  const double height = (field.height - (count - 1)) / count;
  double y = field.y;
  for (std::size_t i = 0; i < stack.lenses.size(); ++i, y += height + 1) {
    lamp_lens(canvas, {field.x, y, field.width, height}, stack.lenses[i], image > 0 && i == lit);
  }
}

void draw_round_light(const Canvas& canvas, const RoundLight& light, int image) {
  round_light(canvas, {light.centre, light.centre}, light.radius, light.colour,
              (image == 1) != light.lit_first);
}

void fit_knob(const Canvas& canvas, const Knob& knob, Box box) {
  const Point hub = hub_or_middle(knob.hub, box);
  knob_seat(canvas, hub, knob.radius + knob.seat);
  if (knob.ticks.to == 0) return;
  for (const double mark : knob.marks) {
    engraved_line(canvas, polar(hub, knob.radius + knob.ticks.from, mark - 90),
                  polar(hub, knob.radius + knob.ticks.to, mark - 90));
  }
}

}  // namespace

int image_count(const Picture& picture) {
  const auto counted = [](std::size_t images) { return static_cast<int>(images); };
  return std::visit(overloaded{[&](const Lamp& lamp) { return 1 + counted(lamp.colours.list.size()); },
                               [&](const LensStack& stack) { return 1 + counted(stack.lenses.size()); },
                               [](const RoundLight&) { return 2; },
                               [&](const Lever& lever) { return counted(lever.throws.size()); },
                               [&](const Knob& knob) { return counted(knob.marks.size()); },
                               [](const FlowSwitch&) { return 2; }, [](const Guard&) { return 2; },
                               [](const GuardedLever&) { return 2; },
                               [](const GuardedKnob& knob) { return knob.positions; },
                               [](const Flag& flag) { return flag.in_view == InView::always ? 1 : 2; },
                               [](const Drawing&) { return 0; }, [](const auto&) { return 1; }},
                    picture);
}

void draw_control(const Canvas& canvas, const Picture& picture, int image) {
  const Box frame = whole(canvas.size());
  std::visit(
      overloaded{[&](const Lamp& row) { draw_lamp(canvas, row, image); },
                 [&](const LensStack& row) { draw_lens_stack(canvas, row, image); },
                 [&](const RoundLight& row) { draw_round_light(canvas, row, image); },
                 [&](const Lever& row) { draw_lever(canvas, row, image); },
                 [&](const Knob& row) { draw_knob(canvas, row, image); },
                 [&](const FlowSwitch& row) { flow_switch(canvas, row.hub, row.radius, image == 1); },
                 [&](const Guard&) { (image == 0 ? guard_closed : guard_open)(canvas, frame); },
                 [&](const GuardedLever&) {
                   if (image > 0) guarded_switch_on(canvas, frame);
                 },
                 [&](const GuardedKnob&) {
                   if (image > 0) guarded_rotary(canvas, frame, image);
                 },
                 [&](const Drawing& row) { row.draw(canvas, image); }, [](const auto&) {}},
      picture);
}

Point hub_in(const Picture& picture, Size size) {
  const Box box = whole(size);
  return std::visit(overloaded{[&](const Lever& lever) { return hub_or_middle(lever.hub, box); },
                               [&](const Knob& knob) { return hub_or_middle(knob.hub, box); },
                               [](const FlowSwitch& knob) { return knob.hub; },
                               [&](const Drawing& row) { return hub_or_middle(row.hub, box); },
                               [&](const auto&) { return box.centre(); }},
                    picture);
}

double words_distance(const Picture& picture, Size size) {
  return std::visit(
      overloaded{[](const Lever&) { return 26.0; }, [](const RoundLight&) { return 17.0; },
                 [](const FlowSwitch&) { return 19.0; },
                 [&](const auto&) { return size.height / 2.0 + 6; }},
      picture);
}

void fit(const Canvas& canvas, const Picture& picture, Box box) {
  std::visit(
      overloaded{[&](const Lever& lever) {
                   const Point hub = hub_or_middle(lever.hub, box);
                   polish(canvas, hub, lever.polish);
                   lever_mount(canvas, hub, lever.mount);
                 },
                 [&](const Knob& knob) { fit_knob(canvas, knob, box); },
                 [&](const FlowSwitch& knob) {
                   knob_seat(canvas, Point{box.x, box.y} + knob.hub, knob.seat);
                 },
                 [&](const GuardedLever&) { guarded_switch_off(canvas, box); },
                 [&](const GuardedKnob&) { guarded_rotary(canvas, box, 0); }, [](const auto&) {}},
      picture);
}

}  // namespace artwork
