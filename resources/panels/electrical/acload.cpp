/// AC load meters: both engines' generators and the APU's, in percent of their rating.
#include "resources/kit/dial.h"
#include "resources/kit/metal.h"
#include "resources/kit/needle.h"
#include "resources/panels/panels.h"

namespace artwork {
namespace {

constexpr std::string_view panel = "Acload";
constexpr double radius = 32.5;
constexpr double rim = 26.6;
constexpr Point pivot{4, 1};
constexpr double needle_length = 24;
constexpr std::string_view sources[] = {"GEN 1", "GEN 2", "APU"};

void print_scale(const Canvas& canvas, const Element& needle, Colour ink) {
  const Scale scale(canvas, needle, ink);
  scale.band({100, 125, rim - 1.2, 2.4, palette::range_red});
  scale.marks({0, 125, 25, rim - 5, rim, 1.4});
  scale.marks({0, 125, 5, rim - 2.6, rim, 0.7});
  scale.numerals({{0, "0", -24}, {50, "50"}, {100, "100"}}, rim - 6, 7.5);
}

void draw_meter(const Canvas& canvas, int nth, Lighting lighting) {
  const Dial face{place(panel, 410, nth), radius};
  meter(canvas, face, lighting, [&](Colour ink) {
    print_scale(canvas, part(panel, 410, nth), ink);
    print(canvas, face.centre + Point{0, 11}, sources[nth], {.size = 9, .colour = ink});
    print(canvas, face.centre + Point{0, 20}, "% LOAD", {.size = 7, .colour = ink});
  });
}

void draw_face(const Canvas& canvas, Lighting lighting) {
  painted_plate(canvas);
  const Box plate = whole(canvas.size());
  for (const double x : {84.0, 165.0, 198.0}) {
    screw(canvas, {x, 8}, 3, 31 * x);
    screw(canvas, {x, plate.height - 8}, 3, 53 * x);
  }
  engrave(canvas, {181.5, plate.height / 2}, "AC\nLOAD", {.size = heading_size});
  for (int nth = 0; nth < 3; ++nth) draw_meter(canvas, nth, lighting);
}

void draw_needle(Canvas& canvas, int) {
  blade(canvas, {.pivot = pivot, .length = needle_length, .tail = 4, .half_width = 1});
}

constexpr Art art[] = {
    background(390, plate_by_day<draw_face>, "AC load meters"),
    {410, 1, needle_size(pivot, needle_length), draw_needle, "load needle"},
    lighting_overlay(420, 390, plate_lit<draw_face>, "AC load meters lit: off, dim, bright"),
};

}  // namespace

const std::span<const Art> acload_art = art;

}  // namespace artwork
