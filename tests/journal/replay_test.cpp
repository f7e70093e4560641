// Sessions in the real cockpit that are flown again from their journals.
#include "host/journal/replay.h"

#include <gtest/gtest.h>
#include <windows.h>

#include "host/journal/flight_journal.h"
#include "host/journal/flow_writer.h"
#include "host/panel/panel_scene.h"
#include "host/sound/wav_recorder.h"
#include "platform/platform_host.h"
#include "tests/rig/temp_folder.h"

namespace {

using namespace host;

constexpr const char* panel =
    "[Window00]\nident=500\nsize_mm=600,400\nvisible=1\n"
    "gauge00=Tarnvale!Masterbat, 0,0\ngauge01=Tarnvale!Acdcsw, 200,0\ngauge02=Tarnvale!Acdc, 400,0\n"
    "gauge03=Tarnvale!Hsi, 0,200\n"
    "[Window02]\nident=502\nsize_mm=200,200\ngauge00=Tarnvale!Avimaster, 0,0\n"
    "[Window09]\ndrawn=0\nvisible=1\ngauge00=Tarnvale!Msnd, 0,0\n";

std::string bytes_of(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

// A cockpit as a program finds it when it starts: the module is loaded anew.
struct Flight {
  explicit Flight(const std::filesystem::path& sound_file) : sound(sound_file.string()) {}

  void frame() {
    inputs.frame();
    after_frame();
  }
  void after_frame() {
    sound.advance(1.0 / cockpit.rate());
    digest.add(digest_of(cockpit));
    if (cockpit.frames() % 50 != 0) return;
    const Canvas picture = picture_of(cockpit, "", 1.0);
    pictures.add({reinterpret_cast<const char*>(picture.pixels.data()), picture.pixels.size() * 4});
  }
  void frames(int count) {
    for (int i = 0; i < count; ++i) frame();
  }
  void keep_journal(const std::filesystem::path& file) {
    journal.emplace(JournalFile::create(file), cockpit, identity);
    inputs.tell(*journal);
  }
  void go_on(const FlightRecord& record) {
    journal.emplace(JournalFile::reopen(record.file), cockpit, record.end);
    inputs.tell(*journal);
  }
  std::string fly_again(const FlightRecord& record) {
    return host::fly_again(inputs, record, [this] { after_frame(); });
  }

  const FlightIdentity identity{18, {"Tarnvale.GAU", 1}, {"panel.cfg", 2}};
  WavRecorder sound;
  GaugeModule module{COCKPIT_DIR "/Tarnvale.GAU"};
  Cockpit cockpit{module, parse_panel_config(panel, "panel.cfg")};
  CockpitInputs inputs{cockpit};
  std::optional<FlightJournal> journal;
  Digest pictures;
  Digest digest;
};

// A little of everything that can enter a flight, in rough air.
void fly_wildly(Flight& flight) {
  using namespace input;
  CockpitInputs& inputs = flight.inputs;
  EXPECT_EQ(inputs.take(Press{"Hsi", {1, 1}, Button::left}), Answer::nothing);
  flight.frames(3);
  inputs.take(Press{"Masterbat", {47, 99}, Button::left});
  flight.frame();
  inputs.take(Release{});
  inputs.take(Wheel{"Acdcsw", {59, 35}, 1});
  inputs.take(PlaceInFlight{{{"altitude", 3500.0}, {"airspeed", 160.0}}});
  inputs.take(MakeWeather{{{"wind_from", 340.1}, {"wind_speed", 17.3}, {"gusts", 3.0}}});
  inputs.take(OpenWindow{502});
  inputs.take(Press{"Acdcsw", {59, 35}, Button::left});  // held: the selector goes round and round
  flight.frames(40);
  inputs.take(Release{});
  inputs.take(Fail{AircraftModel::failures().front().key});
  for (int i = 0; i < 60; ++i) {
    simulation::FlightControls hands = flight.cockpit.aircraft().controls();
    hands.elevator = i / 300.0;
    hands.aileron = (i % 7 - 3) / 11.0;
    hands.throttle = {i / 60.0, i / 70.0};
    if (i == 30) hands.gear_down = true;
    inputs.fly(hands);
    flight.frame();
  }
  inputs.take(KeyEvent{event::panel_lights_toggle, 0});
  inputs.take(CloseWindow{502});
  inputs.take(FailByChance{3600});
  flight.frames(55);
}

class Replay : public testing::Test {
 protected:
  void SetUp() override {
    platform_register_window("FS98MAIN", this);
    platform_choose_audio(PLATFORM_AUDIO_RENDERED);
    SetCurrentDirectoryA(COCKPIT_DIR);
  }

  TempFolder folder;
  const std::string file = folder / "flight.journal";
};

TEST_F(Replay, FliesTheSameToTheBitWithItsPicturesAndSounds) {
  Digest digest, pictures;
  {
    Flight then(folder / "then.wav");
    then.keep_journal(file);
    fly_wildly(then);
    digest = then.digest;
    pictures = then.pictures;
  }
  const FlightRecord record = read_journal(file);
  EXPECT_EQ(record.damage, "");
  {
    Flight again(folder / "again.wav");
    EXPECT_EQ(again.fly_again(record), "");
    EXPECT_EQ(again.digest.value(), digest.value());
    EXPECT_EQ(again.pictures.value(), pictures.value());
    EXPECT_NE(pictures.value(), Digest().value()) << "no pictures";
  }
  EXPECT_TRUE(bytes_of(folder / "then.wav") == bytes_of(folder / "again.wav"));
  EXPECT_NE(bytes_of(folder / "then.wav").find_first_not_of('\0', 5000), std::string::npos)
      << "silence";
}

TEST_F(Replay, ACutJournalIsGoneOnWithFromItsLastGoodLine) {
  {
    Flight then(folder / "then.wav");
    then.keep_journal(file);
    fly_wildly(then);
  }
  const std::string text = bytes_of(file);
  std::ofstream(file, std::ios::binary) << text.substr(0, text.size() * 2 / 3) << "garbage";
  const FlightRecord left = read_journal(file);
  EXPECT_NE(left.damage, "");
  std::uint64_t digest = 0;
  {
    Flight taken_up(folder / "taken_up.wav");
    EXPECT_EQ(taken_up.fly_again(left), "");
    EXPECT_EQ(taken_up.cockpit.frames(), left.frames());
    taken_up.go_on(left);
    taken_up.inputs.take(input::OpenWindow{502});
    taken_up.frames(40);
    digest = taken_up.digest.value();
    EXPECT_THROW(JournalFile::reopen(file), std::runtime_error) << "two may not write into one";
  }
  const FlightRecord whole = read_journal(file);
  EXPECT_EQ(whole.damage, "");
  EXPECT_EQ(whole.frames(), left.frames() + 40);
  Flight again(folder / "again.wav");
  EXPECT_EQ(again.fly_again(whole), "");
  EXPECT_EQ(again.digest.value(), digest);
}

TEST_F(Replay, NamesTheLineWhereTheFlightIsAnotherOneOrCannotGoOn) {
  {
    Flight then(folder / "then.wav");
    then.keep_journal(file);
    then.frames(40);
  }
  FlightRecord record = read_journal(file);
  const std::vector<JournalEntry> marks = record.entries;
  record.entries[1].digest ^= 1;
  EXPECT_TRUE(Flight(folder / "w").fly_again(record).starts_with(file + ":5: after 2 s")) << "departed";

  const auto refusal = [&](Input input) {
    record.entries = marks;
    record.entries.insert(record.entries.begin() + 1, {18, std::move(input), 0});
    try {
      return Flight(folder / "w").fly_again(record);
    } catch (const std::runtime_error& error) {
      return std::string(error.what());
    }
  };
  EXPECT_TRUE(refusal(input::Wheel{"Nowhere", {1, 1}, 1}).starts_with(file + ":5: nothing"));
  EXPECT_TRUE(refusal(input::Fly{{{"elevator", 7.0}}}).starts_with(file + ":5: elevator must be"));
}

TEST_F(Replay, BecomesAFlow) {
  using namespace input;
  Flight flight(folder / "then.wav");
  CockpitInputs& inputs = flight.inputs;
  FlowWriter flow(folder / "flow.lua", flight.cockpit);
  inputs.tell(flow);
  const auto hold = [&](Press press, int frames) {
    inputs.take(press);
    flight.frames(frames);
    inputs.take(Release{});
  };
  inputs.take(BeginWithStartPage{});
  flight.frames(18);
  hold({"Masterbat", {47, 99}, Button::left}, 2);
  hold({"Acdcsw", {59, 35}, Button::left}, 18);
  inputs.take(Wheel{"Acdcsw", {59, 35}, -1});
  inputs.take(Fly{{{"throttle", std::vector{0.5, 0.25}}, {"gear", "up"}}});
  inputs.take(KeyEvent{event::panel_lights_toggle, 0});
  const std::string text = bytes_of(folder / "flow.lua");
  EXPECT_EQ(text.substr(text.find('\n') + 1),
            "start_page()\nwait(0.943)\nclick(\"Masterbat\", 47, 99)\nwait(0.055)\n"
            "hold(\"Acdcsw\", 59, 35, 0.999)\nwheel(\"Acdcsw\", 59, 35, -1)\n"
            "fly{throttle = {0.5, 0.25}, gear = \"up\"}\nevent(\"panel_lights_toggle\")\n");
}

}  // namespace
