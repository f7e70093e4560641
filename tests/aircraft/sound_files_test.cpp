// Listens with figures to the finished sounds: the files as they lie beside the module.

#include <gtest/gtest.h>

#include <set>
#include <sstream>

#include "tests/listening/listening.h"

namespace {

namespace fs = std::filesystem;
using namespace listening;

const fs::path sound_folder = fs::path{COCKPIT_DIR} / "Sound/Halvery_Tarnjet";

enum Kind { click, lever, chime, tone, warning, machinery, word, take_off_call, announcement };

// By kind, in decibels below full scale. Voices stand above warnings, warnings above chimes.
constexpr struct {
  double quietest, loudest, highest_peak;
} limits[] = {
    {-25, -20, -5.5},      // click: too short to be loud
    {-30, -25, -7},        // lever
    {-25, -22, -8},        // chime
    {-29, -24, -10},       // tone
    {-26, -21.5, -6},      // warning
    {-33, -30, -10},       // machinery
    {-19.5, -16.5, -3.5},  // word
    {-19.5, -16.5, -3.5},  // take-off call
    {-19.5, -16.5, -3.5},  // announcement
};

struct Family {
  Kind kind;
  double shortest_s, longest_s;
  const char* folder;
  const char* names;
};

constexpr Family families[] = {
    {click, 0.06, 0.08, "", "kippclick"},
    {click, 0.03, 0.05, "", "click"},
    {word, 0.6, 2.0, "", "a2500 a1000"},
    {word, 0.5, 1.1, "", "a500 a400 a300 a200 a100"},
    {word, 0.25, 0.85, "", "a50 a40 a30 a20 a10"},  // they follow one another within a second
    {tone, 0.7, 1.2, "", "altalert"},
    {tone, 1.5, 2.5, "", "radalt"},
    {chime, 0.8, 2.2, "", "signs stewcall"},
    {machinery, 5, 8, "", "apu"},
    {lever, 0.15, 0.9, "", "pbrake sbrake"},
    {warning, 1.1, 2, "", "stall fire gpws cabwarn"},
    {warning, 1.1, 2, "Ground/", "gndwarn"},
    {word, 1, 2.5, "Ground/", "extpwr extpwrdis"},
    {announcement, 6, 15, "FlightAttend/",
     "cctaxi ccsaftey ccclimb ccdescent ccfinal ccrollout ccwelcome"},
    {word, 0.4, 1.2, "FirstOfficer/", "gearu geard"},
    {take_off_call, 2.39, 2.41, "FirstOfficer/", "80kts v1 rotate"},
    {word, 0.7, 1.8, "FirstOfficer/", "flaps00 flaps06 flaps11 flaps18 flaps25 flaps42"},
};

struct Sound {
  std::string file;
  Kind kind;
  double shortest_s, longest_s;
};

const std::vector<Sound> sounds = [] {
  std::vector<Sound> all;
  for (const auto& [kind, shortest, longest, folder, names] : families) {
    std::istringstream words(names);
    for (std::string name; words >> name;)
      all.push_back({folder + ("Tarv_" + name + ".wav"), kind, shortest, longest});
  }
  return all;
}();

bool is_speech(const Sound& sound) {
  return sound.kind == word || sound.kind == take_off_call || sound.kind == announcement;
}

// What stands before the samples of any file of this form, in full.
std::string expected_header(std::uint32_t file_size) {
  const std::uint32_t words[] = {file_size - 8, 0x45564157, 0x20746d66, 16,         0x00010001,
                                 44100,         88200,      0x00100002, 0x61746164, file_size - 44};
  return "RIFF" + std::string{reinterpret_cast<const char*>(words), sizeof words};
}

Wave wave_of(const std::string& file) { return samples(sound_folder / file); }

TEST(SoundFiles, AreExactlyThoseTheAircraftAsksFor) {
  EXPECT_EQ(sounds.size(), 46u);
  std::set<std::string> wanted, found;
  for (const Sound& sound : sounds) wanted.insert(sound.file);
  for (const auto& entry : fs::recursive_directory_iterator{sound_folder})
    if (entry.is_regular_file())
      found.insert(entry.path().lexically_relative(sound_folder).generic_string());
  EXPECT_EQ(found, wanted);
}

TEST(SoundFiles, AreMono16BitAsLongAndAsLoudAsTheirKind) {
  for (const Sound& sound : sounds) {
    const auto bytes = contents(sound_folder / sound.file);
    ASSERT_GT(bytes.size(), 44u) << sound.file;
    EXPECT_EQ(bytes.substr(0, 44), expected_header(static_cast<std::uint32_t>(bytes.size())))
        << sound.file;
    const Wave wave = wave_of(sound.file);
    const double seconds = wave.size() / rate, loud = loudness(wave), peak_db = decibels(peak(wave));
    EXPECT_TRUE(seconds >= sound.shortest_s && seconds <= sound.longest_s)
        << sound.file << ": " << seconds << " s";
    EXPECT_TRUE(loud >= limits[sound.kind].quietest && loud <= limits[sound.kind].loudest)
        << sound.file << ": " << loud << " dB";
    EXPECT_LE(peak_db, limits[sound.kind].highest_peak) << sound.file;
  }
}

TEST(SoundFiles, BeginAndEndWithoutSilenceOrSteps) {
  for (const Sound& sound : sounds) {
    const auto wave = wave_of(sound.file);
    ASSERT_FALSE(wave.empty()) << sound.file;
    const auto sounding = [quiet = peak(wave) / 100](double v) { return std::abs(v) > quiet; };
    const auto lead = std::find_if(wave.begin(), wave.end(), sounding) - wave.begin();
    const auto tail = std::find_if(wave.rbegin(), wave.rend(), sounding) - wave.rbegin();
    // Voices draw breath: an h or an f comes before what is loud enough to be noticed here.
    const bool speaks = sound.kind == word || sound.kind == take_off_call;
    EXPECT_LT(lead / rate, speaks ? 0.15 : 0.030) << sound.file;
    // The take-off calls hold their silence as long as the speed may ask for them again.
    const double silence = sound.kind == take_off_call ? 2 : is_speech(sound) ? 0.2 : 0.05;
    EXPECT_LT(tail / rate, silence) << sound.file;
    EXPECT_LT(std::abs(wave.front()), 0.002) << sound.file;
    EXPECT_LT(std::abs(wave.back()), 0.002) << sound.file;
  }
}

TEST(SoundFiles, VoicesDrawBreathBeforeTheirFirstConsonant) {
  for (const Sound& sound : sounds) {
    if (!is_speech(sound) || sound.file.starts_with("Ground") || sound.kind == announcement) continue;
    const Wave wave = between(wave_of(sound.file), 150, 8000);
    const auto heard = [faint = peak(wave) / 100](double v) { return std::abs(v) > faint; };
    const auto lead = std::find_if(wave.begin(), wave.end(), heard) - wave.begin();
    EXPECT_TRUE(lead / rate > 0.028 && lead / rate < 0.1) << sound.file << ": " << lead / rate << " s";
  }
}

TEST(SoundFiles, WarningsLeaveTheWordsBandToVoices) {
  for (const Sound& sound : sounds) {
    if (sound.kind != warning) continue;
    Wave wave = wave_of(sound.file);
    if (sound.file == "Tarv_gpws.wav")
      wave.resize(static_cast<std::size_t>(0.75 * rate));  // before its own words
    const double words = level_db(between(wave, 500, 3000)),
                 above = level_db(between(wave, 3000, 5500));
    EXPECT_LT(words, above - 10) << sound.file;
  }
}

// Every warning at once, in any phase, under any call, leaves room for the cockpit's own noise.
TEST(SoundFiles, StayUnderFullScaleTogether) {
  const auto add = [](Wave& mix, const Wave& wave, std::size_t from) {
    for (std::size_t i = 0; i < mix.size(); ++i) mix[i] += wave[(i + from) % wave.size()];
  };
  Wave warnings(static_cast<std::size_t>(4 * rate));
  for (const char* file : {"Tarv_fire.wav", "Tarv_stall.wav", "Tarv_cabwarn.wav"})
    add(warnings, wave_of(file), warnings.size() / 7 * (file[5] % 7));
  for (const Sound& sound : sounds) {
    if (!is_speech(sound) && sound.file != "Tarv_gpws.wav") continue;
    Wave mix = warnings;
    add(mix, wave_of(sound.file), 0);
    EXPECT_LT(decibels(peak(mix)), -1) << sound.file;
  }
}

TEST(SoundFiles, APushIsHeardOverTheStartingApu) {
  const double click = level_db(between(wave_of("Tarv_click.wav"), 1500, 6000));
  EXPECT_GT(click, level_db(between(wave_of("Tarv_apu.wav"), 1500, 6000)) + 15);
}

// What is asked for again on every frame starts again after the same number of frames each time, even if a
// frame or the device is late by nearly half of one: it ends in the middle between two.
TEST(SoundFiles, RepeatAfterWholeFrames) {
  for (const auto& [file, frames] : {std::pair{"Tarv_fire.wav", 27},
                                     {"Tarv_stall.wav", 27},
                                     {"Ground/Tarv_gndwarn.wav", 27},
                                     {"Tarv_cabwarn.wav", 28},
                                     {"Tarv_gpws.wav", 24},
                                     {"Tarv_altalert.wav", 18}}) {
    EXPECT_NEAR(wave_of(file).size() / rate * 18, frames - 0.5, 0.01) << file;
  }
}

TEST(SoundFiles, MakingOneAgainGivesTheSameBytes) {
  const auto beside = fs::path{COCKPIT_DIR}.parent_path();
  const auto again = beside / "made_again.wav", cue = beside / "made_again.cue";
  const std::string maker = SOURCE_DIR "/aircraft/sound/make_sound.sh";
  std::ifstream sheet{SOURCE_DIR "/aircraft/sound/recipes.txt"};
  for (std::string line; std::getline(sheet, line);) {
    const auto file = line.substr(0, line.find(' '));
    if (file != "Tarv_stall.wav" && file != "FlightAttend/Tarv_ccfinal.wav") continue;
    std::ofstream{cue} << line << '\n';
    ASSERT_EQ(
        std::system(("bash '" + maker + "' '" + cue.string() + "' '" + again.string() + "'").c_str()),
        0)
        << file;
    EXPECT_TRUE(contents(again) == contents(sound_folder / file)) << file;
  }
}

}  // namespace
