#include "resources/kit/records.h"

#include <cstdio>
#include <cstdlib>
#include <string>

#include "host/gauge/needle_geometry.h"

extern "C" const LinkageRecord Linkage;

namespace artwork {
namespace {

[[noreturn]] void missing(const std::string& what) {
  std::fprintf(stderr, "artwork: the module has no %s\n", what.c_str());
  std::exit(1);
}

const Element* after(const Element* element) { return element->next ? *element->next : nullptr; }

bool same(const Element& a, const Element& b) {
  return a.kind == b.kind && a.resource_id == b.resource_id && a.position.x == b.position.x &&
         a.position.y == b.position.y;
}

/// Whether the second half of the chain repeats the first: by day only the first is shown.
bool repeats(const std::vector<const Element*>& chain) {
  const std::size_t half = chain.size() / 2;
  return chain.size() % 2 == 0 && half > 0 && same(*chain[0], *chain[half]);
}

}  // namespace

std::vector<const GaugeHeader*> gauges() {
  std::vector<const GaugeHeader*> all;
  for (const GaugeHeader* each : Linkage.gauges) {
    if (each != nullptr) all.push_back(each);
  }
  return all;
}

const GaugeHeader& gauge(std::string_view name) {
  for (const GaugeHeader* each : gauges()) {
    if (name == each->name) return *each;
  }
  missing("gauge " + std::string(name));
}

std::vector<const Element*> parts(const GaugeHeader& of) {
  std::vector<const Element*> chain;
  for (const Element* e = after(of.element_list[0]); e != nullptr; e = after(e)) chain.push_back(e);
  if (repeats(chain)) chain.resize(chain.size() / 2);
  return chain;
}

bool has_parts(std::string_view name) { return !parts(gauge(name)).empty(); }

const Element& part(std::string_view gauge_name, int id, int nth) {
  for (const Element* e : parts(gauge(gauge_name))) {
    if (e->resource_id == id && nth-- == 0) return *e;
  }
  missing(std::string(gauge_name) + " part " + std::to_string(id));
}

Point place(std::string_view gauge_name, int id, int nth) {
  const PanelPoint at = part(gauge_name, id, nth).position;
  return {static_cast<double>(at.x), static_cast<double>(at.y)};
}

std::vector<Box> click_boxes(const GaugeHeader& of) {
  std::vector<Box> boxes;
  std::vector<Point> groups{{}};
  for (const MouseArea* area = of.mouse_areas; area->kind != MOUSE_END; ++area) {
    const Point at = groups.back() + Point{static_cast<double>(area->x), static_cast<double>(area->y)};
    if (area->kind == MOUSE_GROUP) groups.push_back(at);
    if (area->kind == MOUSE_GROUP_END) groups.pop_back();
    if (area->kind == MOUSE_CLICK_AREA) {
      boxes.push_back(
          {at.x, at.y, static_cast<double>(area->width), static_cast<double>(area->height)});
    }
  }
  return boxes;
}

double needle_angle(const Element& needle, double value) {
  return host::needle_angle(host::needle_scale(needle), value);
}

}  // namespace artwork
