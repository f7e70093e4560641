#include "host/script/flow_api.h"
#include "tests/fuzz/made_cockpit.h"

namespace {

constexpr double longest_flight = 20;  // seconds
constexpr int longest_thought = 20;    // in units of the runner's count of steps

class Flight {
 public:
  void fly(const std::string& flow) {
    host::LuaRunner runner;
    host::bind_flow_api(runner, session_);
    int asked = 0;
    runner.end_wanted = [&] { return ++asked > longest_thought; };
    try {
      runner.run(flow, "f.lua");
    } catch (const host::FlowError& error) {
      fuzz::must(std::string_view(error.what()).starts_with("f.lua:"));
    }
  }

 private:
  host::FlowSurroundings surroundings() {
    return {{},
            [this](double) {
              if (cockpit_.seconds() > longest_flight) throw std::runtime_error("landed");
            },
            [](double) { return 0.5; },
            [](const std::string&) {}};
  }

  host::Cockpit cockpit_{fuzz::module(), host::parse_panel_config(fuzz::small_panel, "panel.cfg")};
  host::CockpitInputs inputs_{cockpit_};
  host::FlowSession session_{inputs_, surroundings()};
};

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Flight().fly(std::string(fuzz::text_of(data, size)));
  return 0;
}
