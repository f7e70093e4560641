/// Morse code as radio stations send their identification: keyed tones at even intervals.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace host {

/// The keying in units of a dot, '=' key down and ' ' key up: a dash is three units, the pause within a
/// letter one, between letters three. Letters of either case and figures; others are left out.
std::string morse_keying(std::string_view text);

/// How a station sends (after ICAO Annex 10, volume I, 3.1.3.9): dots of 0.1 to 0.16 seconds, six times
/// a minute. Quiet, so that voices stand well above it.
struct MorseTone {
  double hertz = 1020.0;
  double dot_seconds = 0.125;
  double period_seconds = 10.0;  ///< from the start of one identification to the next
  double amplitude = 0.04;       ///< 0 to 1
};

/// One period of it, mono, at `rate` samples a second. The key's edges are rounded, so that they do not
/// click. What is longer than the period is cut off there.
std::vector<std::int16_t> morse_samples(std::string_view text, unsigned rate,
                                        const MorseTone& tone = {});

}  // namespace host
