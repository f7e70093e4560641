/// A long scripted flight of a library, and what it showed as one number a gauge: `flight LIBRARY FRAMES`.
///
/// Every token moves in its own rhythm, every frame a control is worked, and all that comes out enters the
/// gauge's number: values to the bit, texts, flags, key events and window calls. Two libraries from the same
/// sources print the same lines, whatever system and processor they are for.
#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "tests/rig/token_list.h"
#include "tests/windows/library.h"

namespace {

using std::uint64_t;

using rig::Listed;

/// Mixes the bits of a number.
constexpr uint64_t scattered(uint64_t x) {
  x ^= x >> 30;
  x *= 0xBF58476D1CE4E5B9u;
  x ^= x >> 27;
  x *= 0x94D049BB133111EBu;
  return x ^ x >> 31;
}

class Digest {
 public:
  void add(uint64_t bits) {
    state_ = scattered(state_ ^ bits) + 1;
    ++count_;
  }
  // What a value that is not a number looks like is the processor's affair.
  void add(f64 value) { add(std::isnan(value) ? ~uint64_t{0} : std::bit_cast<uint64_t>(value)); }
  void add(std::string_view text) {
    for (const char letter : text) add(uint64_t{static_cast<unsigned char>(letter)});
  }

  void print(const char* name) const {
    std::printf("%-12s %8llu %016llx\n", name, static_cast<unsigned long long>(count_),
                static_cast<unsigned long long>(state_));
  }

 private:
  uint64_t state_ = 1, count_ = 0;
};

constexpr u32 clock_seconds = 604, frames_a_second = 18;

int frame = 0;
Digest* current = nullptr;  ///< of the gauge that is being run

struct Range {
  std::string_view unit;
  f64 lowest, highest;
};

/// Where a token's readings lie, by the beginning of its unit.
constexpr Range ranges[] = {
    {"0..16", 0, 16384},      {"0 up", 0, 16383},           {"0..32", 0, 32767},
    {"0 released", 0, 32767}, {"feet/minute", -6000, 6000}, {"feet", -100, 41000},
    {"metres", -30, 12500},   {"degrees", -190, 370},       {"gallons", 0, 2500},
    {"-1 off", -1, 1},        {"seconds", 0, 90000},        {"percent", 0, 112},
    {"1/", -20000, 70000},    {"140/", -3000, 20000},       {"", -150, 400},
};

bool on_off(std::string_view unit) {
  return unit.starts_with("0/1") || unit == "0..1" || unit.starts_with("0 closed");
}

/// Up and down between 0 and 1, once in `period` frames.
f64 swing(uint64_t place, uint64_t period) {
  const uint64_t at = place % period;
  return static_cast<f64>(std::min(at, period - at) * 2) / static_cast<f64>(period);
}

f64 reading(const Listed& token) {
  const uint64_t nature = scattered(token.number);
  const auto now = static_cast<uint64_t>(frame);
  if (token.number == clock_seconds) return 1000 + frame / static_cast<f64>(frames_a_second);
  if (on_off(token.unit)) return scattered(nature + now / 150) % 6 == 0 ? 0 : 1;
  if (token.unit.starts_with("BCD") || token.unit.starts_with("bit"))
    return static_cast<f64>(scattered(nature + now / 40) % 0x9999);
  const Range& range = *std::ranges::find_if(
      ranges, [&](const Range& each) { return token.unit.starts_with(each.unit); });
  const f64 part = swing(now + nature % 5000, 300 + nature % 1700);
  return range.lowest + (range.highest - range.lowest) * part;
}

void look_up(TokenVariable* variable) {
  const Listed* token = std::ranges::find(rig::all_tokens, variable->token, &Listed::number);
  variable->value = token == std::end(rig::all_tokens) ? 0 : reading(*token);
}

void note(u32 kind, u32 number, u32 value = 0) {
  current->add(uint64_t{kind} << 32 | number);
  current->add(uint64_t{value});
}

constexpr auto on_root = [](const Element*) {};
constexpr auto on_root_with_argument = [](const Element*, uintptr_t) {};
constexpr PanelServices services{on_root,
                                 on_root_with_argument,
                                 on_root,
                                 on_root,
                                 on_root_with_argument,
                                 on_root,
                                 on_root,
                                 [](u32 ident) { note('t', ident); },
                                 [](u32 event, u32 value) { note('e', event, value); },
                                 look_up,
                                 [](u32 ident) { note('c', ident); },
                                 [](u32 ident) { note('o', ident); }};

f64 taken(Element* e, TokenVariable& source, ValueRoutine routine) {
  if (source.token != 0) look_up(&source);
  return routine != nullptr ? routine(e) : source.value;
}

void show(Element* e) {
  const auto add = [e](TokenVariable& source, ValueRoutine routine) {
    current->add(taken(e, source, routine));
  };
  const auto add_axis = [&](auto& axis) { add(axis.source, axis.value); };
  switch (e->kind) {
    case ELEMENT_ICON: return add(e->icon.source, e->icon.value);
    case ELEMENT_NEEDLE: return add(e->needle.source, e->needle.value);
    case ELEMENT_STRING:
      if (e->string.source[1].token != 0) look_up(&e->string.source[1]);
      add(e->string.source[0], e->string.value);
      return current->add(std::string_view(e->string.text));
    case ELEMENT_SLIDER:
      add(e->slider.x_source, e->slider.x_value);
      return add(e->slider.y_source, e->slider.y_value);
    case ELEMENT_MOVING_IMAGE: add_axis(e->moving_image.x); return add_axis(e->moving_image.y);
    case ELEMENT_SPRITE:
      add_axis(e->sprite.x);
      add_axis(e->sprite.y);
      return add_axis(e->sprite.rotation);
  }
}

struct Gauge {
  const GaugeHeader* header;
  std::vector<Element*> chain;
  std::vector<const MouseArea*> areas;
  Digest digest{};

