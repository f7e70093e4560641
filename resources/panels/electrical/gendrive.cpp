/// Generator drive meters: the oil temperature of the constant-speed drives.
#include "resources/kit/dial.h"
#include "resources/kit/metal.h"
#include "resources/kit/needle.h"
#include "resources/panels/panels.h"

namespace artwork {
namespace {

constexpr std::string_view panel = "Gendrive";
constexpr double radius = 33.5;
constexpr double rim = 27.6;
constexpr Point pivot{3, 1};
constexpr double needle_length = 25;
constexpr double full_scale = 140;  // degrees centigrade

/// The needle's units for a temperature.
constexpr double units(double celsius) { return celsius * 16384 / full_scale; }

void print_scale(const Canvas& canvas, const Element& needle, Colour ink) {
  const Scale scale(canvas, needle, ink);
  scale.band({units(60), units(110), rim - 1.2, 2.4, palette::range_green});
  scale.band({units(130), units(full_scale), rim - 1.2, 2.4, palette::range_red});
  scale.marks({0, units(full_scale), units(20), rim - 5, rim, 1.4});
  scale.marks({0, units(full_scale), units(10), rim - 2.6, rim, 0.7});
  scale.numerals(
      {{0, "0", -24}, {units(40), "40"}, {units(100), "100"}, {units(full_scale), "140", 14}},
      rim - 6.5, 7.5);
}

void draw_meter(const Canvas& canvas, int nth, Lighting lighting) {
  const Dial face{place(panel, 440, nth), radius};
  meter(canvas, face, lighting, [&](Colour ink) {
    print_scale(canvas, part(panel, 440, nth), ink);
    print(canvas, face.centre + Point{0, 11}, nth == 0 ? "DRIVE 1" : "DRIVE 2",
          {.size = 8, .colour = ink});
    print(canvas, face.centre + Point{0, 20}, "OIL \u00b0C", {.size = 7, .colour = ink});
  });
}

void draw_face(const Canvas& canvas, Lighting lighting) {
  painted_plate(canvas);
  const Box plate = whole(canvas.size());
  const double middle = (place(panel, 440).x + place(panel, 440, 1).x) / 2;
  screw(canvas, {middle, 9}, 3.2, 20);
  screw(canvas, {middle, plate.height - 9}, 3.2, 65);
  for (int nth = 0; nth < 2; ++nth) draw_meter(canvas, nth, lighting);
}

void draw_needle(Canvas& canvas, int) {
  blade(canvas, {.pivot = pivot, .length = needle_length, .tail = 3, .half_width = 1});
}

constexpr Art art[] = {
    background(430, plate_by_day<draw_face>, "generator drive meters"),
    {440, 1, needle_size(pivot, needle_length), draw_needle, "drive needle"},
    lighting_overlay(450, 430, plate_lit<draw_face>, "generator drive meters lit: off, dim, bright"),
};

}  // namespace

const std::span<const Art> gendrive_art = art;

}  // namespace artwork
