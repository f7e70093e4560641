#include "host/window/desk.h"

#include <charconv>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <stdexcept>

#include "host/files/read_file.h"
#include "host/files/shortened.h"
#include "host/panel/config_values.h"
#include "host/panel/text.h"

namespace host {
namespace {

constexpr int farthest = 100000;  // no desktop is larger
constexpr int least_side = 100, greatest_side = 16384;

bool read_flag(std::string_view value) { return whole_number(value, 0, 1) == 1; }

double read_factor(const char* what, std::string_view value, double least, double most) {
  double factor = 0;
  const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), factor);
  if (error == std::errc{} && end == value.data() + value.size() && factor >= least && factor <= most)
    return factor;
  char wanted[64];
  std::snprintf(wanted, sizeof wanted, "expected a %s from %g to %g, not '", what, least, most);
  throw LineError(wanted + std::string(value) + "'");
}

bool read_window(WindowSettings& window, std::string_view key, std::string_view value) {
  if (key == "place") return window.place = parse_place(value), true;
  if (key == "zoom") return window.zoom = read_factor("zoom", value, 0.1, 16), true;
  if (key == "full_screen") return window.full_screen = read_flag(value), true;
  return false;
}

bool read_panel(PanelSettings& panel, std::string_view key, std::string_view value) {
  if (key == "open") return panel.open = read_flag(value), true;
  if (key == "in_work") return panel.in_work = read_flag(value), true;
  if (key == "torn") return panel.torn = read_flag(value), true;
  return read_window(panel, key, value);
}

bool read_setting(Settings& settings, std::string_view key, std::string_view value) {
  if (key == "help_seen") return settings.help_seen = read_flag(value), true;
  if (key == "volume") return settings.volume = whole_number(value, 0, 100), true;
  if (key == "scale")
    return settings.scale = read_factor("scale", value, least_scale, most_scale), true;
  return false;
}

class Reader {
 public:
  explicit Reader(Desk& desk) : desk_(desk) {}

  void read(std::string_view line) {
    if (line.empty() || line.starts_with('#')) return;
    if (line.starts_with('[') && line.ends_with(']')) return begin(line.substr(1, line.size() - 2));
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos) throw LineError("expected name = value");
    const std::string_view key = trimmed(line.substr(0, equals)),
                           value = trimmed(line.substr(equals + 1));
    if (!read_entry(key, value)) throw LineError("there is no entry '" + std::string(key) + "' here");
  }

 private:
  void begin(std::string_view section) {
    panel_ = nullptr;
    in_main_ = section == "window";
    in_settings_ = section == "settings";
    if (!in_main_ && !in_settings_) panel_ = &desk_.panels[read_ident(section)];
  }

  bool read_entry(std::string_view key, std::string_view value) {
    if (panel_) return read_panel(*panel_, key, value);
    if (in_settings_) return read_setting(desk_.settings, key, value);
    if (!in_main_) return false;
    if (key == "outside") return desk_.outside = read_flag(value), true;
    return read_window(desk_.main, key, value);
  }

  Desk& desk_;
  PanelSettings* panel_ = nullptr;
  bool in_main_ = false;
  bool in_settings_ = false;
};

std::string factor_line(const char* name, const std::optional<double>& factor) {
  if (!factor) return {};
  return name + (" = " + exact_number(*factor) + "\n");
}

std::string text_of(const Settings& settings) {
  return "\n[settings]\nhelp_seen = " + std::string(settings.help_seen ? "1" : "0") +
         "\nvolume = " + std::to_string(settings.volume) + "\n" + factor_line("scale", settings.scale);
}

std::string text_of(const WindowSettings& window) {
  std::string text;
  if (window.place && window.place->x && window.place->y)
    text += "place = " + std::to_string(*window.place->x) + "," + std::to_string(*window.place->y) +
            "," + std::to_string(window.place->width) + "," + std::to_string(window.place->height) +
            "\n";
  text += factor_line("zoom", window.zoom);
  if (window.full_screen) text += "full_screen = 1\n";
  return text;
}

