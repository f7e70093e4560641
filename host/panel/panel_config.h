/// The panel configuration: which windows a cockpit has, and which gauges stand where in them.
///
///     [Window Titles]
///     Window00=Overhead
///
///     [Window00]
///     ident=502                         // the number by which gauges open and close it
///     size_mm=1280,900                  // its plate, in panel pixels
///     position=1                        // where it likes to stand, 0 upper left ... 8 lower right
///     visible=1                         // open from the start
///     gauge00=Tarnvale!Masterbat, 20,30 // x,y and, where it is scaled, its width,height
///
/// Further entries of a window: `ident_day` and `ident_night`, two numbers that show its day or its
/// night face; `background` and `background_night`, PNG files beside the configuration;
/// `background_color=r,g,b` for the plate without one, `bay00=x,y,width,height` for fields let into it,
/// and `placard00=x,y,width,height,words|in lines` for small plates with words; `drawn=0` for a window
/// whose gauges run all the time and are never seen; `start_page=1` for the page that a session may begin
/// with, which gives way to the first window that is opened after it.
#pragma once

#include <cstdint>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace host {

/// A configuration that cannot be used; what() is "file:line: what is wrong".
struct ConfigError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// One gauge in a window.
struct Placement {
  std::string module;  ///< the module's file name without its extension
  std::string gauge;
  int x = 0;  ///< panel pixels from the window's upper left corner
  int y = 0;
  int width = 0;  ///< 0: the size of the gauge's own background
  int height = 0;
  int line = 0;  ///< where the configuration says so
};

/// A field let into the plate, in which the gauges of one system stand.
struct Bay {
  int x = 0;  ///< panel pixels from the window's upper left corner
  int y = 0;
  int width = 0;
  int height = 0;
};

/// A small black plate with words: limits, or what stands beside it.
struct Placard {
  int x = 0;  ///< panel pixels from the window's upper left corner
  int y = 0;
  int width = 0;
  int height = 0;
  std::vector<std::string> lines;  ///< of several, the first is the heading
};

/// One window of the panel.
struct WindowConfig {
  int number = 0;
  int line = 0;
  std::string title;
  std::uint32_t ident = 0;  ///< 0: none
  std::uint32_t day_ident = 0;
  std::uint32_t night_ident = 0;
  int width = 0;  ///< panel pixels
  int height = 0;
  int position = 4;  ///< 0 upper left ... 8 lower right
  bool visible = false;
  bool drawn = true;
  bool start_page = false;
  std::string background;        ///< empty: a plate in `color`
  std::string night_background;  ///< empty: as by day
  int background_line = 0;       ///< where the configuration names them
  int night_background_line = 0;
  std::uint32_t color = 0xFF2B2E33u;
  std::vector<Bay> bays;
  std::vector<Placard> placards;
  std::vector<Placement> gauges;
};

/// A panel with its windows in ascending order of their numbers.
struct PanelConfig {
  std::filesystem::path file;
  std::vector<WindowConfig> windows;
};

/// Reads a configuration. `file` is named in errors and kept. Throws ConfigError.
PanelConfig parse_panel_config(std::string_view text, const std::filesystem::path& file);

/// Reads a configuration file of at most 1 MiB. Throws ConfigError, also when it or a picture that it
/// names cannot be read.
PanelConfig read_panel_config(const std::filesystem::path& file);

/// "file:line: message", the form of every configuration error.
std::string at_line(const std::filesystem::path& file, int line, const std::string& message);

}  // namespace host
