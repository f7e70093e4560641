/// WAV images: where a sound's format and samples lie in them.
#pragma once

#include <cstddef>
#include <span>

namespace tarnvale {

using Bytes = std::span<const std::byte>;

/// Finds the format (at least 14 bytes) and the samples of a WAV image; null for what is not asked.
/// Never reads outside the image: samples that a damaged file only promises are left out. False, and
/// empty for what was not found, if the image is no WAV or lacks something asked for.
bool parse_wave(Bytes image, Bytes* format, Bytes* samples);

}  // namespace tarnvale