std::filesystem::path home() {
  const char* home = std::getenv("HOME");
  return home ? home : "";
}

std::filesystem::path config_folder() {
  const char* config = std::getenv("XDG_CONFIG_HOME");
  if (config && std::filesystem::path(config).is_absolute()) return config;
  return home().empty() ? home() : home() / ".config";
}

}  // namespace

WindowPlace parse_place(std::string_view text) {
  const std::vector<int> numbers = exactly(4, text, -farthest, farthest);
  for (const int side : {numbers[2], numbers[3]})
    if (side < least_side || side > greatest_side)
      throw LineError("a window is " + std::to_string(least_side) + " to " +
                      std::to_string(greatest_side) + " wide and high");
  return {numbers[0], numbers[1], numbers[2], numbers[3]};
}

Desk parse_desk(std::string_view text, const std::filesystem::path& file, std::string& notes) {
  constexpr int most_notes = 3;
  Desk desk;
  Reader reader(desk);
  int number = 0, wrong = 0;
  for (std::string_view line : split(text, '\n')) {
    ++number;
    try {
      reader.read(trimmed(line));
    } catch (const LineError& error) {
      if (++wrong <= most_notes)
        notes += (notes.empty() ? "" : "\n") + at_line(file, number, shortened(error.what(), 150));
    }
  }
  if (wrong > most_notes)
    notes += "\n" + file.string() + ": and " + std::to_string(wrong - most_notes) + " more lines";
  return desk;
}

Desk read_desk(const std::filesystem::path& file, std::string& notes) {
  std::error_code error;
  if (!std::filesystem::exists(file, error)) return {};
  try {
    return parse_desk(read_file(file, mebibyte), file, notes);
  } catch (const FileFault& fault) {
    notes += fault.what();
    return {};
  }
}

std::string text_of(const Desk& desk) {
  std::string text = "# How the windows of tarnvale stood when it was left.\n\n[window]\n";
  text += text_of(desk.main);
  if (!desk.outside) text += "outside = 0\n";
  text += text_of(desk.settings);
  for (const auto& [ident, panel] : desk.panels) {
    text += "\n[" + std::to_string(ident) + "]\n";
    if (panel.open) text += "open = 1\n";
    if (panel.in_work) text += "in_work = 1\n";
    if (panel.torn) text += "torn = 1\n";
    text += text_of(static_cast<const WindowSettings&>(panel));
  }
  return text;
}

void write_desk(const std::filesystem::path& file, const Desk& desk) {
  std::error_code error;
  std::filesystem::create_directories(file.parent_path(), error);
  const std::filesystem::path fresh = file.string() + ".new";
  std::ofstream stream(fresh, std::ios::binary);
  stream << text_of(desk);
  stream.close();
  if (stream) std::filesystem::rename(fresh, file, error);
  if (!stream || error)
    throw std::runtime_error(file.string() + ": cannot be written; the windows' places are not kept");
}

std::filesystem::path desk_file() {
  const std::filesystem::path folder = config_folder();
  return folder.empty() ? folder : folder / "tarnvale/windows.cfg";
}

std::filesystem::path pictures_folder() {
  constexpr std::string_view entry = "XDG_PICTURES_DIR=\"", from_home = "$HOME";
  const std::filesystem::path dirs = config_folder() / "user-dirs.dirs";
  const std::string text = fault_of_file(dirs, mebibyte).empty() ? read_file(dirs, mebibyte) : "";
  for (const std::string_view line : split(text, '\n')) {
    const std::size_t end = line.rfind('"');
    if (!line.starts_with(entry) || end < entry.size()) continue;
    const std::string folder(line.substr(entry.size(), end - entry.size()));
    if (folder.starts_with('/')) return folder;
    if (folder.starts_with(from_home) && !home().empty()) return home().string() + folder.substr(5);
  }
  std::error_code error;
  if (std::filesystem::is_directory(home() / "Pictures", error)) return home() / "Pictures";
  return home().empty() ? std::filesystem::current_path(error) : home();
}

}  // namespace host
