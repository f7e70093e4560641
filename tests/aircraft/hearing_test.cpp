// Has a recogniser listen to the crew's calls: alone, and while each of the warnings sounds.

#include <gtest/gtest.h>
#include <pocketsphinx.h>
#include <sphinxbase/err.h>

#include <memory>
#include <sstream>

#include "host/ambience/cockpit_noise.h"
#include "tests/listening/listening.h"

namespace {

using namespace listening;
namespace fs = std::filesystem;

const fs::path sound_folder = fs::path{COCKPIT_DIR} / "Sound/Halvery_Tarnjet";

struct Call {
  std::string file, words;
};

// Every short call on the cue sheet, with what is said in it as a dictionary writes it.
std::vector<Call> short_calls() {
  std::vector<Call> calls;
  std::ifstream sheet{SOURCE_DIR "/aircraft/sound/recipes.txt"};
  for (std::string line; std::getline(sheet, line);) {
    std::istringstream row{line};
    std::string file, bar, recipe, words;
    row >> file >> bar >> recipe >> bar;
    std::getline(row >> std::ws, words);
    if (file == "#" || words.empty() || recipe == "announcement" || recipe == "ground_proximity")
      continue;
    std::erase(words, '.');
    std::ranges::transform(words, words.begin(), [](unsigned char c) { return std::tolower(c); });
    calls.push_back({file, words});
  }
  return calls;
}

// Knows the calls and nothing else.
class Recogniser {
 public:
  explicit Recogniser(const std::vector<Call>& calls) {
    std::string grammar = "#JSGF V1.0; grammar calls; public <call> = ";
    for (const Call& call : calls) grammar += call.words + (&call == &calls.back() ? ";" : " | ");
    ps_set_jsgf_string(decoder_.get(), "calls", grammar.c_str());
    ps_set_search(decoder_.get(), "calls");
  }

  std::string words_in(const Wave& wave) {
    std::vector<std::int16_t> sound(wave.size());
    std::ranges::transform(wave, sound.begin(), [](double v) {
      return static_cast<std::int16_t>(std::clamp(v * 32767, -32767.0, 32767.0));
    });
    ps_start_utt(decoder_.get());
    ps_process_raw(decoder_.get(), sound.data(), sound.size(), FALSE, TRUE);
    ps_end_utt(decoder_.get());
    const char* words = ps_get_hyp(decoder_.get(), nullptr);
    return words ? words : "";
  }

 private:
  using Settings = std::unique_ptr<cmd_ln_t, decltype(&cmd_ln_free_r)>;
  using Decoder = std::unique_ptr<ps_decoder_t, decltype(&ps_free)>;

  static Settings settings() {
    err_set_logfp(nullptr);
    return {cmd_ln_init(nullptr, ps_args(), TRUE, "-hmm", MODEL_DIR "/en-us/en-us", "-dict",
                        MODEL_DIR "/en-us/cmudict-en-us.dict", "-samprate", "44100", "-nfft", "2048",
                        nullptr),
            cmd_ln_free_r};
  }

  Settings settings_ = settings();
  Decoder decoder_{ps_init(settings_.get()), ps_free};
};

// The call in a moment of quiet on either side, without the silence that some carry for later.
Wave moment_of(const Call& call) {
  Wave wave = samples(sound_folder / call.file);
  while (!wave.empty() && wave.back() == 0) wave.pop_back();
  const Wave quiet(static_cast<std::size_t>(0.2 * rate));
  wave.insert(wave.begin(), quiet.begin(), quiet.end());
  wave.insert(wave.end(), quiet.begin(), quiet.end());
  return wave;
}

// The aircraft at its loudest.
Wave take_off_run() {
  host::simulation::SoundSources sources;
  sources.equipment_powered = sources.packs_have_air = true;
  sources.fan_speed = sources.core_speed = {1, 1};
  sources.airspeed_kt = 140;
  sources.ground_speed_mps = 72;
  host::CockpitNoise noise;
  noise.hear(sources, 1);
  std::vector<std::int16_t> stereo(2 * static_cast<std::size_t>(3 * rate));
  noise.mix_into(stereo);
  Wave left;
  for (std::size_t i = 0; i < stereo.size(); i += 2) left.push_back(stereo[i] / 32768.0);
  return left;
}

TEST(Hearing, EveryCallIsUnderstoodInTheCockpitAndFourOfFiveOverAnyWarning) {
  const std::vector<Call> calls = short_calls();
  ASSERT_EQ(calls.size(), 25u);
  Recogniser recogniser{calls};
  const auto warning = [](const char* file) { return samples(sound_folder / file); };
  const struct {
    const char* what;
    Wave wave;
    std::size_t understood;  // at least
  } behind[] = {{"nothing", Wave(1), 25},
                {"the take-off run", take_off_run(), 25},
                {"the fire bell", warning("Tarv_fire.wav"), 20},
                {"the stall warning", warning("Tarv_stall.wav"), 20},
                {"the cabin horn", warning("Tarv_cabwarn.wav"), 20},
                {"the ground horn", warning("Ground/Tarv_gndwarn.wav"), 20},
                {"the ground proximity warning", warning("Tarv_gpws.wav"), 20}};
  for (const auto& [what, other, least] : behind) {
    std::size_t understood = 0;
    std::string misheard;
    std::size_t phase = 0;
    for (const Call& call : calls) {
      Wave heard = moment_of(call);
      phase += 1237;  // each call meets the warning somewhere else
      for (std::size_t i = 0; i < heard.size(); ++i) heard[i] += other[(i + phase) % other.size()];
      const std::string words = recogniser.words_in(heard);
      understood += words == call.words;
      if (words != call.words) misheard += "\n  " + call.words + ": \"" + words + "\"";
    }
    std::printf("%zu over %s\n", understood, what);
    EXPECT_GE(understood, least) << "over " << what << misheard;
  }
}

}  // namespace
