// The program from the outside: what it says and returns for good and for bad input.
#include <gtest/gtest.h>

#include <sys/stat.h>

#include <set>

#include "tests/app/program.h"
#include "tests/rig/rows.h"

namespace {

const std::string module_file = (cockpit_dir / "Tarnvale.GAU").string();

class BadInput : public testing::Test {
 protected:
  // Files with faults of their own, made once.
  static const TempFolder& faults() {
    static TempFolder folder;
    static const bool made = [] {
      const std::string module = file_text(module_file);
      folder.write("truncated.GAU", module.substr(0, module.size() / 3));
      folder.write("unknown_gauge.cfg",
                   "[Window00]\nsize_mm=100,100\n\ngauge00=Tarnvale!Masterbatt, 1,1\n");
      folder.write("no_picture.cfg",
                   "[Window00]\nident=1\nvisible=1\nsize_mm=9,9\nbackground=gone.png\n");
      folder.write("noise.lua", "wait(1)\n");
      folder.write("window.lua", "\nopen_window(777)\n");
      folder.write("stranger.lua", "picture('p', 'Altimiter')\n");
      folder.write("search.lua", "wait(0.1)\nlocal s = ('a'):rep(60)\ns:find(('.-'):rep(30) .. 'b')\n");
      std::filesystem::create_symlink("/dev/full", folder / "full");
      std::filesystem::create_symlink("/dev/zero", folder / "zero");
      EXPECT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
      folder.write("large.cfg", "[Window00]\nident=502\nsize_mm=8192,1000\n");
      folder.write("noise.journal", "wait(1)\n");
      folder.write("picture.lua", "wait(0.1)\npicture('p')\n");
      folder.write("named.lua", "click('Masterbat', 'battery_switch')\n");
      folder.write("wrong/Tarnvale.GAU.names", "Masterbat\tlamp\telement 99\tLamp\n");
      folder.write("large/Tarnvale.GAU.names", std::string((1 << 20) + 1, '#'));
      std::filesystem::create_directories(folder / "odd/Tarnvale.GAU.names");
      std::filesystem::create_directory(folder / "nameless");
      std::filesystem::create_directory_symlink(cockpit_dir / "Sound", folder / "nameless/Sound");
      // Nobody has mixed up the files of dense artwork before looking at one.
      std::filesystem::create_directory(folder / "swapped");
      for (const auto& [name, target] : {std::pair{".2x", ".3x"}, std::pair{".3x", ".2x"}})
        if (std::filesystem::exists(module_file + target))
          std::filesystem::create_symlink(module_file + target, folder / "swapped/Tarnvale.GAU" + name);
      for (const std::string place : {"nameless", "wrong", "large", "odd", "swapped"})
        std::filesystem::create_symlink(module_file, folder / (place + "/Tarnvale.GAU"));
      std::filesystem::create_directory(folder / "closed");
      std::filesystem::permissions(folder / "closed", std::filesystem::perms::owner_read);
      return true;
    }();
    (void)made;
    return folder;
  }

