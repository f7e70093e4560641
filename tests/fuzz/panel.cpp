#include "host/panel/panel_config.h"
#include "tests/fuzz/harness.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  try {
    const host::PanelConfig config = host::parse_panel_config(fuzz::text_of(data, size), "panel.cfg");
    fuzz::must(!config.windows.empty());
  } catch (const host::ConfigError& error) {
    fuzz::must(std::string_view(error.what()).starts_with("panel.cfg:"));
    fuzz::must(std::string_view(error.what()).size() < 300);
  }
  return 0;
}
