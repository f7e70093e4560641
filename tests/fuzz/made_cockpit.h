/// A small cockpit of real gauges for harnesses: fresh for every input.
#pragma once

#include <cmath>
#include <fstream>
#include <sstream>

#include "host/panel/cockpit.h"
#include "platform/platform_host.h"
#include "tests/fuzz/harness.h"
#include "tests/rig/temp_folder.h"

namespace fuzz {

inline constexpr const char* small_panel =
    "[Window00]\nident=500\nident_day=20\nident_night=27\nsize_mm=600,400\nvisible=1\n"
    "gauge00=Tarnvale!Masterbat, 0,0\ngauge01=Tarnvale!Acdcsw, 200,0\ngauge02=Tarnvale!Adi, 400,0\n"
    "gauge03=Tarnvale!Transponder, 0,200\ngauge04=Tarnvale!Fuelreq, 200,200\n"
    "[Window02]\nident=502\nsize_mm=200,200\ngauge00=Tarnvale!Thleft, 0,0,100,90\n";

/// The module under a folder of its own, where only the gauges of the small panel have names: the names of
/// all take longer to read than a short flight.
class SmallInstallation {
 public:
  SmallInstallation() {
    std::filesystem::create_symlink(COCKPIT_DIR "/Tarnvale.GAU", folder_ / "Tarnvale.GAU");
    std::ifstream names(COCKPIT_DIR "/Tarnvale.GAU.names");
    std::ofstream few(folder_ / "Tarnvale.GAU.names");
    for (std::string line; std::getline(names, line);)
      if (std::string(small_panel).find("!" + line.substr(0, line.find('\t')) + ",") !=
          std::string::npos)
        few << line << '\n';
  }
  std::string module() const { return folder_ / "Tarnvale.GAU"; }

 private:
  TempFolder folder_;
};

/// The one module of the process.
inline host::GaugeModule& module() {
  platform_choose_audio(PLATFORM_AUDIO_NONE);
  static const SmallInstallation installation;
  static host::GaugeModule* const loaded = new host::GaugeModule(installation.module());
  return *loaded;
}

/// All readings of the aircraft are numbers, but for those that are held.
inline void must_be_numbers(const host::Cockpit& cockpit) {
  for (const host::TableRow& row : host::AircraftModel::tokens())
    must(std::isfinite(cockpit.aircraft().token(row.number)));
}

}  // namespace fuzz
