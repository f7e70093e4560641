/// Drawing a panel against its floor, in one run: the same panel where nothing has changed, where
/// all parts move, and where everything has changed, beside a plain copy of its pixels.
#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <deque>

#include "host/drawing/painter.h"
#include "host/gauge/gauge_run.h"
#include "tests/drawing/made_bitmaps.h"
#include "tests/gauge/made_gauge.h"

namespace {

using namespace host;
using Clock = std::chrono::steady_clock;

// A panel as a pilot has it before him: 26 gauges of four sizes that cover two thirds of it.
constexpr int panel_width = 1280, panel_height = 960;
constexpr PanelSize sizes[] = {{180, 200}, {140, 140}, {110, 180}, {300, 100}};

std::vector<Rect> places() {
  std::vector<Rect> found;
  const auto row = [&](int y, std::initializer_list<int> kinds) {
    int x = 20;
    for (const int kind : kinds) {
      found.push_back({x, y, sizes[kind].width, sizes[kind].height});
      x += sizes[kind].width + 12;
    }
  };
  row(20, {3, 3, 3, 1, 1});
  row(165, {0, 0, 0, 0, 2, 2});
  row(370, {0, 0, 0, 0, 2, 2});
  row(580, {1, 1, 1, 1, 2, 2, 2});
  row(780, {3, 1});
  return found;
}

std::uint32_t metal(int x, int y) {
  return 0xFF50585Cu + static_cast<std::uint32_t>((x * 31 + y * 17) % 7) * 0x010101u;
}

std::uint32_t disc(int x, int y, double centre, std::uint32_t colour) {
  const double distance = std::hypot(x - centre, y - centre);
  return distance < centre - 1 ? colour : distance < centre ? colour >> 1 & 0x7F7F7F7F : 0;
}

void add_pictures(MadeBitmaps& bitmaps, int density) {
  const int d = density;
  for (std::uint32_t kind = 0; kind < std::size(sizes); ++kind) {
    const auto [width, height] = sizes[kind];
    bitmaps.add(1 + kind, width, height, metal, d);
    bitmaps.add(
        5 + kind, width, height,  // with an opening for a card
        [=](int x, int y) { return std::hypot(x - 60 * d, y - 60 * d) < 55 * d ? 0 : metal(x, y); }, d);
    for (const std::uint32_t level : {0, 1, 2})  // of the lighting
      bitmaps.add(100 + 10 * kind + level, width, height, level * 0x0C080400u, d);
  }
  for (const std::uint32_t image : {20, 21})
    bitmaps.add(
        image, 34, 34,
        [=](int x, int y) { return disc(x, y, 17 * d, image * 0x020304u | 0xFF000000u); }, d);
  bitmaps.add(
      30, 75, 9,
      [=](int x, int y) { return std::abs(y - 4.5 * d) < d * (5 - x * 0.05 / d) ? 0xFFF0F0E8u : 0; },
      d);
  bitmaps.add(
      40, 10, 150,
      [=](int x, int y) { return 0xFF101010u + static_cast<std::uint32_t>((x + y) % 200); }, d);
  bitmaps.add(
      50, 120, 120, [=](int x, int y) { return disc(x, y, 60 * d, 0xFF204060); }, d);
  bitmaps.add(
      60, 12, 12, [=](int x, int y) { return disc(x, y, 6 * d, 0xFFFFA000); }, d);
}

char text[8] = "000";

bool has_card(int number) { return number % 4 == 0; }

// The lit set of one gauge: overlay, lamps, needles, drums; some have a card or a text.
void fill(MadeGauge& gauge, int kind, int number) {
  gauge.icon(100 + 10 * kind, {0, 0}, 3);
  for (int i = 0; i < 4; ++i) gauge.icon(20, {4 + 35 * i % 105, 60}, 2);
  if (has_card(number)) {
    Element& card = gauge.add(ELEMENT_SPRITE, 50, {0, 0});
    card.sprite.texture_center = {60, 60};
    card.sprite.rotation.scale = 1;
  }
  for (int i = 0; i < 2 + number % 3; ++i) gauge.needle(30, {60, 60}, {4, 4});
  for (int i = 0; i < 3; ++i) {
    Element& drum = gauge.add(ELEMENT_MOVING_IMAGE, 40, {60 + 12 * i, 80});
    drum.moving_image.mask_resource_id = -1;
    drum.moving_image.y.maximum = 9;
  }
  Element& slider = gauge.add(ELEMENT_SLIDER, 60, {10, 40});
  slider.slider.y_scale = 1;
  if (number % 5 != 0) return;
  Element& string = gauge.add(ELEMENT_STRING, -1, {50, 70});
  string.string = {{50, 20}, {}, nullptr, 0x0476E8, 0, 0, 400, 1, 3, "QUARTZ", text};
}

class Panel {
 public:
  Panel(const MadeBitmaps& bitmaps, double zoom)
      : canvas(static_cast<int>(panel_width * zoom), static_cast<int>(panel_height * zoom)) {
    const auto at = [&](int pixels) { return static_cast<int>(std::lround(pixels * zoom)); };
    for (const Rect& place : places()) {
      const int number = static_cast<int>(gauges_.size());
      const auto same = [&](PanelSize size) {
        return size.width == place.width && size.height == place.height;
      };
      const int kind = static_cast<int>(std::ranges::find_if(sizes, same) - sizes);
      fill(gauges_.emplace_back((has_card(number) ? 5 : 1) + kind), kind, number);
      painters_.emplace_back(gauges_.back().header, bitmaps,
                             Rect{at(place.x), at(place.y), at(place.width), at(place.height)});
      runs_.emplace_back(gauges_.back().header);
    }
    parts(0), parts(1);
  }

