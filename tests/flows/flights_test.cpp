/// The flows that are shipped, flown to their ends by the program that people get.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "tests/flows/hearing.h"

namespace {

struct Shipped {
  const char* flow;
  std::vector<const char*> pictures;
};

void PrintTo(const Shipped& shipped, std::ostream* out) { *out << shipped.flow; }

class ShippedFlow : public testing::TestWithParam<Shipped> {};

TEST_P(ShippedFlow, FliesToItsEndAndLeavesPicturesAndSound) {
  const TempFolder folder;
  const std::string sound = folder / "flight.wav";
  const std::string journal = folder / "flight.journal";
  const Outcome outcome = tarnvale(std::string("run ") + GetParam().flow + " --png " + (folder / "") +
                                   " --wav " + sound + " --journal " + journal);
  EXPECT_EQ(outcome.exit_code, 0) << outcome.output;
  for (const char* picture : GetParam().pictures) {
    EXPECT_TRUE(file_text(folder / (std::string(picture) + ".png")).starts_with("\x89PNG")) << picture;
  }
  EXPECT_GE(onsets(loudness(sound)).size(), 5u) << "the switches are heard";

  const Outcome again = tarnvale("replay " + journal + " --wav " + (folder / "again.wav"));
  EXPECT_EQ(again.exit_code, 0) << again.output;
  EXPECT_TRUE(file_text(folder / "again.wav") == file_text(sound))
      << "flown again, it sounds otherwise";
}

INSTANTIATE_TEST_SUITE_P(
    Flows, ShippedFlow,
    testing::Values(
        Shipped{"power_up",
                {"1-cold-and-dark", "2-battery", "3-meters", "4-generators", "5-night", "6-ready"}},
        Shipped{"engine_start", {"1-cold-and-dark", "2-apu-on-line", "3-start-air", "4-both-running"}},
        Shipped{
            "checklists",
            {"1-before-start", "2-after-start", "3-radio", "4-approach", "5-approach", "6-shut-down"}},
        Shipped{"pedestal", {"1-parked", "2-flaps", "3-part-power"}}),
    [](const auto& shipped) { return std::string(shipped.param.flow); });

struct Flight {
  const char* flow;
  std::vector<const char*> days;
};

void PrintTo(const Flight& flight, std::ostream* out) { *out << flight.flow; }

class FlownFlow : public testing::TestWithParam<Flight> {};

TEST_P(FlownFlow, EndsWellInCalmAirAndInLightWinds) {
  const TempFolder folder;
  const std::filesystem::path flows = cockpit_dir / "flows";
  for (const auto& part : std::filesystem::directory_iterator(flows / "lib")) {
    folder.write("lib/" + part.path().filename().string(), file_text(part.path()));
  }
  for (const char* day : GetParam().days) {
    const std::string flow =
        folder.write("day.lua", std::string("weather{") + day + "}\n" +
                                    file_text(flows / (std::string(GetParam().flow) + ".lua")));
    const Outcome outcome = tarnvale("run " + flow);
    EXPECT_EQ(outcome.exit_code, 0) << day << "\n" << outcome.output;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Flows, FlownFlow,
    testing::Values(Flight{"circuit",
                           {"", "wind_from = 130, wind_speed = 15, pressure = 995, warmer_by = 15"}},
                    Flight{"approach", {"wind_from = 340, wind_speed = 10, gusts = 1"}}),
    [](const auto& flight) { return std::string(flight.param.flow); });

}  // namespace
