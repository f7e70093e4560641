// What goes wrong around the program: one message, nothing lost that was there, an end within seconds.
#include <gtest/gtest.h>

#include <chrono>
#include <optional>
#include <set>

#include "tests/window/screen.h"

namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

class Faults : public testing::Test {
 protected:
  std::string program() const { return (cockpit_dir / "tarnvale").string(); }

  /// Without a display, its own state and settings in the folder.
  std::string surroundings() const {
    return "env -u DISPLAY -u WAYLAND_DISPLAY -u SDL_VIDEODRIVER HOME=" + folder.path().string() +
           " XDG_STATE_HOME=" + folder.path().string() + " XDG_CONFIG_HOME=" + folder.path().string() +
           " ";
  }

  /// `limits` are the shell's: "ulimit -f 100;".
  Outcome fly(const std::string& arguments, const std::string& limits = "") const {
    return run_command(limits + surroundings() + program() + " " + arguments);
  }

  static std::ptrdiff_t lines(const std::string& text) {
    return std::count(text.begin(), text.end(), '\n') - text.starts_with('\n');
  }

  std::set<std::string> files_in(const std::string& name) const {
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder / name))
      names.insert(entry.path().filename().string());
    return names;
  }

  TempFolder folder;
};

// A disk is full where a file may not grow.

