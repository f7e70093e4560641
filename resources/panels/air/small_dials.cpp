/// The overhead's single dials with a capped needle: duct pressure, cabin temperature, cabin climb.
#include "resources/kit/dial.h"
#include "resources/kit/metal.h"
#include "resources/kit/needle.h"
#include "resources/panels/panels.h"

namespace artwork {
namespace {

constexpr double rim(double radius) { return radius - 5.6; }  // outer end of the marks

void words(const Canvas& canvas, Point at, std::string_view name, std::string_view unit, Colour ink) {
  print(canvas, at, name, {.size = 8, .colour = ink});
  print(canvas, at + Point{0, 8.5}, unit, {.size = 7, .colour = ink});
}

void draw_duct_pressure(const Canvas& canvas, Lighting lighting) {
  painted_plate(canvas);
  const Dial d{place("Grdpsi", 1070), 33};
  meter(
      canvas, d, lighting,
      [&](Colour ink) {
        const Scale scale(canvas, part("Grdpsi", 1070), ink);
        const double out = rim(d.radius);
        scale.band({200, 600, out - 1.2, 2.4, palette::range_green});
        scale.band({700, 1000, out - 1.2, 2.4, palette::range_red});
        scale.marks({0, 700, 100, out - 5, out, 1.4});
        scale.marks({0, 700, 50, out - 2.8, out, 0.7});
        scale.marks({1000, 1000, 1, out - 5, out, 1.4});
        scale.numerals({{200, "20"}, {400, "40"}, {600, "60"}}, out - 6, 8);
        words(canvas, d.centre + Point{1, 15.5}, "DUCT", "PSI", ink);
      },
      0);
}

void draw_cabin_temperature(const Canvas& canvas, Lighting lighting) {
  painted_plate(canvas);
  const Dial d{place("Cabc", 320), 32.5};
  meter(
      canvas, d, lighting,
      [&](Colour ink) {
        const Scale scale(canvas, part("Cabc", 320), ink);
        const double out = rim(d.radius);
        scale.band({18, 26, out - 1.2, 2.4, palette::range_green});
        scale.marks({0, 60, 10, out - 5, out, 1.4});
        scale.marks({20, 40, 2, out - 2.8, out, 0.7});
        scale.numerals({{0, "0", -18}, {20, "20"}, {40, "40"}, {60, "60"}}, out - 6, 8);
        words(canvas, d.centre + Point{0, 14}, "CABIN", "\u00b0C", ink);
      },
      0);
}

void draw_cabin_climb(const Canvas& canvas, Lighting lighting) {
  painted_plate(canvas);
  const Dial d{place("Cabvs", 1370), 36};
  meter(canvas, d, lighting, [&](Colour ink) {
    const Scale scale(canvas, part("Cabvs", 1370), ink);
    const double out = rim(d.radius);
    scale.marks({-2000, 2000, 500, out - 5.5, out, 1.5});
    scale.marks({-1000, 1000, 100, out - 3, out, 0.7});
    // The needle rests at zero, between UP and DN.
    scale.numerals({{-2000, "2"}, {-1000, "1"}, {-500, ".5"}, {500, ".5"}, {1000, "1"}, {2000, "2"}},
                   out - 6.5, 9);
    print(canvas, d.centre + Point{-3, -9.5}, "UP", {.size = 7.5, .colour = ink});
    print(canvas, d.centre + Point{-3, 9.5}, "DN", {.size = 7.5, .colour = ink});
    print(canvas, d.centre + Point{13.5, -4}, "CAB", {.size = 7, .colour = ink});
    print(canvas, d.centre + Point{13.5, 4.6}, "V/S", {.size = 7, .colour = ink});
  });
}

void draw_pressure_needle(Canvas& canvas, int) {
  blade(canvas, {.pivot = {7, 7}, .length = 24, .tail = 7, .half_width = 1.7});
  needle_cap(canvas, {7, 7}, 4.6);
}

void draw_climb_needle(Canvas& canvas, int) {
  blade(canvas, {.pivot = {5, 2}, .length = 27, .tail = 5, .half_width = 1.6});
}

constexpr Art art[] = {
    background(310, plate_by_day<draw_cabin_temperature>, "cabin temperature"),
    {320, 1, needle_size({7, 7}, 24), draw_pressure_needle, "cabin temperature needle"},
    lighting_overlay(330, 310, plate_lit<draw_cabin_temperature>, "cabin temperature lit"),
    background(1060, plate_by_day<draw_duct_pressure>, "duct pressure"),
    {1070, 1, needle_size({7, 7}, 24), draw_pressure_needle, "duct pressure needle"},
    lighting_overlay(1080, 1060, plate_lit<draw_duct_pressure>, "duct pressure lit"),
    background(1360, plate_by_day<draw_cabin_climb>, "cabin rate of climb"),
    {1370, 1, needle_size({5, 2}, 27), draw_climb_needle, "cabin climb needle"},
    lighting_overlay(1380, 1360, plate_lit<draw_cabin_climb>, "cabin rate of climb lit"),
};

}  // namespace

const std::span<const Art> small_dial_art = art;

}  // namespace artwork
