#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

#include "host/simulation/places.h"
#include "host/window/flight_deck.h"
#include "platform/platform_host.h"

namespace host {
namespace {

constexpr double volume_step = 0.05;
constexpr std::array scales{0.75, 1.0, 1.25, 1.5, 1.75, 2.0, 2.5, 3.0, 4.0};

std::string per_cent(double ratio) {
  char text[32];
  std::snprintf(text, sizeof text, "%.0f %%", 100 * ratio);
  return text;
}

std::string capitalised(std::string words) {
  if (!words.empty() && words[0] >= 'a' && words[0] <= 'z')
    words[0] = static_cast<char>(words[0] - 'a' + 'A');
  std::ranges::replace(words, '_', ' ');
  return words;
}

MenuRow row(std::string words, std::string key, std::function<void()> act) {
  MenuRow made{.words = std::move(words), .key = std::move(key)};
  made.act = std::move(act);
  return made;
}

MenuRow tick(std::string words, std::string key, bool ticked, std::function<void()> act) {
  MenuRow made = row(std::move(words), std::move(key), std::move(act));
  made.ticked = ticked;
  made.stays = true;
  return made;
}

MenuRow leads(std::string words, MenuPage page) {
  return {.words = std::move(words), .kind = MenuRow::Kind::page, .page = page};
}

MenuRow steps(std::string words, std::string value, std::function<void(int)> step) {
  MenuRow made{.words = std::move(words), .key = std::move(value), .kind = MenuRow::Kind::steps};
  made.step = std::move(step);
  return made;
}

std::string clock_text(double seconds) {
  const int minutes = static_cast<int>(seconds / 60);
  char text[16];
  std::snprintf(text, sizeof text, "%02d:%02d", minutes / 60, minutes % 60);
  return text;
}

// The next half hour, or the one before, around the clock. What has just been set is left by another step, though
// some minutes have passed.
double half_hour_from(double seconds, int by) {
  constexpr double half = 1800, day = 86400, just_set = 300.0 / half;
  const double now = seconds / half;
  const double next = by > 0 ? std::floor(now) + 1 : std::ceil(now - just_set) - 1;
  return std::fmod(next * half + day, day);
}

// Volume as the ear has it: half way sounds half as loud.
float gain_of(int per_cent) { return static_cast<float>(per_cent * per_cent) / 10000; }

}  // namespace

MenuSheet FlightDeck::menu_sheet(MenuPage page) {
  switch (page) {
    case MenuPage::top: return {"", top_rows()};
    case MenuPage::panels: return {"Panels", panel_rows()};
    case MenuPage::pages: return {"Pages beside the panels", page_rows()};
    case MenuPage::flights: return {"Begin another flight", flight_rows()};
    case MenuPage::flows: return {"Watch a flight", flow_rows()};
    default: return {"Settings", setting_rows()};
  }
}

std::vector<MenuRow> FlightDeck::top_rows() {
  std::vector<MenuRow> rows;
  if (flow_) {
    rows.push_back(row("Take over from " + flow_name_, "Esc", [this] { take_over(); }));
    rows.push_back(steps("Speed", std::to_string(speed_) + "×",
                         [this](int by) { set_speed(by > 0 ? speed_ * 2 : speed_ / 2); }));
  }
  rows.push_back(leads("Panels", MenuPage::panels));
  rows.push_back(leads("Kneeboard, map, radio", MenuPage::pages));
  if (!flows_.empty()) {
    rows.push_back(leads("Begin another flight", MenuPage::flights));
    rows.push_back(leads("Watch a flight", MenuPage::flows));
  }
  rows.push_back(row("Failures", "F", [this] { pages_.toggle(PageKind::failures); }));
  rows.push_back(sound_row());
  rows.push_back(leads("Settings", MenuPage::settings));
  rows.push_back(row("Pause", "P", [this] { toggle_pause(); }));
  rows.back().ticked = paused_;
  rows.push_back(row("Picture of the window", "S", [this] { pictures_.write(menu_view().picture()); }));
  rows.push_back(row("Help", "H", [this] { toggle_help(); }));
  rows.push_back(row("Leave the cockpit", "Q", [this] { leave(); }));
  return rows;
}

MenuRow FlightDeck::sound_row() {
  const double volume = settings_.volume / 100.0;
  MenuRow made{.words = "Sound", .key = per_cent(volume), .kind = MenuRow::Kind::level};
  made.level = volume;
  made.step = [this](int by) { set_volume(settings_.volume / 100.0 + by * volume_step); };
  made.reach = [this](double wanted) { set_volume(wanted); };
  return made;
}

std::vector<MenuRow> FlightDeck::panel_rows() {
  std::vector<MenuRow> rows;
  for (std::size_t i = 0; i < cockpit_.windows().size(); ++i) {
    const WindowConfig& window = cockpit_.config().windows[i];
    if (!window.drawn || window.ident == 0) continue;
    rows.push_back(row(window.title, panel_key(window),
                       [this, ident = window.ident] { toggle_window(ident, false); }));
    rows.back().ticked = cockpit_.panels().is_open(i);
  }
  if (menu_window_)
    rows.push_back(row((views_.is_torn(*menu_window_) ? "Put back: " : "Tear off: ") +
                           cockpit_.config().windows[*menu_window_].title,
                       "T", [this, window = *menu_window_] { views_.toggle_torn(window); }));
  return rows;
}

std::vector<MenuRow> FlightDeck::page_rows() {
  std::vector<MenuRow> rows;
  for (const PageRow& page : page_table()) {
    rows.push_back(row(std::string(page.title), std::string(page.key),
                       [this, kind = page.kind] { pages_.toggle(kind); }));
    rows.back().ticked = pages_.shown() == page.kind;
  }
  return rows;
}

std::vector<MenuRow> FlightDeck::flight_rows() {
  static constexpr struct {
    StartState state;
    const char *words, *note;
  } states[] = {
      {StartState::cold_and_dark, "Cold and dark", "on the stand, nothing on"},
      {StartState::ready_to_start, "Ready to start", "on the stand, the switches set"},
      {StartState::running, "Running", "on the stand, both engines on"},
  };
  std::vector<MenuRow> rows;
  for (const auto& each : states) {
    rows.push_back(
        row(each.words, "", [this, state = each.state] { begin_another({.state = state}); }));
    rows.back().note = each.note;
  }
  for (const StartPlace& place : start_places().subspan(1)) {
    rows.push_back(row(capitalised(std::string(place.name)), "",
                       [this, at = std::string(place.name)] { begin_another({.at = at}); }));
    rows.back().note = place.words;
  }
  return rows;
}

std::vector<MenuRow> FlightDeck::flow_rows() {
  std::vector<MenuRow> rows;
  for (const OfferedFlow& each : flows_) {
    rows.push_back(row(capitalised(each.file.stem().string()), "",
                       [this, flow = each.file] { begin_another({.flow = flow}); }));
    rows.back().note = each.words;
  }
  return rows;
}

std::vector<MenuRow> FlightDeck::setting_rows() {
  std::vector<MenuRow> rows;
  View& view = menu_view();
  rows.push_back(
      tick("View out of the window", "V", views_.main().wants_outside(), [this] { toggle_outside(); }));
  rows.push_back(
      tick("Panel lights", "D", cockpit_.panel_lights_on(), [this] { toggle_panel_lights(); }));
  const double time = cockpit_.aircraft().time_of_day_s();
  rows.push_back(steps("Time of day", clock_text(time), [this, time](int by) {
    if (!paused_ && !flow_has_control())
      inputs_.take(input::SetTimeOfDay{half_hour_from(time, by) / 3600});
    menu_old_ = true;
  }));
  rows.push_back(tick("Full screen", "F11", view.screen().is_full_screen(),
                      [&view] { view.screen().set_full_screen(!view.screen().is_full_screen()); }));
  rows.push_back(
      steps("Size of the panels", per_cent(view.zoom() / view.scale()), [this, &view](int by) {
        view.zoom_by(std::pow(zoom_notch, by), std::nullopt);
        menu_old_ = true;
      }));
  rows.push_back(tick("Panels as large as they fit", "0", !view.chosen_zoom(),
                      [&view] { view.set_zoom(std::nullopt); }));
  rows.push_back(steps("Size of letters", per_cent(scale_), [this](int by) { step_scale(by); }));
  rows.push_back(tick("Letters as the desktop has them", "", !settings_.scale, [this] {
    settings_.scale.reset();
    set_scale(Desktop::scale());
  }));
  rows.push_back(row("Stick, keys and joysticks", "J", [this] {
    controls_shown_ = true;
    show_controls_page();
  }));
  return rows;
}

// ---- What they do

void FlightDeck::set_volume(double volume) {
  settings_.volume = static_cast<int>(std::lround(100 * std::clamp(volume, 0.0, 1.0)));
  apply_volume();
}

void FlightDeck::apply_volume() const { platform_set_volume(gain_of(settings_.volume)); }

void FlightDeck::step_scale(int by) {
  const auto next = by > 0 ? std::ranges::upper_bound(scales, scale_ * 1.001)
                           : std::ranges::lower_bound(scales, scale_ * 0.999);
  if (by > 0 ? next == scales.end() : next == scales.begin()) return;
  settings_.scale = by > 0 ? *next : *std::prev(next);
  set_scale(*settings_.scale);
}

void FlightDeck::set_scale(double scale) {
  scale_ = scale;
  hand_.set_scale(scale);
  views_.each([&](View& view) { view.set_scale(scale); });
  views_.set_scale(scale);
  notices_.place();
  show_page();
  show_controls_page();
  strip_old_ = menu_old_ = true;
}

// Leaves this flight for another one; a journal has kept it.
void FlightDeck::begin_another(NextFlight next) {
  next_ = std::move(next);
  leave();
  if (!leaving_) next_.reset();
}

}  // namespace host
