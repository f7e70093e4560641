#include <algorithm>
#include <charconv>
#include <stdexcept>

#include "host/app/commands.h"
#include "host/app/installation.h"
#include "host/app/start_notes.h"
#include "host/panel/panel_picture.h"
#include "host/window/flight_deck.h"

namespace host {
namespace {

constexpr int gap = 12;          // panel pixels between the gauges
constexpr int row_width = 1200;  // a row ends beyond this

const GaugeHeader& find_gauge(const GaugeModule& module, const std::string& name) {
  if (const GaugeHeader* gauge = module.find(name)) return *gauge;
  throw std::runtime_error(module.file().filename().string() + " has no gauge '" + name +
                           "'; see: tarnvale list gauges");
}

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

std::uint32_t token_number(const std::string& name) {
  std::uint32_t number = 0;
  const auto [end, error] = std::from_chars(name.data(), name.data() + name.size(), number);
  if (error == std::errc{} && end == name.data() + name.size()) return number;
  if (const TableRow* row = find_row(AircraftModel::tokens(), name)) return row->number;
  throw std::runtime_error("there is no token '" + name + "'; see: tarnvale list tokens");
}

void hold_reading(AircraftModel& aircraft, const std::string& reading) {
  const std::size_t equals = reading.find('=');
  char* end = nullptr;
  const double value =
      equals == std::string::npos ? 0 : std::strtod(reading.c_str() + equals + 1, &end);
  if (equals == std::string::npos || equals + 1 == reading.size() || *end != '\0')
    throw std::runtime_error("--set " + reading + ": expected token=value");
  aircraft.hold_token(token_number(reading.substr(0, equals)), value);
}

void set_up(Cockpit& cockpit, const ShowOptions& options) {
  for (const std::string& reading : options.readings) hold_reading(cockpit.aircraft(), reading);
  if (options.night) cockpit.aircraft().hold_token(token::panel_lights, 1);
  for (int frame = 0; frame < 3; ++frame) cockpit.frame();  // needles have left their stops
}

void write_picture(Cockpit& cockpit, const ShowOptions& options) {
  PanelPicture picture(cockpit, 0, options.deck.zoom.value_or(1.0));
  picture.mark_areas(options.areas);
  std::vector<Rect> changed;
  picture.draw(1.0, changed);
  write_png(picture.canvas(), options.picture.string());
}

}  // namespace

int show(const ShowOptions& options) {
  const CockpitOptions located_options = located(options.cockpit);
  GaugeModule module(located_options.module);
  say_artwork_notes(module);
  const bool window = options.picture.empty();
  prepare_platform(located_options, window ? PLATFORM_AUDIO_DEVICE : PLATFORM_AUDIO_NONE);
  Cockpit cockpit(module, shelf(module, options.gauges), located_options.rate);
  set_up(cockpit, options);
  if (!window) {
    write_picture(cockpit, options);
    return exit_fine;
  }
  FlightDeck deck(cockpit, options.deck);
  deck.mark_areas(options.areas);
  deck.fly();
  return exit_fine;
}

}  // namespace host
