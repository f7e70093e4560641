#include "resources/kit/records.h"

#include <cstdio>
#include <cstdlib>

#include "host/gauge/needle_geometry.h"
#include "resources/names/gauge_names.h"

extern "C" const LinkageRecord Linkage;

namespace artwork {
namespace names = tarnvale::names;
namespace {

Box box_of(const names::NamedArea& named) {
  return {static_cast<double>(named.corner.x), static_cast<double>(named.corner.y),
          static_cast<double>(named.area->width), static_cast<double>(named.area->height)};
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
  wrong("the module has no gauge " + std::string(name));
}

void wrong(const std::string& what) {
  std::fprintf(stderr, "artwork: %s\n", what.c_str());
  std::exit(1);
}

std::vector<const Element*> parts(const GaugeHeader& of) {
  std::vector<const Element*> all;
  for (const names::NamedPart& each : names::parts(of)) all.push_back(each.element);
  return all;
}

const Element* find_part(const GaugeHeader& of, std::string_view name) {
  for (const names::NamedPart& each : names::parts(of)) {
    if (each.name == name) return each.element;
  }
  return nullptr;
}

const Element& part(const GaugeHeader& of, std::string_view name) {
  if (const Element* found = find_part(of, name)) return *found;
  wrong(std::string(of.name) + " has no part " + std::string(name));
}

Box click_box(const GaugeHeader& of, std::string_view name) {
  for (const names::NamedArea& each : names::areas(of)) {
    if (each.name == name) return box_of(each);
  }
  wrong(std::string(of.name) + " has no part or click area " + std::string(name));
}

std::vector<Box> click_boxes(const GaugeHeader& of) {
  std::vector<Box> boxes;
  for (const names::NamedArea& each : names::areas(of)) boxes.push_back(box_of(each));
  return boxes;
}

double needle_angle(const Element& needle, double value) {
  return host::needle_angle(host::needle_scale(needle), value);
}

}  // namespace artwork
