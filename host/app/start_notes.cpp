#include "host/app/start_notes.h"

#include <cstdio>

namespace host {

void say_artwork_notes(const GaugeModule& module) {
  for (const std::string& note : module.artwork_notes())
    std::fprintf(stderr, "warning: %s\n", note.c_str());
}

}  // namespace host
