#include "host/panel/config_values.h"

#include <charconv>
#include <filesystem>

#include "host/files/shortened.h"
#include "host/panel/text.h"

namespace host {

int whole_number(std::string_view text, int low, int high) {
  const std::string_view digits = trimmed(text);
  int value = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
  if (error != std::errc{} || end != digits.data() + digits.size())
    throw LineError(in_quotes(digits) + " is not a whole number");
  if (value < low || value > high)
    throw LineError(shortened(digits) + " is outside " + std::to_string(low) + " to " +
                    std::to_string(high));
  return value;
}

static std::vector<int> whole_numbers(std::string_view text, int low, int high) {
  std::vector<int> numbers;
  for (std::string_view part : split(text, ',')) numbers.push_back(whole_number(part, low, high));
  return numbers;
}

std::vector<int> exactly(std::size_t count, std::string_view text, int low, int high) {
  std::vector<int> numbers = whole_numbers(text, low, high);
  if (numbers.size() != count)
    throw LineError("needs " + std::to_string(count) + " numbers separated by commas");
  return numbers;
}

std::uint32_t read_ident(std::string_view text) {
  return static_cast<std::uint32_t>(whole_number(text, 1, 1'000'000));
}

std::uint32_t read_color(std::string_view text) {
  std::uint32_t color = 0xFF;
  for (int part : exactly(3, text, 0, 255)) color = color << 8 | static_cast<std::uint32_t>(part);
  return color;
}

// A picture stands beside the configuration; a path that leads elsewhere is a mistake.
std::string read_picture(std::string_view text) {
  const std::filesystem::path path(trimmed(text));
  if (path.empty() || path.is_absolute() || path.lexically_normal().string().starts_with(".."))
    throw LineError("needs the name of a picture beside this file");
  return path.string();
}

Bay read_bay(std::string_view text) {
  const std::vector<int> numbers = exactly(4, text, -greatest_size, greatest_size);
  if (numbers[2] < 1 || numbers[3] < 1) throw LineError("width and height are 1 or more");
  return {numbers[0], numbers[1], numbers[2], numbers[3]};
}

Placard read_placard(std::string_view text) {
  std::size_t words = 0;
  for (int comma = 0; comma < 4; ++comma) {
    words = text.find(',', words) + 1;
    if (words == 0) throw LineError("a placard is written x,y,width,height,words");
  }
  const Bay place = read_bay(text.substr(0, words - 1));
  Placard placard{place.x, place.y, place.width, place.height, {}};
  for (std::string_view line : split(text.substr(words), '|')) {
    if (line.size() > 40) throw LineError("a placard's line has at most 40 characters");
    placard.lines.emplace_back(trimmed(line));
  }
  if (placard.lines.size() > 12) throw LineError("a placard has at most 12 lines");
  return placard;
}

Placement read_placement(std::string_view text, int line) {
  const std::size_t mark = text.find('!');
  const std::size_t comma = text.find(',');
  if (mark == std::string_view::npos || comma == std::string_view::npos || mark > comma)
    throw LineError("a gauge is written Module!Gauge, x,y or Module!Gauge, x,y,width,height");
  Placement place;
  place.module = trimmed(text.substr(0, mark));
  place.gauge = trimmed(text.substr(mark + 1, comma - mark - 1));
  place.line = line;
  if (place.module.empty() || place.gauge.empty()) throw LineError("a gauge needs a module and a name");
  const std::vector<int> numbers = whole_numbers(text.substr(comma + 1), -greatest_size, greatest_size);
  if (numbers.size() != 2 && numbers.size() != 4)
    throw LineError("a gauge needs x,y or x,y,width,height");
  place.x = numbers[0];
  place.y = numbers[1];
  if (numbers.size() == 2) return place;
  if (numbers[2] < 1 || numbers[3] < 1) throw LineError("a gauge's width and height are 1 or more");
  place.width = numbers[2];
  place.height = numbers[3];
  return place;
}

}  // namespace host
