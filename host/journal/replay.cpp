#include "host/journal/replay.h"

#include <cstdio>
#include <stdexcept>

namespace host {
namespace {

void take(CockpitInputs& inputs, const Input& input, const std::string& place) {
  try {
    if (inputs.take(input) != Answer::nothing) return;
  } catch (const std::invalid_argument& error) {
    throw std::runtime_error(place + ": " + error.what());
  }
  throw std::runtime_error(place + ": nothing in this cockpit answers this input");
}

std::string departure(const std::string& place, double seconds) {
  char text[80];
  std::snprintf(text, sizeof text, ": after %.0f s the flight is not the one in the journal", seconds);
  return place + text;
}

}  // namespace

std::string fly_again(CockpitInputs& inputs, const FlightRecord& record,
                      const std::function<void()>& after_frame) {
  Cockpit& cockpit = inputs.cockpit();
  std::string departed;
  for (std::size_t i = 0; i < record.entries.size(); ++i) {
    const JournalEntry& entry = record.entries[i];
    while (cockpit.frames() < entry.frames) {
      inputs.frame();
      if (after_frame) after_frame();
    }
    if (entry.input)
      take(inputs, *entry.input, record.place_of(i));
    else if (departed.empty() && digest_of(cockpit) != entry.digest)
      departed = departure(record.place_of(i), cockpit.seconds());
  }
  return departed;
}

}  // namespace host
