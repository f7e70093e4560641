#include <algorithm>
#include <cstdio>

#include "host/app/columns.h"
#include "host/app/commands.h"
#include "host/app/installation.h"
#include "host/app/list_names.h"
#include "host/panel/text.h"
#include "host/sound/wav_facts.h"

namespace host {
namespace {

namespace fs = std::filesystem;

void print(const Columns& columns) { std::fputs(columns.text().c_str(), stdout); }

int count_elements(const GaugeHeader& gauge) {
  int count = 0;
  for (const Element* element = gauge.element_list[0]; element; ++count)
    element = element->next ? element->next[0] : nullptr;
  return count;
}

std::string windows_with(const PanelConfig& panel, std::string_view gauge) {
  std::string titles;
  for (const WindowConfig& window : panel.windows)
    if (std::ranges::any_of(window.gauges, [&](auto& place) { return same_name(place.gauge, gauge); }))
      titles += (titles.empty() ? "" : ", ") + window.title;
  return titles;
}

void list_gauges(const CockpitOptions& options) {
  const GaugeModule module(options.module);
  const PanelConfig panel = read_panel_config(options.panel);
  Columns columns({"#", "gauge", "width", "height", "elements", "areas", "windows"});
  int number = 0;
  for (const GaugeHeader* gauge : module.gauges()) {
    const PanelSize size = gauge_size(*gauge, module.bitmaps());
    columns.add({std::to_string(++number), gauge->name, std::to_string(size.width),
                 std::to_string(size.height), std::to_string(count_elements(*gauge)),
                 std::to_string(HotAreas(gauge->mouse_areas).areas().size()),
                 windows_with(panel, gauge->name)});
  }
  print(columns);
}

std::string ident_text(std::uint32_t ident) { return ident ? std::to_string(ident) : ""; }

void list_windows(const CockpitOptions& options) {
  Columns columns({"ident", "day", "night", "title", "width", "height", "gauges", "at start"});
  for (const WindowConfig& window : read_panel_config(options.panel).windows)
    columns.add({ident_text(window.ident), ident_text(window.day_ident), ident_text(window.night_ident),
                 window.title, std::to_string(window.width), std::to_string(window.height),
                 std::to_string(window.gauges.size()),
                 !window.drawn    ? "runs unseen"
                 : window.visible ? "open"
                                  : "closed"});
  print(columns);
}

void list_rows(std::span<const TableRow> rows) {
  Columns columns({"number", "hex", "name", "unit"});
  for (const TableRow& row : rows) {
    char hex[16];
    std::snprintf(hex, sizeof hex, "0x%X", row.number);
    columns.add({std::to_string(row.number), hex, std::string(row.name), std::string(row.unit)});
  }
  print(columns);
}

void list_failures() {
  Columns columns({"key", "name", "system"});
  for (const FailureRow& row : AircraftModel::failures())
    columns.add({std::to_string(row.key), std::string(row.name), std::string(row.words)});
  print(columns);
}

void list_sounds(const CockpitOptions& options) {
  const fs::path folder = options.module.parent_path() / "Sound";
  if (!fs::is_directory(folder))
    throw std::runtime_error(folder.string() + ": there is no such folder");
  const auto sounds = sounds_in(folder);
  for (const std::string& fault : sound_faults(sounds))
    std::fprintf(stderr, "warning: %s\n", fault.c_str());
  Columns columns({"seconds", "rate", "bits", "channels", "file"});
  for (const auto& [file, facts] : sounds) {
    if (facts.rate == 0) continue;
    char seconds[32];
    std::snprintf(seconds, sizeof seconds, "%.2f", facts.seconds);
    columns.add({seconds, std::to_string(facts.rate), std::to_string(facts.bits),
                 std::to_string(facts.channels), file.lexically_relative(folder).string()});
  }
  print(columns);
}

}  // namespace

int list(const ListOptions& options) {
  const CockpitOptions cockpit = located(options.cockpit);
  if (!options.gauge.empty() && options.what != "names")
    throw std::runtime_error("only names can be listed for one gauge, not " + options.what);
  if (options.what == "gauges") list_gauges(cockpit);
  if (options.what == "names")
    std::fputs(list_names(GaugeModule(cockpit.module), options.gauge).c_str(), stdout);
  if (options.what == "windows") list_windows(cockpit);
  if (options.what == "tokens") list_rows(AircraftModel::tokens());
  if (options.what == "events") list_rows(AircraftModel::events());
  if (options.what == "failures") list_failures();
  if (options.what == "sounds") list_sounds(cockpit);
  return exit_fine;
}

}  // namespace host