  static std::string with_folders(std::string text) {
    for (const auto& [sign, folder] : {std::pair{'@', faults() / ""}, {'$', cockpit_dir.string()}})
      for (std::size_t at; (at = text.find(sign)) != std::string::npos;) text.replace(at, 1, folder);
    return text;
  }
};

TEST_F(BadInput, GetsOneClearMessage) {
  for (const Row& row : rows_of("app/bad_input.txt", 3)) {
    SCOPED_TRACE(row[1]);
    const Outcome outcome = tarnvale(with_folders(row[1]));
    EXPECT_EQ(std::to_string(outcome.exit_code), row[0]) << outcome.output;
    EXPECT_NE(outcome.output.find(with_folders(row[2])), std::string::npos) << outcome.output;
    if (outcome.exit_code == 1) {
      EXPECT_LE(std::count(outcome.output.begin(), outcome.output.end(), '\n'), 3) << outcome.output;
    }
  }
}

TEST(Program, HelpsEveryCommand) {
  for (const char* command : {"", "fly", "run", "replay", "show", "list", "check", "bench"}) {
    const Outcome outcome = tarnvale(std::string(command) + " --help");
    EXPECT_EQ(outcome.exit_code, 0) << command;
    EXPECT_NE(outcome.output.find("Usage"), std::string::npos) << outcome.output;
  }
}

std::string program() { return (cockpit_dir / "tarnvale").string(); }

TEST(Program, LeavesAWholeSoundHoweverItIsEnded) {
  const TempFolder folder;
  const std::string flow = folder.write("long.lua", "wait(3600)"), sound = folder / "long.wav";
  for (const std::string signal : {"INT", "TERM", "HUP", "KILL"}) {
    std::filesystem::remove(sound);
    run_command(program() + " run " + flow + " --realtime --wav " + sound +
                " & run=$!; until [ -n \"$(find " + sound +
                " -size +19 2>/dev/null)\" ]; do sleep 0.1; done; kill -" + signal +
                " $run; wait $run");
    EXPECT_TRUE(is_whole_sound(file_text(sound))) << signal;
  }
}

TEST(Program, KeepsTheEarlierSoundWhenTheFlowIsNoFlow) {
  const TempFolder folder;
  const std::string sound = folder.write("earlier.wav", "earlier");
  EXPECT_EQ(tarnvale("run " + folder.write("bad.lua", "wait(") + " --wav " + sound).exit_code, 1);
  EXPECT_EQ(file_text(sound), "earlier");
}

TEST(Program, SaysNothingIntoItsFilesWhenItMayNotSpeak) {
  const TempFolder folder;
  const std::string sound = folder / "quiet.wav";
  const std::string flow = folder.write("loud.lua", "for i = 1, 20 do say('loud') wait(0.1) end");
  run_command("( " + program() + " run " + flow + " --wav " + sound + " >&- 2>&- )");
  EXPECT_TRUE(is_whole_sound(file_text(sound)));
}

TEST(Program, NamesWhatIsNoSoundOnce) {
  const TempFolder folder;
  std::filesystem::create_symlink(module_file, folder / "Tarnvale.GAU");
  folder.write("Sound/words.wav", "no sound");
  folder.write(
      "Sound/deep.wav",
      std::string(
          "RIFF\x26\0\0\0WAVEfmt \x10\0\0\0\1\0\1\0\x44\xAC\0\0\xCC\4\2\0\3\0\x18\0data\3\0\0\0abc\0",
          48));
  const Outcome outcome = tarnvale("list sounds --module " + (folder / "Tarnvale.GAU"));
  EXPECT_EQ(outcome.output, "warning: " + (folder / "Sound/deep.wav") +
                                ": is not heard: only PCM of 8 or 16 bits in one or two channels is\n"
                                "warning: " +
                                (folder / "Sound/words.wav") +
                                ": is no sound\n"
                                "seconds   rate  bits  channels  file\n"
                                "   0.00  44100    24         1  deep.wav\n");
}

TEST(Program, RefusesTheJournalOfAnotherModuleOrPanel) {
  const TempFolder folder;
  const std::string journal = folder / "j";
  ASSERT_EQ(tarnvale("run " + folder.write("f.lua", "wait(1)\n") + " --journal " + journal).exit_code,
            0);
  const std::string panel = folder.write("panel.cfg", file_text(cockpit_dir / "panel.cfg") + "\n");
  const std::string module = folder.write("Tarnvale.GAU", file_text(module_file) + " ");
  for (const auto& [option, said] :
       {std::pair{" --panel " + panel, ":3: flown with another panel: panel.cfg ("},
        std::pair{" --module " + module, ":2: flown with another module: Tarnvale.GAU ("}})
    for (const std::string& command : {"replay " + journal, "fly --resume --journal " + journal}) {
      const Outcome outcome = tarnvale(command + option);
      EXPECT_EQ(outcome.exit_code, 1);
      EXPECT_NE(outcome.output.find(journal + said), std::string::npos) << outcome.output;
    }
}

TEST(Program, ListsWhatTheCockpitHas) {
  const struct {
    const char* what;
    const char* row;
  } cases[] = {
      {"gauges", "  2  Masterbat      174     148        15      3  Overhead, Behind the Panels\n"},
      {"names Acdcsw",
       "Acdcsw  dc_meter_selector       icon  wheel         DC meter selector: whose amperes"},
      {"windows", "  502              Overhead"},
      {"tokens", "   364  0x16C  battery"},
      {"events", " 66374  0x10346  battery_toggle"},
      {"failures", "103  generator_1"},
      {"sounds", "Halvery_Tarnjet/Tarv_kippclick.wav\n"},
  };
  for (const auto& each : cases) {
    const Outcome outcome = tarnvale(std::string("list ") + each.what);
    EXPECT_EQ(outcome.exit_code, 0);
    EXPECT_NE(outcome.output.find(each.row), std::string::npos) << each.what << "\n"
                                                                << outcome.output.substr(0, 2000);
  }
}

TEST(Program, ShowsGaugesInAFile) {
  const TempFolder folder;
  const std::string day = folder / "day.png", night = folder / "night.png",
                    areas = folder / "areas.png";
  EXPECT_EQ(tarnvale("show masterbat Ctr Lightspp --png " + day).exit_code, 0);
  EXPECT_EQ(tarnvale("show masterbat Ctr Lightspp --night --set battery=1 --png " + night).exit_code,
            0);
  EXPECT_EQ(tarnvale("show masterbat Ctr Lightspp --areas --zoom 2 --png " + areas).exit_code, 0);
  const std::string labels = folder / "labels.png";
  EXPECT_EQ(tarnvale("show 505 --labels --png " + labels).exit_code, 0);
  EXPECT_EQ(file_text(labels).substr(1, 3), "PNG");
  EXPECT_EQ(file_text(day).substr(1, 3), "PNG");
  EXPECT_NE(file_text(day), file_text(night));
  EXPECT_GT(file_text(areas).size(), file_text(day).size());
}

TEST(Program, ShowsAPanelAsItIsInFlight) {
  const TempFolder folder;
  std::set<std::string> pictures;
  for (const char* when : {"", "--at final", "--at final --time 23"}) {
    const Outcome outcome = tarnvale("show 500 " + std::string(when) + " --png " + (folder / "x.png"));
    EXPECT_EQ(outcome.exit_code, 0);
    EXPECT_EQ(outcome.output, "");
    pictures.insert(file_text(folder / "x.png"));
  }
  EXPECT_EQ(pictures.size(), 3u);
}

TEST(Program, MeasuresItself) {
  const Outcome outcome = tarnvale("bench");
  EXPECT_EQ(outcome.exit_code, 0) << outcome.output;
  EXPECT_NE(outcome.output.find("times a plain copy"), std::string::npos) << outcome.output;
}

}  // namespace
