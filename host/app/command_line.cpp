#include <CLI/CLI.hpp>

#include <sys/resource.h>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "host/app/commands.h"
#include "host/app/standard_streams.h"
#include "host/files/shortened.h"
#include "host/simulation/places.h"

namespace host {
namespace {

// The commands' options, and what to run when the line has been read.
class CommandLine {
 public:
  CommandLine() {
    app_.require_subcommand(0, 1);
    app_.set_version_flag("--version", "tarnvale " TARNVALE_VERSION);
    command_ = [this] { return fly(fly_); };
    app_.footer("Without a command it flies, with the options of fly.");
    app_.failure_message(CLI::FailureMessage::help);
    add_fly();
    add_run();
    add_replay();
    add_show();
    add_list();
    add_check();
    add_bench();
  }

  int run(int argc, char** argv) {
    if (argc > 1 && argv[1][0] != '-' && !is_command(argv[1])) {
      std::fprintf(stderr, "tarnvale: there is no command '%s'; tarnvale --help lists them\n",
                   shortened(argv[1]).c_str());
      return exit_usage;
    }
    std::vector<char*> words(argv, argv + argc);
    if (begins_with_an_option_of_fly(words)) words.insert(words.begin() + 1, fly_word_.data());
    try {
      app_.parse(static_cast<int>(words.size()), words.data());
    } catch (const CLI::RequiredError& error) {
      return refuse(missing(error.what()));
    } catch (const CLI::ParseError& error) {
      if (error.get_exit_code() == 0) return app_.exit(error);  // asked for help
      return refuse(shortened(error.what(), 300));
    }
    return command_();
  }

 private:
  int refuse(const std::string& text) const {
    std::fprintf(stderr, "tarnvale: %s; see: %s --help\n", text.c_str(), command_typed().c_str());
    return exit_usage;
  }

  // The library says "journal is required"; a person wants to know of what.
  std::string missing(const std::string& said) const {
    const auto commands = app_.get_subcommands();
    const std::string name = said.substr(0, said.find(' '));
    const CLI::Option* option =
        commands.empty() ? nullptr : commands.front()->get_option_no_throw(name);
    return option ? commands.front()->get_name() + " needs more: " + option->get_description() : said;
  }

  bool is_command(const std::string& name) const {
    const auto commands =
        app_.get_subcommands([&](const CLI::App* app) { return app->check_name(name); });
    return !commands.empty();
  }

  // Without a command one flies, with options too; help and version are the program's own.
  static bool begins_with_an_option_of_fly(const std::vector<char*>& words) {
    if (words.size() < 2 || words[1][0] != '-') return false;
    const std::string_view first = words[1];
    return first != "-h" && first != "--help" && first != "--version";
  }

  // "tarnvale run", as far as it has been read.
  std::string command_typed() const {
    const auto commands = app_.get_subcommands();
    return commands.empty() ? "tarnvale" : "tarnvale " + commands.front()->get_name();
  }

  // A number within a range. NaN is neither below nor above anything, so the question is whether the
  // number lies within.
  static CLI::Validator number(double low, double high) {
    char range[80];
    std::snprintf(range, sizeof range, "a number from %.10g to %.10g", low, high);
    const auto check = [low, high, words = std::string(range)](std::string& text) {
      double value = 0;
      const bool fine = CLI::detail::lexical_cast(text, value) && value >= low && value <= high;
      return fine ? std::string() : in_quotes(text) + " is not " + words;
    };
    return CLI::Validator(check, "");
  }

  // One of some words.
  static CLI::Validator one_of(const std::vector<std::string>& words) {
    std::string list;
    for (const std::string& word : words) list += (list.empty() ? "" : ", ") + word;
    const auto check = [words, list](std::string& text) {
      const bool known = std::ranges::find(words, text) != words.end();
      return known ? std::string() : "there is no " + in_quotes(text) + ", only " + list;
    };
    return CLI::Validator(check, list);
  }

  template <typename Options>
  CLI::App* add(const char* name, const char* what, Options& options, int (*command)(const Options&)) {
    CLI::App* sub = app_.add_subcommand(name, what);
    sub->callback(
        [this, &options, command] { command_ = [&options, command] { return command(options); }; });
    return sub;
  }

  static void add_files(CLI::App* sub, CockpitOptions& options) {
    sub->add_option("--module", options.module,
                    "The gauge module; by default the one beside this program");
    sub->add_option("--panel", options.panel,
                    "The panel configuration; by default the one beside this program");
  }

  static void add_cockpit(CLI::App* sub, CockpitOptions& options) {
    add_files(sub, options);
    sub->add_option("--rate", options.rate, "Gauge frames a second")
        ->check(number(1.0, 240.0))
        ->capture_default_str();
  }