TEST_F(Faults, AFullDiskEndsTheSoundWhereItIsWhole) {
  const std::string flow = folder.write("f.lua", "wait(8)"), sound = folder / "s.wav";
  const Outcome outcome = fly("run " + flow + " --wav " + sound, "ulimit -f 1000; ");
  EXPECT_EQ(outcome.exit_code, 1);
  EXPECT_NE(outcome.output.find("cannot write sound file '" + sound + "': File too large"),
            std::string::npos)
      << outcome.output;
  EXPECT_EQ(lines(outcome.output), 1) << outcome.output;
  EXPECT_TRUE(is_whole_sound(file_text(sound)));
  EXPECT_GT(fs::file_size(sound), 400'000u);
}

TEST_F(Faults, AFullDiskEndsTheJournalAndNotTheFlight) {
  const std::string flow = folder.write("f.lua", "wait(30)\nsay('landed')"), journal = folder / "j";
  const Outcome outcome = fly("run " + flow + " --journal " + journal, "ulimit -f 1; ");
  EXPECT_EQ(outcome.exit_code, 1);
  EXPECT_NE(outcome.output.find(journal + ": cannot write the journal any more"), std::string::npos);
  EXPECT_NE(outcome.output.find("landed"), std::string::npos) << outcome.output;
  const Outcome again = fly("replay " + journal);
  EXPECT_EQ(again.exit_code, 0) << again.output;
  EXPECT_NE(again.output.find("the flight is taken up to here"), std::string::npos) << again.output;
}

TEST_F(Faults, AFullDiskLeavesNoHalfPictureAndTheEarlierOnes) {
  const std::string flow =
      folder.write("f.lua", "wait(0.1) picture('small', 'Masterbat') picture('large', 500) wait(99)");
  const Outcome outcome = fly("run " + flow + " --png " + (folder / "p"), "ulimit -f 200; ");
  EXPECT_EQ(outcome.exit_code, 1);
  EXPECT_NE(outcome.output.find("large.png: cannot be written: File too large"), std::string::npos);
  EXPECT_EQ(lines(outcome.output), 1) << outcome.output;
  EXPECT_EQ(files_in("p"), (std::set<std::string>{"contact-sheet.png", "small.png"}));
  EXPECT_NE(pixel(folder / "p/small.png", 80, 80), 0u);
}

TEST_F(Faults, TheSoundsAreDeletedInFlight) {
  fs::create_directory(folder / "c");
  for (const char* name :
       {"Tarnvale.GAU", "Tarnvale.GAU.2x", "Tarnvale.GAU.3x", "Tarnvale.GAU.names", "Sound"})
    fs::create_symlink(cockpit_dir / name, fs::path(folder / "c") / name);
  const std::string flow = folder.write(
      "f.lua",
      "for i = 1, 3 do click('Masterbat', 'battery_switch') wait(0.7) end\nexpect(#sounds() > 1)");
  const std::string command = "run " + flow + " --realtime --module " + (folder / "c/Tarnvale.GAU") +
                              " --journal " + (folder / "j");
  std::thread deleting([&] {
    eventually([&] { return file_text(folder / "j").find("release") != std::string::npos; });
    fs::remove(folder / "c/Sound");
  });
  const Outcome outcome = fly(command);
  deleting.join();
  EXPECT_FALSE(fs::exists(folder / "c/Sound"));
  EXPECT_EQ(outcome.exit_code, 0) << outcome.output;

  folder.write("f.lua", "wait(1)");
  const Outcome without = fly(command);
  EXPECT_EQ(without.exit_code, 0);
  EXPECT_EQ(lines(without.output), 3) << "what the module says twice, and how it ended\n"
                                      << without.output;
}

TEST_F(Faults, TwoHundredMebibytesAreEnoughOrToldToBeTooFew) {
#ifdef __SANITIZE_ADDRESS__
  GTEST_SKIP() << "the sanitizers take more by themselves";
#endif
  const std::string flow = folder.write("f.lua", "wait(1) picture('p', 500)");
  const std::string run = "run " + flow + " --png " + (folder / "p");
  const Outcome enough = fly(run, "ulimit -d 204800; ");
  EXPECT_EQ(enough.exit_code, 0) << enough.output;
  const struct {
    const char* limits;
    std::string arguments;
    const char* said;
  } cases[] = {
      {"ulimit -d 204800; ", "show 500 --zoom 8 --png " + (folder / "large.png"),
       "tarnvale: there is not enough memory\n"},
      {"ulimit -v 204800; ", run,
       "tarnvale: only 200 MiB of memory may be used here (ulimit -v); it takes 256\n"},
  };
  for (const auto& each : cases) {
    const Outcome outcome = fly(each.arguments, each.limits);
    EXPECT_EQ(outcome.exit_code, 1);
    EXPECT_EQ(outcome.output, each.said);
  }
  EXPECT_FALSE(fs::exists(folder / "large.png"));
}

TEST_F(Faults, TheSecondInterruptEndsAFlowThatHearsNothing) {
  const std::string flow = folder.write("f.lua", "table.move({1}, 1, 2^40, 2)");
  const auto begun = std::chrono::steady_clock::now();
  Child child(surroundings() + program() + " run " + flow + " 2>/dev/null", -1);
  std::this_thread::sleep_for(1s);
  for (int i = 0; i < 2; ++i) child.tell(SIGINT), std::this_thread::sleep_for(100ms);
  EXPECT_EQ(child.wait(), 128 + SIGINT);
  EXPECT_LT(std::chrono::steady_clock::now() - begun, 3s);
}

// In a window.

class InFlight : public Faults {
 protected:
  void SetUp() override {
    if (!Screen::available()) GTEST_SKIP() << "needs Xvfb and xdotool";
    screen.emplace("1280x800x24");
  }

  /// With its first second in the journal.
  void take_off(const std::string& with = "", const std::string& options = "--mute") {
    log = folder / "log";
    child = std::make_unique<Child>(screen->environment() + with + " " + program() +
                                        " fly --exit-after 60 --open Captain --at final " + options +
                                        " 2> " + log,
                                    -1);
    ASSERT_TRUE(eventually([&] { return journal().find(" mark ") != std::string::npos; }))
        << file_text(log);
  }

  std::string journal_file() const {
    std::error_code none;
    for (const auto& entry : fs::directory_iterator(screen->sessions(), none)) return entry.path();
    return {};
  }
  std::string journal() const { return file_text(journal_file()); }

  /// What was flown is there, and flies again.
  void expect_whole_journal() {
    const Outcome again = fly("replay " + journal_file());
    EXPECT_EQ(again.exit_code, 0) << again.output;
    EXPECT_EQ(again.output.find("damaged"), std::string::npos) << again.output;
  }

  void expect_end(int exit_code, std::chrono::seconds within = 5s) {
    const auto begun = std::chrono::steady_clock::now();
    EXPECT_EQ(child->wait(), exit_code) << file_text(log);
    EXPECT_LT(std::chrono::steady_clock::now() - begun, within);
  }

  std::optional<Screen> screen;
  std::unique_ptr<Child> child;
  std::string log;
};

TEST_F(InFlight, WithoutASoundDeviceOneMessageSaysSo) {
  take_off("ALSOFT_DRIVERS=alsa ALSA_CONFIG_PATH=/nowhere", "");
  child->tell(SIGTERM);
  expect_end(0);
  EXPECT_EQ(lines(file_text(log)), 1) << file_text(log);
}

TEST_F(InFlight, ASoundDeviceThatIsLostEndsNothing) {
  const std::string settings = folder.write(
      "openal.conf", "[general]\ndrivers=wave\n[wave]\nfile=" + (folder / "heard.wav") + "\n");
  take_off("LD_PRELOAD=" LOST_SOUND " ALSOFT_CONF=" + settings, "");
  EXPECT_TRUE(eventually([&] { return file_text(log).find("sound lost") != std::string::npos; }));
  const std::size_t flown = journal().size();
  EXPECT_TRUE(eventually([&] { return journal().size() > flown + 50; })) << "the flight goes on";
  child->tell(SIGTERM);
  expect_end(0);
  EXPECT_LE(lines(file_text(log)), 2) << file_text(log);
}

TEST_F(InFlight, AskedToEndItKeepsFlightAndWindows) {
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
    std::error_code none;
    fs::remove_all(screen->sessions(), none);
    fs::remove(screen->settings() / "tarnvale/windows.cfg", none);
    take_off();
    child->tell(signal);
    expect_end(0);
    EXPECT_TRUE(fs::exists(screen->settings() / "tarnvale/windows.cfg"));
    expect_whole_journal();
  }
}

TEST_F(InFlight, TheScreenGoesAway) {
  take_off();
  screen->die();
  expect_end(1);
  EXPECT_EQ(lines(file_text(log)), 1) << file_text(log);
  expect_whole_journal();
}

TEST_F(InFlight, ItsWindowIsDestroyedUnderIt) {
  for (const std::string blow : {"windowclose", "windowkill"}) {
    std::error_code none;
    fs::remove_all(screen->sessions(), none);
    take_off();
    screen->hands("search --onlyvisible --name Tarnvale " + blow);
    expect_end(blow == "windowkill" ? 1 : 0);
    EXPECT_EQ(lines(file_text(log)), 1) << file_text(log);
    expect_whole_journal();
  }
}

}  // namespace
