/// The cockpit without a screen: a module's gauges in their windows, and the aircraft behind them.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "host/drawing/painter.h"
#include "host/gauge/gauge_run.h"
#include "host/loader/gauge_module.h"
#include "host/panel/aircraft_tokens.h"
#include "host/panel/hot_areas.h"
#include "host/panel/name_book.h"
#include "host/panel/panel_config.h"
#include "host/panel/panel_set.h"
#include "host/panel/services.h"
#include "host/panel/word_book.h"

namespace host {

/// One gauge of the cockpit. It runs once a frame, in however many open windows it stands.
struct CockpitGauge {
  CockpitGauge(const GaugeHeader& gauge, PanelSize background, const GaugeNames& gauge_names,
               const GaugeWords& gauge_words);

  const GaugeHeader& header() const { return run.gauge(); }

  GaugeRun run;
  HotAreas areas;
  PanelSize size;  ///< of its background
  const GaugeNames& names;
  const GaugeWords& words;
  bool started = false;
  std::uint64_t frame = 0;    ///< the cockpit's frame that it last ran in
  bool moving = false;        ///< something it shows has changed with that frame
  std::uint64_t changes = 0;  ///< how many frames have changed what it shows
};

/// A gauge's place in a window, in panel pixels.
struct PlacedGauge {
  CockpitGauge* gauge;
  Rect place;
};

/// A window with its gauges, the later ones over the earlier ones.
struct CockpitWindow {
  const WindowConfig* config;
  std::vector<PlacedGauge> gauges;
};

/// A key event that a gauge sent.
struct SentEvent {
  double seconds;  ///< simulated time
  std::uint32_t number;
  std::uint32_t value;
};

/// The running cockpit; there is one at a time. Everything happens in frame() and in the mouse
/// routines, on the caller's thread.
class Cockpit : private ServiceTarget {
 public:
  static constexpr double default_rate = 18.0;  ///< frames a second, the pace of the frame counters

  /// Throws ConfigError, with file and line, for a gauge that the module does not have.
  Cockpit(GaugeModule& module, PanelConfig config, double rate = default_rate);
  ~Cockpit() override;
  Cockpit(const Cockpit&) = delete;
  Cockpit& operator=(const Cockpit&) = delete;

  /// The aircraft as the ground crew hands it over, and the start page alone before the person. Does
  /// nothing where the panel has no start page.
  void begin_with_start_page();

  /// Moves the aircraft on by one frame's time, then runs every gauge of the open windows once.
  void frame();

  double rate() const { return rate_; }
  std::uint64_t frames() const { return frames_; }
  double seconds() const { return static_cast<double>(frames_) / rate_; }

  AircraftModel& aircraft() { return aircraft_; }
  const AircraftModel& aircraft() const { return aircraft_; }
  PanelSet& panels() { return panels_; }
  const PanelSet& panels() const { return panels_; }
  const PanelConfig& config() const { return config_; }
  const NameBook& names() const { return names_; }
  const WordBook& words() const { return words_; }
  const GaugeModule& module() const { return module_; }
  const std::vector<CockpitWindow>& windows() const { return windows_; }

  /// The gauge of that name, letter case aside; null if no window has it.
  CockpitGauge* find(std::string_view name) const;

  /// Whether the panel lights are on: the cockpit is then seen by night.
  bool panel_lights_on() const;

  /// Whether an open window shows the gauge, so that it runs and can be clicked.
  bool is_shown(const CockpitGauge& gauge) const;

  /// The first window that has the gauge, open or not.
  const CockpitWindow* window_of(const CockpitGauge& gauge) const;

  /// Called for every key event of the gauges.
  std::function<void(const SentEvent&)> on_event;

 private:
  double lookup(std::uint32_t token) override { return aircraft_.token(token); }
  void key_event(std::uint32_t event, std::uint32_t value) override;
  void open_window(std::uint32_t ident) override { panels_.open(ident); }
  void close_window(std::uint32_t ident) override { panels_.close(ident); }
  void toggle_window(std::uint32_t ident) override { panels_.toggle(ident); }

  void place_gauges(const WindowConfig& window);
  CockpitGauge& gauge_for(const Placement& placement);
  void run(CockpitGauge& gauge);

  GaugeModule& module_;
  NameBook names_;
  WordBook words_;
  PanelConfig config_;
  PanelSet panels_;
  AircraftModel aircraft_;
  AircraftTokens tokens_{aircraft_};
  double rate_;
  std::uint64_t frames_ = 0;
  std::vector<std::unique_ptr<CockpitGauge>> gauges_;
  std::unordered_map<std::string, CockpitGauge*> by_name_;  // in small letters
  std::vector<CockpitWindow> windows_;
};

}  // namespace host
