#include "host/panel/word_book.h"
#include "tests/fuzz/harness.h"

namespace {

// A gauge with two lamps, a selector and its halves.
struct Known {
  Known() {
    gauge.name = "Apu";
    names.gauges[&gauge] = {{{"lamp_1", "Lamp 1", 1}, {"lamp_2", "Lamp 2", 2}, {"knob", "Knob", 3}},
                            {{"knob_up", "Knob up", 0}, {"knob_down", "Knob down", 1}}};
  }

  GaugeHeader gauge{};
  const GaugeHeader* gauges[1] = {&gauge};
  host::NameBook names;
};

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const Known known;
  const host::WordBook book =
      host::parse_words({{"a.txt", std::string(fuzz::text_of(data, size))}}, known.gauges, known.names);
  fuzz::must(book.notes.size() <= 21);
  for (const std::string& note : book.notes) fuzz::must(note.size() < 200);
  for (const auto& [index, text] : book.of(known.gauge).parts)
    fuzz::must(text.size() <= host::longest_text);
  for (const host::WheelTurn& turn : book.of(known.gauge).turns) fuzz::must(!turn.areas.empty());
  return 0;
}