  /// A frame in which every moving part is somewhere else, and lamps and texts too.
  void parts(int frame) {
    for (std::size_t i = 0; i < runs_.size(); ++i) {
      const Values values(frame, static_cast<int>(i));
      std::snprintf(text, sizeof text, "%03d", frame * 7 % 1000);
      for (const Element* e = gauges_[i].header.element_list[0]; e; e = e->next[0])
        values.put(*const_cast<Element*>(e));
      runs_[i].frame(values);
    }
  }

  void lighting(int level) { level_ = level; }

  int draw(double blend) {
    int drawn = 0;
    for (std::size_t i = 0; i < painters_.size(); ++i)
      drawn += painters_[i].draw(canvas, runs_[i].before(), runs_[i].now(), blend);
    return drawn;
  }

  Canvas canvas;

 private:
  struct Values : TokenSource {
    Values(int at, int number) : frame(at), gauge(number) {}
    double token(std::uint32_t) const override { return 0; }
    bool failed(std::uint32_t) const override { return false; }
    bool any_failed() const override { return false; }
    void put(Element& e) const {
      const double swing = frame * 13.0 + gauge * 7;
      if (e.kind == ELEMENT_ICON) e.icon.source.value = e.resource_id >= 100 ? level_ : frame % 2;
      if (e.kind == ELEMENT_NEEDLE) e.needle.source.value = swing;
      if (e.kind == ELEMENT_SLIDER) e.slider.y_source.value = std::fmod(swing, 40);
      if (e.kind == ELEMENT_MOVING_IMAGE) e.moving_image.y.source.value = std::fmod(swing / 10, 9);
      if (e.kind == ELEMENT_SPRITE) e.sprite.rotation.source.value = swing / 3;
    }
    int frame, gauge;
  };

  static inline int level_ = 1;
  std::deque<MadeGauge> gauges_;
  std::deque<GaugePainter> painters_;
  std::deque<GaugeRun> runs_;
};

/// The best of a number of runs, in microseconds; `prepare` is not counted.
template <typename Prepare, typename Work>
double best(Prepare prepare, Work work) {
  std::vector<double> times;
  for (int i = 0; i < 60; ++i) {
    prepare(i);
    const auto start = Clock::now();
    work();
    times.push_back(std::chrono::duration<double, std::micro>(Clock::now() - start).count());
  }
  return *std::ranges::min_element(times);
}

void measure(const MadeBitmaps& bitmaps, double zoom) {
  Panel panel(bitmaps, zoom);
  panel.draw(1);
  std::vector<std::uint32_t> copy(panel.canvas.pixels.size());
  const auto nothing = [](int) {};
  const double floor =
      best(nothing, [&] { std::memcpy(copy.data(), panel.canvas.pixels.data(), copy.size() * 4); });
  const double still = best(nothing, [&] { panel.draw(1); });
  const double moving = best([&](int i) { panel.parts(i + 2); }, [&] { panel.draw(0.5); });
  const double all = best(
      [&](int i) {
        panel.lighting(1 + i % 2);
        panel.parts(i + 2);
      },
      [&] { panel.draw(0.5); });
  std::printf(
      "zoom %.1f: copy %6.0f us | nothing changed %6.1f us, ratio %.3f | parts moved %6.0f us, "
      "ratio %.2f"
      " | everything changed %6.0f us, ratio %.2f\n",
      zoom, floor, still, still / floor, moving, moving / floor, all, all / floor);
}

}  // namespace

int main() {
  MadeBitmaps bitmaps;
  for (const int density : {1, 2, 3}) add_pictures(bitmaps, density);
  std::printf("%zu gauges, panel of %d x %d\n", places().size(), panel_width, panel_height);
  for (const double zoom : {1.0, 1.5, 2.0, 3.0}) measure(bitmaps, zoom);
}
