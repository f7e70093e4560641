/// The values that stand behind the entries of a panel configuration. Each reader takes the text
/// after the equals sign and throws LineError when it is not such a value.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "host/panel/panel_config.h"

namespace host {

/// What is wrong with a line; the reader of the file adds file and line.
struct LineError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// Panel pixels. No cockpit is larger, and pictures up to here never overflow.
inline constexpr int greatest_size = 8192;

/// One whole number within low..high.
int whole_number(std::string_view text, int low, int high);

/// Exactly `count` whole numbers within low..high, separated by commas.
std::vector<int> exactly(std::size_t count, std::string_view text, int low, int high);

/// A window's number for gauges, 1 or more.
std::uint32_t read_ident(std::string_view text);

/// r,g,b as 0xFFRRGGBB.
std::uint32_t read_color(std::string_view text);

/// The name of a picture that stands beside the configuration.
std::string read_picture(std::string_view text);

/// x,y,width,height.
Bay read_bay(std::string_view text);

/// x,y,width,height,words, whose lines are parted by |.
Placard read_placard(std::string_view text);

/// Module!Gauge, x,y[,width,height].
Placement read_placement(std::string_view text, int line);

}  // namespace host
