#include "host/panel/word_book.h"
#include "tests/fuzz/harness.h"

namespace {

// Two gauges that are called alike: a lamp, a selector and its halves each.
struct Gauges {
  GaugeHeader left{}, right{};
  const GaugeHeader* all[2] = {&left, &right};
  host::NameBook names;

  Gauges() {
    left.name = "Apu", right.name = "Cafire";
    for (GaugeHeader* gauge : {&left, &right})
      names.gauges[gauge] = {
          {{"lamp", "Lamp", 1}, {"selector", "Selector", 2}},
          {{"selector_up", "Selector", 0}, {"selector_down", "Selector", 1}, {"button", "Button", 2}}};
  }
};

void look_up(const host::GaugeWords& words) {
  for (const auto& [index, text] : words.areas) fuzz::must(index < 3 && words.area(index) == text);
  for (const auto& [index, text] : words.parts) fuzz::must(index < 3 && words.part(index) == text);
  for (const host::Refusal& refusal : words.refusals) fuzz::must(refusal.click.area < 3);
  for (const host::WheelTurn& turn : words.turns)
    for (const std::size_t area : turn.areas) fuzz::must(area < 3);
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const Gauges gauges;
  const std::string text(fuzz::text_of(data, size));
  const host::WordBook book =
      host::parse_words({{"a.txt", text}, {"b.txt", text}}, {gauges.all, 2}, gauges.names);
  for (const GaugeHeader* gauge : gauges.all) look_up(book.of(*gauge));
  fuzz::must(book.notes.size() <= 42);
  for (const std::string& note : book.notes)
    fuzz::must(note.size() < 300 && note.find('\n') == std::string::npos);
  return 0;
}
