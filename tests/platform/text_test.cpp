// The text formatter behind every read-out.
#include <gtest/gtest.h>
#include <windows.h>

#include <array>
#include <string>

namespace {

template <typename... Values>
std::string formatted(const char* format, Values... values) {
  std::array<char, 1024> text;
  text.fill('#');
  const int length = wsprintfA(text.data(), format, values...);
  EXPECT_EQ(static_cast<std::size_t>(length), std::string(text.data()).size()) << format;
  return text.data();
}

TEST(Text, NumbersFillTheirField) {
  const std::tuple<const char*, LONG, const char*> cases[] = {
      {"%d", INT32_MIN, "-2147483648"},
      {"%u", -1, "4294967295"},
      {"%lx|%lX", 0xBEEF, "beef|BEEF"},
      {"%05d", -42, "-0042"},
      {"%5.3d", 7, "  007"},
      {"%.0d", 0, "0"},
      {"  ", 12, "  "},  // arguments that the format does not use
      {"100%%", 0, "100%"},
      {"50%", 0, "50"},
      {"%f %n", 1, "f n"},  // neither fractions nor anything that writes
  };
  for (const auto& [format, value, text] : cases) {
    EXPECT_EQ(formatted(format, value, value), text) << format;
  }
}

TEST(Text, WordsAndCharacters) {
  EXPECT_EQ(formatted("%4s|%-4s|%2s|%.2s", "ab", "cd", "long", "long"), "  ab|cd  |long|lo");
  EXPECT_EQ(formatted("%c%3c|%cA", 'x', 'y', 0), "x  y|A");
  EXPECT_EQ(formatted("%s", static_cast<const char*>(nullptr)), "(null)");
  EXPECT_EQ(formatted("%03d.%02d %s", 118, 5, "MHz"), "118.05 MHz");
}

TEST(Text, LongTextEndsAtTheLimit) {
  const std::string word(2000, 'w');
  EXPECT_EQ(formatted("%s%d", word.c_str(), 7), word.substr(0, 1023));
  EXPECT_EQ(formatted(word.c_str()), word.substr(0, 1023));
  EXPECT_EQ(formatted("%99999999999d", 1), std::string(1023, ' '));
}

}  // namespace
