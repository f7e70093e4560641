// The program from the outside: what it says and returns for good and for bad input.
#include <gtest/gtest.h>

#include <sys/stat.h>

#include <cstdint>
#include <cstring>
#include <set>

#include "tests/app/program.h"

namespace {

const std::string module_file = (cockpit_dir / "Tarnvale.GAU").string();

struct Case {
  const char* name;
  std::string arguments;
  int exit_code;
  std::string said;  ///< somewhere in the output
};

void PrintTo(const Case& each, std::ostream* out) { *out << "tarnvale " << each.arguments; }

class BadInput : public testing::TestWithParam<Case> {
 public:
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

  // An @ stands for that folder.
  static std::string with_folder(std::string text) {
    for (std::size_t at; (at = text.find('@')) != std::string::npos;)
      text.replace(at, 1, faults() / "");
    return text;
  }
};

TEST_P(BadInput, GetsOneClearMessage) {
  const Case& each = GetParam();
  const Outcome outcome = tarnvale(with_folder(each.arguments));
  EXPECT_EQ(outcome.exit_code, each.exit_code) << outcome.output;
  EXPECT_NE(outcome.output.find(with_folder(each.said)), std::string::npos) << outcome.output;
  if (each.exit_code == 1) {
    EXPECT_LE(std::count(outcome.output.begin(), outcome.output.end(), '\n'), 3) << outcome.output;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Commands, BadInput,
    testing::Values(
        Case{"no_command", "", 1, "no display to open a window on"},
        Case{"options_alone_fly", "--mute", 1, "no display to open a window on"},
        Case{"unknown_option_alone", "--sail", 2, "see: tarnvale fly --help"},
        Case{"absent_display", "--display :4095", 1, "nothing answers at DISPLAY=:4095"},
        Case{"unknown_flow", "fly --watch @gone.lua --display :4095", 1,
             "gone.lua: there is no such flow"},
        Case{"unknown_command", "sail", 2, "tarnvale: there is no command 'sail'"},
        Case{"unknown_option", "run --speed 3", 2, "--speed"},
        Case{"bad_rate", "run --rate 0", 2, "--rate: '0' is not a number from 1 to 240"},
        Case{"no_rate", "run --rate nan", 2, "--rate: 'nan' is not"},
        Case{"no_zoom", "show Ctr --png @x.png --zoom nan", 2, "--zoom: 'nan' is not"},
        Case{"no_end", "fly --exit-after nan", 2, "--exit-after: 'nan' is not"},
        Case{"no_time", "fly --time -nan", 2, "--time: '-nan' is not"},
        Case{"no_interval", "replay x --png @out --every inf", 2, "--every: 'inf' is not"},
        Case{
            "unknown_list", "list clouds", 2,
            "there is no 'clouds', only gauges, names, windows, tokens, events, failures, sounds; see"},
        Case{"unknown_place", "fly --at moon", 2,
             "--at: there is no 'moon', only stand, runway, downwind, base, final, cruise; see"},
        Case{"show_nothing", "show", 2, "show needs more: Names of gauges"},
        Case{"missing_module", "list gauges --module @gone.GAU", 1, "gone.GAU"},
        Case{"truncated_module", "list gauges --module @truncated.GAU", 1, "truncated.GAU"},
        Case{"folder_module", "list gauges --module @closed", 1, "closed"},
        Case{"other_library", "list gauges --module " + (cockpit_dir / "libwinplatform.so").string(), 1,
             "libwinplatform.so"},
        Case{"check_library", "check " + (cockpit_dir / "libwinplatform.so").string(), 1,
             "it exports neither Linkage nor ImportTable; --details tells what it is"},
        Case{"check_missing", "check @gone.GAU", 1, "gone.GAU"},
        Case{"missing_panel", "run --panel @gone.cfg", 1,
             "gone.cfg: cannot be read: No such file or directory"},
        Case{"pipe_panel", "list windows --panel @pipe", 1, "@pipe: is no regular file"},
        Case{"device_panel", "list windows --panel @zero", 1, "@zero: is no regular file"},
        Case{"pipe_module_flown", "fly --module @pipe", 1, "@pipe: is no regular file"},
        Case{"pipe_module", "check @pipe", 1, "@pipe: is no regular file"},
        Case{"swapped_artwork", "check @swapped/Tarnvale.GAU", 0,
             "@swapped/Tarnvale.GAU.2x: bitmap 10 has 60 x 60 pixels, not 40 x 40"},
        Case{"endless_search", "run @search.lua", 1,
             "search.lua: the flow computes without ever waiting: an endless loop?"},
        Case{"sound_into_a_pipe", "run @noise.lua --wav @pipe", 1,
             "@pipe: is a pipe that nobody reads"},
        Case{"sound_over_flow", "run @noise.lua --wav @noise.lua", 1,
             "noise.lua: --wav would write over the flow"},
        Case{"sound_over_journal", "run @noise.lua --wav @x --journal @x", 1,
             "x: --journal would write over --wav"},
        Case{"picture_over_panel", "show 500 --panel @no_picture.cfg --png @no_picture.cfg", 1,
             "no_picture.cfg: --png would write over the panel configuration"},
        Case{"list_on_a_full_disk", "list tokens >@full", 1, "standard output cannot be written"},
        Case{"check_without_output", "check >&-", 1, "standard output cannot be written"},
        Case{"sound_on_a_full_disk", "run @noise.lua --wav @full", 1, "full': No space left"},
        Case{"flow_opens_unknown", "run @window.lua", 1, "window.lua:2: the panel has no window 777"},
        Case{"flow_draws_unknown", "run @stranger.lua", 1,
             "stranger.lua:1: no window has a gauge 'Altimiter'"},
        Case{"unknown_gauge", "run --panel @unknown_gauge.cfg", 1,
             "unknown_gauge.cfg:4: Tarnvale has no gauge 'Masterbatt'"},
        Case{"missing_picture", "run @picture.lua --panel @no_picture.cfg --png @out", 1,
             "no_picture.cfg:5: the window's background gone.png cannot be read"},
        Case{"missing_flow", "run @gone.lua", 1, "gone.lua: there is no such flow"},
        Case{"unwritable_sound", "run @noise.lua --wav @gone/x.wav", 1, "gone/x.wav"},
        Case{"unwritable_pictures", "run @noise.lua --png /proc/pictures", 1,
             "/proc/pictures: cannot write to this folder"},
        Case{"missing_journal", "replay @gone.journal", 1, "gone.journal: there is no such journal"},
        Case{"folder_journal", "replay @wrong", 1, "wrong: cannot be read: Is a directory"},
        Case{"endless_journal", "replay @zero", 1, "zero: is no regular file"},
        Case{"no_journal", "replay @noise.journal", 1,
             "noise.journal:1: this is not the journal of a flight"},
        Case{"unwritable_journal", "run @noise.lua --journal @gone/x", 1,
             "gone/x: cannot write the journal"},
        Case{"resume_missing", "fly --resume --journal @gone.journal", 1,
             "gone.journal: there is no such journal"},
        Case{"resume_a_beginning", "fly --resume --at final", 2, "--at excludes --resume"},
        Case{"show_unknown", "show Masterbatt --png @x.png", 1,
             "Tarnvale.GAU has no gauge 'Masterbatt'"},
        Case{"show_bad_reading", "show Ctr --set battery --png @x.png", 1,
             "--set battery: expected token=value"},
        Case{"show_unknown_token", "show Ctr --set batery=1 --png @x.png", 1,
             "there is no token 'batery'"},
        Case{"show_unknown_number", "show Ctr --set 99999=1 --png @x.png", 1,
             "there is no token '99999'"},
        Case{"show_no_number", "show Ctr --set battery=nan --png @x.png", 1,
             "--set battery=nan: expected token=value"},
        Case{"show_too_large", "show 502 --panel @large.cfg --zoom 8 --png @x.png", 1,
             "a picture of 65536 x 8000 pixels is too large: at most 64 million"},
        Case{"show_unwritable", "show Ctr --png @gone/x.png", 1, "gone/x.png"},
        Case{"show_outside_on_a_screen", "show outside", 1, "needs --png"},
        Case{"show_outside_nowhere", "show outside --at nowhere --png @x.png", 2, "--at"},
        Case{"show_unknown_window", "show 777 --png @x.png", 1, "there is no window 777"},
        Case{"labels_on_a_screen", "show Ctr --labels", 2, "--labels requires --png"},
        Case{"names_of_unknown", "list names Masterbatt", 1, "Tarnvale.GAU has no gauge 'Masterbatt'"},
        Case{"tokens_of_a_gauge", "list tokens Ctr", 1, "only names can be listed for one gauge"},
        Case{"no_names_to_list", "list names --module @nameless/Tarnvale.GAU", 1,
             "there are no names: @nameless/Tarnvale.GAU.names is missing"},
        Case{"no_names_to_click", "run @named.lua --module @nameless/Tarnvale.GAU", 1,
             "named.lua:1: parts and controls have no names: @nameless/Tarnvale.GAU.names is missing"},
        Case{"wrong_names", "list names --module @wrong/Tarnvale.GAU", 0,
             "warning: @wrong/Tarnvale.GAU.names:1: the gauge has no element 99"},
        Case{"large_names", "list names --module @large/Tarnvale.GAU", 1,
             "names: is larger than 1 MiB"},
        Case{"odd_names", "list names --module @odd/Tarnvale.GAU", 1,
             "names: cannot be read: Is a directory"},
        Case{"no_display", "fly", 1,
             "no display to open a window on (neither DISPLAY nor WAYLAND_DISPLAY is set). "
             "Without one: tarnvale run"},
        Case{"show_no_display", "show Ctr", 1, "no display to open a window on"},
        Case{"open_unknown", "fly --open 7", 1, "there is no window 7; there are: Captain"},
        Case{"open_ambiguous", "fly --open P", 1, "there is no window P; there are: "},
        Case{"bad_place", "fly --place Overhead=1,2", 1, "--place Overhead=1,2: needs 4 numbers"}),
    [](const auto& test) { return test.param.name; });

TEST(Program, HelpsEveryCommand) {
  for (const char* command : {"", "fly", "run", "replay", "show", "list", "check", "bench"}) {
    const Outcome outcome = tarnvale(std::string(command) + " --help");
    EXPECT_EQ(outcome.exit_code, 0) << command;
    EXPECT_NE(outcome.output.find("Usage"), std::string::npos) << outcome.output;
  }
}

std::string program() { return (cockpit_dir / "tarnvale").string(); }

// The header tells how long the file is.
bool is_whole_sound(const std::string& file) {
  const std::string bytes = file_text(file);
  std::uint32_t told = 0;
  if (bytes.size() < 44 || !bytes.starts_with("RIFF")) return false;
  std::memcpy(&told, bytes.data() + 4, sizeof told);
  return told + 8 == bytes.size();
}

TEST(Program, LeavesAWholeSoundHoweverItIsEnded) {
  const TempFolder folder;
  const std::string flow = folder.write("long.lua", "wait(3600)"), sound = folder / "long.wav";
  for (const std::string signal : {"INT", "TERM", "HUP", "KILL"}) {
    std::filesystem::remove(sound);
    run_command(program() + " run " + flow + " --realtime --wav " + sound +
                " & run=$!; until [ -n \"$(find " + sound +
                " -size +19 2>/dev/null)\" ]; do sleep 0.1; done; kill -" + signal +
                " $run; wait $run");
    EXPECT_TRUE(is_whole_sound(sound)) << signal;
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
  EXPECT_TRUE(is_whole_sound(sound));
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
