#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <functional>
#include <string_view>
#include <utility>

#include "host/app/commands.h"
#include "host/app/installation.h"
#include "host/app/start.h"
#include "host/panel/panel_picture.h"
#include "host/panel/panel_scene.h"

namespace host {
namespace {

using Clock = std::chrono::steady_clock;

constexpr std::uint32_t electrical_power = 20;  // failure key

// Microseconds that one call takes: the median of some rounds, which other programs do not disturb.
// `before` is not timed.
double microseconds(
    const std::function<void()>& work, const std::function<void()>& before = [] {}) {
  std::vector<double> rounds;
  for (int round = 0; round < 51; ++round) {
    before();
    const Clock::time_point start = Clock::now();
    work();
    rounds.push_back(std::chrono::duration<double, std::micro>(Clock::now() - start).count());
  }
  std::ranges::nth_element(rounds, rounds.begin() + 25);
  return rounds[25];
}

// All open windows at their own size.
class Pictures {
 public:
  explicit Pictures(const Cockpit& cockpit) {
    for (std::size_t window : open_windows(cockpit)) pictures_.emplace_back(cockpit, window, 1.0);
  }

  void draw() {
    changed_.clear();
    for (PanelPicture& picture : pictures_) picture.draw(1.0, changed_);
  }

  void draw_all() {
    for (PanelPicture& picture : pictures_) picture.invalidate();
    draw();
  }

  void copy() {
    for (const PanelPicture& picture : pictures_) {
      copies_.resize(std::max(copies_.size(), picture.canvas().pixels.size()));
      std::memcpy(copies_.data(), picture.canvas().pixels.data(), picture.canvas().pixels.size() * 4);
    }
  }

 private:
  std::vector<PanelPicture> pictures_;
  std::vector<Rect> changed_;
  std::vector<std::uint32_t> copies_;
};

// Every reading somewhere else than a frame ago, so that every pointer moves; with the attitude also
// the compass cards and the balls.
class Unrest {
 public:
  Unrest(Cockpit& cockpit, bool attitude) : cockpit_(cockpit) {
    for (const TableRow& row : AircraftModel::tokens())
      if (attitude || !is_attitude(row.name))
        readings_.push_back({row.number, cockpit.aircraft().token(row.number)});
  }

  void frame() {
    swing_ = -swing_;
    for (const auto& [token, value] : readings_) {
      const bool steady = std::abs(value) <= 1;  // lamps and switches
      if (!steady) cockpit_.aircraft().hold_token(token, value * (1 + swing_));
    }
    cockpit_.frame();
  }

 private:
  static bool is_attitude(std::string_view name) {
    return std::ranges::any_of(std::array{"heading", "pitch", "bank"}, [&](std::string_view part) {
      return name.find(part) != std::string_view::npos;
    });
  }

  struct Reading {
    std::uint32_t token;
    double value;
  };
  Cockpit& cockpit_;
  std::vector<Reading> readings_;
  double swing_ = 0.02;
};

// The captain's panel in the middle of a flight.
void open_captains_panel(Cockpit& cockpit) {
  for (const WindowConfig& window : cockpit.config().windows) cockpit.panels().close(window.ident);
  cockpit.panels().open(captains_panel);
  begin(cockpit, {.at = "cruise", .hours = {}});
}

void print_frame(double frame, double rate) {
  std::printf("frame of the cockpit      %10.1f us   %.2f %% of a core at %.0f a second\n", frame,
              frame * rate / 1e4, rate);
}

void print_drawing(const char* what, double time, double copy) {
  std::printf("%-25s %10.1f us   %.2f times a plain copy of the pixels (%.1f us)\n", what, time,
              time / copy, copy);
}

void print_flight(Cockpit& cockpit) {
  open_captains_panel(cockpit);
  cockpit.frame();
  Pictures pictures(cockpit);
  pictures.draw();
  const double copy = microseconds([&] { pictures.copy(); });
  for (const auto& [what, attitude] :
       {std::pair{"captain, every pointer", false}, {"captain, cards and balls", true}}) {
    Unrest unrest(cockpit, attitude);
    print_drawing(what, microseconds([&] { pictures.draw(); }, [&] { unrest.frame(); }), copy);
  }
}

// All windows that are open from the start.
void print_panels(Cockpit& cockpit, double frame) {
  Pictures pictures(cockpit);
  pictures.draw();
  const double unchanged = microseconds([&] { pictures.draw(); });
  const double whole = microseconds([&] { pictures.draw_all(); });
  // Power that fails and comes back changes every lamp, overlay and needle at once.
  bool failed = false;
  const auto fail_or_repair = [&] {
    cockpit.aircraft().set_failed(electrical_power, failed = !failed);
    cockpit.frame();
  };
  const double changed = microseconds([&] { pictures.draw(); }, fail_or_repair);
  cockpit.aircraft().set_failed(electrical_power, false);
  const double copy = microseconds([&] { pictures.copy(); });
  std::printf("drawing, nothing changed  %10.1f us   frame and drawing are %.2f times the frame\n",
              unchanged, (frame + unchanged) / frame);
  print_drawing("drawing, power fails", changed, copy);
  print_drawing("drawing, all once more", whole, copy);
}

}  // namespace

int bench(const CockpitOptions& given) {
  const CockpitOptions options = located(given);
  GaugeModule module(options.module);
  prepare_platform(options, PLATFORM_AUDIO_NONE);
  platform_on_message([](const char*, const char*, void*) {}, nullptr);
  Cockpit cockpit(module, read_panel_config(options.panel), options.rate);
  cockpit.frame();
  const double frame = microseconds([&] { cockpit.frame(); });
  print_frame(frame, options.rate);
  print_panels(cockpit, frame);
  print_flight(cockpit);
  return exit_fine;
}

}  // namespace host
