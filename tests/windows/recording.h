/// Sound files as they are heard: one row of samples.
#pragma once

#include <string>
#include <vector>

struct Recording {
  double rate = 0;              ///< samples a second
  std::vector<double> samples;  ///< -1 to 1, both sides taken together
};

/// Reads a WAV of whole numbers of 16 bits, or of 32 bits: these the sound card takes as fractions, though the
/// file's header does not say so. Nothing in it if there is none.
Recording read_recording(const std::string& file);

/// From its first sound to its last.
Recording without_silence(const Recording& recording);

/// The same at another rate.
Recording resampled(const Recording& recording, double rate);

/// How much one is like the other where they are shifted to fit best: 1 for the same but for loudness, about 0
/// for nothing in common.
double likeness(const Recording& one, const Recording& other);
