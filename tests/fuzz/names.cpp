#include "host/panel/name_book.h"
#include "tests/fuzz/harness.h"
#include "tests/gauge/made_gauge.h"

namespace {

// Two gauges with three parts and a row of click areas each, some one over the other.
struct Gauges {
  host::MadeGauge first{10}, second{20};
  std::vector<MouseArea> areas;
  const GaugeHeader* all[2] = {&first.header, &second.header};

  Gauges() {
    for (int i = 0; i < 6; ++i) {
      MouseArea area{};
      area.kind = MOUSE_CLICK_AREA, area.x = 20 * (i / 2), area.width = area.height = 20;
      area.mouse_flags = i % 2 ? MOUSE_LEFT : MOUSE_RIGHT;
      areas.push_back(area);
    }
    areas.push_back(MouseArea{});
    for (host::MadeGauge* gauge : {&first, &second}) {
      gauge->icon(11, {0, 0}, 2);
      gauge->icon(13, {0, 0}, 2);
      gauge->header.mouse_areas = areas.data();
    }
    first.header.name = "Masterbat", second.header.name = "Ctr";
  }
};

// Every name leads to its own part or area and to no other.
void look_up(const host::GaugeNames& names) {
  for (const host::Named& part : names.parts) {
    fuzz::must(names.part(part.name) == &part);
    fuzz::must(part.index >= 1 && part.index <= 2);
  }
  for (const host::Named& area : names.areas) {
    fuzz::must(names.area(area.name) == &area);
    fuzz::must(area.index < 6 && names.area_words(area.index) == area.words);
  }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const Gauges gauges;
  const host::NameBook book =
      host::parse_names(fuzz::text_of(data, size), "T.GAU.names", {gauges.all, 2});
  for (const GaugeHeader* gauge : gauges.all) look_up(book.of(*gauge));
  fuzz::must(book.notes.size() <= 21);
  for (const std::string& note : book.notes) {
    fuzz::must(note.starts_with("T.GAU.names:"));
    fuzz::must(note.size() < 300 && note.find('\n') == std::string::npos);
  }
  return 0;
}
