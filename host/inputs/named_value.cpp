#include "host/inputs/named_value.h"

#include <algorithm>
#include <cstdio>
#include <stdexcept>

#include "host/inputs/known_fields.h"
#include "host/panel/nearest.h"

namespace host {
namespace {

std::string plain(double number) {
  char text[32];
  std::snprintf(text, sizeof text, "%.10g", number);
  return text;
}

std::string range(double least, double most) {
  return "a number from " + plain(least) + " to " + plain(most);
}

// "6, 11 or 18"
std::string choice(const std::vector<std::string>& items) {
  std::string text;
  for (std::size_t i = 0; i < items.size(); ++i)
    text += (i == 0 ? "" : i + 1 == items.size() ? " or " : ", ") + items[i];
  return text;
}

// NaN does not lie within.
bool within(double number, double least, double most) { return number >= least && number <= most; }

}  // namespace

void NamedValue::wrong(const std::string& wanted) const {
  throw std::invalid_argument(name + " must be " + wanted);
}

double NamedValue::number(double least, double most) const {
  const double* given = std::get_if<double>(&value);
  if (!given || !within(*given, least, most)) wrong(range(least, most));
  return *given;
}

std::array<double, 2> NamedValue::both(double least, double most) const {
  const auto* sides = std::get_if<std::vector<double>>(&value);
  const double* one = std::get_if<double>(&value);
  const std::vector<double> given = sides ? *sides : std::vector(2, one ? *one : most + 1);
  const auto fits = [&](double each) { return within(each, least, most); };
  if (given.size() != 2 || !std::ranges::all_of(given, fits))
    wrong(range(least, most) + ", or two of them");
  return {given[0], given[1]};
}

bool NamedValue::truth() const {
  const bool* given = std::get_if<bool>(&value);
  if (!given) wrong("true or false");
  return *given;
}

std::size_t NamedValue::one_of(std::span<const double> numbers) const {
  const double* given = std::get_if<double>(&value);
  const auto found = given ? std::ranges::find(numbers, *given) : numbers.end();
  if (found != numbers.end()) return static_cast<std::size_t>(found - numbers.begin());
  std::vector<std::string> items;
  for (double number : numbers) items.push_back(plain(number));
  wrong(choice(items));
}

std::size_t NamedValue::one_of(std::span<const std::string_view> texts) const {
  const std::string* given = std::get_if<std::string>(&value);
  const auto found = given ? std::ranges::find(texts, *given) : texts.end();
  if (found != texts.end()) return static_cast<std::size_t>(found - texts.begin());
  std::vector<std::string> items;
  for (std::string_view text : texts) items.push_back("\"" + std::string(text) + "\"");
  wrong(choice(items));
}

void refuse_field(const char* call_name, const NamedValue& field,
                  const std::vector<std::string_view>& known) {
  throw std::invalid_argument(std::string(call_name) + " knows no '" + field.name + "'" +
                              did_you_mean(field.name, known));
}

}  // namespace host