  void serve(u32 id) {
    if (header->service != nullptr) header->service(header, id, 0);
  }
  void begin() {
    current = &digest;
    serve(SERVICE_BEGIN);
    serve(SERVICE_SET_UP);
  }
  void run_frame() {
    current = &digest;
    serve(SERVICE_TICK);
    for (Element* e : chain) {
      digest.add(uint64_t{e->image_flags});
      if ((e->image_flags & IMAGE_HIDE_CHAIN) != 0) break;
      show(e);
    }
    serve(SERVICE_AFTER_VALUES);
    serve(SERVICE_BEFORE_DRAW);
  }
  void click(uint64_t choice) {
    current = &digest;
    const MouseArea& area = *areas[choice % areas.size()];
    const u32 button = choice >> 60 != 0 ? MOUSE_LEFT : MOUSE_RIGHT;
    const PanelPoint point{static_cast<i32>(choice >> 8 & 63), static_cast<i32>(choice >> 16 & 63)};
    const u32 fired = (area.mouse_flags & button) != 0 ? button : area.mouse_flags;
    digest.add(uint64_t{static_cast<u32>(area.routine(point, fired))});
  }
};

/// All but the one that opens the sound device.
std::vector<Gauge> gauges_of(const Library& library) {
  std::vector<Gauge> gauges;
  for (const GaugeHeader* const* header = library.linkage->gauges; *header != nullptr; ++header)
    if (std::string_view((*header)->name) != "Msnd")
      gauges.push_back({*header, chain_of(**header), click_areas_of(**header)});
  return gauges;
}

void click_somewhere(std::vector<Gauge>& gauges) {
  const uint64_t choice = scattered(static_cast<uint64_t>(frame) + 0x5EED);
  Gauge& gauge = gauges[choice % gauges.size()];
  if (!gauge.areas.empty()) gauge.click(scattered(choice));
}

}  // namespace

int main(int count, char** words) {
  if (count != 3) return 2;
  const Library library(words[1]);
  library.imports->entries[0].pointer = &services;
  std::vector<Gauge> gauges = gauges_of(library);
  for (Gauge& gauge : gauges) gauge.begin();
  for (const int frames = std::atoi(words[2]); frame < frames; ++frame) {
    for (Gauge& gauge : gauges) gauge.run_frame();
    click_somewhere(gauges);
  }
  for (const Gauge& gauge : gauges) gauge.digest.print(gauge.header->name);
}
