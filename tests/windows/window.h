/// The window that a host on Windows has, and a person who reads what pops up before it.
#pragma once

#include <windows.h>

#include <atomic>
#include <string>
#include <thread>
#include <vector>

/// A main window of the class that modules look for.
class HostWindow {
 public:
  HostWindow() {
    WNDCLASSA kind{};
    kind.lpfnWndProc = DefWindowProcA;
    kind.hInstance = GetModuleHandleA(nullptr);
    kind.lpszClassName = "FS98MAIN";
    RegisterClassA(&kind);
    window_ = CreateWindowA(kind.lpszClassName, "Host", WS_OVERLAPPEDWINDOW, 0, 0, 64, 64, nullptr,
                            nullptr, kind.hInstance, nullptr);
  }
  ~HostWindow() {
    DestroyWindow(window_);
    UnregisterClassA("FS98MAIN", GetModuleHandleA(nullptr));
  }
  HostWindow(const HostWindow&) = delete;
  HostWindow& operator=(const HostWindow&) = delete;

  bool stands() const { return window_ != nullptr; }

 private:
  HWND window_;
};

/// Reads every message box of one caption and answers it.
class Reader {
 public:
  explicit Reader(const char* caption) : caption_(caption), thread_([this] { read(); }) {}

  /// What was read, once no more is to come.
  std::vector<std::string> finish() {
    done_ = true;
    thread_.join();
    return texts_;
  }

 private:
  static constexpr int text_of_box = 0xFFFF, every = 10;  // milliseconds

  void read() {
    while (!done_) {
      if (const HWND box = FindWindowA("#32770", caption_)) answer(box);
      Sleep(every);
    }
  }

  // The box may still be on its way up, or already on its way down.
  void answer(HWND box) {
    char text[256] = "";
    if (GetDlgItemTextA(box, text_of_box, text, sizeof text) == 0) return;
    texts_.emplace_back(text);
    PostMessageA(box, WM_COMMAND, IDOK, 0);
    for (int i = 0; i < 500 && IsWindow(box); ++i) Sleep(every);
  }

  const char* caption_;
  std::vector<std::string> texts_;
  std::atomic<bool> done_ = false;
  std::thread thread_;
};
