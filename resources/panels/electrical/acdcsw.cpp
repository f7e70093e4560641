/// Meter selectors: which source the DC and the AC meters read.
#include <array>

#include "resources/kit/knob.h"
#include "resources/kit/legend.h"
#include "resources/kit/metal.h"
#include "resources/panels/panels.h"
#include "resources/panels/shared/fittings.h"

namespace artwork {
namespace {

constexpr std::string_view panel = "Acdcsw";
constexpr double radius = 11.5;
constexpr std::size_t positions = 8;
using Names = std::array<std::string_view, positions>;

/// Evenly over the knob's travel, the first at the lower left.
constexpr double turned(std::size_t position) { return -140 + 40.0 * static_cast<double>(position); }

/// Four names on either side, each level with its tick.
void draw_positions(const Canvas& canvas, Point hub, const Names& names) {
  for (std::size_t i = 0; i < positions; ++i) {
    const double way = turned(i) - 90;
    const Point tick = polar(hub, radius + 5.5, way);
    engraved_line(canvas, polar(hub, radius + 2.6, way), tick);
    constexpr double rows[] = {22, 7.5, -7.5, -22, -22, -7.5, 7.5, 22};
    const bool left = i < positions / 2;
    const double aside = i == 3 || i == 4 ? 9 : i == 0 || i == 7 ? 14 : 19.5;
    engrave(canvas, {hub.x + (left ? -aside : aside), hub.y + rows[i]}, names[i], {.size = legend_size},
            left ? Anchor::right : Anchor::left);
  }
}

void draw_selector_plate(const Canvas& canvas, Point hub, const Names& names,
                         std::string_view current) {
  knob_seat(canvas, hub, radius + 1.4);
  engrave(canvas, {hub.x, hub.y + 23}, current, {.size = 10});
  draw_positions(canvas, hub, names);
}

void draw_plate(Canvas& canvas, int) {
  painted_plate(canvas);
  corner_screws(canvas, 6.5, 3);
  draw_selector_plate(canvas, part_box(panel, 380).centre(),
                      {"OFF", "BAT", "DC1", "DC2", "EXT", "TR1", "TR2", "ESS"}, "DC");
  draw_selector_plate(canvas, part_box(panel, 380, 1).centre(),
                      {"OFF", "APU", "G1", "AC1", "ESS", "G2", "AC2", "EXT"}, "AC");
}

void draw_knob(Canvas& canvas, int image) {
  bar_knob(canvas, whole(canvas.size()).centre(), radius, turned(static_cast<std::size_t>(image)));
}

constexpr Art art[] = {
    background(370, draw_plate, "meter selector panel"),
    {380, 8, {54, 56}, draw_knob, "meter selector: eight positions"},
};

}  // namespace

const std::span<const Art> acdcsw_art = art;

}  // namespace artwork
