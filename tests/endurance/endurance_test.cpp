// A long flight in which everything fails in its turn and somebody works whatever there is: the memory does not
// grow, every reading and every part of a gauge stays a number, and the journal flies again to the same picture.
// TARNVALE_FLIGHT_HOURS=10 in the environment makes it ten hours.
#include <gtest/gtest.h>
#include <unistd.h>
#include <windows.h>

#include <cstdlib>
#include <optional>
#include <random>

#include "host/journal/flight_journal.h"
#include "host/journal/replay.h"
#include "host/panel/panel_scene.h"
#include "host/simulation/places.h"
#include "host/sound/wav_recorder.h"
#include "platform/platform_host.h"
#include "tests/rig/temp_folder.h"

namespace {

using namespace host;

double flight_seconds() {
  const char* hours = std::getenv("TARNVALE_FLIGHT_HOURS");
  return hours ? std::atof(hours) * 3600 : 180;
}

/// What of the program's memory is in use.
double resident_mebibytes() {
  std::ifstream statm("/proc/self/statm");
  double all = 0, resident = 0;
  statm >> all >> resident;
  return resident * static_cast<double>(sysconf(_SC_PAGESIZE)) / (1 << 20);
}

/// The cockpit as a program has it that has just been started.
struct Flight {
  explicit Flight(const std::filesystem::path& file) : panel(read_panel_config(file)) {}

  std::vector<std::uint32_t> picture() { return picture_of(cockpit, "", 1).pixels; }

  const FlightIdentity identity{18, {"Tarnvale.GAU", 1}, {"panel.cfg", 2}};
  PanelConfig panel;
  GaugeModule module{COCKPIT_DIR "/Tarnvale.GAU"};
  Cockpit cockpit{module, panel};
  CockpitInputs inputs{cockpit};
  WavRecorder sound;
};

/// Somebody who tries everything, and begins anew every ten minutes.
class Crew {
 public:
  explicit Crew(Flight& flight) : flight_(flight), inputs_(flight.inputs) {}

  /// Between two frames.
  void work() {
    const std::uint64_t frame = flight_.cockpit.frames();
    if (frame % (600 * 18) == 1) begin_anew();
    if (frame % (100 * 18) == 2) change_weather();
    if (frame % 3 == 0) work_a_control();
    if (below(18) == 0) fly();
    if (below(90) == 0) open_or_close();
    if (below(90) == 0) send_a_key();
  }

 private:
  std::size_t below(std::size_t end) { return static_cast<std::size_t>(random_() % end); }
  double between(double low, double high) { return low + (high - low) * double(below(1001)) / 1000; }

  void begin_anew() {
    using namespace input;
    for (const FailureRow& row : AircraftModel::failures()) inputs_.take(Repair{row.key});
    inputs_.take(FailByChance{between(0, 200)});
    const auto places = start_places();
    inputs_.take(StartAt{std::string(places[below(places.size())].name)});
    inputs_.take(SetTimeOfDay{between(0, 24)});
    if (below(2))
      inputs_.take(
          PlaceInFlight{{{"altitude", between(1500, 35000)}, {"airspeed", between(130, 300)}}});
    if (below(2)) inputs_.take(OpenWindow{500});
  }

  void change_weather() {
    inputs_.take(input::MakeWeather{{{"wind_from", between(0, 360)},
                                     {"wind_speed", between(0, 60)},
                                     {"gusts", between(0, 4)},
                                     {"pressure", between(960, 1050)},
                                     {"warmer_by", between(-30, 30)}}});
  }

  void work_a_control() {
    if (inputs_.holding()) return (void)inputs_.take(input::Release{});
    const auto& windows = flight_.cockpit.windows();
    const CockpitWindow& window = windows[below(windows.size())];
    if (window.gauges.empty()) return;
    const CockpitGauge& gauge = *window.gauges[below(window.gauges.size())].gauge;
    if (!flight_.cockpit.is_shown(gauge) || gauge.areas.areas().empty()) return;
    const HotArea& area = gauge.areas.areas()[below(gauge.areas.areas().size())];
    const std::string name = gauge.header().name;
    const PanelPoint middle = area.box.middle();
    if (below(3) == 0) return (void)inputs_.take(input::Wheel{name, middle, below(2) ? 3 : -3});
    const auto button = below(2) ? input::Button::left : input::Button::right;
    inputs_.take(input::Press{name, middle, button});
    if (below(2))
      inputs_.take(input::Move{{middle.x + i32(below(80)) - 40, middle.y + i32(below(80)) - 40}});
  }