  static void add_start(CLI::App* sub, StartOptions& options) {
    std::vector<std::string> names;
    for (const StartPlace& place : start_places()) names.emplace_back(place.name);
    sub->add_option("--at", options.at, "Where the flight begins")
        ->check(one_of(names))
        ->capture_default_str();
    sub->add_option("--time", options.hours,
                    "Local time in hours, 19.5 is half past seven in the evening")
        ->check(number(0.0, 24.0));
  }

  CLI::Option* add_ambience(CLI::App* sub, double& percent) {
    return sub
        ->add_option("--ambience", percent,
                     "Loudness of the aircraft's own sound in percent: 100 as it is meant, 0 none")
        ->check(number(0, 200))
        ->capture_default_str();
  }

  void add_fly() {
    CLI::App* sub = add("fly", "Sit in the cockpit: opens a window", fly_, fly);
    add_cockpit(sub, fly_.cockpit);
    sub->add_option("--scale", fly_.deck.scale,
                    "Scale of the desktop, 1 is 96 dots an inch; by default its own setting")
        ->check(number(0.5, 8.0));
    sub->add_option("--zoom", fly_.deck.zoom,
                    "Size of the panels, 1 is their own; by default what fits the screen")
        ->check(number(0.1, 8.0));
    add_start(sub, fly_.start);
    add_what_is_flown(sub);
    add_display(sub, fly_.display);
    sub->add_flag("--no-view", fly_.no_view, "Without the view out of the window (key V)");
    add_windows(sub);
    sub->add_option("--controls", fly_.deck.controls,
                    "What keys and joysticks do; by default controls.cfg beside this program");
    sub->add_option("--checklists", fly_.deck.checklists,
                    "The kneeboard's checklists; by default checklists.txt beside this program");
    sub->add_option("--pictures", fly_.deck.pictures,
                    "Folder for pictures of the window; by default the desktop's folder for pictures");
    sub->add_option("--record", fly_.record,
                    "Write your inputs to this file, as a flow that can be run again");
    sub->add_option("--exit-after", fly_.deck.exit_after, "Leave after so many seconds")
        ->check(number(0, 1e9));
    sub->add_flag("--mute", fly_.mute, "Fly without sound");
    add_ambience(sub, fly_.ambience);
    add_journal(sub);
  }

  void add_what_is_flown(CLI::App* sub) {
    CLI::Option* at = sub->get_option("--at");
    CLI::Option* state = sub->add_option("--state", fly_.state, "Press this on the start page")
                             ->check(one_of({"cold_and_dark", "ready_to_start", "running"}))
                             ->excludes(at);
    sub->add_option("--watch", fly_.watch, "Let this flow fly before your eyes; Esc takes over")
        ->excludes(at)
        ->excludes(state);
  }

  static void add_display(CLI::App* sub, std::string& display) {
    sub->add_option("--display", display,
                    "The X display to open windows on; by default that of DISPLAY");
  }

  void add_windows(CLI::App* sub) {
    sub->add_option("--open", fly_.open,
                    "Windows to open, by title or ident; by default those that were open last");
    sub->add_option("--torn", fly_.torn, "Windows to open, each in a window of its own");
    sub->add_option("--place", fly_.places,
                    "WINDOW=x,y,width,height on the desktop; main=... for the main one");
    sub->add_flag("--full-screen", fly_.full_screen, "The main window fills the screen (key F11)");
    sub->add_flag("--fresh", fly_.fresh,
                  "As the first time, without what was remembered of the windows");
  }

  // A session that is taken up again has its beginning already.
  void add_journal(CLI::App* sub) {
    CLI::Option* resume = sub->add_flag("--resume", fly_.resume,
                                        "Take up the last session where it was left, or --journal's");
    for (const char* of_a_beginning : {"--rate", "--at", "--time", "--open", "--state", "--watch"})
      resume->excludes(sub->get_option(of_a_beginning));
    CLI::Option* none =
        sub->add_flag("!--no-journal", fly_.keep_journal, "Keep no journal of the session");
    sub->add_option("--journal", fly_.journal,
                    "The session's journal; by default a new one among the last sessions")
        ->excludes(none);
    none->excludes(resume);
  }

  void add_run() {
    CLI::App* sub = add("run", "Fly a flow without a window", run_, run_flow);
    add_cockpit(sub, run_.cockpit);
    sub->add_option("flow", run_.flow, "A flow file, or the name of one beside this program")
        ->capture_default_str();
    sub->add_option("--png", run_.pictures, "Folder for the flow's pictures");
    CLI::Option* sound = sub->add_option("--wav", run_.sound, "File for the flow's sound");
    add_ambience(sub, run_.ambience)->needs(sound);
    sub->add_option("--journal", run_.journal, "Keep a journal of the flight, for replay");
    sub->add_flag("--realtime", run_.realtime, "As slow as a clock, not as fast as possible");
  }

