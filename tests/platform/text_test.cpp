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
  const struct {
    const char* format;
    LONG value;
    const char* text;
  } cases[] = {
      {"%d", 0, "0"},
      {"%d", -42, "-42"},
      {"%d", INT32_MIN, "-2147483648"},
      {"%i", 7, "7"},
      {"%u", -1, "4294967295"},
      {"%x", 0xBEEF, "beef"},
      {"%X", 0xBEEF, "BEEF"},
      {"%ld", -1234567, "-1234567"},
      {"%lx", 255, "ff"},
      {"%02d", 5, "05"},
      {"%02d", 123, "123"},
      {"%04d", 0, "0000"},
      {"%05d", -42, "-0042"},
      {"%5d", 42, "   42"},
      {"%-5d|", 42, "42   |"},
      {"%-05d|", -42, "-42  |"},
      {"%08x", 0x1A2B, "00001a2b"},
      {"  ", 12, "  "},  // arguments that the format does not use
      {"100%%", 0, "100%"},
      {"%q", 0, "q"},
      {"50%", 0, "50"},
      {"%0", 0, ""},
  };
  for (const auto& test : cases) {
    EXPECT_EQ(formatted(test.format, test.value), test.text) << test.format;
  }
}

TEST(Text, WordsAndCharacters) {
  EXPECT_EQ(formatted("%s/%s", "AB", ""), "AB/");
  EXPECT_EQ(formatted("%4s|%-4s|", "ab", "cd"), "  ab|cd  |");
  EXPECT_EQ(formatted("%2s", "long"), "long");
  EXPECT_EQ(formatted("%c%3c", 'x', 'y'), "x  y");
  EXPECT_EQ(formatted("%cA", 0), "A");
  EXPECT_EQ(formatted("%s", static_cast<const char*>(nullptr)), "(null)");
  EXPECT_EQ(formatted("%03d.%02d %s", 118, 5, "MHz"), "118.05 MHz");
}

TEST(Text, LongTextEndsAtTheLimit) {
  const std::string word(2000, 'w');
  EXPECT_EQ(formatted("%s", word.c_str()), word.substr(0, 1023));
  EXPECT_EQ(formatted("%99999999999d", 1), std::string(1023, ' '));
}

}  // namespace
