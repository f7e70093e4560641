#include "host/app/desk_options.h"

#include <stdexcept>

#include "host/app/installation.h"
#include "host/app/lookup.h"
#include "host/panel/config_values.h"
#include "host/panel/text.h"

namespace host {
namespace {

void open_only(Desk& desk, const FlyOptions& options, const PanelConfig& panel) {
  for (auto& [ident, settings] : desk.panels) settings.open = settings.in_work = false;
  for (const std::string& typed : options.open) {
    PanelSettings& settings = desk.panels[find_window(panel, typed).ident];
    settings.open = settings.in_work = true;
  }
}

// In the air one looks out of the window, not up.
void open_captains_panel(Desk& desk) {
  PanelSettings& captain = desk.panels[captains_panel];
  if (captain.open && (captain.in_work || captain.torn)) return;
  for (auto& [ident, settings] : desk.panels) settings.in_work = false;
  captain.open = captain.in_work = true;
}

void place(Desk& desk, const std::string& typed, const PanelConfig& panel) try {
  const std::size_t equals = typed.find('=');
  if (equals == std::string::npos) throw LineError("expected WINDOW=x,y,width,height");
  const std::string window = typed.substr(0, equals);
  WindowSettings& settings =
      same_name(window, "main") ? desk.main : desk.panels[find_window(panel, window).ident];
  settings.place = parse_place(typed.substr(equals + 1));
  settings.full_screen = false;
} catch (const LineError& error) {
  throw std::runtime_error("--place " + typed + ": " + error.what());
}

}  // namespace

DeckOptions deck_options(const FlyOptions& options, const PanelConfig& panel, std::string& notes) {
  DeckOptions deck = options.deck;
  if (deck.controls.empty()) deck.controls = program_folder() / "controls.cfg";
  if (deck.checklists.empty()) deck.checklists = program_folder() / "checklists.txt";
  deck.desk_file = desk_file();
  if (deck.flows.empty()) deck.flows = program_folder() / "flows";
  if (options.desk)
    deck.desk = *options.desk;
  else if (!options.fresh)
    deck.desk = read_desk(deck.desk_file, notes);
  if (!options.open.empty()) open_only(deck.desk, options, panel);
  if (options.open.empty() && options.start.at != "stand") open_captains_panel(deck.desk);
  for (const std::string& typed : options.torn) {
    PanelSettings& settings = deck.desk.panels[find_window(panel, typed).ident];
    settings.open = settings.torn = true;
  }
  for (const std::string& typed : options.places) place(deck.desk, typed, panel);
  if (options.full_screen) deck.desk.main.full_screen = true;
  if (options.no_view) deck.desk.outside = false;
  return deck;
}

}  // namespace host