  void add_replay() {
    CLI::App* sub =
        add("replay", "Fly the journal of a session again, without a window", replay_, replay);
    add_files(sub, replay_.cockpit);
    sub->add_option("journal", replay_.journal, "The journal")->required();
    CLI::Option* pictures = sub->add_option(
        "--png", replay_.pictures, "Folder for pictures of what is open, now and then and at the end");
    sub->add_option("--every", replay_.picture_every, "Seconds of flight between two pictures")
        ->check(number(0.01, 1e6))
        ->capture_default_str()
        ->needs(pictures);
    CLI::Option* sound = sub->add_option("--wav", replay_.sound, "File for the flight's sound");
    add_ambience(sub, replay_.ambience)->needs(sound);
    sub->add_option("--flow", replay_.flow, "Write the inputs to this file, as a flow");
    sub->add_flag("--digest", replay_.digest,
                  "Print a number that two flights share only if they are the same to the bit");
  }

  void add_show() {
    CLI::App* sub = add("show", "Draw gauges, in a window or into a file", show_, show);
    add_cockpit(sub, show_.cockpit);
    sub->add_option("gauges", show_.gauges,
                    "Names of gauges, a window's ident, outside, or a page: kneeboard, map, atc, gps, "
                    "failures")
        ->required();
    sub->add_option("--zoom", show_.deck.zoom, "Size, 1 is the gauges' own")->check(number(0.1, 8.0));
    sub->add_option("--scale", show_.deck.scale, "Scale of the desktop")->check(number(0.5, 8.0));
    add_start(sub, show_.start);
    add_display(sub, show_.display);
    sub->add_option("--exit-after", show_.deck.exit_after, "Close the window after so many seconds")
        ->check(number(0, 1e9));
    sub->add_flag("--areas", show_.areas, "Outline the click areas");
    sub->add_flag("--night", show_.night, "With the panel lights on");
    sub->add_option("--set", show_.readings, "token=value, by name or number: hold a token variable");
    CLI::Option* picture = sub->add_option("--png", show_.picture,
                                           "Write a picture to this file instead of opening a window");
    sub->add_flag("--labels", show_.labels, "Outline, number and name the click areas in the picture")
        ->needs(picture);
  }

  void add_list() {
    CLI::App* sub = add("list", "List what the cockpit has", list_, list);
    add_cockpit(sub, list_.cockpit);
    sub->add_option("what", list_.what, "gauges, names, windows, tokens, events, failures or sounds")
        ->required()
        ->check(one_of({"gauges", "names", "windows", "tokens", "events", "failures", "sounds"}));
    sub->add_option("gauge", list_.gauge, "The gauge whose names to list; by default all");
  }

  void add_check() {
    CLI::App* sub = add("check", "Check every record of a module", check_, check);
    sub->add_option("module", check_.cockpit.module,
                    "The gauge module; by default the one beside this program");
    sub->add_flag("--details", check_.details, "Also list the exports of a file that is not a module");
  }

  void add_bench() {
    CLI::App* sub = add("bench", "Measure the cockpit's frame and its drawing", bench_, bench);
    add_cockpit(sub, bench_);
  }

  CLI::App app_{"The cockpit of a twin-jet airliner", "tarnvale"};
  FlyOptions fly_;
  RunOptions run_;
  ReplayOptions replay_;
  ShowOptions show_;
  ListOptions list_;
  CheckOptions check_;
  CockpitOptions bench_;
  std::function<int()> command_;
  std::string fly_word_ = "fly";
};

}  // namespace

// The libraries that draw and play end the program when they get no memory; a message beforehand is
// better.
static void check_address_space() {
  constexpr rlim_t least = 256u << 20;
  rlimit allowed{};
  if (getrlimit(RLIMIT_AS, &allowed) == 0 && allowed.rlim_cur < least)
    throw std::runtime_error("only " + std::to_string(allowed.rlim_cur >> 20) +
                             " MiB of memory may be used here (ulimit -v); it takes 256");
}

static int run_reporting(int argc, char** argv) {
  try {
    check_address_space();
    return CommandLine().run(argc, argv);
  } catch (const std::bad_alloc&) {
    std::fprintf(stderr, "tarnvale: there is not enough memory\n");
  } catch (const std::exception& error) {
    std::fprintf(stderr, "tarnvale: %s\n", shortened(error.what(), 1000).c_str());
  }
  return exit_failed;
}

int run_command_line(int argc, char** argv) {
  prepare_standard_streams();
  const int code = run_reporting(argc, argv);
  return standard_output_taken() || code != exit_fine ? code : exit_failed;
}

}  // namespace host
