// The files of words beside a module: texts, why a click does nothing, and how the wheel turns a knob.
#include "host/panel/word_book.h"

#include <gtest/gtest.h>

namespace {

using namespace host;

// Two gauges that are called alike: each has two lamps, a knob and its two halves.
class WordFiles : public testing::Test {
 protected:
  WordFiles() {
    int i = 0;
    for (GaugeHeader& gauge : gauges) {
      gauge.name = i++ == 0 ? "Left" : "Right";
      names.gauges[&gauge] = {{{"lamp_1", "Lamp 1", 1}, {"lamp_2", "Lamp 2", 2}, {"knob", "Knob", 3}},
                              {{"knob_up", "Knob up", 0}, {"knob_down", "Knob down", 1}}};
    }
  }

  WordBook book(const std::string& text) { return parse_words({{"a.txt", text}}, known, names); }

  GaugeHeader gauges[2]{};
  const GaugeHeader* known[2] = {&gauges[0], &gauges[1]};
  NameBook names;
};

TEST_F(WordFiles, SayWhatTheRowsSayAndANameBeforeAPattern) {
  const WordBook read = book(
      "# words\r\n\n[*]\nknob | -\n[left, RIGHT]\nlamp_* | Some lamp: lit\n"
      "[Right]\nlamp_2, knob_up | Own: text | with a bar\nlamp_2, knob_up | Own: text\n"
      "  if Left lamp_1 = 1 and on_ground = 0 | no: because\n  right if on_ground = 1 | no: on the "
      "right\n");
  EXPECT_EQ(read.notes, std::vector<std::string>{
                            "a.txt:8: a row is: names of parts or controls | what is said of them"});
  EXPECT_EQ(read.of(gauges[0]).part(1), "Some lamp: lit");
  EXPECT_EQ(read.of(gauges[1]).part(1), "Some lamp: lit");
  EXPECT_EQ(read.of(gauges[1]).part(2), "Own: text");
  EXPECT_EQ(read.of(gauges[1]).area(0), "Own: text");
  EXPECT_EQ(read.of(gauges[0]).area(0), "");
  EXPECT_TRUE(read.of(gauges[0]).parts.contains(3)) << "nothing is to be said of it";
  const std::vector<Refusal>& refusals = read.of(gauges[1]).refusals;
  ASSERT_EQ(refusals.size(), 2u);
  EXPECT_EQ(refusals[0].text, "no: because");
  EXPECT_EQ(refusals[0].lacking.size(), 2u);
  EXPECT_EQ(refusals[1].click.button, MOUSE_RIGHT);
}

TEST_F(WordFiles, SayHowTheWheelTurnsAKnob) {
  const WordBook read = book("[Left]\nwheel - | right knob_up\nstops knob | 2 knob_down | 0 knob_up\n");
  EXPECT_EQ(read.notes, std::vector<std::string>());
  const std::vector<WheelTurn>& turns = read.of(gauges[0]).turns;
  ASSERT_EQ(turns.size(), 2u);
  EXPECT_FALSE(turns[0].down);
  EXPECT_EQ(turns[0].up->button, MOUSE_RIGHT);
  EXPECT_EQ(turns[1].part, 3u);
  EXPECT_EQ(turns[1].stops[0].image, 2);
  EXPECT_EQ(turns[1].areas, (std::vector<std::size_t>{1, 0}));
}

TEST_F(WordFiles, AWrongRowIsToldWithFileAndLineAndLeftOut) {
  const std::pair<std::string, std::string> cases[] = {
      {"[Lift]", "the module has no gauge 'Lift'"},
      {"[Left", "the gauge's name has no end: '[Left'"},
      {"lamp_3 | Text: it", "Left has nothing called 'lamp_3'; did you mean lamp_1 or lamp_2?"},
      {"lam* | \x01", "'?' is no text: 1 to 90 characters that can be printed"},
      {"lamp_1 |", "'' is no text: 1 to 90 characters that can be printed"},
      {"lamp_1 | " + std::string(91, 'x'), "'" + std::string(27, 'x')},
      {"lamp_2 | Again: so", "a second text for 'lamp_2'"},
      {"if on_ground = 1 | no", "the row above is of nothing that can be clicked"},
      {"if on_ground | no", "a condition is a token"},
      {"if on_grund = 1 | no", "there is no token 'on_grund'"},
      {"if Lift lamp_1 = 1 | no", "the module has no gauge 'Lift'"},
      {"if Left lamp = 1 | no", "Left has no part 'lamp'; did you mean lamp_1 or lamp_2?"},
      {"wheel - | -", "the wheel clicks nothing"},
      {"wheel knob | knob_up", "Left has no control 'knob'; did you mean knob_up or knob_down?"},
      {"stops knob | 1", "stops are: stops part | image area | image area"},
      {"stops knob | 1 knob_up | x knob_down", "'x' is not a whole number"},
  };
  for (const auto& [line, note] : cases) {
    const WordBook read =
        book("[Left]\nlamp_2 | Lamp: fine\n" + line + "\n[Right]\nlamp_1 | Lamp: fine\n");
    ASSERT_EQ(read.notes.size(), 1u) << line;
    EXPECT_TRUE(read.notes[0].starts_with("a.txt:3: " + note)) << read.notes[0];
    EXPECT_EQ(read.of(gauges[1]).part(1), "Lamp: fine") << line << ": the rows around it stay";
  }
  EXPECT_EQ(book("lamp_1 | Lamp: fine\n").notes[0],
            "a.txt:1: expected a gauge such as [Masterbat] first");
  std::string nonsense;
  for (int i = 0; i < 1000; ++i) nonsense += "\xFF\n";
  EXPECT_EQ(book(nonsense).notes.size(), 21u) << "no more than a screen of it";
  EXPECT_EQ(book(nonsense).notes.back(), "words: and 980 more lines");
}

}  // namespace
