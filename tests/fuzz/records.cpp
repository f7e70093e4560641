// The records of a module whose bytes someone has changed: where the checks find no error, the gauge runs, is
// drawn and clicked.
#include <sys/mman.h>

#include <cmath>
#include <cstring>
#include <set>

#include "host/drawing/painter.h"
#include "host/gauge/gauge_run.h"
#include "host/gauge/token_source.h"
#include "host/loader/record_checks.h"
#include "host/panel/hot_areas.h"
#include "tests/drawing/made_bitmaps.h"
#include "tests/fuzz/harness.h"
#include "tests/loader/made_records.h"

namespace {

using Records = host::MadeRecords;

// Where the records lie, with nothing behind them: one page too many is seen at once.
Records& records() {
  static Records* const at = [] {
    constexpr std::size_t page = 4096, size = (sizeof(Records) + page - 1) / page * page;
    auto* room = static_cast<char*>(
        mmap(nullptr, size + page, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
    mprotect(room + size, page, PROT_NONE);
    return reinterpret_cast<Records*>(room + (size - sizeof(Records)) / 16 * 16);
  }();
  return *at;
}

// Nine bytes change a place: what the first two say, as the third says, to what the others say.
void change(Records& made, const std::uint8_t* bytes) {
  std::uint16_t place;
  std::uint64_t value = 0;
  std::memcpy(&place, bytes, sizeof place);
  std::memcpy(&value, bytes + 3, 6);
  char* const base = reinterpret_cast<char*>(&made);
  const auto put = [&](auto what) {
    std::memcpy(base + place % (sizeof(Records) / sizeof what) * sizeof what, &what, sizeof what);
  };
  constexpr double numbers[] = {HUGE_VAL, -HUGE_VAL, NAN, 1e300, -1e9, 1e-300, 4e9, -0.5};
  switch (bytes[2] % 8) {
    case 0: return put(static_cast<std::uint8_t>(value));
    case 1: return put(static_cast<std::uint32_t>(value));
    case 2: return put(base + value % sizeof(Records) / 8 * 8);
    case 3: return put(base + value % (2 * sizeof(Records)));
    case 4: return put(static_cast<const char*>(nullptr));
    case 5: return put(reinterpret_cast<const char*>(value % 4096));
    case 6: return put(numbers[value % std::size(numbers)]);
    default: return put(static_cast<std::int32_t>(value % 64) - 8);
  }
}

// Half a pointer that was changed may lead into the sanitizer's own memory or into the midst of a routine, and no
// check could tell.
void keep_inside(Records& made, const host::MemoryMap& memory) {
  static const std::set<const void*> routines{
      reinterpret_cast<const void*>(host::give_value), reinterpret_cast<const void*>(host::press),
      reinterpret_cast<const void*>(host::nothing), reinterpret_cast<const void*>(host::nothing_of),
      reinterpret_cast<const void*>(host::serve)};
  char* const base = reinterpret_cast<char*>(&made);
  for (std::size_t at = 0; at + sizeof(char*) <= sizeof made; at += sizeof(char*)) {
    const char* pointer;
    std::memcpy(&pointer, base + at, sizeof pointer);
    const bool inside = pointer >= base && pointer < base + sizeof made;
    if (!inside && memory.readable(pointer, 1) && !routines.contains(pointer))
      std::memset(base + at, 0, sizeof pointer);
  }
}

class Tokens final : public host::TokenSource {
 public:
  double token(std::uint32_t number) const override {
    constexpr double values[] = {0, 1, -3, 7.5, 1e30, -1e300, NAN, HUGE_VAL};
    return values[(number + turn) % std::size(values)];
  }
  bool failed(std::uint32_t key) const override { return (key + turn) % 3 == 0; }
  bool any_failed() const override { return true; }
  std::uint32_t turn = 0;
};

const host::MadeBitmaps& bitmaps() {
  static const host::MadeBitmaps* const made = [] {
    auto* all = new host::MadeBitmaps;
    for (const std::uint32_t id : {0, 10, 30, 40, 41, 50, 60})
      all->add(id, id ? 9 : 32, id ? 9 : 32, 0xFF808080);
    return all;
  }();
  return *made;
}

void use(const GaugeHeader& gauge) {
  host::GaugeRun run(gauge);
  host::GaugePainter painter(gauge, bitmaps(), {0, 0, 40, 40});
  host::Canvas canvas(40, 40);
  Tokens tokens;
  run.start(1);
  for (; tokens.turn < 4; ++tokens.turn) {
    run.frame(tokens);
    painter.draw(canvas, run.before(), run.now(), 0.5);
  }
  const host::HotAreas areas(gauge.mouse_areas);
  for (const PanelPoint point : {PanelPoint{3, 3}, {8, 3}, {-1, INT32_MIN}, {INT32_MAX, 3}}) {
    if (const host::HotArea* area = areas.at(point, MOUSE_LEFT)) area->fire(point, MOUSE_LEFT);
    areas.wheel(point, true);
    areas.tooltip(point);
  }
  run.end();
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Records& made = records();
  static const host::MemoryMap memory;
  made.make();
  for (; size >= 9 && size < 9 * 64; data += 9, size -= 9) change(made, data);
  keep_inside(made, memory);
  std::vector<host::Finding> findings;
  host::check_records(made.linkage, made.imports, host::Inspector(memory, findings, "T.GAU"));
  for (const host::Finding& finding : findings) {
    fuzz::must(finding.message.size() < 500);
    if (finding.severity == host::Finding::Severity::error) return 0;
  }
  for (std::size_t i = 0; made.linkage.gauges[i] != nullptr; ++i) {
    const GaugeHeader& gauge = *made.linkage.gauges[i];
    if (host::gauge_size(gauge, bitmaps()).width > 0) use(gauge);
  }
  return 0;
}
