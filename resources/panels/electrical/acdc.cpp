/// AC and DC meters: four small dials on one plate.
#include "resources/kit/dial.h"
#include "resources/kit/metal.h"
#include "resources/kit/needle.h"
#include "resources/panels/panels.h"

namespace artwork {
namespace {

constexpr std::string_view panel = "Acdc";
constexpr double radius = 34.5;
constexpr double rim = 28.6;  // outer end of the marks
constexpr Point pivot{4, 1};
constexpr double needle_length = 25;

struct Instrument {
  int nth;  // of the panel's needles
  std::string_view quantity, unit;
  void (*print)(const Scale& scale);
};

void print_dc_load(const Scale& scale) {
  scale.marks({-120, 120, 30, rim - 5, rim, 1.3});
  scale.marks({-120, 120, 10, rim - 3, rim, 0.7});
  scale.numerals({{-120, "120"}, {0, "0"}, {120, "120"}}, rim - 6.5, 8);
}

void print_dc_voltage(const Scale& scale) {
  scale.marks({0, 0, 1, rim - 5, rim, 1.3});
  scale.marks({50, 90, 10, rim - 5, rim, 1.3});
  scale.marks({50, 90, 5, rim - 3, rim, 0.7});
  scale.numerals({{0, "0"}, {60, "60"}, {90, "90"}}, rim - 6.5, 8);
}

void print_ac_voltage(const Scale& scale) {
  scale.marks({0, 360, 90, rim - 5, rim, 1.3});
  scale.marks({0, 360, 30, rim - 3, rim, 0.7});
  scale.numerals({{0, "0"}, {180, "180"}, {360, "360"}}, rim - 6.5, 8);
}

void print_ac_load(const Scale& scale) {
  scale.marks({0, 40, 10, rim - 5, rim, 1.3});
  scale.marks({0, 40, 2, rim - 3, rim, 0.7});
  scale.numerals({{0, "0"}, {20, "20"}, {40, "40"}}, rim - 6.5, 8);
}

constexpr Instrument instruments[] = {
    {0, "AMPERES", "DC", print_dc_load},
    {1, "VOLTS", "DC", print_dc_voltage},
    {2, "VOLTS", "AC", print_ac_voltage},
    {3, "LOAD", "AC", print_ac_load},
};

void draw_meter(const Canvas& canvas, const Instrument& instrument, Lighting lighting) {
  const Element& needle = part(panel, 350, instrument.nth);
  const Dial face{place(panel, 350, instrument.nth), radius};
  meter(canvas, face, lighting, [&](Colour ink) {
    instrument.print(Scale(canvas, needle, ink));
    print(canvas, face.centre + Point{0, 12}, instrument.unit, {.size = 10, .colour = ink});
    print(canvas, face.centre + Point{0, 21}, instrument.quantity, {.size = 7, .colour = ink});
  });
}

void draw_face(const Canvas& canvas, Lighting lighting) {
  painted_plate(canvas);
  const Box plate = whole(canvas.size());
  for (const double y : {7.0, plate.height / 2, plate.height - 7}) {
    screw(canvas, {plate.width / 2, y}, 3, 17 * y);
  }
  for (const Instrument& instrument : instruments) draw_meter(canvas, instrument, lighting);
}

void draw_needle(Canvas& canvas, int) {
  blade(canvas, {.pivot = pivot, .length = needle_length, .tail = 4, .half_width = 1});
}

constexpr Art art[] = {
    background(340, plate_by_day<draw_face>, "AC and DC meters"),
    {350, 1, needle_size(pivot, needle_length), draw_needle, "meter needle"},
    lighting_overlay(360, 340, plate_lit<draw_face>, "AC and DC meters lit: off, dim, bright"),
};

}  // namespace

const std::span<const Art> acdc_art = art;

}  // namespace artwork
