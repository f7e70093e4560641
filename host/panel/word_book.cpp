#include "host/panel/word_book.h"

#include <algorithm>
#include <set>

#include "host/files/read_file.h"
#include "host/files/shortened.h"
#include "host/panel/config_values.h"
#include "host/panel/nearest.h"
#include "host/panel/text.h"
#include "host/simulation/aircraft_model.h"

namespace host {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t most_notes = 20;
constexpr int most_images = 1000;

std::string read_text(std::string_view text) {
  if (text == "-") return {};
  const auto is_printable = [](char c) { return c >= ' ' && c <= '~'; };
  if (text.empty() || text.size() > longest_text || !std::ranges::all_of(text, is_printable))
    throw LineError(in_quotes(text) + " is no text: 1 to 90 characters that can be printed");
  return std::string(text);
}

bool is_pattern(std::string_view name) { return name.ends_with('*'); }

bool fits(std::string_view pattern, std::string_view name) {
  if (!is_pattern(pattern)) return pattern == name;
  return name.starts_with(pattern.substr(0, pattern.size() - 1));
}

std::vector<std::string_view> names_of(const std::vector<Named>& all) {
  std::vector<std::string_view> names;
  for (const Named& named : all) names.push_back(named.name);
  return names;
}

// The part after a word that begins a row; nothing where another word does.
std::optional<std::string_view> behind(std::string_view line, std::string_view word) {
  if (!line.starts_with(word) || line.size() == word.size()) return std::nullopt;
  if (line[word.size()] != ' ' && line[word.size()] != '\t') return std::nullopt;
  return trimmed(line.substr(word.size()));
}

class Reader {
 public:
  Reader(std::span<const GaugeHeader* const> gauges, const NameBook& names)
      : gauges_(gauges), names_(names) {}

  void read(const WordFile& file) {
    file_ = file.name;
    line_ = 0;
    section_.clear();
    everywhere_ = false;
    row_.clear();
    for (const std::string_view raw : split(file.text, '\n')) {
      ++line_;
      const std::string_view line = trimmed(raw);
      if (line.empty() || line.front() == '#') continue;
      try {
        read_line(line);
      } catch (const LineError& error) {
        note(error.what());
      }
    }
  }

  WordBook finish() {
    if (wrong_ > most_notes)
      book_.notes.push_back("words: and " + std::to_string(wrong_ - most_notes) + " more lines");
    return std::move(book_);
  }

 private:
  void note(const std::string& message) {
    if (++wrong_ <= most_notes) book_.notes.push_back(at_line(file_, line_, shortened(message, 160)));
  }

  void read_line(std::string_view line) {
    if (line.front() == '[') return read_section(line);
    if (section_.empty()) throw LineError("expected a gauge such as [Masterbat] first");
    if (const auto rest = behind(line, "right if")) return read_refusal(*rest, MOUSE_RIGHT);
    if (const auto rest = behind(line, "if")) return read_refusal(*rest, 0);
    if (const auto rest = behind(line, "wheel")) return read_wheel(*rest);
    if (const auto rest = behind(line, "stops")) return read_stops(*rest);
    read_row(line);
  }

  const GaugeHeader& gauge_of(std::string_view name) const {
    const auto found = std::ranges::find_if(
        gauges_, [&](const GaugeHeader* each) { return same_name(each->name, name); });
    if (found == gauges_.end()) throw LineError("the module has no gauge " + in_quotes(name));
    return **found;
  }

  void read_section(std::string_view line) {
    section_.clear();
    row_.clear();
    if (line.back() != ']') throw LineError("the gauge's name has no end: " + in_quotes(line));
    const std::string_view inside = trimmed(line.substr(1, line.size() - 2));
    everywhere_ = inside == "*";
    if (everywhere_) {
      section_.assign(gauges_.begin(), gauges_.end());
      return;
    }
    std::vector<const GaugeHeader*> section;
    for (const std::string_view name : split(inside, ',')) section.push_back(&gauge_of(trimmed(name)));
    section_ = std::move(section);
  }

  // ---- Texts

