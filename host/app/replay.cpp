#include "host/journal/replay.h"

#include <cmath>
#include <cstdio>
#include <memory>

#include "host/ambience/cockpit_noise.h"
#include "host/app/commands.h"
#include "host/app/installation.h"
#include "host/app/lookup.h"
#include "host/app/progress.h"
#include "host/app/start_notes.h"
#include "host/files/output.h"
#include "host/journal/flow_writer.h"
#include "host/panel/panel_scene.h"
#include "host/sound/identifications.h"
#include "host/sound/wav_recorder.h"

namespace host {
namespace {

CockpitOptions flown_in(const ReplayOptions& asked, const FlightRecord& record) {
  CockpitOptions options = located(asked.cockpit);
  check_outputs({{"--wav", asked.sound}, {"--flow", asked.flow}},
                {{"the journal", asked.journal},
                 {"the module", options.module},
                 {"the panel configuration", options.panel}});
  check_identity(record, identity_of(options.module, options.panel, record.identity.rate));
  options.rate = record.identity.rate;
  return options;
}

// A headless cockpit that flies a journal again.
class FlownAgain {
 public:
  explicit FlownAgain(const ReplayOptions& options)
      : options_(options),
        record_(read_journal(options.journal)),
        cockpit_options_(flown_in(options, record_)),
        module_(cockpit_options_.module),
        cockpit_(module_, read_panel_config(cockpit_options_.panel), cockpit_options_.rate),
        frames_between_pictures_(frames_in(options.picture_every)) {
    if (!record_.damage.empty()) progress_.note("warning: " + record_.damage);
    say_start_notes(module_);
    if (!options.pictures.empty()) prepare_folder(options.pictures);
    if (!options.sound.empty()) record_sound();
    if (!options.flow.empty()) {
      flow_ = std::make_unique<FlowWriter>(options.flow, cockpit_);
      inputs_.tell(*flow_);
    }
    prepare_platform(cockpit_options_, PLATFORM_AUDIO_RENDERED);
    platform_on_message(take_message, this);
  }

  ~FlownAgain() { platform_on_message(nullptr, nullptr); }

  // Whether it has been the same flight, and all of it has been written that was asked for.
  bool fly() {
    const std::string departed = fly_again(inputs_, record_, [this] { after_frame(); });
    take_picture();
    sound_->finish();
    const std::string unwritten = flow_ ? flow_->fault() : "";
    for (const std::string& note : {departed, unwritten})
      if (!note.empty()) progress_.note(note);
    return departed.empty() && unwritten.empty();
  }

  void report() const {
    std::printf("%s: %.1f s flown at %.0f times real time\n", record_.file.c_str(), cockpit_.seconds(),
                progress_.speed(cockpit_.seconds()));
    if (options_.digest) std::printf("digest %s\n", hexadecimal(digest_.value()).c_str());
  }

 private:
  void record_sound() {
    sound_ = std::make_unique<WavRecorder>(options_.sound.string());
    sound_->mix_in = [this](std::span<std::int16_t> stereo) { noise_.mix_into(stereo); };
  }

  std::uint64_t frames_in(double seconds) const {
    return static_cast<std::uint64_t>(std::max(1.0, std::round(seconds * cockpit_.rate())));
  }

  void after_frame() {
    identifications_.update(cockpit_.aircraft().identifications_heard(), cockpit_.seconds());
    const double seconds = 1.0 / cockpit_.rate();
    if (sound_->mix_in) noise_.hear(cockpit_.aircraft().sound_sources(), seconds);
    sound_->advance(seconds);
    if (options_.digest) digest_.add(digest_of(cockpit_));
    const std::uint64_t frames = cockpit_.frames();
    if (frames % frames_between_pictures_ == 0 && frames < record_.frames()) take_picture();
    progress_.tick(cockpit_.seconds());
  }

  void take_picture() {
    if (options_.pictures.empty()) return;
    char name[40];
    std::snprintf(name, sizeof name, "flight-%07.1f.png", cockpit_.seconds());
    write_png(picture_of(cockpit_, "", 1.0), (options_.pictures / name).string());
  }

  static void take_message(const char* text, const char* caption, void* context) {
    static_cast<FlownAgain*>(context)->progress_.note(std::string(caption) + ": " + text);
  }

  ReplayOptions options_;
  Progress progress_{"flying again"};
  FlightRecord record_;
  CockpitOptions cockpit_options_;
  std::unique_ptr<WavRecorder> sound_ = std::make_unique<WavRecorder>();
  std::unique_ptr<FlowWriter> flow_;
  Digest digest_;
  Identifications identifications_;
  CockpitNoise noise_{options_.ambience / 100};
  GaugeModule module_;
  Cockpit cockpit_;
  CockpitInputs inputs_{cockpit_};
  std::uint64_t frames_between_pictures_;
};

}  // namespace

int replay(const ReplayOptions& options) {
  FlownAgain flight(options);
  const bool same = flight.fly();
  flight.report();
  return same ? exit_fine : exit_failed;
}

}  // namespace host
