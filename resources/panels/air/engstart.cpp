/// Engine start: the master, a start switch for each engine, the selector that turns the starter.
#include "resources/kit/knob.h"
#include "resources/kit/legend.h"
#include "resources/kit/lever.h"
#include "resources/kit/metal.h"
#include "resources/panels/panels.h"
#include "resources/panels/shared/fittings.h"

namespace artwork {
namespace {

constexpr std::string_view panel = "Engstart";
constexpr Point start_hub{6.5, 20.5};
constexpr double radius = 14;
constexpr double turned = 60;  // of the selector to either engine

void draw_levers(const Canvas& canvas) {
  const Point master = hub_of(panel, 2130);
  lever_words(canvas, {master.x, master.y}, {.aside = -11});
  engrave(canvas, {master.x, master.y + 26.5}, "MASTER");
  Point hubs[2];
  for (int engine = 0; engine < 2; ++engine) {
    const Box lever = part_box(panel, 2040, 1 - engine);
    const Point hub = hubs[engine] = Point{lever.x, lever.y} + start_hub;
    polish(canvas, hub, 17);
    lever_mount(canvas, hub);
    engrave(canvas, {hub.x, hub.y + 26.5}, engine == 0 ? "ENG 1" : "ENG 2");
  }
  const double middle = (hubs[0].x + hubs[1].x) / 2;
  engrave(canvas, {middle, hubs[0].y - 13}, "RUN");
  engrave(canvas, {middle, hubs[0].y}, "ARM");
  engrave(canvas, {middle, hubs[0].y + 13}, "OFF");
}

void draw_selector_seat(const Canvas& canvas) {
  const Point hub = part_box(panel, 260).centre();
  knob_seat(canvas, hub, radius + 1.5);
  for (const double way : {-turned, 0.0, turned}) {
    engraved_line(canvas, polar(hub, radius + 3, way - 90), polar(hub, radius + 6, way - 90));
  }
  engrave(canvas, {hub.x, hub.y - 25}, "OFF");
  engrave(canvas, {hub.x - 21, hub.y - 13}, "ENG 1", {}, Anchor::right);
  engrave(canvas, {hub.x + 21, hub.y - 13}, "ENG 2", {}, Anchor::left);
}

void draw_plate(Canvas& canvas, int) {
  painted_plate(canvas);
  fit_parts(canvas, panel);
  const Box plate = whole(canvas.size());
  screw(canvas, {7.5, plate.height - 7.5}, 3.4, 30);
  screw(canvas, {plate.width - 7.5, plate.height - 7.5}, 3.4, 72);
  draw_levers(canvas);
  draw_selector_seat(canvas);
  const Point light = part_box(panel, 2110).centre();
  engrave(canvas, {light.x, light.y + 17}, "READY");
  engrave(canvas, {34, plate.height - 20}, "ENGINE\nSTART", {.size = heading_size});
}

void draw_selector(Canvas& canvas, int image) {
  constexpr double positions[] = {0, turned, -turned};
  bar_knob(canvas, whole(canvas.size()).centre(), radius, positions[image]);
}

void draw_start_lever(Canvas& canvas, int image) {
  constexpr Throw thrown[] = {Throw::down, Throw::centre, Throw::up};
  lever_nut(canvas, start_hub, 6);
  lever_handle(canvas, start_hub, 13.5, thrown[image]);
}

constexpr Art art[] = {
    background(250, draw_plate, "engine start panel"),
    {260, 3, {40, 36}, draw_selector, "start selector: off, engine 2, engine 1"},
    {2040, 3, {13, 40}, draw_start_lever, "engine start lever: off, armed, run"},
};

}  // namespace

const std::span<const Art> engstart_art = art;

}  // namespace artwork
