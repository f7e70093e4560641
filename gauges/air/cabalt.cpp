/// Cabin-altitude controller (overhead): the crew sets the cabin altitude for the flight, and the
/// controller says how high the aircraft may go with it. Any higher, and the label gives way to PRESS
/// with its sound.
#include <algorithm>

#include "module/bands.h"
#include "module/catalogue.h"
#include "module/controls.h"
#include "module/counters.h"
#include "module/readout.h"

namespace tarnvale {
namespace {

constexpr u32 highest_selection = 15000;
constexpr u32 highest_safe_selection = 9000;

constinit u32 selected = 0;  // feet
constinit char warning[6] = " ";
constinit char label[6] = " ";
constinit char pressure_setting[5] = "";

/// Between two flight altitudes the cabin must be set to at least `least`.
struct Watch {
  f64 above, below;
  u32 least;
};

/// How high the aircraft may go: by the selected cabin altitude for the label, by the altitude for the
/// warning.
struct Limits {
  std::span<const Band<const char*>> labels;
  std::span<const Watch> watches;
};

constexpr Band<const char*> low_labels[] = {{3700, "20000"}, {6400, "25000"}, {9000, "30000"}};
constexpr Watch low_watches[] = {{20000, 25000, 3700}, {25000, 30000, 6400}};

/// The knob moves in hundreds. 2400 ft itself bears 20000 ft without a warning, so it has that label.
constexpr Band<const char*> high_labels[] = {
    {2401, "20000"}, {4600, "25000"}, {6900, "30000"}, {9000, "35000"}};
constexpr Watch high_watches[] = {{20000, 25000, 2400}, {25000, 30000, 4600}, {30000, 35000, 6900}};

constexpr Limits low_range{low_labels, low_watches};     // differential pressure below 67
constexpr Limits high_range{high_labels, high_watches};  // 68..77
constexpr u32 low_range_end = 67, high_range_end = 78;

/// From this differential pressure on, as high as the aircraft flies, only the selection counts.
constexpr u32 greatest = 79;

f64 altitude() { return limited(read(token::indicated_altitude), 0, 99999); }

const Watch* watch_at(const Limits& limits, f64 altitude_ft) {
  for (const Watch& watch : limits.watches) {
    if (altitude_ft > watch.above && altitude_ft < watch.below) return &watch;
  }
  return nullptr;
}

bool set_too_low(const Watch* watch) { return watch != nullptr && selected < watch->least; }

/// A selection exactly between two labels keeps the last one.
void label_limit(const Limits& limits) {
  if (const auto* band = band_at(limits.labels, selected)) write(label, band->value);
  if (set_too_low(watch_at(limits, altitude()))) write(label, " ");
}

f64 write_label(Element*) {
  constexpr f64 low_flight = 15500;
  const u32 pressure = aircraft.cabin_diff_pressure;
  if (altitude() <= low_flight) {
    if (pressure < greatest) write(label, " SSL ");
    if (pressure >= greatest && selected > highest_safe_selection) write(label, " ");
  } else if (pressure < low_range_end) {
    label_limit(low_range);
  } else if (pressure > low_range_end && pressure < high_range_end) {
    label_limit(high_range);
  }
  return 0;
}

/// The sound is asked for on every frame: it goes on until the cabin is set right.
void warn(bool on) {
  write(warning, on ? "PRESS" : " ");
  if (on) request(cabwarn_sound_request);
}

/// In the low range only the watched altitudes say anything; elsewhere the warning stays as it is. In
/// the high range they have the first word, so that the crew reads what the sound means; where they are
/// silent, at their edges and outside them, the altitude alone decides.
f64 write_warning(Element*) {
  constexpr f64 highest_flight = 36000;
  const u32 pressure = aircraft.cabin_diff_pressure;
  if (pressure < low_range_end) {
    if (const Watch* watch = watch_at(low_range, altitude())) warn(set_too_low(watch));
  } else if (pressure == low_range_end || pressure >= high_range_end) {
    warn(pressure >= greatest && selected > highest_safe_selection);
  } else {
    const Watch* watch = watch_at(high_range, altitude());
    warn(watch != nullptr ? set_too_low(watch) : altitude() > highest_flight);
  }
  return 0;
}

/// Near the ground the setting is a matter of the altimeters.
f64 write_pressure_setting(Element* readout) {
  if (altitude() < 1000) {
    write(pressure_setting, " QNH");
  } else {
    const i32 setting = whole_i32(readout->string.source[0].value);
    write_figures(pressure_setting, std::clamp(setting, -999, 9999), 4);
  }
  return 0;
}

f64 show_selected(Element*) {
  selected = held(selected, 0, highest_selection);
  return selected;
}

/// A left click turns by 100 ft, a right one by 1000 ft unless that would reach the end of the dial.
constexpr MouseRoutine lower = turns<&selected, -100, -1000, 0, highest_selection>;

/// The knob can be turned past its end before the needle is next looked at. One turn more there and it
/// comes round to the start of the dial.
void raise(u32 buttons) {
  if (selected > highest_selection) {
    selected = 99;
  } else if (is_left(buttons)) {
    selected += 100;
  } else if (is_right(buttons) && selected < 14000) {
    selected += 1000;
  }
  request(click_sound_request);
}

constexpr Type amber{"Arial", text_colour::amber};
constexpr Type white{"Arial", 0xFFFFFF};
constexpr PanelSize display{34, 14};

constexpr Scale<14> selection_scale{{{57, 73}, 0},      {{53, 54}, 1000},
                                    {{57, 36}, 2000},   {{67, 21}, 3000},
                                    {{81, 11}, 4000},   {{99, 7}, 5000},
                                    {{118, 11}, 6000},  {{133, 22}, 7000},
                                    {{142, 36}, 8000},  {{146, 55}, 9000},
                                    {{143, 73}, 10000}, {{125, 93}, 11000},
                                    {{99, 101}, 13000}, {{74, 93}, highest_selection}};

constinit Body body{
    cabalt,
    {
        lighting_overlay(2020),
        text("Pressure warning", {11, 17}, display, amber, warning, write_warning),
        text("Flight altitude label", {11, 17}, display, white, label, write_label),
        text("Pressure setting", {11, 44}, display, white, pressure_setting, write_pressure_setting)
            .from(token::pressure_setting),
        needle("Selected cabin altitude", 1470, {100, 54}, {17, 2}, selection_scale, show_selected),
    },
    {
        decrease("Cabin altitude knob down", {6, 77, 15, 22}, lower, Press::either),
        increase("Cabin altitude knob up", {22, 77, 15, 22}, does<raise>, Press::either),
        click("Standard pressure button", {139, 38, 16, 16}, button_sends<event::altimeters_to_qnh>),
    },
};

}  // namespace

constinit Gauge cabalt{{.name = "Cabalt", .width_mm = 163, .background = 1460}, body};

}  // namespace tarnvale
