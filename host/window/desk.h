/// How a person has arranged the windows: kept in a small text file between two flights.
///
///     [window]                        # the main one
///     place = 0,0,1920,1080           # x, y, width and height on the desktop
///     outside = 0                     # without the view out of the window
///     [500]                           # a panel, by its ident
///     open = 1
///     in_work = 1                     # and not just a tab
///     torn = 1                        # off, in a window of its own
///     place = 1920,0,1280,1024
///     zoom = 1.5                      # screen pixels per panel pixel; without: what fits
///     full_screen = 1
///     [settings]                      # what the menu and the keys have set once and for all
///     help_seen = 1
///     volume = 80                     # per cent
///     scale = 1.25                    # of texts and borders; without: the desktop's
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace host {

/// A window on the desktop, in the desktop's units, without its frame.
struct WindowPlace {
  std::optional<int> x, y;  ///< empty: the middle of the screen
  int width = 0;
  int height = 0;
  bool operator==(const WindowPlace&) const = default;
};

struct WindowSettings {
  std::optional<WindowPlace> place;
  std::optional<double> zoom;
  bool full_screen = false;
  bool operator==(const WindowSettings&) const = default;
};

struct PanelSettings : WindowSettings {
  bool open = false;
  bool in_work = false;
  bool torn = false;
  bool operator==(const PanelSettings&) const = default;
};

/// What texts and borders may be scaled by.
inline constexpr double least_scale = 0.5, most_scale = 8;

struct Settings {
  bool help_seen = false;
  int volume = 100;
  std::optional<double> scale;
  bool operator==(const Settings&) const = default;
};

struct Desk {
  WindowSettings main;
  Settings settings;
  bool outside = true;  ///< the view out of the window is wanted
  std::map<std::uint32_t, PanelSettings> panels;
  bool operator==(const Desk&) const = default;
};

/// "x,y,width,height". Throws LineError.
WindowPlace parse_place(std::string_view text);

/// What cannot be used is left out and told in `notes`, a line each, with file and line.
Desk parse_desk(std::string_view text, const std::filesystem::path& file, std::string& notes);

/// As parse_desk(); where there is no such file everything is as the first time.
Desk read_desk(const std::filesystem::path& file, std::string& notes);

std::string text_of(const Desk& desk);

/// Replaces the file, whole or not at all. Throws std::runtime_error.
void write_desk(const std::filesystem::path& file, const Desk& desk);

/// windows.cfg in tarnvale/ below $XDG_CONFIG_HOME or ~/.config; empty where there is neither.
std::filesystem::path desk_file();

/// The desktop's folder for pictures, or the person's own.
std::filesystem::path pictures_folder();

}  // namespace host
