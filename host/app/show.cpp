#include <algorithm>
#include <charconv>
#include <cmath>
#include <stdexcept>

#include "host/app/commands.h"
#include "host/app/installation.h"
#include "host/app/labelled_picture.h"
#include "host/app/lookup.h"
#include "host/app/start.h"
#include "host/app/start_notes.h"
#include "host/files/output.h"
#include "host/files/shortened.h"
#include "host/pages/page.h"
#include "host/panel/panel_picture.h"
#include "host/panel/panel_scene.h"
#include "host/panel/text.h"
#include "host/window/flight_deck.h"

namespace host {
namespace {

constexpr int gap = 12;          // panel pixels between the gauges
constexpr int row_width = 1200;  // a row ends beyond this

// A panel of one window, with the gauges in rows.
PanelConfig shelf(const GaugeModule& module, const std::vector<std::string>& names) {
  WindowConfig window;
  window.title = "Gauges";
  window.ident = 1;
  window.visible = true;
  int x = gap, y = gap, row_height = 0;
  for (const std::string& name : names) {
    const PanelSize size = gauge_size(find_gauge(module, name), module.bitmaps());
    if (x > gap && x + size.width > row_width) {
      x = gap;
      y += row_height + gap;
      row_height = 0;
    }
    window.gauges.push_back({module.file().stem().string(), name, x, y, 0, 0, 0});
    x += size.width + gap;
    row_height = std::max(row_height, size.height);
    window.width = std::max(window.width, x);
  }
  window.height = y + row_height + gap;
  return {"show", {window}};
}

std::optional<std::uint32_t> as_number(const std::string& text) {
  std::uint32_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error == std::errc{} && end == text.data() + text.size()) return number;
  return std::nullopt;
}

// One window of the cockpit's own panel.
PanelConfig panel_window(const std::filesystem::path& panel, const std::string& typed) {
  PanelConfig config = read_panel_config(panel);
  const std::uint32_t ident = find_window(config, typed).ident;
  std::erase_if(config.windows, [&](const WindowConfig& window) { return window.ident != ident; });
  config.windows.front().visible = true;
  return config;
}

bool is_window_title(const std::filesystem::path& panel, const std::string& typed) {
  return std::ranges::any_of(read_panel_config(panel).windows, [&](const WindowConfig& window) {
    return window.drawn && same_name(window.title, typed);
  });
}

PanelConfig panel_of(const GaugeModule& module, const ShowOptions& options,
                     const std::filesystem::path& panel) {
  const std::string& first = options.gauges.front();
  const bool gauges = options.gauges.size() > 1 || module.find(first);
  if (as_number(first) || (!gauges && is_window_title(panel, first))) return panel_window(panel, first);
  return shelf(module, options.gauges);
}

// The rest of the cockpit, unseen: in flight a panel shows what others are set to.
void add_the_rest(PanelConfig& config, const PanelConfig& whole) {
  const auto is_shown = [&](const Placement& gauge) {
    return std::ranges::any_of(config.windows.front().gauges, [&](const Placement& shown) {
      return same_name(shown.gauge, gauge.gauge);
    });
  };
  for (WindowConfig window : whole.windows) {
    if (window.ident == config.windows.front().ident) continue;
    window.drawn = false;
    std::erase_if(window.gauges, is_shown);
    config.windows.push_back(std::move(window));
  }
}

std::uint32_t token_number(const std::string& name) {
  const auto tokens = AircraftModel::tokens();
  const auto number = as_number(name);
  if (const TableRow* row = number ? find_row(tokens, *number) : find_row(tokens, name))
    return row->number;
  throw std::runtime_error("there is no token " + in_quotes(name) + "; see: tarnvale list tokens");
}

void hold_reading(AircraftModel& aircraft, const std::string& reading) {
  const std::size_t equals = reading.find('=');
  char* end = nullptr;
  const double value =
      equals == std::string::npos ? 0 : std::strtod(reading.c_str() + equals + 1, &end);
  if (equals == std::string::npos || equals + 1 == reading.size() || *end != '\0' ||
      !std::isfinite(value))
    throw std::runtime_error("--set " + shortened(reading) + ": expected token=value");
  aircraft.hold_token(token_number(reading.substr(0, equals)), value);
}

bool begins_elsewhere(const ShowOptions& options) {
  return options.start.at != StartOptions{}.at || options.start.hours;
}

void set_up(Cockpit& cockpit, const ShowOptions& options) {
  for (const std::string& reading : options.readings) hold_reading(cockpit.aircraft(), reading);
  if (options.night) cockpit.aircraft().hold_token(token::panel_lights, 1);
  const int frames =
      begins_elsewhere(options) ? 36 : 3;  // needles have come to their marks, or left their stops
  for (int frame = 0; frame < frames; ++frame) cockpit.frame();
}

void write_picture(Cockpit& cockpit, const ShowOptions& options) {
  const double zoom = options.deck.zoom.value_or(1.0);
  const WindowConfig& window = cockpit.config().windows.front();
  check_picture_size(window.width * zoom, window.height * zoom);
  PanelPicture picture(cockpit, 0, zoom);
  picture.mark_areas(options.areas || options.labels);
  std::vector<Rect> changed;
  picture.draw(1.0, changed);
  write_png(options.labels ? labelled_picture(cockpit, picture) : picture.canvas(),
            options.picture.string());
}

int show_outside(const ShowOptions& options) {
  if (options.picture.empty())
    throw std::runtime_error("show outside: needs --png; tarnvale fly shows it in a window");
  AircraftModel aircraft;
  begin(aircraft, options.start);
  for (const std::string& reading : options.readings) hold_reading(aircraft, reading);
  write_png(picture_of_view(aircraft, options.deck.zoom.value_or(1.0)), options.picture.string());
  return exit_fine;
}

// Everything that a page tells can be read: all panels have been looked at.
int show_page(const ShowOptions& options) {
  const std::string& page = options.gauges.front();
  if (options.picture.empty())
    throw std::runtime_error("show " + page + ": needs --png; tarnvale fly shows it in a window");
  const CockpitOptions located_options = located(options.cockpit);
  GaugeModule module(located_options.module);
  prepare_platform(located_options, PLATFORM_AUDIO_RENDERED);
  Cockpit cockpit(module, read_panel_config(located_options.panel), located_options.rate);
  for (const WindowConfig& window : cockpit.config().windows) cockpit.panels().open(window.ident);
  begin(cockpit, options.start);
  set_up(cockpit, options);
  write_png(picture_of_page(page, cockpit, read_checklists(program_folder() / "checklists.txt"),
                            options.deck.zoom.value_or(1.0)),
            options.picture.string());
  return exit_fine;
}

void show_in_window(Cockpit& cockpit, const ShowOptions& options) {
  DeckOptions deck_options = options.deck;
  deck_options.desk.outside = false;
  CockpitInputs inputs(cockpit);
  use_display(options.display);
  const Desktop desktop;
  FlightDeck deck(inputs, deck_options);
  deck.mark_areas(options.areas);
  deck.fly();
}

}  // namespace

int show(const ShowOptions& options) {
  if (options.gauges == std::vector<std::string>{std::string(view_name)}) return show_outside(options);
  if (options.gauges.size() == 1 && find_page(options.gauges.front())) return show_page(options);
  const CockpitOptions located_options = located(options.cockpit);
  check_outputs({{"--png", options.picture}}, {{"the module", located_options.module},
                                               {"the panel configuration", located_options.panel}});
  GaugeModule module(located_options.module);
  say_start_notes(module);
  const bool window = options.picture.empty();
  prepare_platform(located_options, window ? PLATFORM_AUDIO_DEVICE : PLATFORM_AUDIO_RENDERED);
  PanelConfig panel = panel_of(module, options, located_options.panel);
  if (begins_elsewhere(options)) add_the_rest(panel, read_panel_config(located_options.panel));
  Cockpit cockpit(module, panel, located_options.rate);
  say_notes(cockpit.names());
  say_notes(cockpit.words());
  if (begins_elsewhere(options)) begin(cockpit, options.start);
  set_up(cockpit, options);
  window ? show_in_window(cockpit, options) : write_picture(cockpit, options);
  return exit_fine;
}

}  // namespace host
