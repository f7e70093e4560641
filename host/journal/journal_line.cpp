#include "host/journal/journal_line.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <utility>

#include "host/panel/text.h"

namespace host {
namespace {

constexpr std::string_view mark_word = "mark";
constexpr std::string_view magic = "tarnvale-journal";

// ---- Writing: each part behind a space

void put(std::string& line, std::string_view word) { (line += ' ') += word; }
void put(std::string& line, std::uint32_t number) { put(line, exact_number(number)); }
void put(std::string& line, std::int32_t number) { put(line, exact_number(number)); }
void put(std::string& line, double number) { put(line, exact_number(number)); }
void put(std::string& line, PanelPoint point) {
  put(line, point.x);
  put(line, point.y);
}
void put(std::string& line, input::Button button) {
  put(line, button == input::Button::left ? "left" : "right");
}

struct PlainValue {
  std::string operator()(std::monostate) const { return {}; }
  std::string operator()(bool value) const { return value ? "true" : "false"; }
  std::string operator()(double value) const { return exact_number(value); }
  std::string operator()(const std::string& value) const { return value; }
  std::string operator()(const std::vector<double>& values) const {
    std::string text;
    for (double value : values) text += exact_number(value) + ",";
    return text;
  }
};

void put(std::string& line, const NamedValues& values) {
  for (const NamedValue& each : values)
    put(line, each.name + "=" + std::visit(PlainValue{}, each.value));
}

// ---- Reading: word by word

class Words {
 public:
  explicit Words(std::string_view line) : rest_(line) {}

  std::string_view next() {
    const std::string_view word = rest_.substr(0, rest_.find(' '));
    rest_.remove_prefix(std::min(rest_.size(), word.size() + 1));
    return word;
  }
  std::string_view take_rest() { return std::exchange(rest_, {}); }
  bool at_end() const { return rest_.empty(); }

 private:
  std::string_view rest_;
};

template <typename Number, typename... Base>
bool read_number(std::string_view text, Number& number, Base... base) {
  const char* end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number, base...);
  return error == std::errc{} && stop == end;
}

bool get(Words& words, std::uint32_t& number) { return read_number(words.next(), number); }
bool get(Words& words, std::int32_t& number) { return read_number(words.next(), number); }
bool get(Words& words, double& number) { return read_number(words.next(), number); }
bool get(Words& words, PanelPoint& point) { return get(words, point.x) && get(words, point.y); }
bool get(Words& words, input::Button& button) {
  const std::string_view word = words.next();
  button = word == "right" ? input::Button::right : input::Button::left;
  return word == "left" || word == "right";
}
bool get(Words& words, std::string& text) {
  text = words.take_rest();
  return !text.empty();
}

bool read_digest(std::string_view text, std::uint64_t& digest) {
  return text.size() == 16 && read_number(text, digest, 16);
}

// "0.5,0.25,": a comma behind each.
std::optional<std::vector<double>> read_list(std::string_view text) {
  std::vector<double> values;
  while (!text.empty()) {
    const std::size_t comma = text.find(',');
    if (comma == std::string_view::npos) return std::nullopt;
    if (!read_number(text.substr(0, comma), values.emplace_back())) return std::nullopt;
    text.remove_prefix(comma + 1);
  }
  return values;
}

NamedValue::Value read_value(std::string_view text) {
  double number = 0;
  if (text == "true" || text == "false") return text == "true";
  if (read_number(text, number)) return number;
  if (text.ends_with(',')) {
    if (auto list = read_list(text)) return std::move(*list);
  }
  return std::string(text);
}

bool get(Words& words, NamedValues& values) {
  while (!words.at_end()) {
    const std::string_view word = words.next();
    const std::size_t equals = word.find('=');
    if (equals == 0 || equals == std::string_view::npos) return false;
    values.push_back({std::string(word.substr(0, equals)), read_value(word.substr(equals + 1))});
  }
  return true;
}

template <typename One>
bool read_input(Words& words, std::optional<Input>& input) {
  One one{};
  const bool whole =
      std::apply([&](auto&... parts) { return (get(words, parts) && ...); }, One::parts(one));
  input = std::move(one);
  return whole;
}

using InputReader = bool (*)(Words&, std::optional<Input>&);
struct KnownWord {
  std::string_view word;
  InputReader read;
};

template <typename... Each>
constexpr std::array<KnownWord, sizeof...(Each)> words_of(const std::variant<Each...>*) {
  return {{{Each::word, read_input<Each>}...}};
}

constexpr auto known_words = words_of(static_cast<const Input*>(nullptr));

}  // namespace

FlightIdentity identity_of(const std::filesystem::path& module, const std::filesystem::path& panel,
                           double rate) {
  return {rate,
          {module.filename().string(), digest_of(module)},
          {panel.filename().string(), digest_of(panel)}};
}

std::uint64_t frames_between_marks(double rate) {
  return static_cast<std::uint64_t>(std::lround(std::clamp(rate, 1.0, 1000.0)));
}

std::string first_line(double rate) {
  std::string line(magic);
  put(line, journal_version);
  put(line, "rate");
  put(line, rate);
  return line;
}

std::string file_line(std::string_view what, const FileIdentity& file) {
  std::string line(what);
  put(line, hexadecimal(file.digest));
  put(line, file.name);
  return line;
}

std::string line_of(const JournalEntry& entry) {
  std::string line = exact_number(entry.frames);
  if (!entry.input) {
    put(line, mark_word);
    put(line, hexadecimal(entry.digest));
    return line;
  }
  std::visit(
      [&](const auto& one) {
        put(line, one.word);
        std::apply([&](const auto&... parts) { (put(line, parts), ...); }, one.parts(one));
      },
      *entry.input);
  return line;
}

std::optional<FirstLine> read_first_line(std::string_view line) {
  Words words(line);
  FirstLine first{};
  const bool whole = words.next() == magic && get(words, first.version) && words.next() == "rate" &&
                     get(words, first.rate) && first.rate >= 1 && first.rate <= 1000;
  return whole ? std::optional(first) : std::nullopt;
}

std::optional<FileIdentity> read_file_line(std::string_view line, std::string_view what) {
  Words words(line);
  FileIdentity file;
  const bool whole =
      words.next() == what && read_digest(words.next(), file.digest) && get(words, file.name);
  return whole ? std::optional(file) : std::nullopt;
}

std::optional<JournalEntry> read_line(std::string_view line) {
  Words words(line);
  JournalEntry entry;
  if (!read_number(words.next(), entry.frames)) return std::nullopt;
  const std::string_view word = words.next();
  const auto known = std::ranges::find(known_words, word, &KnownWord::word);
  const bool whole = known != known_words.end()
                         ? known->read(words, entry.input)
                         : word == mark_word && read_digest(words.next(), entry.digest);
  return whole && words.at_end() ? std::optional(entry) : std::nullopt;
}

std::string LineCheck::with_check(std::string_view line) {
  digest_.add(line);
  return hexadecimal((digest_.value() >> 32 ^ digest_.value()) & 0xFFFFFFFFu, 8) + " " +
         std::string(line);
}

std::optional<std::string_view> LineCheck::without_check(std::string_view line) {
  constexpr std::size_t check_size = 9;
  if (line.size() <= check_size) return std::nullopt;
  const std::string_view bare = line.substr(check_size);
  LineCheck next = *this;
  if (next.with_check(bare) != line) return std::nullopt;
  *this = next;
  return bare;
}

}  // namespace host
