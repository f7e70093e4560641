/// AC and DC meters: four small dials on one plate. Their needles count divisions; the dials say volts
/// and hertz.
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
constexpr double end = 31;  // degrees by which the outermost figures stand outside the scale

constexpr double dc_volts(double volts) { return volts * 66 / 28; }
constexpr double ac_volts(double volts) { return volts * 270 / 115; }
constexpr double hertz(double frequency) { return frequency - 380; }

struct Instrument {
  int nth;  // of the panel's needles
  std::string_view quantity, unit;
  void (*print)(const Scale& scale);
};

void print_dc_load(const Scale& scale) {
  scale.marks({-120, 120, 30, rim - 5, rim, 1.3});
  scale.marks({-120, 120, 10, rim - 3, rim, 0.7});
  // The needle rests at zero in the middle, which needs no figure.
  scale.numerals({{-120, "120", -end}, {-60, "60"}, {60, "60"}, {120, "120", end}}, rim - 6.5, 7.5);
}

void print_dc_voltage(const Scale& scale) {
  scale.band({dc_volts(26), dc_volts(30), rim - 1.2, 2.4, palette::range_green});
  scale.marks({0, 0, 1, rim - 5, rim, 1.3});
  scale.marks({dc_volts(20), dc_volts(36), dc_volts(4), rim - 5, rim, 1.3});
  scale.marks({dc_volts(20), dc_volts(28), dc_volts(1), rim - 3, rim, 0.7});
  scale.marks({dc_volts(28), dc_volts(36), dc_volts(2), rim - 3, rim, 0.7});
  scale.numerals({{0, "0", -22}, {dc_volts(20), "20"}, {dc_volts(28), "28"}, {dc_volts(36), "36", 20}},
                 rim - 6.5, 7.5);
}

void print_ac_voltage(const Scale& scale) {
  scale.band({ac_volts(110), ac_volts(120), rim - 1.2, 2.4, palette::range_green});
  for (const double volts : {0.0, 50.0, 115.0, 150.0}) {
    scale.marks({ac_volts(volts), ac_volts(volts), 1, rim - 5, rim, 1.3});
  }
  scale.marks({0, ac_volts(150), ac_volts(10), rim - 3, rim, 0.7});
  scale.numerals(
      {{0, "0", -22}, {ac_volts(50), "50"}, {ac_volts(115), "115"}, {ac_volts(150), "150", 22}},
      rim - 6.5, 7.5);
}

void print_ac_frequency(const Scale& scale) {
  scale.band({hertz(396), hertz(404), rim - 1.2, 2.4, palette::range_green});
  scale.marks({hertz(380), hertz(420), 10, rim - 5, rim, 1.3});
  scale.marks({hertz(380), hertz(420), 2, rim - 3, rim, 0.7});
  scale.numerals({{hertz(380), "380", -end}, {hertz(400), "400"}, {hertz(420), "420", end}}, rim - 6.5,
                 7.5);
}

constexpr Instrument instruments[] = {
    {0, "AMPERES", "DC", print_dc_load},
    {1, "VOLTS", "DC", print_dc_voltage},
    {2, "VOLTS", "AC", print_ac_voltage},
    {3, "FREQ", "AC", print_ac_frequency},
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
