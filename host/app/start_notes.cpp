#include "host/app/start_notes.h"

#include <cstdio>

#include "host/sound/wav_facts.h"

namespace host {

void say_start_notes(const GaugeModule& module) {
  for (const std::string& note : module.artwork_notes())
    std::fprintf(stderr, "warning: %s\n", note.c_str());
  for (const std::string& note : sound_faults(sounds_in(module.file().parent_path() / "Sound")))
    std::fprintf(stderr, "warning: %s\n", note.c_str());
}

}  // namespace host
