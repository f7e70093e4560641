#include <windows.h>

#include <cstdio>
#include <optional>
#include <stdexcept>

#include "host/ambience/ambience_stream.h"
#include "host/app/commands.h"
#include "host/app/desk_options.h"
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
#include "host/sound/identifications.h"
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

// A note in the window, and on standard error.
void tell(const std::string& text) { MessageBoxA(nullptr, text.c_str(), "Journal", MB_OK); }

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
    if (options.record.empty()) return;
    flow_.emplace(options.record, cockpit_);
    inputs_.tell(*flow_);
  }

  // Whether all that the session should leave has been written.
  bool fly() {
    std::string unused;
    const DeckOptions on_deck = deck_options(options_, cockpit_.config(), unused);
    if (!unused.empty()) notes_.push_back(unused);
    left_ ? take_up() : begin(on_deck.desk);
    FlightDeck deck(inputs_, on_deck);
    Identifications identifications;
    CockpitNoise noise(options_.mute ? 0 : options_.ambience / 100);
    AmbienceStream ambience;
    deck.after_frame = [&] {
      const AircraftModel& aircraft = cockpit_.aircraft();
      identifications.update(aircraft.identifications_heard(), cockpit_.seconds());
      noise.hear(aircraft.sound_sources(), 1.0 / cockpit_.rate());
      ambience.keep_up(noise, cockpit_.seconds());
    };
    deck.on_pause = [&] {
      identifications.silence();
      ambience.pause(noise);
    };
    for (const std::string& note : notes_) tell(note);
    keep_journal();
    deck.ask_to_leave = !journal_;
    if (inputs_.holding()) inputs_.take(input::Release{});  // nobody holds the button any more
    deck.fly();
    journal_.reset();
    if (!flow_ || flow_->fault().empty()) return whole_;
    std::fprintf(stderr, "%s\n", flow_->fault().c_str());
    return false;
  }

 private:
  // A muted cockpit plays into a mix that nobody takes, so that its sound engine finds all well.
  PlatformAudio audio() const {
    return options_.mute ? PLATFORM_AUDIO_RENDERED : PLATFORM_AUDIO_DEVICE;
  }

  void begin(const Desk& desk) {
    prepare_platform(cockpit_options_, audio());
    beginning_ = beginning(cockpit_, options_.start, desk);
    for (const Input& input : beginning_) inputs_.take(input);
  }

  // Unseen and unheard, as fast as it goes.
  void take_up() {
    prepare_platform(cockpit_options_, PLATFORM_AUDIO_RENDERED);
    Progress progress("taking up " + left_->record.file.string());
    const std::string departed =
        fly_again(inputs_, left_->record, [&] { progress.tick(cockpit_.seconds()); });
    for (const std::string& note : {left_->record.damage, departed})
      if (!note.empty()) notes_.push_back(note);
    platform_move_audio(audio());
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

  // Who asked for no certain file flies without one rather than not at all.
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
  bool whole_ = true;
};

}  // namespace

int fly(const FlyOptions& options) { return Session(options).fly() ? exit_fine : exit_failed; }

}  // namespace host
