#include "host/panel/condition.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <span>

#include "host/panel/cockpit.h"
#include "host/panel/config_values.h"
#include "host/panel/text.h"
#include "host/simulation/table_row.h"

namespace host {
namespace {

constexpr std::array<std::string_view, 5> signs{"=", "<", ">", "<=", ">="};

double read_number(const std::string& word) {
  double number = 0;
  const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
  if (error != std::errc{} || end != word.data() + word.size() || !std::isfinite(number))
    throw LineError("'" + word + "' is no number");
  return number;
}

// [gauge] name sign number
Comparison read_comparison(std::span<const std::string> words) {
  if (words.size() != 3 && words.size() != 4)
    throw LineError(
        "a condition is a token, or a gauge and its part, then = < > <= or >=, and a number");
  Comparison comparison;
  if (words.size() == 4) comparison.gauge = words[0];
  comparison.name = words[words.size() - 3];
  comparison.sign = words[words.size() - 2];
  if (std::ranges::find(signs, comparison.sign) == signs.end())
    throw LineError("'" + comparison.sign + "' is none of = < > <= >=");
  comparison.number = read_number(words.back());
  return comparison;
}

double part_reading(const CockpitGauge& gauge, const std::string& part) {
  const Named* named = gauge.names.part(part);
  const ElementState* state = named && gauge.started ? gauge.run.showing(named->index) : nullptr;
  if (!state || !state->drawn) return -1;
  const bool icon = state->element->kind == ELEMENT_ICON;
  return icon ? std::max(-1.0, std::trunc(state->values[0])) : state->values[0];
}

bool seen(const Comparison& comparison, const Cockpit& cockpit) {
  if (comparison.gauge.empty()) {
    const TableRow* row = find_row(AircraftModel::tokens(), comparison.name);
    return row && holds(comparison, cockpit.aircraft().token(row->number));
  }
  const CockpitGauge* gauge = cockpit.find(comparison.gauge);
  return gauge && gauge->started && holds(comparison, part_reading(*gauge, comparison.name));
}

}  // namespace

std::vector<std::string> words_in(std::string_view text) {
  std::vector<std::string> words;
  for (const std::string_view word : split(text, ' '))
    if (!trimmed(word).empty()) words.emplace_back(trimmed(word));
  return words;
}

Condition read_condition(std::string_view text) {
  const std::vector<std::string> words = words_in(text);
  Condition condition;
  auto begin = words.begin();
  for (;;) {
    const auto end = std::find(begin, words.end(), "and");
    condition.push_back(read_comparison({begin, end}));
    if (end == words.end()) return condition;
    begin = end + 1;
  }
}

bool holds(const Comparison& comparison, double reading) {
  const std::string& sign = comparison.sign;
  if (sign == "<") return reading < comparison.number;
  if (sign == ">") return reading > comparison.number;
  if (sign == "<=") return reading <= comparison.number;
  if (sign == ">=") return reading >= comparison.number;
  return reading == comparison.number;
}

bool holds(const Condition& condition, const Cockpit& cockpit) {
  return std::ranges::all_of(condition,
                             [&](const Comparison& comparison) { return seen(comparison, cockpit); });
}

}  // namespace host
