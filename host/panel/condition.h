/// What text files beside the program ask of the cockpit: "Masterbat battery_lamp = 1 and on_ground =
/// 1".
///
/// A comparison is a token by its name, or a gauge and one of its parts, then = < > <= or >=, and a
/// number. An icon's reading is the number of the image that it shows.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace host {

class Cockpit;

/// What a reading is held against.
struct Comparison {
  std::string gauge;  ///< empty: a token
  std::string name;   ///< of the token, or of the gauge's part
  std::string sign;   ///< one of = < > <= >=
  double number;
};

/// All of them hold.
using Condition = std::vector<Comparison>;

/// Comparisons joined by "and". Throws LineError.
Condition read_condition(std::string_view text);

/// The words of a line, which blanks separate.
std::vector<std::string> words_in(std::string_view text);

/// Whether the comparison holds for a reading; nothing holds for what is not a number.
bool holds(const Comparison& comparison, double reading);

/// Whether the cockpit shows it. A part is as it was last seen: while its window is closed a gauge
/// stands still, and one that was never seen shows nothing. A part that is hidden, or an icon without
/// an image, is -1.
bool holds(const Condition& condition, const Cockpit& cockpit);

}  // namespace host
