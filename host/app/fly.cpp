#include <windows.h>

#include <cstdio>
#include <optional>
#include <stdexcept>

#include "host/ambience/ambience_stream.h"
#include "host/app/commands.h"
#include "host/app/desk_options.h"
#include "host/app/end_signals.h"
#include "host/app/installation.h"
#include "host/app/lookup.h"
#include "host/app/progress.h"
#include "host/app/start.h"
#include "host/app/start_notes.h"
#include "host/files/output.h"
#include "host/journal/flight_journal.h"
#include "host/journal/flow_writer.h"
#include "host/journal/replay.h"
#include "host/journal/session_files.h"
#include "host/pages/checklist_progress.h"
#include "host/sound/identifications.h"
#include "host/sound/wav_recorder.h"
#include "host/window/flight_deck.h"

namespace host {
namespace {

// A session that is taken up again.
struct LeftSession {
  JournalFile file;
  FlightRecord record;
};

std::optional<LeftSession> left_session(const FlyOptions& options) {
  if (!options.resume) return std::nullopt;
  JournalFile file =
      JournalFile::reopen(options.journal.empty() ? last_session(session_folder()) : options.journal);
  FlightRecord record = read_journal(file.path());
  return LeftSession{std::move(file), std::move(record)};
}

CockpitOptions cockpit_of(const FlyOptions& options, const std::optional<LeftSession>& left) {
  CockpitOptions cockpit = located(options.cockpit);
  check_outputs({{"--record", options.record}, {"--journal", options.journal}},
                {{"the module", cockpit.module},
                 {"the panel configuration", cockpit.panel},
                 {"the controls", options.deck.controls}});
  if (left) cockpit.rate = left->record.identity.rate;
  return cockpit;
}

FlightIdentity identity_for(const std::optional<LeftSession>& left, const CockpitOptions& cockpit) {
  FlightIdentity here = identity_of(cockpit.module, cockpit.panel, cockpit.rate);
  if (left) check_identity(left->record, here);
  return here;
}

constexpr std::uint32_t start_page = 508;

// A note in the window, and on standard error.
void tell(const std::string& text, const char* caption = "Journal") {
  MessageBoxA(nullptr, text.c_str(), caption, MB_OK);
}

// Asks as a window manager does; twice, because the cockpit may want to be asked again.
void leave_cockpit() {
  for (int i = 0; i < 2; ++i) {
    SDL_Event quit{};
    quit.type = SDL_QUIT;
    SDL_PushEvent(&quit);
  }
}

// A person's session in the cockpit: begun or taken up, flown, and kept.
class Session {
 public:
  explicit Session(const FlyOptions& options)
      : options_(options),
        left_(left_session(options)),
        cockpit_options_(cockpit_of(options, left_)),
        identity_(identity_for(left_, cockpit_options_)),
        module_(cockpit_options_.module),
        cockpit_(module_, read_panel_config(cockpit_options_.panel), cockpit_options_.rate) {
    say_start_notes(module_);
    say_notes(cockpit_.names());
    say_notes(cockpit_.words());
    if (!options.watch.empty())
      options_.watch = std::filesystem::absolute(find_flow(options.watch)).string();
    if (options.record.empty()) return;
    flow_.emplace(options.record, cockpit_);
    inputs_.tell(*flow_);
  }

  // Flies until the person leaves, and returns what is wanted next, if anything. Opens the desktop
  // unless it is open.
  std::optional<NextFlight> fly(std::optional<Desktop>& desktop) {
    std::string unused;
    const DeckOptions on_deck = deck_options(options_, cockpit_.config(), unused);
    if (!unused.empty()) notes_.push_back(unused);
    find_audio();
    left_ ? take_up() : begin(on_deck.desk);
    const EndSignals end_signals(leave_cockpit);
    if (!desktop) desktop.emplace();
    FlightDeck deck(inputs_, on_deck);
    desktop->clear();
    deck.after_frame = [&] { after_frame(); };
    deck.on_pause = [&] { fall_silent(); };
    deck.on_speed = [&](bool as_life) { move_audio(as_life ? audio_ : PLATFORM_AUDIO_RENDERED); };
    for (const std::string& note : notes_) tell(note);
    if (silent_) tell("no device answers; the cockpit is silent", "Sound");
    keep_journal();
    deck.ask_to_leave = !journal_;
    if (inputs_.holding()) inputs_.take(input::Release{});  // nobody holds the button any more
    if (!options_.state.empty()) press_on_start_page(on_deck.desk);
    if (!options_.watch.empty()) deck.watch(options_.watch);
    const auto next = deck.fly();
    journal_.reset();
    desktop->keep_windows();
    return next;
  }

  // Whether all that the session should leave has been written.
  bool whole() const {
    if (!flow_ || flow_->fault().empty()) return whole_;
    std::fprintf(stderr, "%s\n", flow_->fault().c_str());
    return false;
  }

 private:
  // A silent cockpit plays into a mix that nobody hears, so that its sound engine works as usual.
  void find_audio() {
    audio_ = options_.mute ? PLATFORM_AUDIO_RENDERED : PLATFORM_AUDIO_DEVICE;
    prepare_platform(cockpit_options_, audio_);
    if (options_.mute || platform_has_audio()) return;
    audio_ = PLATFORM_AUDIO_RENDERED;
    platform_choose_audio(audio_);
    silent_ = true;
  }

