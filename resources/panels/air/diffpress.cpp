/// Cabin differential pressure, with the aircraft's altitude on the inner scale.
#include "resources/kit/dial.h"
#include "resources/kit/metal.h"
#include "resources/kit/needle.h"
#include "resources/panels/panels.h"

namespace artwork {
namespace {

constexpr std::string_view panel = "Diffpress";
constexpr double radius = 52;
constexpr double rim = 46.5;
constexpr double inner = 23.5;  // the altitude scale's circle

/// Needle units are tenths of a pound a square inch.
void print_pressure(const Scale& scale) {
  scale.band({20, 76, rim - 1.4, 2.8, palette::range_green});
  scale.band({82, 100, rim - 1.4, 2.8, palette::range_red});
  scale.marks({10, 100, 10, rim - 7, rim, 1.6});
  scale.marks({10, 100, 5, rim - 4.5, rim, 1});
  scale.numerals({{10, "1"},
                  {20, "2"},
                  {30, "3"},
                  {40, "4"},
                  {50, "5"},
                  {60, "6"},
                  {70, "7"},
                  {80, "8"},
                  {90, "9"},
                  {100, "10"}},
                 rim - 8, 10);
}

void print_altitude(const Scale& scale) {
  scale.arc(0, 50000, inner, 0.7);
  scale.marks({0, 50000, 10000, inner - 4, inner, 1.3});
  scale.marks({0, 50000, 2500, inner - 2.2, inner, 0.7});
  scale.numerals({{0, "0"}, {10000, "10"}, {20000, "20"}, {30000, "30"}, {40000, "40"}}, inner - 5,
                 7.5);
}

void draw_face(const Canvas& canvas, Lighting lighting) {
  painted_plate(canvas);
  corner_screws(canvas, 8, 3.4);
  const Dial d{place(panel, 1280), radius, 4};
  meter(
      canvas, d, lighting,
      [&](Colour ink) {
        print_pressure(Scale(canvas, part(panel, 1280), ink));
        print_altitude(Scale(canvas, part(panel, 24220), ink));
      },
      0);
}

void draw_altitude_needle(Canvas& canvas, int) {
  blade(canvas,
        {.pivot = {0, 2}, .length = 20, .tail = 0, .half_width = 1.4, .colour = palette::legend_amber});
}

void draw_pressure_needle(Canvas& canvas, int) {
  blade(canvas, {.pivot = {9, 10}, .length = 43, .tail = 9, .half_width = 2});
  needle_cap(canvas, {9, 10}, 5.5);
}

constexpr Art art[] = {
    background(1270, plate_by_day<draw_face>, "differential pressure"),
    {1280, 1, needle_size({9, 10}, 43), draw_pressure_needle, "differential pressure needle"},
    lighting_overlay(1290, 1270, plate_lit<draw_face>, "differential pressure lit"),
    {24220, 1, needle_size({0, 2}, 20), draw_altitude_needle, "altitude needle"},
};

}  // namespace

const std::span<const Art> diffpress_art = art;

}  // namespace artwork
