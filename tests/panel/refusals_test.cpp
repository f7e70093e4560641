// Why a click does nothing, by the table refusals.txt: each text is told where the cockpit lacks what it says,
// nothing comes of the click there, and with what was lacking it works and nothing is told.
#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <map>
#include <set>
#include <sstream>

#include "host/inputs/cockpit_inputs.h"
#include "host/panel/hints.h"
#include "host/panel/text.h"
#include "host/simulation/table_row.h"
#include "platform/platform_host.h"

namespace {

using namespace host;
using Steps = std::vector<std::string>;

struct Case {
  Steps controls;  // that are refused alike
  std::string text;
  Steps lacking, able;
  std::string works;
  int seconds = 1;
};

class Table {
 public:
  std::vector<Case> read(const std::string& file) {
    std::ifstream in(file);
    std::vector<Case> cases;
    for (std::string line; std::getline(in, line);) {
      if (line.empty() || line.front() == '#') continue;
      const std::vector<std::string_view> columns = split(line, '|');
      if (columns.size() == 5) cases.push_back(read_case(columns));
      if (columns.size() == 1) {
        const std::size_t sign = line.find('=');
        called_[std::string(trimmed(line.substr(0, sign)))] = steps(line.substr(sign + 1));
      }
    }
    return cases;
  }

 private:
  Case read_case(const std::vector<std::string_view>& columns) const {
    Case each{steps(columns[0]), std::string(trimmed(columns[1])), steps(columns[2]), steps(columns[3]),
              std::string(trimmed(columns[4]))};
    if (const std::size_t in = each.works.find(" in "); in != std::string::npos) {
      each.seconds = std::stoi(each.works.substr(in + 4));
      each.works.resize(in);
    }
    return each;
  }

  Steps steps(std::string_view text) const {
    Steps all;
    for (std::string_view step : split(text, ',')) {
      step = trimmed(step);
      const std::size_t times = step.find("x ");
      const bool counted = times != std::string_view::npos && std::isdigit(step.front());
      const int count = counted ? std::stoi(std::string(step)) : 1;
      if (counted) step.remove_prefix(times + 2);
      const auto known = called_.find(std::string(step));
      const Steps each = known == called_.end() ? Steps{std::string(step)} : known->second;
      for (int i = 0; i < count && !step.empty(); ++i) all.insert(all.end(), each.begin(), each.end());
    }
    return all;
  }

  std::map<std::string, Steps> called_;
};

const std::vector<Case>& cases() {
  static const std::vector<Case> all = Table().read(SOURCE_DIR "/tests/panel/refusals.txt");
  return all;
}

// A fresh cockpit with all panels open.
class Stage {
 public:
  Stage() {
    for (std::uint32_t ident = 500; ident <= 509; ++ident) cockpit_.panels().open(ident);
    pass(0.2);
  }

  const Cockpit& cockpit() const { return cockpit_; }

  void pass(double seconds) {
    for (int frame = 0; frame < seconds * cockpit_.rate(); ++frame) inputs_.frame();
  }

  void take(const Steps& steps) {
    for (const std::string& step : steps) {
      take(step);
      pass(0.2);
    }
  }

  // Returns what is told of the click.
  std::string click(std::string control) {
    const bool right = control.starts_with("right ");
    if (right) control.erase(0, 6);
    const std::size_t blank = control.find(' ');
    const CockpitGauge& gauge = *cockpit_.find(control.substr(0, blank));
    const HotArea& area = gauge.areas.areas()[gauge.names.area(control.substr(blank + 1))->index];
    const std::uint32_t button = right || !(area.flags & MOUSE_LEFT) ? MOUSE_RIGHT : MOUSE_LEFT;
    const PanelPoint at = area.box.middle();
    const std::string told = refusal_at(cockpit_, gauge, at, button).words;
    inputs_.take(input::Press{gauge.header().name, at, input::Button{button}});
    inputs_.take(input::Release{});
    return told;
  }

  double token(const std::string& name) const {
    return cockpit_.aircraft().token(find_row(AircraftModel::tokens(), name)->number);
  }

