#include "host/app/commands.h"
#include "host/app/installation.h"
#include "host/app/lookup.h"
#include "host/app/start.h"
#include "host/app/start_notes.h"
#include "host/sound/identifications.h"
#include "host/window/flight_deck.h"

namespace host {

namespace {

// In the air one looks out of the window, not up.
void open_for_flying(Cockpit& cockpit) {
  for (const WindowConfig& window : cockpit.config().windows)
    if (window.drawn && window.ident != 0) cockpit.panels().close(window.ident);
  cockpit.panels().open(captains_panel);
}

}  // namespace

int fly(const FlyOptions& options) {
  const CockpitOptions cockpit_options = located(options.cockpit);
  GaugeModule module(cockpit_options.module);
  say_artwork_notes(module);
  // A muted cockpit plays into a mix that nobody takes, so that its sound engine finds all well.
  prepare_platform(cockpit_options, options.mute ? PLATFORM_AUDIO_RENDERED : PLATFORM_AUDIO_DEVICE);
  Cockpit cockpit(module, read_panel_config(cockpit_options.panel), cockpit_options.rate);
  say_notes(cockpit.names());
  for (std::uint32_t ident : options.open) {
    if (!cockpit.panels().find(ident))
      throw std::runtime_error("--open: there is no window " + std::to_string(ident));
    cockpit.panels().open(ident);
  }
  if (options.start.at != "stand" && options.open.empty()) {
    open_for_flying(cockpit);
  } else if (options.open.empty()) {
    cockpit.begin_with_start_page();
  }
  DeckOptions deck_options = options.deck;
  if (deck_options.controls.empty()) deck_options.controls = program_folder() / "controls.cfg";
  deck_options.begun_with = begin(cockpit.aircraft(), options.start);
  Identifications identifications;
  FlightDeck deck(cockpit, deck_options);
  deck.after_frame = [&] {
    identifications.update(cockpit.aircraft().identifications_heard(), cockpit.seconds());
  };
  deck.on_pause = [&] { identifications.silence(); };
  deck.fly();
  return exit_fine;
}

}  // namespace host
