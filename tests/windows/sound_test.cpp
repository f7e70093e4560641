// The library's sounds through the system's own calls, into a sound card that is a file.
#include <gtest/gtest.h>

#include "tests/windows/library.h"
#include "tests/windows/recording.h"
#include "tests/windows/window.h"

namespace {

void ignore(const Element*) {}
void ignore_argument(const Element*, uintptr_t) {}
void ignore_number(u32) {}
void ignore_event(u32, u32) {}
void look_up(TokenVariable* variable) { variable->value = 0; }

constexpr PanelServices services{ignore,          ignore_argument, ignore,        ignore,
                                 ignore_argument, ignore,          ignore,        ignore_number,
                                 ignore_event,    look_up,         ignore_number, ignore_number};

class Sounds : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(window_.stands());
    library_.imports->entries[0].pointer = &services;
  }

  void serve(u32 id, uintptr_t data = 0) { msnd_.service(&msnd_, id, data); }

  /// Starts the sounds where `folder` is the simulator's. Returns what messages came up.
  std::vector<std::string> messages_at_start(const char* folder) {
    SetCurrentDirectoryA(folder);
    Reader reader("DEBUG");
    serve(SERVICE_BEGIN, library_.handle);
    return reader.finish();
  }

  void frames(int count) {
    constexpr DWORD milliseconds = 1000 / 18;
    for (; count > 0; --count) {
      serve(SERVICE_TICK);
      serve(SERVICE_AFTER_VALUES);
      Sleep(milliseconds);
    }
  }

  const HostWindow window_;
  const Library library_{COCKPIT_DIR "/Tarnvale.GAU"};
  const GaugeHeader& msnd_ = library_.gauge("Msnd");
};

TEST_F(Sounds, AMissingSoundIsToldInTwoMessagesThatAreReadAndAnswered) {
  EXPECT_EQ(messages_at_start("C:\\windows"),
            (std::vector<std::string>{"DirectSound Object Not Found",
                                      "DirectSound: Tarv_kippclick.wav failed"}));
  serve(SERVICE_END);
}

TEST_F(Sounds, AClickOnASwitchIsHeardFromTheSoundCard) {
  EXPECT_EQ(messages_at_start(COCKPIT_DIR), std::vector<std::string>{});
  frames(4);
  click_areas_of(library_.gauge("Masterbat")).front()->routine({1, 1}, MOUSE_LEFT);
  frames(14);
  serve(SERVICE_END);

  const Recording heard = without_silence(read_recording(CAPTURED_SOUND));
  const std::string folder = COCKPIT_DIR "/Sound/Halvery_Tarnjet/";
  const auto likeness_to = [&](const char* sound) {
    return likeness(heard, resampled(read_recording(folder + sound), heard.rate));
  };
  EXPECT_GT(likeness_to("Tarv_kippclick.wav"), 0.95) << heard.samples.size() << " samples";
  EXPECT_LT(likeness_to("Tarv_click.wav"), 0.5) << "that of push buttons";
}

}  // namespace
