/// What a person asks for on the command line.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "host/panel/cockpit.h"
#include "host/window/deck_options.h"

namespace host {

/// Which cockpit, for every command. Empty paths: what lies beside the program.
struct CockpitOptions {
  std::filesystem::path module;
  std::filesystem::path panel;
  double rate = Cockpit::default_rate;  ///< gauge frames a second
};

/// Where and when a flight begins.
struct StartOptions {
  std::string at = "stand";     ///< as start_places() names them
  std::optional<double> hours;  ///< local time; else ten in the morning
};

struct FlyOptions {
  CockpitOptions cockpit;
  StartOptions start;
  DeckOptions deck;     ///< no controls: the file beside the program; the desk is made of the rest
  std::string display;  ///< the X display; empty: as the environment names it
  std::vector<std::string> open;    ///< windows to open instead of those that were open last
  std::vector<std::string> torn;    ///< windows to open, each in a window of its own
  std::vector<std::string> places;  ///< WINDOW=x,y,width,height; "main" is the main one
  bool full_screen = false;
  std::string state;           ///< of the start page, pressed for the person; empty: it is asked for
  std::string watch;           ///< a flow to watch; empty: none
  std::optional<Desk> desk{};  ///< how the windows stand; empty: as they were left
  bool fresh = false;          ///< without what is remembered of earlier flights
  bool no_view = false;        ///< without the view out of the window
  bool mute = false;
  double ambience = 100;          ///< loudness of the aircraft's own sound, percent
  std::filesystem::path record;   ///< a flow to write the person's inputs to; empty: none
  std::filesystem::path journal;  ///< empty: one in the folder of sessions
  bool keep_journal = true;
  bool resume = false;  ///< the journal's session, or the last one; the rate is the session's
};

struct RunOptions {
  CockpitOptions cockpit;
  std::string flow = "gate_to_gate";
  std::filesystem::path pictures;  ///< empty: none
  std::filesystem::path sound;     ///< empty: none
  double ambience = 100;           ///< in that sound, percent
  std::filesystem::path journal;   ///< empty: none
  bool realtime = false;
};

struct ReplayOptions {
  CockpitOptions cockpit;  ///< its rate is the journal's
  std::filesystem::path journal;
  std::filesystem::path pictures;  ///< folder; empty: none
  double picture_every = 60;       ///< seconds of flight
  std::filesystem::path sound;     ///< empty: none
  double ambience = 100;           ///< in that sound, percent
  std::filesystem::path flow;      ///< empty: none
  bool digest = false;
};

struct ShowOptions {
  CockpitOptions cockpit;
  std::string display;              ///< as for FlyOptions
  std::vector<std::string> gauges;  ///< or the ident of one window, or "outside"
  DeckOptions deck;                 ///< its zoom also for the file
  StartOptions start;
  bool areas = false;
  bool labels = false;  ///< only in a picture
  bool night = false;
  std::vector<std::string> readings;  ///< token=value
  std::filesystem::path picture;      ///< empty: a window
};

struct CheckOptions {
  CockpitOptions cockpit;
  bool details = false;
};

struct ListOptions {
  CockpitOptions cockpit;
  std::string what;
  std::string gauge;  ///< whose names; empty: all
};

}  // namespace host
