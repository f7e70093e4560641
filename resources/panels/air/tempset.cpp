/// Selected temperatures: two small indicators and the lever between them.
#include "resources/kit/dial.h"
#include "resources/kit/metal.h"
#include "resources/kit/needle.h"
#include "resources/panels/panels.h"
#include "resources/panels/shared/fittings.h"

namespace artwork {
namespace {

constexpr std::string_view panel = "Tempset";
constexpr double radius = 20.5;
constexpr double needle_length = 13.5;

void draw_indicator(const Canvas& canvas, int nth, Lighting lighting) {
  const Dial d{place(panel, 220, nth), radius, 2.6};
  meter(
      canvas, d, lighting,
      [&](Colour ink) {
        const Scale scale(canvas, part(panel, 220, nth), ink);
        const double rim = d.face() - 1.6;
        scale.marks({0, 10, 5, rim - 3.5, rim, 1.2});
        scale.marks({0, 10, 1, rim - 2, rim, 0.7});
        print(canvas, d.centre + Point{-9, 5.5}, "C", {.size = 8, .colour = ink});
        print(canvas, d.centre + Point{9, 5.5}, "H", {.size = 8, .colour = ink});
      },
      3);
}

void draw_face(const Canvas& canvas, Lighting lighting) {
  painted_plate(canvas);
  corner_screws(canvas, 7, 3.2);
  fit_parts(canvas, panel);
  for (int nth = 0; nth < 2; ++nth) {
    draw_indicator(canvas, nth, lighting);
    engrave(canvas, {place(panel, 220, nth).x + (nth == 0 ? 5 : -5), canvas.size().height - 14.0},
            nth == 0 ? "TEMP 1" : "TEMP 2");
  }
  const Point hub = hub_of(panel, 2130);
  engrave(canvas, {hub.x, hub.y - 28}, "RECIRC FAN");
  lever_words(canvas, hub, {.aside = 12});
  engrave(canvas, {hub.x, hub.y + 31}, "TEMP SELECT", {.size = heading_size});
}

void draw_needle(Canvas& canvas, int) {
  blade(canvas, {.pivot = {0, 1}, .length = needle_length, .tail = 0, .half_width = 1});
}

constexpr Art art[] = {
    background(210, plate_by_day<draw_face>, "selected temperatures"),
    {220, 1, needle_size({0, 1}, needle_length), draw_needle, "selected temperature needle"},
    lighting_overlay(230, 210, plate_lit<draw_face>, "selected temperatures lit"),
};

}  // namespace

const std::span<const Art> tempset_art = art;

}  // namespace artwork
