/// What a person calls the parts and click areas of a module's gauges. The names stand in a text file
/// beside the module, `Module.GAU.names`, without which everything still flies:
///
///     # gauge, name, place and words, with tabs between them
///     Masterbat   battery_lamp     element 5         Battery lamp
///     Masterbat   battery_switch   box 36,76,22,46   Battery switch
///
/// A place is an element's number in its gauge's chain, where the background is 0, or the box of a
/// click area: x, y, width and height in pixels of the background. A part and the area that works it
/// may share a name; the halves of a lever or selector add `_up` and `_down`.
#pragma once

#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "host/loader/gauge_module.h"

namespace host {

/// A part or a click area.
struct Named {
  std::string name;   ///< "battery_switch": small letters, digits and underscores
  std::string words;  ///< "Battery switch": printable ASCII
  std::size_t index;  ///< a part's in the chain, an area's in HotAreas::areas()
};

/// The named things of one gauge, in the order of the file. No two parts, and no two areas, have the
/// same name.
struct GaugeNames {
  std::vector<Named> parts;
  std::vector<Named> areas;

  /// Null if there is none.
  const Named* part(std::string_view name) const;
  const Named* area(std::string_view name) const;

  /// The words of the area with that index; empty if it has none.
  std::string_view area_words(std::size_t index) const;

  /// The areas that are parts of one control, which have their names from it: "start_selector_off" and
  /// "start_selector_engine_1" where a part is called start_selector, "..._up" and "..._down".
  std::vector<std::vector<std::size_t>> areas_of_one_control() const;
};

/// The names of a module's gauges.
struct NameBook {
  std::map<const GaugeHeader*, GaugeNames> gauges;
  std::vector<std::string> notes;  ///< "file:line: what is wrong" for the lines that are left out
  std::string missing;             ///< why there are no names at all; empty if there are

  const GaugeNames& of(const GaugeHeader& gauge) const;
};

/// Reads the text of a names file and holds each line against the records of the gauges. A line that is
/// wrong is noted and left out; after the first screenful they are only counted. `file` is named in
/// notes.
NameBook parse_names(std::string_view text, const std::string& file,
                     std::span<const GaugeHeader* const> gauges);

/// Reads the file beside the module. Without one the book is empty and says so in `missing`; a file
/// that cannot be used, being larger than 1 MiB or no regular file, is also noted.
NameBook read_names(const GaugeModule& module);

}  // namespace host
