/// Runs the program as a person does, and keeps what it says.
#pragma once

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>

#include "tests/rig/temp_folder.h"

inline const std::filesystem::path cockpit_dir = COCKPIT_DIR;

struct Outcome {
  int exit_code = -1;
  std::string output;  ///< both streams
};

/// Runs a shell command; what it says on a stream that it does not redirect itself is kept.
inline Outcome run_command(const std::string& command) {
  Outcome outcome;
  FILE* pipe = popen(("{ " + command + "\n} 2>&1").c_str(), "r");
  if (!pipe) return outcome;
  std::array<char, 4096> part;
  while (const std::size_t size = fread(part.data(), 1, part.size(), pipe))
    outcome.output.append(part.data(), size);
  const int status = pclose(pipe);
  outcome.exit_code = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
  return outcome;
}

/// Runs the program without a display.
inline Outcome tarnvale(const std::string& arguments) {
  return run_command("env -u DISPLAY -u WAYLAND_DISPLAY -u SDL_VIDEODRIVER " +
                     (cockpit_dir / "tarnvale").string() + " " + arguments);
}

inline std::string file_text(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

/// Whether the bytes are a WAV file that is as long as its header tells.
inline bool is_whole_sound(const std::string& bytes) {
  std::uint32_t told = 0;
  if (bytes.size() < 44 || !bytes.starts_with("RIFF")) return false;
  std::memcpy(&told, bytes.data() + 4, sizeof told);
  return told + 8 == bytes.size();
}
