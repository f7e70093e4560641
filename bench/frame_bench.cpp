/// The module's frame against its floor, in one run: service 6, all values, 7 and 10 of every built
/// gauge, beside the same number of empty calls and of look-ups through the same host table.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <vector>

#include "module/host.h"

extern "C" const LinkageRecord Linkage;

namespace {

using Clock = std::chrono::steady_clock;

f64 token_values[1024];
std::size_t lookups = 0;

void ignore(const Element*) {}
void ignore_argument(const Element*, uintptr_t) {}
void ignore_ident(u32) {}
void ignore_event(u32, u32) {}
void look_up(TokenVariable* variable) {
  ++lookups;
  variable->value = token_values[variable->token & 1023];
}

constexpr PanelServices services{ignore,          ignore_argument, ignore,       ignore,
                                 ignore_argument, ignore,          ignore,       ignore_ident,
                                 ignore_event,    look_up,         ignore_ident, ignore_ident};

struct Call {
  ValueRoutine routine;
  Element* element;
  TokenVariable* source;
};

struct Panel {
  std::vector<const GaugeHeader*> gauges;
  std::vector<std::vector<Call>> calls;  ///< by gauge: the values of the set that shows by day
};

void add_calls(std::vector<Call>& to, Element* e) {
  switch (e->kind) {
    case ELEMENT_ICON: to.push_back({e->icon.value, e, &e->icon.source}); break;
    case ELEMENT_NEEDLE: to.push_back({e->needle.value, e, &e->needle.source}); break;
    case ELEMENT_STRING: to.push_back({e->string.value, e, &e->string.source[0]}); break;
    default: break;
  }
}

Panel built_gauges() {
  Panel panel;
  for (const GaugeHeader* const* gauge = Linkage.gauges; *gauge != nullptr; ++gauge) {
    Element* const root = (*gauge)->element_list[0];
    if ((*gauge)->service == nullptr || root->next == nullptr) continue;
    (*gauge)->service(*gauge, SERVICE_TICK, 0);
    std::vector<Call> calls;
    for (Element* e = root->next[0]; e; e = e->next ? e->next[0] : nullptr) {
      if (e->image_flags & IMAGE_HIDE_CHAIN) break;
      add_calls(calls, e);
    }
    panel.gauges.push_back(*gauge);
    panel.calls.push_back(std::move(calls));
  }
  return panel;
}

f64 sink = 0;

void take_values(const std::vector<Call>& calls) {
  for (const Call& call : calls) {
    if (call.source->token != 0) services.lookup_var(call.source);
    if (call.routine != nullptr) sink += call.routine(call.element);
  }
}

void frame(const Panel& panel) {
  for (std::size_t i = 0; i < panel.gauges.size(); ++i) {
    const GaugeHeader* gauge = panel.gauges[i];
    gauge->service(gauge, SERVICE_TICK, 0);
    take_values(panel.calls[i]);
    gauge->service(gauge, SERVICE_AFTER_VALUES, 0);
    gauge->service(gauge, SERVICE_BEFORE_DRAW, 0);
  }
}

f64 empty_value(Element*) { return 0; }
void empty_service(const GaugeHeader*, u32, uintptr_t) {}

struct Floor {
  std::size_t services, values, lookups;
  // Through pointers that the compiler cannot see through, as the host calls.
  ServiceRoutine volatile service = empty_service;
  ValueRoutine volatile value = empty_value;
  const PanelServices* volatile table = &::services;
};

void floor_frame(const Floor& floor) {
  TokenVariable variable{604, 0, 0};
  for (std::size_t i = 0; i < floor.services; ++i) floor.service(nullptr, 0, 0);
  for (std::size_t i = 0; i < floor.values; ++i) sink += floor.value(nullptr);
  for (std::size_t i = 0; i < floor.lookups; ++i) floor.table->lookup_var(&variable);
}

template <typename Work>
double nanoseconds(Work work) {
  constexpr int rounds = 500;
  const auto start = Clock::now();
  for (int i = 0; i < rounds; ++i) work();
  return std::chrono::duration<double, std::nano>(Clock::now() - start).count() / rounds;
}

double median(std::vector<double> values) {
  std::nth_element(values.begin(), values.begin() + values.size() / 2, values.end());
  return values[values.size() / 2];
}

}  // namespace

int main() {
  ImportTable.entries[0].pointer = &services;
  token_values[604] = 100;
  token_values[364] = 1;
  const Panel panel = built_gauges();
  lookups = 0;
  frame(panel);
  std::size_t values = 0;
  for (const auto& calls : panel.calls) {
    for (const Call& call : calls) values += call.routine != nullptr;
  }
  const Floor floor{3 * panel.gauges.size(), values, lookups};

  std::vector<double> frames, floors, ratios;
  for (int round = 0; round < 101; ++round) {
    frames.push_back(nanoseconds([&] { frame(panel); }));
    floors.push_back(nanoseconds([&] { floor_frame(floor); }));
    ratios.push_back(frames.back() / floors.back());
  }
  std::printf("%zu gauges, %zu values, %zu look-ups a frame\n", panel.gauges.size(), floor.values,
              floor.lookups);
  std::printf("frame %.2f us, floor %.2f us, ratio %.2f (aim: at most 1.5)\n", median(frames) / 1000,
              median(floors) / 1000, median(ratios));
  return sink != sink;
}
