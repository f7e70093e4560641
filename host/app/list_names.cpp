#include "host/app/list_names.h"

#include <stdexcept>

#include "host/app/columns.h"
#include "host/app/lookup.h"
#include "host/loader/element_chain.h"
#include "host/panel/hints.h"
#include "host/panel/text.h"
#include "host/panel/wheel.h"

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
  explicit GaugeRows(const CockpitGauge& gauge) : gauge_(gauge), names_(gauge.names) {}

  void add_to(Columns& columns) const {
    const std::string gauge = gauge_.header().name;
    const std::vector<ChainLink> chain = element_chain(gauge_.header());
    for (const Named& part : names_.parts)
      columns.add({gauge, part.name, part_word(*chain[part.index].element), control_word(part.name),
                   said_of(part)});
    for (const Named& area : names_.areas)
      if (!names_.part(area.name))
        columns.add({gauge, area.name, "", control_word(area.name), words_of(gauge_, area_of(area))});
  }

 private:
  // How a name is worked; empty if it is not.
  std::string control_word(const std::string& name) const {
    if (const Named* area = names_.area(name)) {
      const std::string way = lower(way_to_work(area_of(*area)));
      return (way.empty() ? "click" : way) + (takes_wheel(gauge_, area_of(*area)) ? ", wheel" : "");
    }
    const Named* up = names_.area(name + "_up");
    const bool turns = up && names_.area(name + "_down") && takes_wheel(gauge_, area_of(*up));
    return turns ? "wheel" : "";
  }

  std::string said_of(const Named& part) const {
    const std::string_view text = gauge_.words.part(part.index);
    return std::string(text.empty() ? std::string_view(part.words) : text);
  }

  const HotArea& area_of(const Named& named) const { return gauge_.areas.areas()[named.index]; }

  const CockpitGauge& gauge_;
  const GaugeNames& names_;
};

}  // namespace

std::string list_names(const GaugeModule& module, const std::string& gauge) {
  const NameBook names = read_names(module);
  say_notes(names);
  const WordBook words = read_words(module, names);
  say_notes(words);
  if (!names.missing.empty()) throw std::runtime_error("there are no names: " + names.missing);
  Columns columns({"gauge", "name", "part", "control", "words"});
  const GaugeHeader* only = gauge.empty() ? nullptr : &find_gauge(module, gauge);
  for (const GaugeHeader* each : module.gauges())
    if (!only || each == only)
      GaugeRows(CockpitGauge(*each, {}, names.of(*each), words.of(*each))).add_to(columns);
  return columns.text();
}

}  // namespace host