  // A flight that runs faster than life is silent, and its sounds run with it.
  void move_audio(PlatformAudio audio) {
    fall_silent();
    if (audio != audio_now_) platform_move_audio(audio);
    audio_now_ = audio;
  }

  // Ends what would go on sounding by itself.
  void fall_silent() {
    identifications_.silence();
    ambience_.pause(noise_);
  }

  void after_frame() {
    const AircraftModel& aircraft = cockpit_.aircraft();
    identifications_.update(aircraft.identifications_heard(), cockpit_.seconds());
    noise_.hear(aircraft.sound_sources(), 1.0 / cockpit_.rate());
    if (audio_now_ == PLATFORM_AUDIO_RENDERED) return unheard_.advance(1.0 / cockpit_.rate());
    ambience_.keep_up(noise_, cockpit_.seconds());
  }

  void begin(const Desk& desk) {
    audio_now_ = audio_;
    // A flow finds the cockpit as the panel has it, and a state is pressed on the start page alone.
    if (options_.watch.empty())
      beginning_ = beginning(cockpit_, options_.start, options_.state.empty() ? desk : Desk{});
    else if (options_.start.hours)
      beginning_ = {input::SetTimeOfDay{*options_.start.hours}};
    for (const Input& input : beginning_) inputs_.take(input);
  }

  // Presses the button as a person would, and then opens what had been open.
  void press_on_start_page(const Desk& desk) {
    const auto button = target_of(cockpit_, "Intro", "captain_" + options_.state);
    if (!button) return tell("the panel has no button for the state " + options_.state, "Start page");
    inputs_.frame();
    inputs_.take(input::Press{button->gauge->header().name, button->box.middle(), input::Button::left});
    inputs_.frame();
    inputs_.take(input::Release{});
    for (const auto& [ident, panel] : desk.panels)
      if (panel.open && ident != start_page && cockpit_.panels().find(ident))
        inputs_.take(input::OpenWindow{ident});
  }

  // Flies the session again unseen and unheard, as fast as it goes.
  void take_up() {
    audio_now_ = PLATFORM_AUDIO_RENDERED;
    platform_choose_audio(audio_now_);
    Progress progress("taking up " + left_->record.file.string());
    const std::string departed =
        fly_again(inputs_, left_->record, [&] { progress.tick(cockpit_.seconds()); });
    for (const std::string& note : {left_->record.damage, departed})
      if (!note.empty()) notes_.push_back(note);
    move_audio(audio_);
  }

  void keep_journal() {
    if (!options_.keep_journal) return;
    if (left_) {
      journal_.emplace(std::move(left_->file), cockpit_, left_->record.end);
    } else if (!begin_journal()) {
      return;
    }
    journal_->on_fault = [this](const std::string& fault) {
      tell(fault);
      whole_ = false;
    };
    inputs_.tell(*journal_);
  }

  // Somebody who named no file flies without a journal rather than not at all.
  bool begin_journal() {
    try {
      journal_.emplace(JournalFile::create(journal_file()), cockpit_, identity_);
    } catch (const std::runtime_error& error) {
      if (!options_.journal.empty()) throw;
      tell(error.what() + std::string("; this session will not be kept"));
      return false;
    }
    for (const Input& input : beginning_) journal_->taken(0, input);
    return true;
  }

  std::filesystem::path journal_file() const {
    if (options_.journal.empty()) return new_session(session_folder());
    std::error_code error;
    if (std::filesystem::file_size(options_.journal, error) > 0 && !error)
      throw std::runtime_error(options_.journal.string() +
                               ": is there already; --resume takes it up, another name begins anew");
    return options_.journal;
  }

  FlyOptions options_;
  std::optional<LeftSession> left_;
  CockpitOptions cockpit_options_;
  FlightIdentity identity_;
  GaugeModule module_;
  Cockpit cockpit_;
  CockpitInputs inputs_{cockpit_};
  std::optional<FlowWriter> flow_;
  std::optional<FlightJournal> journal_;
  std::vector<Input> beginning_;
  std::vector<std::string> notes_;
  PlatformAudio audio_ = PLATFORM_AUDIO_DEVICE;  ///< at the pace of life
  PlatformAudio audio_now_ = PLATFORM_AUDIO_DEVICE;
  WavRecorder unheard_;
  Identifications identifications_;
  CockpitNoise noise_{options_.ambience / 100};
  AmbienceStream ambience_;
  bool silent_ = false;  ///< against the person's wish
  bool whole_ = true;
};

// What another flight takes from the one before: everything but how that one began and what it wrote.
FlyOptions following(const FlyOptions& before, const NextFlight& next) {
  FlyOptions options = before;
  options.start.at = next.at;
  options.state = next.state ? name_of(*next.state) : "";
  options.watch = next.flow.string();
  options.desk = next.desk;
  options.open.clear();
  options.torn.clear();
  options.places.clear();
  options.record.clear();
  options.journal.clear();
  options.resume = options.full_screen = options.no_view = false;
  options.deck.scale.reset();
  options.deck.zoom.reset();
  return options;
}

}  // namespace

int fly(const FlyOptions& options) {
  use_display(options.display);
  std::optional<Desktop> desktop;
  std::optional<FlyOptions> now = options;
  bool whole = true;
  while (now) {
    Session session(*now);
    const auto next = session.fly(desktop);
    whole = session.whole() && whole;
    now = next ? std::optional(following(*now, *next)) : std::nullopt;
  }
  return whole ? exit_fine : exit_failed;
}

}  // namespace host