  void read_row(std::string_view line) {
    row_.clear();
    const std::vector<std::string_view> columns = split(line, '|');
    if (columns.size() != 2)
      throw LineError("a row is: names of parts or controls | what is said of them");
    const std::string text = read_text(trimmed(columns[1]));
    const std::vector<std::string_view> patterns = split(columns[0], ',');
    for (const std::string_view pattern : patterns) say(trimmed(pattern), text);
    row_.assign(patterns.begin(), patterns.end());
  }

  void say(std::string_view pattern, const std::string& text) {
    bool said = false;
    for (const GaugeHeader* gauge : section_) {
      const bool here = say(*gauge, pattern, text);
      if (!here && !everywhere_) refuse_name(*gauge, pattern);
      said |= here;
    }
    if (!said) throw LineError("no gauge has anything called " + in_quotes(pattern));
  }

  // Returns whether the gauge has anything of that name.
  bool say(const GaugeHeader& gauge, std::string_view pattern, const std::string& text) {
    GaugeWords& words = book_.gauges[&gauge];
    const GaugeNames& names = names_.of(gauge);
    bool said = false;
    for (const Named& part : names.parts)
      if (fits(pattern, part.name)) said = say(words.parts, part, pattern, text);
    for (const Named& area : names.areas)
      if (fits(pattern, area.name)) said = say(words.areas, area, pattern, text);
    return said;
  }

  // A name goes before a pattern, and the first of several rows before the others.
  bool say(std::map<std::size_t, std::string>& texts, const Named& named, std::string_view pattern,
           const std::string& text) {
    std::string*& by_name = by_name_[&named];
    if (!is_pattern(pattern)) {
      if (by_name) throw LineError("a second text for " + in_quotes(named.name));
      texts[named.index] = text;
      by_name = &texts[named.index];
    } else if (!by_name) {
      texts.try_emplace(named.index, text);
    }
    return true;
  }

  [[noreturn]] void refuse_name(const GaugeHeader& gauge, std::string_view name) const {
    std::vector<std::string_view> known = names_of(names_.of(gauge).parts);
    for (const std::string_view area : names_of(names_.of(gauge).areas)) known.push_back(area);
    throw LineError(std::string(gauge.name) + " has nothing called " + in_quotes(name) +
                    did_you_mean(name, known));
  }

  // ---- Refusals

  void read_refusal(std::string_view line, std::uint32_t button) {
    const std::vector<std::string_view> columns = split(line, '|');
    if (columns.size() != 2) throw LineError("why a click does nothing is: if condition | text");
    const Condition lacking = read_condition(columns[0]);
    check(lacking);
    const std::string text = read_text(trimmed(columns[1]));
    bool clicked = false;
    for (const GaugeHeader* gauge : section_)
      for (const std::string& name : row_)
        for (const Named& area : names_.of(*gauge).areas) {
          if (!fits(trimmed(name), area.name)) continue;
          book_.gauges[gauge].refusals.push_back({{area.index, button}, lacking, text});
          clicked = true;
        }
    if (!clicked) throw LineError("the row above is of nothing that can be clicked");
  }

  void check(const Condition& condition) const {
    for (const Comparison& comparison : condition) {
      if (comparison.gauge.empty()) {
        if (!find_row(AircraftModel::tokens(), comparison.name))
          throw LineError("there is no token " + in_quotes(comparison.name));
      } else {
        element_of(gauge_of(comparison.gauge), comparison.name);
      }
    }
  }

  std::size_t element_of(const GaugeHeader& gauge, std::string_view name) const {
    if (const Named* part = names_.of(gauge).part(name)) return part->index;
    throw LineError(std::string(gauge.name) + " has no part " + in_quotes(name) +
                    did_you_mean(name, names_of(names_.of(gauge).parts)));
  }

  // ---- The wheel

  std::size_t area_of(const GaugeHeader& gauge, std::string_view name) const {
    if (const Named* area = names_.of(gauge).area(name)) return area->index;
    throw LineError(std::string(gauge.name) + " has no control " + in_quotes(name) +
                    did_you_mean(name, names_of(names_.of(gauge).areas)));
  }

