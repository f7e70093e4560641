/// What a person asks for on the command line.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "host/panel/cockpit.h"

namespace host {

/// Which cockpit, for every command. Empty paths: what lies beside the program.
struct CockpitOptions {
  std::filesystem::path module;
  std::filesystem::path panel;
  double rate = Cockpit::default_rate;  ///< gauge frames a second
};

struct FlyOptions {
  CockpitOptions cockpit;
  std::optional<double> scale;           ///< of texts and borders; else the desktop's setting
  std::optional<double> zoom;            ///< screen pixels per panel pixel at scale 1; else what fits
  std::vector<std::uint32_t> open;       ///< idents to open besides those that are open from the start
  std::filesystem::path pictures = ".";  ///< where screenshots go
  std::filesystem::path record;          ///< a flow to write the person's inputs to; empty: none
  std::optional<double> exit_after;      ///< seconds
  bool mute = false;
};

struct RunOptions {
  CockpitOptions cockpit;
  std::string flow = "engine_start";
  std::filesystem::path pictures;  ///< empty: none
  std::filesystem::path sound;     ///< empty: none
  bool realtime = false;
};

struct ShowOptions {
  CockpitOptions cockpit;
  std::vector<std::string> gauges;
  std::optional<double> zoom;
  std::optional<double> scale;
  bool areas = false;
  bool night = false;
  std::vector<std::string> readings;  ///< token=value
  std::filesystem::path picture;      ///< empty: a window
};

struct ListOptions {
  CockpitOptions cockpit;
  std::string what;
};

}  // namespace host
