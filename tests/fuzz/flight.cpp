// What stands in a journal enters the flight again: inputs with any values, in any order.
#include "host/inputs/cockpit_inputs.h"
#include "host/journal/journal_line.h"
#include "host/panel/panel_scene.h"
#include "tests/fuzz/made_cockpit.h"

namespace {

constexpr std::uint64_t longest_pause = 8, longest_flight = 120;  // frames

class Flight {
 public:
  void enter(const host::JournalEntry& entry) {
    for (std::uint64_t i = 0;
         i < longest_pause && cockpit_.frames() < std::min(entry.frames, longest_flight); ++i)
      inputs_.frame();
    if (!entry.input) return;
    held_ |= std::holds_alternative<host::input::HoldToken>(*entry.input);
    try {
      inputs_.take(*entry.input);
    } catch (const std::invalid_argument&) {
    }
  }

  /// A picture takes longer than all the rest: only some flights are drawn.
  void end(bool draws) {
    inputs_.frame();
    if (!held_) fuzz::must_be_numbers(cockpit_);
    if (draws) host::picture_of(cockpit_, "", 0.25);
  }

 private:
  host::Cockpit cockpit_{fuzz::module(), host::parse_panel_config(fuzz::small_panel, "panel.cfg")};
  host::CockpitInputs inputs_{cockpit_};
  bool held_ = false;
};

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Flight flight;
  fuzz::each_line(fuzz::text_of(data, size), [&](std::string_view line) {
    if (const auto entry = host::read_line(line)) flight.enter(*entry);
  });
  flight.end(size % 8 == 0);
  return 0;
}
