#include "host/app/lookup.h"

#include <cstdio>

#include "host/files/shortened.h"

namespace host {

const GaugeHeader& find_gauge(const GaugeModule& module, const std::string& name) {
  if (const GaugeHeader* gauge = module.find(name)) return *gauge;
  throw std::runtime_error(module.file().string() + " has no gauge '" + shortened(name) +
                           "'; see: tarnvale list gauges");
}

void say_notes(const NameBook& names) {
  for (const std::string& note : names.notes) std::fprintf(stderr, "warning: %s\n", note.c_str());
}

}  // namespace host
