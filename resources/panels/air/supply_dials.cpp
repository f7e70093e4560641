/// The overhead's pairs of dials: duct temperatures, engine and wing anti-ice pressures.
#include "resources/kit/dial.h"
#include "resources/kit/lever.h"
#include "resources/kit/metal.h"
#include "resources/kit/needle.h"
#include "resources/panels/panels.h"
#include "resources/panels/shared/fittings.h"

namespace artwork {
namespace {

/// What the two dials of a plate have in common.
struct Pair {
  std::string_view gauge;
  int needle;
  double radius;
  std::string_view names[2];
  std::string_view unit;
  void (*print)(const Scale& scale, double rim);
  Point name, units;  ///< the words' places from the hub, clear of the needle at rest
  double name_size;
};

void draw_pair(const Canvas& canvas, const Pair& pair, Lighting lighting) {
  for (int nth = 0; nth < 2; ++nth) {
    const Dial d{place(pair.gauge, pair.needle, nth), pair.radius};
    meter(canvas, d, lighting, [&](Colour ink) {
      pair.print(Scale(canvas, part(pair.gauge, pair.needle, nth), ink), d.radius - 5.6);
      print(canvas, d.centre + pair.name, pair.names[nth], {.size = pair.name_size, .colour = ink});
      print(canvas, d.centre + pair.units, pair.unit, {.size = 7, .colour = ink});
    });
  }
}

void print_duct_scale(const Scale& scale, double rim) {
  scale.band({15, 40, rim - 1.2, 2.4, palette::range_green});
  scale.band({55, 60, rim - 1.2, 2.4, palette::range_red});
  scale.marks({0, 60, 10, rim - 5, rim, 1.4});
  scale.marks({0, 60, 2, rim - 2.8, rim, 0.7});
  scale.numerals({{0, "0", -16}, {20, "20"}, {40, "40"}, {60, "60"}}, rim - 6, 8);
}

void print_engine_scale(const Scale& scale, double rim) {
  scale.band({450, 600, rim - 1.2, 2.4, palette::range_green});
  scale.band({900, 1000, rim - 1.2, 2.4, palette::range_red});
  scale.marks({0, 1000, 100, rim - 5, rim, 1.3});
  scale.marks({0, 1000, 50, rim - 2.8, rim, 0.7});
  scale.numerals({{200, "20"}, {400, "40"}, {600, "60"}}, rim - 6, 8);
}

void print_wing_scale(const Scale& scale, double rim) {
  scale.band({450, 650, rim - 1.2, 2.4, palette::range_green});
  scale.band({1050, 1200, rim - 1.2, 2.4, palette::range_red});
  scale.marks({0, 1200, 100, rim - 5, rim, 1.3});
  scale.marks({0, 1200, 50, rim - 2.8, rim, 0.7});
  scale.numerals({{200, "20"}, {400, "40"}, {600, "60"}, {800, "80"}, {1000, "100"}}, rim - 6, 8);
}

constexpr Pair ducts{"Ductc", 280,       32.5, {"DUCT 1", "DUCT 2"}, "\u00b0C", print_duct_scale,
                     {0, 12}, {0, 20.5}, 8};
constexpr Pair engines{"Icepsi",     1110,    31.5, {"ENG 1", "ENG 2"}, "PSI", print_engine_scale,
                       {-0.5, 20.3}, {2, 12}, 6.5};
constexpr Pair wings{"Airfoil", 1140,      34, {"WING 1", "WING 2"}, "PSI", print_wing_scale,
                     {2.5, 21}, {3, 12.5}, 7};

void centre_screws(const Canvas& canvas, double x, double inset) {
  screw(canvas, {x, inset}, 3, 25);
  screw(canvas, {x, canvas.size().height - inset}, 3, 70);
}

void draw_ducts(const Canvas& canvas, Lighting lighting) {
  painted_plate(canvas);
  centre_screws(canvas, 79, 8);
  draw_pair(canvas, ducts, lighting);
}

void draw_engines(const Canvas& canvas, Lighting lighting) {
  painted_plate(canvas);
  centre_screws(canvas, 75.5, 8);
  draw_pair(canvas, engines, lighting);
}

void draw_wings(const Canvas& canvas, Lighting lighting) {
  painted_plate(canvas);
  screw(canvas, {83, 9}, 3, 25);
  screw(canvas, {canvas.size().width - 8.0, canvas.size().height - 8.0}, 3, 70);
  draw_pair(canvas, wings, lighting);
  const Point hub = part_box("Airfoil", 2210).centre();
  polish(canvas, hub, 16);
  lever_mount(canvas, hub);
  engrave(canvas, {hub.x + 24, hub.y}, "HI SUPPLY", {}, Anchor::left);
}

/// A lever that is thrown to the side: left, right.
void draw_side_lever(Canvas& canvas, int image) {
  const Point hub = whole(canvas.size()).centre();
  lever_nut(canvas, hub, 6);
  const Saved saved(canvas);
  cairo_translate(canvas.cr(), hub.x, hub.y);
  cairo_rotate(canvas.cr(), radians(90));
  lever_handle(canvas, {0, 0}, 14, image == 0 ? Throw::down : Throw::up, 3.2);
}

void draw_duct_needle(Canvas& canvas, int) {
  blade(canvas, {.pivot = {7, 2}, .length = 24, .tail = 7, .half_width = 1.6});
}

void draw_engine_needle(Canvas& canvas, int) {
  blade(canvas, {.pivot = {5, 5}, .length = 23, .tail = 5, .half_width = 1.6});
  needle_cap(canvas, {5, 5}, 4);
}

void draw_wing_needle(Canvas& canvas, int) {
  blade(canvas, {.pivot = {7, 7}, .length = 25, .tail = 7, .half_width = 1.7});
  needle_cap(canvas, {7, 7}, 4.6);
}

constexpr Art art[] = {
    background(270, plate_by_day<draw_ducts>, "duct temperatures"),
    {280, 1, needle_size({7, 2}, 24), draw_duct_needle, "duct temperature needle"},
    lighting_overlay(290, 270, plate_lit<draw_ducts>, "duct temperatures lit"),
    background(1090, plate_by_day<draw_engines>, "engine anti-ice pressures"),
    {1110, 1, needle_size({5, 5}, 23), draw_engine_needle, "engine anti-ice needle"},
    lighting_overlay(1120, 1090, plate_lit<draw_engines>, "engine anti-ice pressures lit"),
    background(1130, plate_by_day<draw_wings>, "wing anti-ice pressures"),
    {1140, 1, needle_size({7, 7}, 25), draw_wing_needle, "wing anti-ice needle"},
    lighting_overlay(1150, 1130, plate_lit<draw_wings>, "wing anti-ice pressures lit"),
    {2210, 2, {40, 14}, draw_side_lever, "side lever: left, right"},
};

}  // namespace

const std::span<const Art> supply_dial_art = art;

}  // namespace artwork
