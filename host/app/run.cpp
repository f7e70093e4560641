#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdio>
#include <memory>
#include <stdexcept>
#include <thread>

#include "host/ambience/cockpit_noise.h"
#include "host/app/commands.h"
#include "host/app/contact_sheet.h"
#include "host/app/installation.h"
#include "host/app/lookup.h"
#include "host/app/progress.h"
#include "host/app/start_notes.h"
#include "host/files/output.h"
#include "host/files/shortened.h"
#include "host/journal/flight_journal.h"
#include "host/script/flow_api.h"
#include "host/sound/identifications.h"
#include "host/sound/sound_book.h"
#include "host/sound/wav_recorder.h"

namespace host {
namespace {

using Clock = std::chrono::steady_clock;

// Ctrl-C ends the flow like a failed expectation; once more, and the program ends where it is. The
// sound and the journal are whole at any moment.
volatile std::sig_atomic_t interrupted = 0;

void interrupt(int signal) {
  if (interrupted) _exit(128 + signal);
  interrupted = 1;
}

void end_when_told() {
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) std::signal(signal, interrupt);
}

// A flow with an error in it must not cost the recording of the one before.
std::filesystem::path sound_flow(const RunOptions& options) {
  std::filesystem::path flow = find_flow(options.flow);
  LuaRunner().parse(flow);
  const CockpitOptions cockpit = located(options.cockpit);
  check_outputs(
      {{"--wav", options.sound}, {"--journal", options.journal}},
      {{"the flow", flow}, {"the module", cockpit.module}, {"the panel configuration", cockpit.panel}});
  return flow;
}

// Keeps simulated time from running ahead of the clock.
class Pacer {
 public:
  void advance(double seconds) {
    due_ += std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(seconds));
    std::this_thread::sleep_until(due_);
  }

 private:
  Clock::time_point due_ = Clock::now();
};

// A headless cockpit with a flow at its controls.
class FlowRun {
 public:
  explicit FlowRun(const RunOptions& options)
      : options_(options),
        cockpit_options_(located(options.cockpit)),
        flow_(sound_flow(options)),
        module_(cockpit_options_.module),
        cockpit_(module_, read_panel_config(cockpit_options_.panel), cockpit_options_.rate),
        session_(inputs_, surroundings()) {
    say_start_notes(module_);
    if (!options.pictures.empty()) prepare_folder(options.pictures);
    if (!options.sound.empty()) record_sound();
    if (!options.journal.empty()) keep_journal(options.journal);
    prepare_platform(cockpit_options_, PLATFORM_AUDIO_RENDERED);
    platform_on_message(take_message, this);
    platform_on_sound(take_sound, this);
  }

  ~FlowRun() {
    platform_on_message(nullptr, nullptr);
    platform_on_sound(nullptr, nullptr);
  }

  // Whether all that was asked for has been written.
  bool fly() {
    say_notes(cockpit_.names());
    say_notes(cockpit_.words());
    LuaRunner runner;
    runner.end_wanted = [] { return interrupted != 0; };
    bind_flow_api(runner, session_);
    session_.frame();  // the cockpit stands before the person takes a seat
    runner.run(flow_);
    sound_->finish();
    journal_.reset();
    return journal_whole_;
  }

  /// All pictures that have been made, on one page.
  void finish_pictures() const {
    if (!sheet_.empty()) write_png(sheet_.page(), (options_.pictures / "contact-sheet.png").string());
  }

  void tell(const std::string& text) { progress_.note(text); }

  void report() const {
    std::printf("%s: fine, %.1f s flown at %.0f times real time\n", flow_.c_str(), session_.seconds(),
                progress_.speed(session_.seconds()));
  }

 private:
  void record_sound() {
    sound_ = std::make_unique<WavRecorder>(options_.sound.string());
    sound_->mix_in = [this](std::span<std::int16_t> stereo) { noise_.mix_into(stereo); };
  }

  void keep_journal(const std::filesystem::path& file) {
    journal_ = std::make_unique<FlightJournal>(
        JournalFile::create(file), cockpit_,
        identity_of(cockpit_options_.module, cockpit_options_.panel, cockpit_options_.rate));
    journal_->on_fault = [this](const std::string& fault) {
      progress_.note(fault);
      journal_whole_ = false;
    };
    session_.inputs().tell(*journal_);
  }

  FlowSurroundings surroundings() {
    return {options_.pictures,
            [this](double seconds) { after_frame(seconds); },
            [this](double seconds) { return sound_->level(seconds); },
            [this](const std::string& text) { say(text); },
            [this](const Canvas& picture) { sheet_.add(picture, caption()); },
            read_checklists(program_folder() / "checklists.txt")};
  }

  void say(const std::string& text) {
    stage_ = text;
    progress_.say(text, cockpit_.seconds());
  }

  // The time of the flight and what the flow does.
  std::string caption() const {
    char time[16];
    const int seconds = static_cast<int>(cockpit_.seconds());
    std::snprintf(time, sizeof time, "%d:%02d", seconds / 60, seconds % 60);
    return std::string(time) + "  " + stage_;
  }

  void after_frame(double seconds) {
    identifications_.update(cockpit_.aircraft().identifications_heard(), cockpit_.seconds());
    if (sound_->mix_in) noise_.hear(cockpit_.aircraft().sound_sources(), seconds);
    sound_->advance(seconds);
    if (options_.realtime) pacer_.advance(seconds);
    progress_.tick(cockpit_.seconds());
    if (interrupted) throw std::runtime_error("interrupted");
  }

  static void take_message(const char* text, const char* caption, void* context) {
    auto* run = static_cast<FlowRun*>(context);
    run->session_.messages.emplace_back(text);
    run->progress_.note(std::string(caption) + ": " + text);
  }

  static void take_sound(const void* samples, std::size_t bytes, void* context) {
    auto* run = static_cast<FlowRun*>(context);
    const std::string name = run->sound_book_.name_of({static_cast<const std::byte*>(samples), bytes});
    run->session_.sounds.push_back({name, run->cockpit_.seconds()});
  }

  RunOptions options_;
  CockpitOptions cockpit_options_;
  std::filesystem::path flow_;
  Progress progress_;
  Pacer pacer_;
  std::unique_ptr<WavRecorder> sound_ = std::make_unique<WavRecorder>();
  Identifications identifications_;
  CockpitNoise noise_{options_.ambience / 100};
  SoundBook sound_book_{cockpit_options_.module.parent_path() / "Sound"};
  GaugeModule module_;
  Cockpit cockpit_;
  CockpitInputs inputs_{cockpit_};
  FlowSession session_;
  bool journal_whole_ = true;
  std::unique_ptr<FlightJournal> journal_;
  ContactSheet sheet_;
  std::string stage_;  // what the flow has said last
};

}  // namespace

int run_flow(const RunOptions& options) {
  end_when_told();
  FlowRun run(options);
  bool whole = false;
  try {
    whole = run.fly();
  } catch (const FlowError& error) {
    run.tell(shortened(error.what(), 1000));
    run.finish_pictures();
    return exit_failed;
  }
  run.finish_pictures();
  run.report();
  return whole ? exit_fine : exit_failed;
}

}  // namespace host
