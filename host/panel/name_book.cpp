#include "host/panel/name_book.h"

#include <algorithm>
#include <set>

#include "host/files/read_file.h"
#include "host/loader/element_chain.h"
#include "host/panel/config_values.h"
#include "host/panel/hot_areas.h"
#include "host/panel/text.h"

namespace host {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t longest_name = 64;
constexpr std::size_t longest_words = 80;
constexpr std::size_t longest_message = 160;
constexpr std::size_t most_notes = 20;
constexpr int farthest = 1'000'000;  // pixels of a background

const Named* find(const std::vector<Named>& all, std::string_view name) {
  const auto found = std::ranges::find(all, name, &Named::name);
  return found == all.end() ? nullptr : &*found;
}

bool is_printable(char c) { return c >= ' ' && c <= '~'; }

// Its messages are shortened as a whole.
std::string whole_in_quotes(std::string_view text) { return "'" + std::string(text) + "'"; }

// A message of one line, whatever a file holds.
std::string one_line(std::string message) {
  if (message.size() > longest_message) message = message.substr(0, longest_message) + "...";
  std::ranges::replace_if(
      message, [](char c) { return !is_printable(c); }, '?');
  return message;
}

std::string read_name(std::string_view text) {
  const auto fits = [](char c) { return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_'; };
  if (text.empty() || text.size() > longest_name || !std::ranges::all_of(text, fits))
    throw LineError(whole_in_quotes(text) +
                    " is no name: small letters, digits and underscores, at most 64");
  return std::string(text);
}

std::string read_words(std::string_view text) {
  if (text.empty() || text.size() > longest_words || !std::ranges::all_of(text, is_printable))
    throw LineError(whole_in_quotes(text) + " are no words: 1 to 80 characters that can be printed");
  return std::string(text);
}

class Reader {
 public:
  Reader(std::string file, std::span<const GaugeHeader* const> gauges)
      : file_(std::move(file)), gauges_(gauges) {}

  NameBook read(std::string_view text) {
    if (text.starts_with("\xEF\xBB\xBF")) text.remove_prefix(3);
    for (const std::string_view line : split(text, '\n')) {
      ++line_;
      try {
        read_line(trimmed(line));
      } catch (const LineError& error) {
        note(error.what());
      }
    }
    if (wrong_ > most_notes)
      book_.notes.push_back(file_ + ": and " + std::to_string(wrong_ - most_notes) + " more lines");
    for (auto& [gauge, places] : places_) book_.gauges[gauge] = std::move(places.names);
    return std::move(book_);
  }

 private:
  // What the records of a gauge have, and what has been named of it.
  struct Places {
    std::size_t chain;
    HotAreas areas;
    GaugeNames names;
  };

  void note(const std::string& message) {
    if (++wrong_ <= most_notes) book_.notes.push_back(at_line(file_, line_, one_line(message)));
  }

  void read_line(std::string_view line) {
    if (line.empty() || line.front() == '#') return;
    const std::vector<std::string_view> fields = split(line, '\t');
    if (fields.size() != 4)
      throw LineError("expected gauge, name, place and words with tabs between them");
    Places& gauge = places_of(fields[0]);
    Named named{read_name(fields[1]), read_words(fields[3]), 0};
    if (const std::string_view place = fields[2]; place.starts_with("element "))
      name_part(gauge, std::move(named), place.substr(8));
    else if (place.starts_with("box "))
      name_area(gauge, std::move(named), place.substr(4));
    else
      throw LineError(whole_in_quotes(place) + " is no place: element N or box X,Y,WIDTH,HEIGHT");
  }

  Places& places_of(std::string_view name) {
    const auto gauge = std::ranges::find_if(
        gauges_, [&](const GaugeHeader* each) { return same_name(each->name, name); });
    if (gauge == gauges_.end()) throw LineError("the module has no gauge " + whole_in_quotes(name));
    const auto known = places_.find(*gauge);
    if (known != places_.end()) return known->second;
    Places places{element_chain(**gauge).size(), HotAreas((*gauge)->mouse_areas), {}};
    return places_.emplace(*gauge, std::move(places)).first->second;
  }

  static void name_part(Places& gauge, Named part, std::string_view number) {
    part.index = static_cast<std::size_t>(whole_number(number, 1, int{longest_chain}));
    if (part.index >= gauge.chain)
      throw LineError("the gauge has no element " + std::to_string(part.index));
    add(gauge.names.parts, std::move(part), "part");
  }

  // Areas one over the other share a box; they get their names in their order.
  static void name_area(Places& gauge, Named area, std::string_view numbers) {
    const std::vector<int> box = exactly(4, numbers, -farthest, farthest);
    const std::vector<HotArea>& areas = gauge.areas.areas();
    for (area.index = 0; area.index < areas.size(); ++area.index) {
      const bool same = areas[area.index].box == Box{box[0], box[1], box[2], box[3]};
      if (same && gauge.names.area_words(area.index).empty())
        return add(gauge.names.areas, std::move(area), "click area");
    }
    throw LineError("the gauge has no other click area with the box " + whole_in_quotes(numbers));
  }

  static void add(std::vector<Named>& all, Named named, const char* what) {
    if (find(all, named.name)) throw LineError("a second " + std::string(what) + " " + named.name);
    all.push_back(std::move(named));
  }

  std::string file_;
  std::span<const GaugeHeader* const> gauges_;
  std::map<const GaugeHeader*, Places> places_;
  NameBook book_;
  std::size_t wrong_ = 0;
  int line_ = 0;
};

}  // namespace

const Named* GaugeNames::part(std::string_view name) const { return find(parts, name); }

const Named* GaugeNames::area(std::string_view name) const { return find(areas, name); }

std::string_view GaugeNames::area_words(std::size_t index) const {
  const auto found = std::ranges::find(areas, index, &Named::index);
  return found == areas.end() ? std::string_view() : std::string_view(found->words);
}

std::vector<std::vector<std::size_t>> GaugeNames::areas_of_one_control() const {
  std::set<std::string, std::less<>> controls;
  for (const Named& part : parts) controls.insert(part.name);
  for (const Named& each : areas) {
    if (!each.name.ends_with("_up")) continue;
    const std::string control = each.name.substr(0, each.name.size() - 3);
    if (area(control + "_down")) controls.insert(control);
  }
  std::vector<std::vector<std::size_t>> found;
  for (const std::string& control : controls) {
    std::vector<std::size_t> of_it;
    for (const Named& each : areas)
      if (each.name.starts_with(control + "_")) of_it.push_back(each.index);
    if (of_it.size() > 1) found.push_back(std::move(of_it));
  }
  return found;
}

const GaugeNames& NameBook::of(const GaugeHeader& gauge) const {
  static const GaugeNames none;
  const auto found = gauges.find(&gauge);
  return found == gauges.end() ? none : found->second;
}

NameBook parse_names(std::string_view text, const std::string& file,
                     std::span<const GaugeHeader* const> gauges) {
  return Reader(file, gauges).read(text);
}

NameBook read_names(const GaugeModule& module) {
  const fs::path file = module.file().string() + ".names";
  NameBook book;
  std::error_code error;
  if (!fs::exists(file, error)) {
    book.missing = file.string() + " is missing";
    return book;
  }
  try {
    return parse_names(read_file(file, mebibyte), file.string(), module.gauges());
  } catch (const FileFault& fault) {
    book.missing = fault.what();
    book.notes = {fault.what()};
    return book;
  }
}

}  // namespace host
