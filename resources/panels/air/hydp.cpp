/// Hydraulic pumps: two rows of four, each with its light.
#include <algorithm>
#include <array>

#include "resources/kit/lamp.h"
#include "resources/kit/metal.h"
#include "resources/panels/panels.h"
#include "resources/panels/shared/fittings.h"

namespace artwork {
namespace {

constexpr std::string_view panel = "Hydp";
constexpr std::array<std::string_view, 4> pumps{"ENG 1", "ENG 2", "ELEC", "STBY"};
constexpr std::array<int, 4> lights{3290, 3310, 3320, 3330};

/// A bracket over one row of lights, with the system's name in the middle.
void draw_row(const Canvas& canvas, double y, std::string_view name) {
  const Box first = part_box(panel, lights.front()), last = part_box(panel, lights.back());
  const double middle = (first.x + last.right()) / 2;
  const double level = canvas.snapped(y) + 0.5;
  engraved_line(canvas, {first.x + 6, level}, {middle - 30, level});
  engraved_line(canvas, {middle + 30, level}, {last.right() - 6, level});
  engrave(canvas, {middle, y}, name);
}

/// Where the levers of a row stand: the nearest to its top or bottom.
double lever_row(bool upper) {
  double y = upper ? 1e9 : 0;
  for (int nth = 0; nth < 8; ++nth) {
    const double at = hub_of(panel, 3280, nth).y;
    y = upper ? std::min(y, at) : std::max(y, at);
  }
  return y;
}

void draw_plate(Canvas& canvas, int) {
  plate_of(canvas, panel);
  engrave(canvas, {canvas.size().width / 2.0, 16}, "HYDRAULIC PUMPS", {.size = heading_size + 1});
  for (const bool upper : {true, false}) {
    const double y = lever_row(upper);
    draw_row(canvas, y - 48, upper ? "SYSTEM 1" : "SYSTEM 2");
    lever_words(canvas, {canvas.size().width - 26.0, y}, {.aside = 0, .reach = 9});
  }
}

template <std::size_t column>
void draw_light(Canvas& canvas, int image) {
  lamp(canvas, whole(canvas.size()), {palette::lamp_green, pumps[column], 7.5}, image == 1);
}

constexpr Size light{38, 22};

constexpr Art art[] = {
    background(3270, draw_plate, "hydraulic pump panel"),
    {3290, 2, light, draw_light<0>, "engine 1 pump light: dark, lit"},
    {3310, 2, light, draw_light<1>, "engine 2 pump light: dark, lit"},
    {3320, 2, light, draw_light<2>, "electric pump light: dark, lit"},
    {3330, 2, light, draw_light<3>, "standby pump light: dark, lit"},
};

}  // namespace

const std::span<const Art> hydp_art = art;

}  // namespace artwork
