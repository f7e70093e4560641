// The program from the outside: what it says and returns for good and for bad input.
#include <gtest/gtest.h>

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
      folder.write("noise.journal", "wait(1)\n");
      folder.write("picture.lua", "wait(0.1)\npicture('p')\n");
      folder.write("named.lua", "click('Masterbat', 'battery_switch')\n");
      folder.write("wrong/Tarnvale.GAU.names", "Masterbat\tlamp\telement 99\tLamp\n");
      folder.write("large/Tarnvale.GAU.names", std::string((1 << 20) + 1, '#'));
      std::filesystem::create_directories(folder / "odd/Tarnvale.GAU.names");
      std::filesystem::create_directory(folder / "nameless");
      std::filesystem::create_directory_symlink(cockpit_dir / "Sound", folder / "nameless/Sound");
      for (const std::string place : {"nameless", "wrong", "large", "odd"})
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
        Case{"no_command", "", 2, "subcommand is required"},
        Case{"unknown_command", "sail", 2, "there is no command 'sail'"},
        Case{"unknown_option", "run --speed 3", 2, "--speed"},
        Case{"bad_rate", "run --rate 0", 2, "--rate"}, Case{"unknown_list", "list clouds", 2, "clouds"},
        Case{"show_nothing", "show", 2, "gauges is required"},
        Case{"missing_module", "list gauges --module @gone.GAU", 1, "gone.GAU"},
        Case{"truncated_module", "list gauges --module @truncated.GAU", 1, "truncated.GAU"},
        Case{"folder_module", "list gauges --module @closed", 1, "closed"},
        Case{"other_library", "list gauges --module " + (cockpit_dir / "libwinplatform.so").string(), 1,
             "libwinplatform.so"},
        Case{"check_missing", "check @gone.GAU", 1, "gone.GAU"},
        Case{"missing_panel", "run --panel @gone.cfg", 1,
             "gone.cfg: the panel configuration cannot be read"},
        Case{"unknown_gauge", "run --panel @unknown_gauge.cfg", 1,
             "unknown_gauge.cfg:4: Tarnvale has no gauge 'Masterbatt'"},
        Case{"missing_picture", "run @picture.lua --panel @no_picture.cfg --png @out", 1,
             "gone.png: the window's background cannot be read"},
        Case{"missing_flow", "run @gone.lua", 1, "gone.lua: there is no such flow"},
        Case{"unwritable_sound", "run @noise.lua --wav @gone/x.wav", 1, "gone/x.wav"},
        Case{"unwritable_pictures", "run @noise.lua --png /proc/pictures", 1,
             "/proc/pictures: cannot write to this folder"},
        Case{"missing_journal", "replay @gone.journal", 1, "gone.journal: there is no such journal"},
        Case{"folder_journal", "replay @wrong", 1, "wrong: there is no such journal"},
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
        Case{"odd_names", "list names --module @odd/Tarnvale.GAU", 1, "names is no regular file"},
        Case{"no_display", "fly", 1,
             "no display to open a window on (neither DISPLAY nor WAYLAND_DISPLAY is set). "
             "Without one: tarnvale run"},
        Case{"show_no_display", "show Ctr", 1, "no display to open a window on"},
        Case{"open_unknown", "fly --open 7", 1, "--open: there is no window 7"}),
    [](const auto& test) { return test.param.name; });

TEST(Program, HelpsEveryCommand) {
  for (const char* command : {"", "fly", "run", "replay", "show", "list", "check", "bench"}) {
    const Outcome outcome = tarnvale(std::string(command) + " --help");
    EXPECT_EQ(outcome.exit_code, 0) << command;
    EXPECT_NE(outcome.output.find("Usage"), std::string::npos) << outcome.output;
  }
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
      {"names Acdcsw", "Acdcsw  dc_meter_selector       icon  wheel    DC meter selector\n"},
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

TEST(Program, MeasuresItself) {
  const Outcome outcome = tarnvale("bench");
  EXPECT_EQ(outcome.exit_code, 0) << outcome.output;
  EXPECT_NE(outcome.output.find("times a plain copy"), std::string::npos) << outcome.output;
}

}  // namespace
