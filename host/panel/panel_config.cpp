#include "host/panel/panel_config.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <map>
#include <set>

#include "host/panel/config_values.h"
#include "host/panel/text.h"

namespace host {
namespace {

bool is_numbered(std::string_view key, std::string_view prefix) {
  return key.size() > prefix.size() && key.starts_with(prefix) &&
         std::all_of(key.begin() + static_cast<std::ptrdiff_t>(prefix.size()), key.end(),
                     [](char c) { return c >= '0' && c <= '9'; });
}

using EntryReader = void (*)(WindowConfig&, std::string_view);

// Keys are compared in small letters.
const std::map<std::string_view, EntryReader> window_entries = {
    {"ident", [](WindowConfig& w, std::string_view v) { w.ident = read_ident(v); }},
    {"ident_day", [](WindowConfig& w, std::string_view v) { w.day_ident = read_ident(v); }},
    {"ident_night", [](WindowConfig& w, std::string_view v) { w.night_ident = read_ident(v); }},
    {"size_mm",
     [](WindowConfig& w, std::string_view v) {
       const std::vector<int> size = exactly(2, v, 1, greatest_size);
       w.width = size[0];
       w.height = size[1];
     }},
    {"position", [](WindowConfig& w, std::string_view v) { w.position = whole_number(v, 0, 8); }},
    {"start_page",
     [](WindowConfig& w, std::string_view v) { w.start_page = whole_number(v, 0, 1) == 1; }},
    {"visible", [](WindowConfig& w, std::string_view v) { w.visible = whole_number(v, 0, 1) == 1; }},
    {"drawn", [](WindowConfig& w, std::string_view v) { w.drawn = whole_number(v, 0, 1) == 1; }},
    {"background", [](WindowConfig& w, std::string_view v) { w.background = read_picture(v); }},
    {"background_night",
     [](WindowConfig& w, std::string_view v) { w.night_background = read_picture(v); }},
    {"background_color", [](WindowConfig& w, std::string_view v) { w.color = read_color(v); }},
};

class Reader {
 public:
  explicit Reader(const std::filesystem::path& file) { config_.file = file; }

  void read(std::string_view text) {
    if (text.starts_with("\xEF\xBB\xBF")) text.remove_prefix(3);
    for (std::string_view line : split(text, '\n')) {
      ++line_;
      try {
        read_line(trimmed(line.substr(0, line.find("//"))));
      } catch (const LineError& error) {
        fail(line_, error.what());
      }
    }
  }

  PanelConfig finish() {
    for (auto& [number, title] : titles_)
      if (WindowConfig* window = find(number)) window->title = title;
    for (WindowConfig& window : config_.windows) check(window);
    if (config_.windows.empty()) fail(line_, "the panel has no window");
    std::ranges::sort(config_.windows, {}, &WindowConfig::number);
    return std::move(config_);
  }

 private:
  [[noreturn]] void fail(int line, const std::string& message) const {
    throw ConfigError(at_line(config_.file, line, message));
  }

  WindowConfig* find(int number) {
    const auto found = std::ranges::find(config_.windows, number, &WindowConfig::number);
    return found == config_.windows.end() ? nullptr : &*found;
  }

  void read_line(std::string_view line) {
    if (line.empty()) return;
    if (line.front() == '[') return open_section(line);
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos)
      throw LineError("expected [section] or entry=value, not '" + std::string(line) + "'");
    const std::string key = lower(trimmed(line.substr(0, equals)));
    if (section_ == Section::none) throw LineError("an entry before the first [section]");
    if (!keys_.insert(key).second) throw LineError("a second '" + key + "' in this section");
    const std::string_view value = trimmed(line.substr(equals + 1));
    section_ == Section::titles ? read_title(key, value) : read_entry(key, value);
  }

  void open_section(std::string_view line) {
    if (line.back() != ']') throw LineError("a section ends with ]");
    const std::string name = lower(trimmed(line.substr(1, line.size() - 2)));
    if (!sections_.insert(name).second) throw LineError("a second [" + name + "]");
    keys_.clear();
    section_ = name == "window titles" ? Section::titles : Section::window;
    if (section_ == Section::titles) return;
    if (!is_numbered(name, "window"))
      throw LineError("unknown section [" + name + "]: expected [Window Titles] or [Window00]");
    const int number = whole_number(std::string_view(name).substr(6), 0, 99);
    if (find(number)) throw LineError("a second window " + std::to_string(number));
    WindowConfig& window = config_.windows.emplace_back();
    window.number = number;
    window.line = line_;
    window.title = "Window " + std::to_string(number);
  }

  void read_title(const std::string& key, std::string_view value) {
    if (!is_numbered(key, "window")) throw LineError("expected Window00=title, not '" + key + "'");
    titles_[whole_number(std::string_view(key).substr(6), 0, 99)] = value;
  }

  void read_entry(const std::string& key, std::string_view value) {
    WindowConfig& window = config_.windows.back();
    if (is_numbered(key, "gauge")) {
      window.gauges.push_back(read_placement(value, line_));
      return;
    }
    const auto entry = window_entries.find(key);
    if (entry == window_entries.end()) throw LineError("unknown entry '" + key + "'");
    try {
      entry->second(window, value);
    } catch (const LineError& error) {
      throw LineError(key + ": " + error.what());
    }
    if (key.starts_with("ident")) claim_ident(read_ident(value));
  }

  void claim_ident(std::uint32_t ident) {
    if (!idents_.insert(ident).second)
      throw LineError("ident " + std::to_string(ident) + " belongs to a window already");
  }

  void check(const WindowConfig& window) const {
    if (window.drawn && window.width == 0)
      fail(window.line, "window " + std::to_string(window.number) + " has no size_mm");
  }

  enum class Section { none, titles, window };

  PanelConfig config_;
  std::map<int, std::string> titles_;
  std::set<std::string> sections_;
  std::set<std::string> keys_;
  std::set<std::uint32_t> idents_;
  Section section_ = Section::none;
  int line_ = 0;
};

}  // namespace

std::string at_line(const std::filesystem::path& file, int line, const std::string& message) {
  return file.string() + ":" + std::to_string(line) + ": " + message;
}

PanelConfig parse_panel_config(std::string_view text, const std::filesystem::path& file) {
  Reader reader(file);
  reader.read(text);
  return reader.finish();
}

PanelConfig read_panel_config(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  if (!stream || std::filesystem::is_directory(file))
    throw ConfigError(file.string() + ": the panel configuration cannot be read");
  const std::string text{std::istreambuf_iterator<char>(stream), {}};
  return parse_panel_config(text, file);
}

}  // namespace host
