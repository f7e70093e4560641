// Windows and messages: what the host registers, and what a person sees.
#include <gtest/gtest.h>
#include <windows.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "platform/platform_host.h"

namespace {

TEST(Windows, AreFoundByTheirClassWhileRegistered) {
  int first = 0;
  int second = 0;
  EXPECT_EQ(FindWindowA("Main", nullptr), nullptr);
  platform_register_window("Main", &first);
  EXPECT_EQ(FindWindowA("MAIN", nullptr), reinterpret_cast<HWND>(&first));
  EXPECT_EQ(FindWindowA("Main", "Title"), nullptr);
  platform_register_window("Main", &second);
  EXPECT_EQ(FindWindowA("Main", nullptr), reinterpret_cast<HWND>(&second));
  platform_register_window("main", nullptr);
  EXPECT_EQ(FindWindowA("Main", nullptr), nullptr);
}

TEST(Messages, GoWhereTheHostWantsThem) {
  std::vector<std::string> messages;
  platform_on_message(
      [](const char* text, const char* caption, void* context) {
        auto& list = *static_cast<std::vector<std::string>*>(context);
        list.push_back(std::string(caption) + "|" + text);
      },
      &messages);
  EXPECT_EQ(MessageBoxA(nullptr, "text", "caption", MB_ICONEXCLAMATION), IDOK);
  platform_on_message(nullptr, nullptr);
  EXPECT_EQ(messages, std::vector<std::string>{"caption|text"});
}

TEST(Messages, AreALineOnStandardErrorWhereNoDisplayAnswers) {
  unsetenv("WAYLAND_DISPLAY");
  for (const char* display : {"", ":9876"}) {
    setenv("DISPLAY", display, 1);
    testing::internal::CaptureStderr();
    EXPECT_EQ(MessageBoxA(nullptr, "Sound failed", "DEBUG", MB_ICONEXCLAMATION), IDOK);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "DEBUG: Sound failed\n") << display;
  }
}

}  // namespace