  std::optional<AreaClick> read_click(const GaugeHeader& gauge, std::string_view text) const {
    if (text == "-") return std::nullopt;
    const auto right = behind(text, "right");
    return AreaClick{area_of(gauge, right.value_or(text)), right ? MOUSE_RIGHT : MOUSE_LEFT};
  }

  void read_wheel(std::string_view line) {
    const std::vector<std::string_view> columns = split(line, '|');
    if (columns.size() != 2)
      throw LineError("the wheel is: wheel what a notch down clicks | what a notch up clicks");
    for (const GaugeHeader* gauge : section_) {
      WheelTurn turn;
      turn.down = read_click(*gauge, trimmed(columns[0]));
      turn.up = read_click(*gauge, trimmed(columns[1]));
      for (const auto& click : {turn.down, turn.up})
        if (click) turn.areas.push_back(click->area);
      if (turn.areas.empty()) throw LineError("the wheel clicks nothing");
      book_.gauges[gauge].turns.push_back(std::move(turn));
    }
  }

  void read_stops(std::string_view line) {
    const std::vector<std::string_view> columns = split(line, '|');
    if (columns.size() < 3) throw LineError("stops are: stops part | image area | image area");
    const std::string_view part = trimmed(columns[0]);
    for (const GaugeHeader* gauge : section_) {
      WheelTurn turn;
      turn.part = element_of(*gauge, part);
      for (const std::string_view column : std::span(columns).subspan(1)) {
        const std::vector<std::string> words = words_in(column);
        if (words.empty() || words.size() > 2) throw LineError("a stop is: image area");
        const std::string_view area = words.size() == 2 ? std::string_view(words[1]) : part;
        turn.stops.push_back({whole_number(words[0], 0, most_images), area_of(*gauge, area)});
        turn.areas.push_back(turn.stops.back().area);
      }
      book_.gauges[gauge].turns.push_back(std::move(turn));
    }
  }

  std::span<const GaugeHeader* const> gauges_;
  const NameBook& names_;
  std::string file_;
  int line_ = 0;
  std::vector<const GaugeHeader*> section_;
  bool everywhere_ = false;       // the section is of whichever gauges have its names
  std::vector<std::string> row_;  // the names of the row above
  std::map<const Named*, std::string*> by_name_;
  WordBook book_;
  std::size_t wrong_ = 0;
};

std::string_view text_of(const std::map<std::size_t, std::string>& texts, std::size_t index) {
  const auto found = texts.find(index);
  return found == texts.end() ? std::string_view() : std::string_view(found->second);
}

std::vector<fs::path> word_files(const fs::path& folder) {
  std::vector<fs::path> files;
  std::error_code error;
  for (const auto& entry : fs::directory_iterator(folder, error))
    if (entry.path().extension() == ".txt") files.push_back(entry.path());
  std::ranges::sort(files);
  return files;
}

}  // namespace

std::string_view GaugeWords::area(std::size_t index) const { return text_of(areas, index); }

std::string_view GaugeWords::part(std::size_t index) const { return text_of(parts, index); }

const GaugeWords& WordBook::of(const GaugeHeader& gauge) const {
  static const GaugeWords none;
  const auto found = gauges.find(&gauge);
  return found == gauges.end() ? none : found->second;
}

WordBook parse_words(const std::vector<WordFile>& files, std::span<const GaugeHeader* const> gauges,
                     const NameBook& names) {
  Reader reader(gauges, names);
  for (const WordFile& file : files) reader.read(file);
  return reader.finish();
}

WordBook read_words(const GaugeModule& module, const NameBook& names) {
  if (!names.missing.empty()) return {};
  std::vector<WordFile> files;
  std::vector<std::string> faults;
  for (const fs::path& file : word_files(module.file().parent_path() / "words")) try {
      files.push_back({file.string(), read_file(file, mebibyte)});
    } catch (const FileFault& fault) {
      faults.emplace_back(fault.what());
    }
  WordBook book = parse_words(files, module.gauges(), names);
  book.notes.insert(book.notes.begin(), faults.begin(), faults.end());
  return book;
}

}  // namespace host