  void fly() {
    simulation::FlightControls hands = flight_.cockpit.aircraft().controls();
    hands.elevator = between(-0.3, 0.3);
    hands.aileron = between(-0.5, 0.5);
    hands.rudder = between(-0.2, 0.2);
    hands.throttle = {between(0, 1), between(0, 1)};
    hands.gear_down = below(2) != 0;
    hands.speed_brake = between(-1, 1);
    inputs_.fly(hands);
  }

  void open_or_close() {
    const std::uint32_t ident = 500 + std::uint32_t(below(12));
    flight_.cockpit.panels().shows(ident) ? inputs_.take(input::CloseWindow{ident})
                                          : inputs_.take(input::OpenWindow{ident});
  }

  void send_a_key() {
    const auto events = AircraftModel::events();
    inputs_.take(input::KeyEvent{events[below(events.size())].number, std::uint32_t(below(20000))});
  }

  Flight& flight_;
  CockpitInputs& inputs_;
  std::mt19937 random_{4};
};

/// The first reading or part that is no number; empty if all are.
std::string no_number(const Cockpit& cockpit) {
  for (const TableRow& row : AircraftModel::tokens())
    if (!std::isfinite(cockpit.aircraft().token(row.number))) return std::string(row.name);
  for (const CockpitWindow& window : cockpit.windows())
    for (const PlacedGauge& placed : window.gauges)
      for (const ElementState& element : placed.gauge->run.now())
        for (const double value : element.values)
          if (!std::isfinite(value))
            return std::string(placed.gauge->header().name) + ", bitmap " +
                   std::to_string(element.element->resource_id);
  return {};
}

class Endurance : public testing::Test {
 protected:
  void SetUp() override {
    platform_register_window("FS98MAIN", this);
    platform_choose_audio(PLATFORM_AUDIO_RENDERED);
    platform_on_message([](const char*, const char*, void*) {}, nullptr);
    SetCurrentDirectoryA(COCKPIT_DIR);
  }
  ~Endurance() override { platform_on_message(nullptr, nullptr); }

  TempFolder folder;
};

TEST_F(Endurance, NothingGrowsNothingIsNoNumberAndItFliesAgain) {
  const std::string file = folder / "journal";
  std::vector<std::uint32_t> last;
  double warm = 0;
  {
    Flight flight(COCKPIT_DIR "/panel.cfg");
    FlightJournal journal(JournalFile::create(file), flight.cockpit, flight.identity);
    flight.inputs.tell(journal);
    Crew crew(flight);
    while (flight.cockpit.seconds() < flight_seconds()) {
      crew.work();
      flight.inputs.frame();
      flight.sound.advance(1.0 / flight.cockpit.rate());
      ASSERT_EQ(no_number(flight.cockpit), "") << flight.cockpit.seconds() << " s";
      if (flight.cockpit.frames() % 540 == 0) flight.picture();
      if (warm == 0 && flight.cockpit.seconds() > flight_seconds() / 4) warm = resident_mebibytes();
    }
    const double grown = resident_mebibytes() - warm;
    std::printf("%.1f hours: %.1f MiB, %.2f more than after a quarter; journal %.1f MiB\n",
                flight_seconds() / 3600, warm + grown, grown,
                double(std::filesystem::file_size(file)) / (1 << 20));
    if (flight_seconds() >= 3600) {
      EXPECT_LT(grown, 4);
    }
    last = flight.picture();
  }
  const FlightRecord record = read_journal(file);
  EXPECT_EQ(record.damage, "");
  Flight again(COCKPIT_DIR "/panel.cfg");
  EXPECT_EQ(fly_again(again.inputs, record, [&] { again.sound.advance(1.0 / again.cockpit.rate()); }),
            "");
  EXPECT_TRUE(again.picture() == last);
}

}  // namespace
