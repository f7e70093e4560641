#include "resources/names/gauge_names.h"

#include <cctype>

#include "module/gauge.h"

extern "C" const LinkageRecord Linkage;

namespace tarnvale::names {
namespace {

PanelPoint shifted(PanelPoint origin, const MouseArea& area) {
  return {origin.x + area.x, origin.y + area.y};
}

std::string line(const GaugeHeader& gauge, const std::string& name, const std::string& place,
                 const char* words) {
  return std::string(gauge.name) + '\t' + name + '\t' + place + '\t' + words + '\n';
}

std::string box(const NamedArea& named) {
  std::string text = "box ";
  for (const i32 number : {named.corner.x, named.corner.y, named.area->width}) {
    text += std::to_string(number) + ',';
  }
  return text + std::to_string(named.area->height);
}

}  // namespace

std::string name_of(std::string_view words) {
  std::string name;
  for (const char c : words) {
    if (std::isalnum(static_cast<unsigned char>(c))) {
      name += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    } else if (!name.empty() && name.back() != '_') {
      name += '_';
    }
  }
  return name;
}

const GaugeHeader* find_gauge(std::string_view name) {
  for (const GaugeHeader* const* gauge = Linkage.gauges; *gauge != nullptr; ++gauge) {
    if (name == (*gauge)->name) return *gauge;
  }
  return nullptr;
}

std::vector<NamedPart> parts(const GaugeHeader& gauge) {
  std::vector<NamedPart> found;
  const Element* element = gauge.element_list[0];
  for (const char* words : gauge_of(gauge).part_words) {
    element = *element->next;
    found.push_back({name_of(words), words, element, found.size() + 1});
  }
  return found;
}

std::vector<NamedArea> areas(const GaugeHeader& gauge) {
  std::vector<NamedArea> found;
  std::vector<PanelPoint> groups{{0, 0}};
  const std::span<const char* const> words = gauge_of(gauge).area_words;
  for (const MouseArea* area = gauge.mouse_areas; area->kind != MOUSE_END; ++area) {
    const PanelPoint corner = shifted(groups.back(), *area);
    if (area->kind == MOUSE_GROUP) groups.push_back(corner);
    if (area->kind == MOUSE_GROUP_END) groups.pop_back();
    if (area->kind != MOUSE_CLICK_AREA) continue;
    const std::size_t index = found.size();
    found.push_back({name_of(words[index]), words[index], area, corner, index});
  }
  return found;
}

std::string names_file() {
  std::string text = "# gauge\tname\tplace\twords\n";
  for (const GaugeHeader* const* gauge = Linkage.gauges; *gauge != nullptr; ++gauge) {
    for (const NamedPart& part : parts(**gauge)) {
      text += line(**gauge, part.name, "element " + std::to_string(part.index), part.words);
    }
    for (const NamedArea& area : areas(**gauge))
      text += line(**gauge, area.name, box(area), area.words);
  }
  return text;
}

}  // namespace tarnvale::names
