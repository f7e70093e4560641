#include "host/pages/checklist_progress.h"

#include <algorithm>

#include "host/panel/nearest.h"
#include "host/simulation/table_row.h"

namespace host {
namespace {

std::vector<std::string_view> names_of(const std::vector<Named>& all) {
  std::vector<std::string_view> names;
  for (const Named& named : all) names.push_back(named.name);
  return names;
}

std::string fault_of(const Comparison& comparison, const Cockpit& cockpit) {
  if (comparison.gauge.empty()) {
    if (find_row(AircraftModel::tokens(), comparison.name)) return {};
    return "there is no token '" + comparison.name + "'";
  }
  const CockpitGauge* gauge = cockpit.find(comparison.gauge);
  if (!gauge) return "no window has a gauge '" + comparison.gauge + "'";
  if (gauge->names.part(comparison.name)) return {};
  return comparison.gauge + " has no part '" + comparison.name + "'" +
         did_you_mean(comparison.name, names_of(gauge->names.parts));
}

std::string fault_of(const Condition& condition, const Cockpit& cockpit) {
  for (const Comparison& comparison : condition)
    if (std::string fault = fault_of(comparison, cockpit); !fault.empty()) return fault;
  return {};
}

std::string fault_of(const ChecklistItem& item, const Cockpit& cockpit) {
  const CockpitGauge* gauge = cockpit.find(item.gauge);
  if (!gauge) return "no window has a gauge '" + item.gauge + "'";
  if (!target_of(cockpit, item.gauge, item.control))
    return item.gauge + " has no control '" + item.control + "'" +
           did_you_mean(item.control, names_of(gauge->names.areas));
  return fault_of(item.done, cockpit);
}

bool is_left_out(const std::string& gauge, const Cockpit& cockpit) {
  return !gauge.empty() && !cockpit.find(gauge) && cockpit.module().find(gauge);
}

}  // namespace

std::vector<Checklist> fitted_to(const Cockpit& cockpit, std::vector<Checklist> lists) {
  const auto needs_another_panel = [&](const Condition& condition) {
    return std::ranges::any_of(
        condition, [&](const Comparison& each) { return is_left_out(each.gauge, cockpit); });
  };
  for (Checklist& list : lists) {
    if (needs_another_panel(list.when)) list.when.clear();
    std::erase_if(list.items, [&](const ChecklistItem& item) {
      return is_left_out(item.gauge, cockpit) || needs_another_panel(item.done);
    });
  }
  return lists;
}

std::string fault_for(const std::vector<Checklist>& lists, const Cockpit& cockpit) {
  const auto at = [](int line, const std::string& fault) {
    return "line " + std::to_string(line) + ": " + fault;
  };
  for (const Checklist& list : lists) {
    if (const std::string fault = fault_of(list.when, cockpit); !fault.empty())
      return at(list.line, fault);
    for (const ChecklistItem& item : list.items)
      if (const std::string fault = fault_of(item, cockpit); !fault.empty())
        return at(item.line, fault);
  }
  return {};
}

std::size_t items_done(const Checklist& list, const Cockpit& cockpit) {
  return static_cast<std::size_t>(std::ranges::count_if(
      list.items, [&](const ChecklistItem& item) { return holds(item.done, cockpit); }));
}

std::size_t proposed_list(const std::vector<Checklist>& lists, const Cockpit& cockpit) {
  std::size_t proposed = 0;
  for (std::size_t i = 0; i < lists.size(); ++i)
    if (!lists[i].when.empty() && holds(lists[i].when, cockpit)) proposed = i;
  return proposed;
}

std::optional<Target> target_of(const Cockpit& cockpit, const std::string& name,
                                const std::string& control) {
  const CockpitGauge* gauge = cockpit.find(name);
  if (!gauge || !window_for(cockpit, *gauge)) return std::nullopt;
  if (control.empty()) return Target{gauge, {0, 0, gauge->size.width, gauge->size.height}};
  const Named* area = gauge->names.area(control);
  if (!area) return std::nullopt;
  return Target{gauge, gauge->areas.areas()[area->index].box};
}

const WindowConfig* window_for(const Cockpit& cockpit, const CockpitGauge& gauge) {
  const WindowConfig* first = nullptr;
  for (const CockpitWindow& window : cockpit.windows()) {
    if (!window.config->drawn || window.config->ident == 0) continue;
    if (std::ranges::find(window.gauges, &gauge, &PlacedGauge::gauge) == window.gauges.end()) continue;
    if (cockpit.panels().shows(window.config->ident)) return window.config;
    if (!first) first = window.config;
  }
  return first;
}

}  // namespace host
