/// The real program with the real library, from the first click to the sound that a person hears.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <numeric>
#include <vector>

#include "tests/app/program.h"

namespace {

/// The loudness of each hundredth of a second of a recording, 0 to 1.
std::vector<double> loudness(const std::string& file) {
  const std::string bytes = file_text(file);
  std::vector<double> levels;
  constexpr std::size_t header = 44, step = 441 * 4;
  for (std::size_t at = header; at + step <= bytes.size(); at += step) {
    double sum = 0;
    for (std::size_t i = at; i < at + step; i += 2) {
      std::int16_t sample = 0;
      std::memcpy(&sample, bytes.data() + i, sizeof sample);
      sum += sample / 32768.0 * (sample / 32768.0);
    }
    levels.push_back(std::sqrt(sum / (step / 2)));
  }
  return levels;
}

/// The times at which a sound stands out from the 0.2 s before it, in seconds.
std::vector<double> onsets(const std::vector<double>& levels) {
  constexpr double audible = 0.002;
  std::vector<double> times;
  for (std::size_t i = 0; i < levels.size(); ++i) {
    const auto now = levels.begin() + static_cast<std::ptrdiff_t>(i);
    const double before = std::accumulate(now - std::min<std::ptrdiff_t>(20, now - levels.begin()), now,
                                          0.0, [](double a, double b) { return std::max(a, b); });
    const double seconds = static_cast<double>(i) / 100;
    const bool goes_on = !times.empty() && seconds < times.back() + 0.2;
    if (*now > audible && *now > 3 * before && !goes_on) times.push_back(seconds);
  }
  return times;
}

struct Shipped {
  const char* flow;
  std::vector<const char*> pictures;
};

void PrintTo(const Shipped& shipped, std::ostream* out) { *out << shipped.flow; }

class ShippedFlow : public testing::TestWithParam<Shipped> {};

TEST_P(ShippedFlow, FliesToItsEndAndLeavesPicturesAndSound) {
  const TempFolder folder;
  const std::string sound = folder / "flight.wav";
  const std::string journal = folder / "flight.journal";
  const Outcome outcome = tarnvale(std::string("run ") + GetParam().flow + " --png " + (folder / "") +
                                   " --wav " + sound + " --journal " + journal);
  EXPECT_EQ(outcome.exit_code, 0) << outcome.output;
  for (const char* picture : GetParam().pictures) {
    EXPECT_TRUE(file_text(folder / (std::string(picture) + ".png")).starts_with("\x89PNG")) << picture;
  }
  EXPECT_GE(onsets(loudness(sound)).size(), 5u) << "the switches are heard";

  const Outcome again = tarnvale("replay " + journal + " --wav " + (folder / "again.wav"));
  EXPECT_EQ(again.exit_code, 0) << again.output;
  EXPECT_TRUE(file_text(folder / "again.wav") == file_text(sound))
      << "flown again, it sounds otherwise";
}

INSTANTIATE_TEST_SUITE_P(
    Flows, ShippedFlow,
    testing::Values(
        Shipped{"power_up",
                {"1-cold-and-dark", "2-battery", "3-meters", "4-generators", "5-night", "6-ready"}},
        Shipped{"engine_start", {"1-cold-and-dark", "2-apu-on-line", "3-start-air", "4-both-running"}},
        Shipped{
            "checklists",
            {"1-before-start", "2-after-start", "3-radio", "4-approach", "5-approach", "6-shut-down"}},
        Shipped{"pedestal", {"1-parked", "2-flaps", "3-part-power"}}),
    [](const auto& shipped) { return std::string(shipped.param.flow); });

struct Flight {
  const char* flow;
  std::vector<const char*> days;
};

void PrintTo(const Flight& flight, std::ostream* out) { *out << flight.flow; }

class FlownFlow : public testing::TestWithParam<Flight> {};

TEST_P(FlownFlow, EndsWellInCalmAirAndInLightWinds) {
  const TempFolder folder;
  const std::filesystem::path flows = cockpit_dir / "flows";
  for (const auto& part : std::filesystem::directory_iterator(flows / "lib")) {
    folder.write("lib/" + part.path().filename().string(), file_text(part.path()));
  }
  for (const char* day : GetParam().days) {
    const std::string flow =
        folder.write("day.lua", std::string("weather{") + day + "}\n" +
                                    file_text(flows / (std::string(GetParam().flow) + ".lua")));
    const Outcome outcome = tarnvale("run " + flow);
    EXPECT_EQ(outcome.exit_code, 0) << day << "\n" << outcome.output;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Flows, FlownFlow,
    testing::Values(Flight{"circuit",
                           {"", "wind_from = 130, wind_speed = 15, pressure = 995, warmer_by = 15"}},
                    Flight{"approach", {"wind_from = 340, wind_speed = 10, gusts = 1"}}),
    [](const auto& flight) { return std::string(flight.param.flow); });

TEST(GateToGate, IsTheFlightThatIsFlownWhenNoneIsNamed) {
  const TempFolder folder;
  const Outcome outcome = tarnvale("run --png " + (folder / ""));
  EXPECT_EQ(outcome.exit_code, 0) << outcome.output;
  EXPECT_NE(outcome.output.find("At the gate"), std::string::npos) << outcome.output;
  for (const char* picture : {"01-start-page", "20-dark-again", "contact-sheet"})
    EXPECT_TRUE(file_text(folder / (std::string(picture) + ".png")).starts_with("\x89PNG")) << picture;
}

TEST(FlowSound, TheClickIsHeardOnceAtItsTime) {
  const TempFolder folder;
  const std::string flow = folder.write("click.lua", "wait(2)\nclick('Masterbat', 47, 99)\nwait(3)\n");
  const std::string sound = folder / "click.wav";
  const Outcome outcome = tarnvale("run " + flow + " --ambience 0 --wav " + sound);
  ASSERT_EQ(outcome.exit_code, 0) << outcome.output;
  const std::vector<double> levels = loudness(sound);
  EXPECT_NEAR(static_cast<double>(levels.size()) / 100, 5, 0.2) << "as long as the flight";
  const std::vector<double> starts = onsets(levels);
  ASSERT_EQ(starts.size(), 1u);
  EXPECT_NEAR(starts[0], 2.0, 0.12) << "within two gauge frames of the press";
  const auto audible = std::count_if(levels.begin(), levels.end(), [](double l) { return l > 0.002; });
  EXPECT_LT(audible, 15) << "a toggle click is short and dry";
}

TEST(FlowSound, AStationIsHeardInMorseWhileTheAudioSelectorListens) {
  const TempFolder folder;
  const std::string flow = folder.write("station.lua",
                                        "event('battery_toggle') event('avionics_toggle')\n"
                                        "open_window(503) wait(6)\n"
                                        "click('Micsel', 'nav_2_audio_button') wait(8.5)\n"
                                        "click('Micsel', 'nav_2_audio_button') wait(8)\n");
  const std::string sound = folder / "station.wav";
  const Outcome outcome = tarnvale("run " + flow + " --wav " + sound);
  ASSERT_EQ(outcome.exit_code, 0) << outcome.output;
  const std::vector<double> starts = onsets(loudness(sound));
  const double expected[] = {6, 10, 10.75, 12,
                             14.5};  // click, T, R, N of the ten seconds' round, click
  ASSERT_EQ(starts.size(), std::size(expected));
  for (std::size_t i = 0; i < starts.size(); ++i) EXPECT_NEAR(starts[i], expected[i], 0.12);
}

TEST(FlowFailure, NamesTheFileAndTheLine) {
  const TempFolder folder;
  const std::string flow =
      folder.write("wrong.lua", "wait(1)\nexpect(image('Masterbat', 40) == 1, 'the lamp is dark')\n");
  const Outcome outcome = tarnvale("run " + flow);
  EXPECT_EQ(outcome.exit_code, 1);
  EXPECT_NE(outcome.output.find(flow + ":2: the lamp is dark"), std::string::npos) << outcome.output;
}

TEST(Library, EveryRecordIsSoundAndEveryBitmapPresent) {
  const Outcome outcome = tarnvale("check");
  EXPECT_EQ(outcome.exit_code, 0) << outcome.output;
  EXPECT_NE(outcome.output.find("every record is sound"), std::string::npos) << outcome.output;
}

TEST(Library, ExportsItsTwoRecordsAndNothingElse) {
  const Outcome outcome = run_command("nm -D --defined-only --format=posix " +
                                      (cockpit_dir / "Tarnvale.GAU").string() + " | cut -d' ' -f1");
  EXPECT_EQ(outcome.output, "ImportTable\nLinkage\n");
}

TEST(Library, KeepsItsBitmapsWhenItIsStripped) {
  const TempFolder folder;
  const std::string stripped = folder / "Tarnvale.GAU";
  const Outcome strip =
      run_command("strip -o " + stripped + " " + (cockpit_dir / "Tarnvale.GAU").string());
  ASSERT_EQ(strip.exit_code, 0) << strip.output;
  // Away from the libraries beside it, so that only reading is asked for.
  const Outcome outcome = run_command("LD_LIBRARY_PATH=" + cockpit_dir.string() + " " +
                                      (cockpit_dir / "tarnvale").string() + " check " + stripped);
  EXPECT_EQ(outcome.exit_code, 0) << outcome.output;
}

}  // namespace
