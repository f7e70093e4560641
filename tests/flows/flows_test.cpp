/// The real program with the real library, from the first click to the sound that a person hears.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tests/flows/hearing.h"

namespace {

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
