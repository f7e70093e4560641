/// A cockpit at rest must not ask for memory: neither its frames nor its drawing.
#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <new>

#include "host/gauge/gauge_run.h"
#include "tests/drawing/fixture.h"

static std::size_t allocations = 0;

void* operator new(std::size_t size) {
  ++allocations;
  if (void* memory = std::malloc(size == 0 ? 1 : size)) return memory;
  throw std::bad_alloc();
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  ++allocations;
  return std::malloc(size == 0 ? 1 : size);
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

namespace host {
namespace {

struct Quiet : TokenSource {
  double token(std::uint32_t) const override { return 1; }
  bool failed(std::uint32_t) const override { return false; }
  bool any_failed() const override { return false; }
};

double write_text(Element* element) {
  std::strcpy(element->string.text, "a text that is too long to be kept in place");
  return 0;
}

TEST(Allocation, NothingForAGaugeAtRest) {
  MadeBitmaps bitmaps;
  bitmaps.add(1, 60, 40, grey);
  bitmaps.add(2, 9, 9, red);
  MadeGauge gauge(1);
  gauge.icon(2, {0, 0}, 1);
  gauge.needle(2, {30, 20}, {4, 4}).needle.rate_limit = 1;
  char text[64];
  gauge.add(ELEMENT_STRING, -1, {0, 20}).string = {{60, 20}, {}, write_text, 0,       0,   0,
                                                   400,      0,  63,         "Arial", text};
  GaugeRun run(gauge.header);
  Scene scene(gauge, bitmaps);
  const Quiet tokens;
  const auto frame = [&] {
    run.frame(tokens);
    return scene.painter->draw(scene.canvas, run.before(), run.now(), 0.5);
  };
  for (int i = 0; i < 3; ++i) frame();
  const std::size_t before = allocations;
  EXPECT_FALSE(frame());
  EXPECT_EQ(allocations, before);
}

}  // namespace
}  // namespace host
