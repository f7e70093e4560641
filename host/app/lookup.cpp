#include "host/app/lookup.h"

#include <cstdio>
#include <stdexcept>

#include "host/panel/text.h"

#include "host/files/shortened.h"

namespace host {
namespace {

void warn_of(const std::vector<std::string>& notes) {
  for (const std::string& note : notes) std::fprintf(stderr, "warning: %s\n", note.c_str());
}

}  // namespace

const GaugeHeader& find_gauge(const GaugeModule& module, const std::string& name) {
  if (const GaugeHeader* gauge = module.find(name)) return *gauge;
  throw std::runtime_error(module.file().string() + " has no gauge '" + shortened(name) +
                           "'; see: tarnvale list gauges");
}

const WindowConfig& find_window(const PanelConfig& panel, const std::string& typed) {
  const WindowConfig* beginning = nullptr;
  bool one_way = true;
  std::string titles;
  for (const WindowConfig& window : panel.windows) {
    if (window.ident == 0 || !window.drawn) continue;
    if (typed == std::to_string(window.ident) || same_name(typed, window.title)) return window;
    titles += (titles.empty() ? "" : ", ") + window.title;
    if (typed.empty() || !lower(window.title).starts_with(lower(typed))) continue;
    one_way = !beginning;
    beginning = &window;
  }
  if (beginning && one_way) return *beginning;
  throw std::runtime_error("there is no window " + typed + "; there are: " + titles);
}

void say_notes(const NameBook& names) { warn_of(names.notes); }

void say_notes(const WordBook& words) { warn_of(words.notes); }

}  // namespace host
