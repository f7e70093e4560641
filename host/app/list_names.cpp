#include "host/app/list_names.h"

#include <stdexcept>

#include "host/app/columns.h"
#include "host/app/lookup.h"
#include "host/loader/element_chain.h"
#include "host/panel/hints.h"
#include "host/panel/text.h"

namespace host {
namespace {

std::string part_word(const Element& element) {
  switch (element.kind) {
    case ELEMENT_NEEDLE: return "needle";
    case ELEMENT_STRING: return "text";
    case ELEMENT_SLIDER: return "slider";
    case ELEMENT_ICON: return "icon";
    case ELEMENT_MOVING_IMAGE: return "moving image";
    case ELEMENT_SPRITE: return "sprite";
    default: return "picture";
  }
}

// The rows of one gauge: its parts with what works them, then the areas that work something unnamed.
class GaugeRows {
 public:
  GaugeRows(const GaugeHeader& gauge, const GaugeNames& names)
      : gauge_(gauge), names_(names), areas_(gauge.mouse_areas) {}

  void add_to(Columns& columns) const {
    const std::vector<ChainLink> chain = element_chain(gauge_);
    for (const Named& part : names_.parts)
      columns.add({gauge_.name, part.name, part_word(*chain[part.index].element),
                   control_word(part.name), part.words});
    for (const Named& area : names_.areas)
      if (!names_.part(area.name))
        columns.add({gauge_.name, area.name, "", control_word(area.name), area.words});
  }

 private:
  // How a name is worked; empty if it is not.
  std::string control_word(const std::string& name) const {
    if (const Named* area = names_.area(name)) {
      const std::string way = lower(way_to_work(area_of(*area)));
      return way.empty() ? "click" : way;
    }
    const Named* up = names_.area(name + "_up");
    const bool turns =
        up && names_.area(name + "_down") && areas_.wheel(area_of(*up).box.middle(), true);
    return turns ? "wheel" : "";
  }

  const HotArea& area_of(const Named& named) const { return areas_.areas()[named.index]; }

  const GaugeHeader& gauge_;
  const GaugeNames& names_;
  HotAreas areas_;
};

}  // namespace

std::string list_names(const GaugeModule& module, const std::string& gauge) {
  const NameBook names = read_names(module);
  say_notes(names);
  if (!names.missing.empty()) throw std::runtime_error("there are no names: " + names.missing);
  Columns columns({"gauge", "name", "part", "control", "words"});
  const GaugeHeader* only = gauge.empty() ? nullptr : &find_gauge(module, gauge);
  for (const GaugeHeader* each : module.gauges())
    if (!only || each == only) GaugeRows(*each, names.of(*each)).add_to(columns);
  return columns.text();
}

}  // namespace host
