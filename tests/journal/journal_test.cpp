// The lines of a journal, and what is left of one that has been cut off or damaged.
#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <set>

#include "host/journal/flow_writer.h"
#include "host/journal/read_journal.h"
#include "host/journal/session_files.h"
#include "tests/rig/temp_folder.h"

namespace {

using namespace host;
namespace fs = std::filesystem;

constexpr double third = 1.0 / 3;

struct Line {
  const char* text;
  Input input;
};

const Line lines[] = {
    {"7 press left 47 99 Masterbat", input::Press{"Masterbat", {47, 99}, input::Button::left}},
    {"7 press right -3 2000 A gauge", input::Press{"A gauge", {-3, 2000}, input::Button::right}},
    {"7 move -12 0", input::Move{{-12, 0}}},
    {"7 release", input::Release{}},
    {"7 wheel -2 40 35 Acdcsw", input::Wheel{"Acdcsw", {40, 35}, -2}},
    {"7 open_window 502", input::OpenWindow{502}},
    {"7 event 65797 4294967295", input::KeyEvent{65797, 4294967295}},
    {"7 fly elevator=0.3333333333333333 gear=up throttle=0,1, lift_dumpers=true",
     input::Fly{{{"elevator", third},
                 {"gear", "up"},
                 {"throttle", std::vector{0.0, 1.0}},
                 {"lift_dumpers", true}}}},
    {"7 weather", input::MakeWeather{}},
    {"7 place_in_flight altitude=3500", input::PlaceInFlight{{{"altitude", 3500.0}}}},
    {"7 failures_per_hour 1e-300", input::FailByChance{1e-300}},
    {"7 set_token 604 inf", input::HoldToken{604, std::numeric_limits<double>::infinity()}},
};

TEST(JournalLine, EveryInputIsReadAsItWasWritten) {
  for (const auto& [text, input] : lines) {
    EXPECT_EQ(line_of({7, input, 0}), text);
    const auto read = read_line(text);
    ASSERT_TRUE(read && read->input) << text;
    EXPECT_EQ(read->input->index(), input.index()) << text;
    EXPECT_EQ(line_of(*read), text);
  }
  const auto fly = read_line("7 fly elevator=0.3333333333333333");
  EXPECT_EQ(std::get<input::Fly>(*fly->input).moved[0].number(-1, 1), third) << "to the bit";
}

TEST(JournalLine, WhatIsNoLineIsRefused) {
  for (const char* text :
       {"", "7", "7 ", "press left 1 2 X", "7 press middle 1 2 X", "7 press left 1 2",
        "7 press left 1 2 ", "7 move 1", "7 move 1 2 3", "7 move 1 9999999999", "7 release now",
        "-1 release", "7 jump 3", "7 fly =1", "7 fly elevator", "7 event 1", "7 mark 12",
        "7 mark 00000000000000zz", "7  release"})
    EXPECT_FALSE(read_line(text)) << text;
}

// A journal of 40 seconds with an input now and then.
std::string whole_journal() {
  LineCheck check;
  std::string text;
  const auto add = [&](const std::string& line) { text += check.with_check(line) + "\n"; };
  add(first_line(18));
  add(file_line("module", {"Tarnvale.GAU", 0x5c0f9a1183b2d4e6}));
  add(file_line("panel", {"panel.cfg", 1}));
  for (std::uint64_t second = 1; second <= 40; ++second) {
    if (second % 3 == 0) add(line_of({second * 18 - 5, lines[second % std::size(lines)].input, 0}));
    add(line_of({second * 18, std::nullopt, second}));
  }
  return text;
}

std::string damage_of(const TempFolder& folder, const std::string& text,
                      FlightRecord* record = nullptr) {
  const fs::path file = folder.write("j", text);
  try {
    const FlightRecord read = read_journal(file);
    if (record) *record = read;
    return read.damage.substr(0, read.damage.find(": "));
  } catch (const std::runtime_error& error) {
    const std::string what = error.what();
    return what.substr(0, what.find(": "));
  }
}

TEST(DamagedJournal, IsTakenUpToItsLastGoodLine) {
  const TempFolder folder;
  const std::string text = whole_journal();
  FlightRecord whole;
  EXPECT_EQ(damage_of(folder, text, &whole), "");
  EXPECT_EQ(whole.frames(), 40u * 18);

  std::mt19937 random(7);
  for (int i = 0; i < 300; ++i) {
    std::string bad = text;
    const std::size_t at = random() % text.size();
    if (i % 3 == 0)
      bad.resize(at);  // cut off
    else if (i % 3 == 1)
      bad[at] = static_cast<char>(bad[at] ^ (1 << random() % 8));
    else
      bad.erase(at, 1 + random() % 200);
    const auto good = static_cast<std::size_t>(
        std::mismatch(bad.begin(), bad.end(), text.begin()).first - bad.begin());
    const auto good_lines = std::count(text.begin(), text.begin() + static_cast<long>(good), '\n');
    const bool whole_lines = good == bad.size() && (good == 0 || bad.back() == '\n');
    const std::string place =
        whole_lines && good_lines >= 3 ? "" : folder / "j" + ":" + std::to_string(good_lines + 1);
    FlightRecord record;
    EXPECT_EQ(damage_of(folder, bad, &record), place) << "at byte " << at << ", way " << i % 3;
    if (good_lines < 3) continue;
    ASSERT_EQ(record.entries.size(), static_cast<std::size_t>(good_lines - 3));
    for (std::size_t entry = 0; entry < record.entries.size(); ++entry)
      ASSERT_EQ(line_of(record.entries[entry]), line_of(whole.entries[entry]));
  }
}

TEST(DamagedJournal, ALineCannotLieFarAheadOrBehind) {
  const TempFolder folder;
  for (const std::uint64_t frames : {17u, 18u, 36u, 37u}) {
    LineCheck check;
    std::string text;
    for (const std::string& line :
         {first_line(18), file_line("module", {"M", 1}), file_line("panel", {"P", 1}),
          line_of({18, std::nullopt, 1}), line_of({frames, input::Release{}, 0})})
      text += check.with_check(line) + "\n";
    const bool follows = frames == 18 || frames == 36;
    EXPECT_EQ(damage_of(folder, text), follows ? "" : folder / "j:5") << frames;
  }
}

TEST(Sessions, TheNewestIsTakenUpAndTheOldestGo) {
  const TempFolder folder;
  EXPECT_THROW(last_session(folder / "none"), std::runtime_error);
  const fs::path sessions = fs::path(folder / "deep") / "tarnvale";
  std::vector<fs::path> files;
  for (std::size_t i = 0; i < kept_sessions + 3; ++i) {
    files.push_back(new_session(sessions));
    std::ofstream(files.back()) << i;
    fs::last_write_time(files.back(), fs::file_time_type::clock::now() - std::chrono::hours(100 - i));
    EXPECT_EQ(last_session(sessions), files.back());
  }
  std::set<std::size_t> kept;
  for (const auto& entry : fs::directory_iterator(sessions)) {
    std::ifstream stream(entry.path());
    std::size_t number = 0;
    stream >> number;
    kept.insert(number);
  }
  EXPECT_EQ(kept.size(), kept_sessions);
  EXPECT_EQ(*kept.begin(), 3u);
  fs::last_write_time(files[5], fs::file_time_type::clock::now());
  EXPECT_EQ(last_session(sessions), files[5]) << "flown last, though begun earlier";
}

}  // namespace
