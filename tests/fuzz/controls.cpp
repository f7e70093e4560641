#include "host/hands/control_map.h"
#include "host/panel/panel_config.h"
#include "tests/fuzz/harness.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  try {
    const host::ControlMap map = host::parse_control_map(fuzz::text_of(data, size), "controls.cfg");
    for (const host::KeyBinding& key : map.keys) fuzz::must(!host::words_of(key).empty());
  } catch (const host::ConfigError& error) {
    fuzz::must(std::string_view(error.what()).starts_with("controls.cfg:"));
    fuzz::must(std::string_view(error.what()).size() < 300);
  }
  return 0;
}
