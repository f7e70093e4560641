/// What a person is told about the cockpit, in plain words: one text file for each system in the folder
/// `words/` beside the module, without which everything still flies.
///
///     [Cafire, Fofire]                     the rows that follow are of these gauges; [*]: of all that have them
///     apu_fire_light | APU fire: lit for the fire test             a part or a click area, and its text
///     standby_*      | Standby frequency, MHz                      whatever begins so, and has no row of its own
///     slip_ball_tube | -                                           nothing that anybody would ask for
///
///     start_button   | APU start button: starts it and stops it
///       if Apu master_switch = 0 | no start: the APU master switch must be on
///       right if ...                                               why the right button would do nothing
///     wheel mode_selector_down | mode_selector_up                  what a notch down and a notch up clicks
///     wheel - | right thumbwheel_1                                 "-" is nothing
///     stops start_selector | 2 start_selector_engine_1 | 0 start_selector_off
///
/// The first "if" under a control whose condition holds when it is clicked tells why nothing comes of
/// it. "stops" names the positions of a selector in the order in which the wheel takes them: the image
/// that its part shows there, and the click area that puts it there, which is the part's own where none
/// is named.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/panel/condition.h"
#include "host/panel/name_book.h"

namespace host {

/// A click on an area.
struct AreaClick {
  std::size_t area;  ///< in HotAreas::areas()
  std::uint32_t button;
};

/// Why a click would do nothing.
struct Refusal {
  AreaClick click;
  Condition lacking;
  std::string text;
};

/// One position of a selector: the image of its part, and the area that is clicked for it.
struct WheelStop {
  int image;
  std::size_t area;
};

/// How the wheel turns a control whose records do not say it. With stops it goes from one to the next
/// and no further; where all of them are one area, a click takes it one stop on and from the last to
/// the first.
struct WheelTurn {
  std::vector<std::size_t> areas;  ///< over which the wheel turns it
  std::optional<AreaClick> down, up;
  std::size_t part = 0;  ///< with stops: the element that shows the position
  std::vector<WheelStop> stops;
};

/// The texts of one gauge. A text that is empty is wanted so.
struct GaugeWords {
  std::map<std::size_t, std::string> areas;  ///< by index in HotAreas::areas()
  std::map<std::size_t, std::string> parts;  ///< by element number in the chain
  std::vector<Refusal> refusals;             ///< in the order of the file
  std::vector<WheelTurn> turns;

  std::string_view area(std::size_t index) const;
  std::string_view part(std::size_t index) const;
};

struct WordBook {
  std::map<const GaugeHeader*, GaugeWords> gauges;
  std::vector<std::string> notes;  ///< "file:line: what is wrong" for the lines that are left out

  const GaugeWords& of(const GaugeHeader& gauge) const;
};

/// The longest text, short enough to be read at a glance.
inline constexpr std::size_t longest_text = 90;

/// One file of words.
struct WordFile {
  std::string name;  ///< in notes
  std::string text;
};

/// Holds each line against the gauges and their names. One that is wrong is noted and left out; after
/// the first screenful they are only counted.
WordBook parse_words(const std::vector<WordFile>& files, std::span<const GaugeHeader* const> gauges,
                     const NameBook& names);

/// Reads the folder beside the module. Without it, or without names, the book is empty; a file that
/// cannot be used, being larger than 1 MiB or no regular file, is noted.
WordBook read_words(const GaugeModule& module, const NameBook& names);

}  // namespace host
