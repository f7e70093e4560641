#include "host/sound/morse.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <numbers>

namespace host {
namespace {

constexpr std::array<std::string_view, 26> letters{
    ".-", "-...", "-.-.", "-..",  ".",   "..-.", "--.", "....", "..",   ".---", "-.-",  ".-..", "--",
    "-.", "---",  ".--.", "--.-", ".-.", "...",  "-",   "..-",  "...-", ".--",  "-..-", "-.--", "--.."};
constexpr std::array<std::string_view, 10> figures{"-----", ".----", "..---", "...--", "....-",
                                                   ".....", "-....", "--...", "---..", "----."};

std::string_view signs_of(char c) {
  if (c >= 'A' && c <= 'Z') return letters[static_cast<std::size_t>(c - 'A')];
  if (c >= 'a' && c <= 'z') return letters[static_cast<std::size_t>(c - 'a')];
  if (c >= '0' && c <= '9') return figures[static_cast<std::size_t>(c - '0')];
  return {};
}

/// How far the key is down between two of its changes, 0 to 1: it takes `edge` seconds each way.
double key_shape(double since_down_s, double until_up_s) {
  constexpr double edge_s = 0.005;
  const double part = std::min({since_down_s / edge_s, until_up_s / edge_s, 1.0});
  return 0.5 - 0.5 * std::cos(std::numbers::pi * part);
}

}  // namespace

std::string morse_keying(std::string_view text) {
  std::string keying;
  for (const char c : text) {
    const std::string_view signs = signs_of(c);
    if (!signs.empty() && !keying.empty()) keying += "   ";
    for (std::size_t i = 0; i < signs.size(); ++i) {
      if (i > 0) keying += ' ';
      keying += signs[i] == '-' ? "===" : "=";
    }
  }
  return keying;
}

std::vector<std::int16_t> morse_samples(std::string_view text, unsigned rate, const MorseTone& tone) {
  std::vector<std::int16_t> samples(static_cast<std::size_t>(std::llround(tone.period_seconds * rate)));
  const std::string keying = morse_keying(text);
  for (std::size_t down = keying.find('='); down < keying.size();) {
    const std::size_t up = std::min(keying.find(' ', down), keying.size());
    const double down_s = static_cast<double>(down) * tone.dot_seconds,
                 up_s = static_cast<double>(up) * tone.dot_seconds;
    for (auto i = static_cast<std::size_t>(std::ceil(down_s * rate)); i < samples.size(); ++i) {
      const double at_s = static_cast<double>(i) / rate;
      if (at_s >= up_s) break;
      const double level = tone.amplitude * key_shape(at_s - down_s, up_s - at_s) *
                           std::sin(2 * std::numbers::pi * tone.hertz * at_s);
      samples[i] = static_cast<std::int16_t>(std::lround(level * 32767.0));
    }
    down = std::min(keying.find('=', up), keying.size());
  }
  return samples;
}

}  // namespace host
