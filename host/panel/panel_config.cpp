#include "host/panel/panel_config.h"

#include <algorithm>
#include <map>
#include <set>

#include "host/files/read_file.h"
#include "host/files/shortened.h"
#include "host/panel/config_values.h"
#include "host/panel/plate.h"
#include "host/panel/text.h"

namespace host {
namespace {

bool is_numbered(std::string_view key, std::string_view prefix) {
  return key.size() > prefix.size() && key.starts_with(prefix) &&
         std::all_of(key.begin() + static_cast<std::ptrdiff_t>(prefix.size()), key.end(),
                     [](char c) { return c >= '0' && c <= '9'; });
}

// `gauge00` and `gauge0` are the same entry.
std::string plain_number(std::string_view key) {
  const std::size_t digits = key.find_last_not_of("0123456789") + 1;
  if (digits == 0 || digits >= key.size()) return std::string(key);
  const std::size_t first = std::min(key.find_first_not_of('0', digits), key.size() - 1);
  return std::string(key.substr(0, digits)) + std::string(key.substr(first));
}

using EntryReader = void (*)(WindowConfig&, std::string_view, int line);

// Keys are compared in small letters.
const std::map<std::string_view, EntryReader> window_entries = {
    {"ident", [](WindowConfig& w, std::string_view v, int) { w.ident = read_ident(v); }},
    {"ident_day", [](WindowConfig& w, std::string_view v, int) { w.day_ident = read_ident(v); }},
    {"ident_night", [](WindowConfig& w, std::string_view v, int) { w.night_ident = read_ident(v); }},
    {"size_mm",
     [](WindowConfig& w, std::string_view v, int) {
       const std::vector<int> size = exactly(2, v, 1, greatest_size);
       w.width = size[0];
       w.height = size[1];
     }},
    {"position", [](WindowConfig& w, std::string_view v, int) { w.position = whole_number(v, 0, 8); }},
    {"start_page",
     [](WindowConfig& w, std::string_view v, int) { w.start_page = whole_number(v, 0, 1) == 1; }},
    {"visible",
     [](WindowConfig& w, std::string_view v, int) { w.visible = whole_number(v, 0, 1) == 1; }},
    {"drawn", [](WindowConfig& w, std::string_view v, int) { w.drawn = whole_number(v, 0, 1) == 1; }},
    {"background",
     [](WindowConfig& w, std::string_view v, int line) {
       w.background = read_picture(v);
       w.background_line = line;
     }},
    {"background_night",
     [](WindowConfig& w, std::string_view v, int line) {
       w.night_background = read_picture(v);
       w.night_background_line = line;
     }},
    {"background_color", [](WindowConfig& w, std::string_view v, int) { w.color = read_color(v); }},
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
    for (const auto& [number, title] : titles_) {
      WindowConfig* window = find(number);
      if (!window)
        fail(title.line, "a title for window " + std::to_string(number) + ", which is not there");
      window->title = title.text;
    }
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
      throw LineError("expected [section] or entry=value, not " + in_quotes(line));
    const std::string key = lower(trimmed(line.substr(0, equals)));
    if (section_ == Section::none) throw LineError("an entry before the first [section]");
    if (!keys_.insert(plain_number(key)).second)
      throw LineError("a second " + in_quotes(key) + " in this section");
    const std::string_view value = trimmed(line.substr(equals + 1));
    section_ == Section::titles ? read_title(key, value) : read_entry(key, value);
  }

  void open_section(std::string_view line) {
    if (line.back() != ']') throw LineError("a section ends with ]");
    const std::string name = lower(trimmed(line.substr(1, line.size() - 2)));
    if (!sections_.insert(name).second) throw LineError("a second [" + shortened(name) + "]");
    keys_.clear();
    section_ = name == "window titles" ? Section::titles : Section::window;
    if (section_ == Section::titles) return;
    if (!is_numbered(name, "window"))
      throw LineError("unknown section [" + shortened(name) +
                      "]: expected [Window Titles] or [Window00]");
    const int number = whole_number(std::string_view(name).substr(6), 0, 99);
    if (find(number)) throw LineError("a second window " + std::to_string(number));
    WindowConfig& window = config_.windows.emplace_back();
    window.number = number;
    window.line = line_;
    window.title = "Window " + std::to_string(number);
  }

  void read_title(const std::string& key, std::string_view value) {
    if (!is_numbered(key, "window")) throw LineError("expected Window00=title, not " + in_quotes(key));
    titles_[whole_number(std::string_view(key).substr(6), 0, 99)] = {std::string(value), line_};
  }

  void read_entry(const std::string& key, std::string_view value) {
    WindowConfig& window = config_.windows.back();
    if (is_numbered(key, "gauge")) {
      window.gauges.push_back(read_placement(value, line_));
      return;
    }
    if (is_numbered(key, "bay")) {
      window.bays.push_back(read_bay(value));
      return;
    }
    if (is_numbered(key, "placard")) {
      window.placards.push_back(read_placard(value));
      return;
    }
    const auto entry = window_entries.find(key);
    if (entry == window_entries.end()) throw LineError("unknown entry " + in_quotes(key));
    try {
      entry->second(window, value, line_);
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
  struct Title {
    std::string text;
    int line;
  };
  std::map<int, Title> titles_;
  std::set<std::string> sections_;
  std::set<std::string> keys_;
  std::set<std::uint32_t> idents_;
  Section section_ = Section::none;
  int line_ = 0;
};

}  // namespace

// A face that is drawn for the first time in mid-flight is no moment to find that its picture is
// missing.
static void check_backgrounds(const WindowConfig& window, const std::filesystem::path& config) {
  for (const auto& [picture, line] :
       {std::pair{&window.background, window.background_line},
        std::pair{&window.night_background, window.night_background_line}}) {
    if (picture->empty()) continue;
    const std::string fault = fault_of_picture(config.parent_path() / *picture);
    if (!fault.empty())
      throw ConfigError(at_line(config, line, "the window's background " + *picture + " " + fault));
  }
}

std::string at_line(const std::filesystem::path& file, int line, const std::string& message) {
  return file.string() + ":" + std::to_string(line) + ": " + message;
}

PanelConfig parse_panel_config(std::string_view text, const std::filesystem::path& file) {
  Reader reader(file);
  reader.read(text);
  return reader.finish();
}

PanelConfig read_panel_config(const std::filesystem::path& file) {
  try {
    PanelConfig config = parse_panel_config(read_file(file, mebibyte), file);
    for (const WindowConfig& window : config.windows) check_backgrounds(window, file);
    return config;
  } catch (const FileFault& fault) {
    throw ConfigError(fault.what());
  }
}

}  // namespace host
