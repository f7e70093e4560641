/// A simulator folder with all sounds of the cockpit, and a host that listens.
#pragma once

#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <string>
#include <vector>

#include "platform/platform_host.h"
#include "sound/sound_table.h"
#include "tests/rig/temp_folder.h"
#include "tests/sound/wav_bytes.h"

constexpr std::size_t sound_length = 200;  // frames

/// Every sound can be told from the others by its level.
constexpr int level_of(std::size_t sound) { return static_cast<int>(sound) + 1; }

class SoundFolder : public testing::Test {
 protected:
  void SetUp() override {
    platform_choose_audio(PLATFORM_AUDIO_RENDERED);
    platform_register_window("FS98MAIN", this);
    platform_on_message(
        [](const char* text, const char* caption, void* self) {
          static_cast<SoundFolder*>(self)->messages_.push_back(std::string(caption) + ": " + text);
        },
        this);
    GetCurrentDirectoryA(before_.size(), before_.data());
    SetCurrentDirectoryA(folder_.path().c_str());
  }
  void TearDown() override {
    SetCurrentDirectoryA(before_.data());
    platform_on_message(nullptr, nullptr);
    platform_register_window("FS98MAIN", nullptr);
  }

  /// Where a sound lies: on a disk that somebody has unpacked with lower-case names.
  std::string file_of(std::size_t sound) const {
    std::string path = tarnvale::sound_files[sound].path;
    std::ranges::transform(path, path.begin(),
                           [](char c) { return c == '\\' ? '/' : static_cast<char>(std::tolower(c)); });
    return path;
  }

  void write_all_sounds() {
    for (std::size_t i = 0; i < tarnvale::sound_files.size(); ++i) {
      folder_.write(file_of(i), steady_sound(static_cast<std::int16_t>(level_of(i)), sound_length));
    }
  }

  /// The levels of the next frames of the mix; both sides must be alike.
  static std::vector<int> listen(std::size_t frames) {
    std::vector<std::int16_t> mix(frames * 2);
    platform_render_audio(mix.data(), frames);
    std::vector<int> levels(frames);
    for (std::size_t i = 0; i < frames; ++i) {
      levels[i] = mix[i * 2];
      EXPECT_EQ(mix[i * 2], mix[i * 2 + 1]);
    }
    return levels;
  }

  static std::vector<int> steady(int level, std::size_t count) { return std::vector(count, level); }

  std::array<char, 4096> before_{};
  TempFolder folder_;
  std::vector<std::string> messages_;
};
