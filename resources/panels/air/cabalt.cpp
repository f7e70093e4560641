/// Cabin altitude controller: the selected altitude's dial and knob, and the two displays.
#include "resources/kit/dial.h"
#include "resources/kit/knob.h"
#include "resources/kit/metal.h"
#include "resources/kit/needle.h"
#include "resources/kit/window.h"
#include "resources/panels/panels.h"

namespace artwork {
namespace {

constexpr std::string_view panel = "Cabalt";
constexpr double radius = 38.5;
constexpr double rim = 33;
constexpr double needle_length = 29;

/// The room of the panel's `nth` text.
Box text_box(int nth) {
  for (const Element* e : parts(gauge(panel))) {
    if (e->kind == ELEMENT_STRING && nth-- == 0) {
      return {static_cast<double>(e->position.x), static_cast<double>(e->position.y),
              static_cast<double>(e->string.size.width), static_cast<double>(e->string.size.height)};
    }
  }
  return {};
}

void print_scale(const Scale& scale) {
  scale.marks({0, 15000, 1000, rim - 5, rim, 1.4});
  scale.marks({0, 15000, 500, rim - 3, rim, 0.8});
  scale.numerals({{0, "0", -8},
                  {1000, "1"},
                  {2000, "2"},
                  {3000, "3"},
                  {4000, "4"},
                  {5000, "5"},
                  {6000, "6"},
                  {7000, "7"},
                  {8000, "8"},
                  {9000, "9"},
                  {10000, "10"},
                  {12000, "12"},
                  {15000, "15", -5}},
                 rim - 6.5, 8);
}

void draw_displays(const Canvas& canvas) {
  const Box schedule = text_box(0), setting = text_box(2);
  display_window(canvas, schedule);
  display_window(canvas, setting);
  engrave(canvas, {schedule.centre().x, schedule.y - 8}, "SCHED");
  engrave(canvas, {setting.centre().x, setting.y - 6.5}, "BARO");
}

void draw_controls(const Canvas& canvas) {
  const std::vector<Box> boxes = click_boxes(gauge(panel));
  const Point knob{(boxes[0].x + boxes[1].right()) / 2, boxes[0].centre().y};
  knob_seat(canvas, knob, 11.5);
  pointer_knob(canvas, knob, 10.2, -35);
  engrave(canvas, {knob.x, knob.y - 18}, "SET");
  engrave(canvas, {knob.x + 24, knob.y + 17}, "CABIN ALT", {}, Anchor::centre);
  const Point button = boxes[2].centre();
  fixed_button(canvas, button, 7, palette::mould_light);
  engrave(canvas, {button.x, button.y - 12.5}, "STD");
}

void draw_face(const Canvas& canvas, Lighting lighting) {
  painted_plate(canvas);
  const Box plate = whole(canvas.size());
  screw(canvas, {plate.width - 8, 8}, 3.4, 20);
  screw(canvas, {plate.width - 8, plate.height - 8}, 3.4, 75);
  draw_displays(canvas);
  const Dial d{place(panel, 1470), radius};
  meter(canvas, d, lighting, [&](Colour ink) {
    print_scale(Scale(canvas, part(panel, 1470), ink));
    print(canvas, d.centre + Point{0, -10.5}, "1000", {.size = 7, .colour = ink});
    print(canvas, d.centre + Point{0, 10}, "FT", {.size = 7, .colour = ink});
  });
  draw_controls(canvas);
}

void draw_needle(Canvas& canvas, int) {
  blade(canvas, {.pivot = {17, 2}, .length = needle_length, .tail = 11, .half_width = 1.7});
}

constexpr Art art[] = {
    background(1460, plate_by_day<draw_face>, "cabin altitude controller"),
    {1470, 1, needle_size({17, 2}, needle_length), draw_needle, "cabin altitude pointer"},
    lighting_overlay(2020, 1460, plate_lit<draw_face>, "cabin altitude controller lit"),
};

}  // namespace

const std::span<const Art> cabalt_art = art;

}  // namespace artwork