  // Whether a read-out has any figures.
  bool says(const std::string& gauge_name, const std::string& part) const {
    const CockpitGauge& gauge = *cockpit_.find(gauge_name);
    const ElementState* state = gauge.run.showing(gauge.names.part(part)->index);
    return state && !trimmed(state->text).empty();
  }

 private:
  void take(const std::string& step) {
    std::istringstream words(step);
    std::string what;
    double amount = 0;
    words >> what >> amount;
    simulation::FlightControls& hand = cockpit_.aircraft().controls();
    if (what == "wait") return pass(amount);
    if (what == "ready") return cockpit_.aircraft().make_ready();
    if (what == "flying") return void(cockpit_.aircraft().place_in_flight({}));
    if (what == "bank") return pull(hand.aileron, "attitude_bank", amount);
    if (what == "pitch") return pull(hand.elevator, "attitude_pitch", amount);
    click(step);
  }

  // The stick, until the attitude is reached.
  void pull(double& stick, const char* attitude, double wanted) {
    for (int i = 0; i < 400 && std::abs(token(attitude)) < std::abs(wanted); ++i) {
      stick = std::copysign(1.0, wanted);
      inputs_.frame();
    }
    stick = 0;
  }

  GaugeModule module_{COCKPIT_DIR "/Tarnvale.GAU"};
  Cockpit cockpit_{module_, read_panel_config(SOURCE_DIR "/aircraft/panel/panel.cfg")};
  CockpitInputs inputs_{cockpit_};
};

// Lets the seconds pass; whether the click has come to anything then.
bool works(Stage& stage, const Case& each) {
  const std::vector<std::string> words = words_in(each.works);
  const bool changes = words.front() == "changes";
  const double before = changes ? stage.token(words[1]) : 0;
  stage.pass(each.seconds);
  if (changes) return std::abs(stage.token(words[1]) - before) > 1;
  if (words.front() == "says") return stage.says(words[1], words[2]);
  return holds(read_condition(each.works), stage.cockpit());
}

class Refusals : public testing::TestWithParam<Case> {
 protected:
  static void SetUpTestSuite() { platform_choose_audio(PLATFORM_AUDIO_NONE); }
};

void expect_refused(const Case& each, const std::string& control) {
  Stage stage;
  stage.take(each.lacking);
  EXPECT_EQ(stage.click(control), each.text) << control;
  EXPECT_FALSE(each.works != "-" && works(stage, each)) << control << " works all the same";
}

// Once for all the reasons for which a control is refused.
void expect_worked(const Case& each, const std::string& control) {
  static std::set<std::pair<std::string, Steps>> known;
  if (!known.emplace(control, each.able).second) return;
  Stage stage;
  stage.take(each.able);
  EXPECT_EQ(stage.click(control), "") << control;
  EXPECT_TRUE(each.works == "-" || works(stage, each)) << control << " does not come to " << each.works;
}

TEST_P(Refusals, AreToldWhereNothingComesOfTheClickAndNowhereElse) {
  for (const std::string& control : GetParam().controls) {
    expect_refused(GetParam(), control);
    expect_worked(GetParam(), control);
  }
}

INSTANTIATE_TEST_SUITE_P(OfTheCockpit, Refusals, testing::ValuesIn(cases()));

TEST(AllRefusals, AreInTheTable) {
  platform_choose_audio(PLATFORM_AUDIO_NONE);
  const Stage stage;
  std::set<std::string> tested, written;
  for (const Case& each : cases())
    for (const std::string& control : each.controls)
      tested.insert(control.substr(control.starts_with("right ") ? 6 : 0) + ": " + each.text);
  for (const auto& [gauge, words] : stage.cockpit().words().gauges)
    for (const Refusal& refusal : words.refusals)
      for (const Named& area : stage.cockpit().names().of(*gauge).areas)
        if (area.index == refusal.click.area)
          written.insert(std::string(gauge->name) + " " + area.name + ": " + refusal.text);
  EXPECT_EQ(written, tested);
}

}  // namespace
