// Whatever a person does, and in whatever order: random keys, clicks, wheels, drags, resizes and closes.
// TARNVALE_STORM_SECONDS=600 in the environment makes it ten minutes.
#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <random>
#include <thread>

#include "host/window/flight_deck.h"
#include "platform/platform_host.h"
#include "tests/app/program.h"

namespace {

using namespace host;

double storm_seconds() {
  const char* asked = std::getenv("TARNVALE_STORM_SECONDS");
  return asked ? std::atof(asked) : 6;
}

// Hands that know all keys of the program and nothing of what they do.
class Storm {
 public:
  explicit Storm(unsigned seed) : random_(seed) {}

  void gust() {
    for (int i = below(40); i > 0; --i) blow();
  }

 private:
  int below(int end) { return static_cast<int>(random_() % static_cast<unsigned>(end)); }

  SDL_Event event(Uint32 type) {
    SDL_Event event{};
    event.type = type;
    return event;
  }

  // One of the windows, or one that has gone.
  Uint32 window() {
    std::vector<Uint32> known;
    for (Uint32 id = 1; id < 400; ++id)
      if (SDL_GetWindowFromID(id)) known.push_back(id);
    if (known.empty() || below(20) == 0) return 399;
    return known[static_cast<std::size_t>(below(static_cast<int>(known.size())))];
  }

  void key() {
    static constexpr SDL_Keycode keys[] = {
        SDLK_t,        SDLK_t,    SDLK_PLUS, SDLK_MINUS, SDLK_0,      SDLK_v,   SDLK_d,    SDLK_p,
        SDLK_h,        SDLK_j,    SDLK_m,    SDLK_F11,   SDLK_ESCAPE, SDLK_1,   SDLK_2,    SDLK_3,
        SDLK_4,        SDLK_5,    SDLK_6,    SDLK_7,     SDLK_8,      SDLK_9,   SDLK_LEFT, SDLK_PAGEUP,
        SDLK_PAGEDOWN, SDLK_HOME, SDLK_END,  SDLK_g,     SDLK_F12,    SDLK_F10, SDLK_F10,  SDLK_DOWN,
        SDLK_DOWN,     SDLK_UP,   SDLK_LEFT, SDLK_RIGHT, SDLK_RETURN, SDLK_k};
    static constexpr Uint16 modifiers[] = {KMOD_NONE, KMOD_NONE, KMOD_SHIFT, KMOD_CTRL};
    SDL_Event press = event(below(4) == 0 ? SDL_KEYUP : SDL_KEYDOWN);
    press.key.windowID = window();
    press.key.keysym.sym =
        below(300) == 0 ? SDLK_q
                        : keys[static_cast<std::size_t>(below(static_cast<int>(std::size(keys))))];
    press.key.keysym.mod = modifiers[static_cast<std::size_t>(below(4))];
    press.key.repeat = below(3) == 0;
    SDL_SetModState(static_cast<SDL_Keymod>(press.key.keysym.mod));
    SDL_PushEvent(&press);
  }

  void move() {
    SDL_Event motion = event(SDL_MOUSEMOTION);
    motion.motion.windowID = window();
    motion.motion.x = below(1400) - 50;
    motion.motion.y = below(900) - 50;
    SDL_PushEvent(&motion);
  }

  void click() {
    SDL_Event press = event(below(2) ? SDL_MOUSEBUTTONDOWN : SDL_MOUSEBUTTONUP);
    press.button.windowID = window();
    press.button.button = static_cast<Uint8>(1 + below(3));
    press.button.clicks = static_cast<Uint8>(1 + below(2));
    press.button.x = below(1400) - 50;
    press.button.y = below(2) ? below(24) : below(900);  // often on the tabs
    SDL_PushEvent(&press);
  }

  void wheel() {
    SDL_Event turn = event(SDL_MOUSEWHEEL);
    turn.wheel.windowID = window();
    turn.wheel.x = below(3) - 1;
    turn.wheel.y = below(200) == 0 ? -2147483647 : below(7) - 3;
    SDL_PushEvent(&turn);
  }

  void change_window() {
    const Uint32 id = window();
    SDL_Window* of = SDL_GetWindowFromID(id);
    if (of && below(2)) return SDL_SetWindowSize(of, 1 + below(1600), 1 + below(1000));
    static constexpr Uint8 kinds[] = {SDL_WINDOWEVENT_EXPOSED, SDL_WINDOWEVENT_SIZE_CHANGED,
                                      SDL_WINDOWEVENT_FOCUS_LOST, SDL_WINDOWEVENT_CLOSE};
    SDL_Event change = event(SDL_WINDOWEVENT);
    change.window.windowID = id;
    change.window.event = kinds[below(4)];
    if (change.window.event == SDL_WINDOWEVENT_CLOSE && below(4))
      return;  // of the main one it ends all
    SDL_PushEvent(&change);
  }

  void blow() {
    const int which = below(20);
    if (which < 6) return key();
    if (which < 12) return move();
    if (which < 16) return click();
    if (which < 18) return wheel();
    change_window();
  }

  std::mt19937 random_;
};

// Ends pauses, in which no frames come that would let the storm blow on.
class EndOfPauses {
 public:
  EndOfPauses()
      : thread_([](const std::stop_token& stop) {
          while (!stop.stop_requested()) {
            std::this_thread::sleep_for(std::chrono::milliseconds(40));
            SDL_Event press{};
            press.type = SDL_KEYDOWN;
            press.key.keysym.sym = SDLK_p;
            SDL_PushEvent(&press);
          }
        }) {}

 private:
  std::jthread thread_;
};

TEST(Storm, LeavesNothingBroken) {
  const TempFolder folder;
  setenv("SDL_VIDEODRIVER", "dummy", 1);
  Desktop desktop;
  platform_choose_audio(PLATFORM_AUDIO_RENDERED);
  static int main_window;
  platform_register_window("FS98MAIN", &main_window);
  std::filesystem::current_path(cockpit_dir);
  GaugeModule module(cockpit_dir / "Tarnvale.GAU");
  const auto end = std::chrono::steady_clock::now() + std::chrono::duration<double>(storm_seconds());
  const auto left = [&] {
    return std::chrono::duration<double>(end - std::chrono::steady_clock::now()).count();
  };
  unsigned seed = 1, others = 0;
  for (; left() > 0; ++seed) {
    Cockpit cockpit(module, read_panel_config(cockpit_dir / "panel.cfg"), 60);
    CockpitInputs inputs(cockpit);
    inputs.take(input::BeginWithStartPage{});
    DeckOptions options;
    options.controls = cockpit_dir / "controls.cfg";
    options.pictures = folder.path();
    options.flows = cockpit_dir / "flows";
    options.desk_file = folder / "windows.cfg";
    options.exit_after = left();
    std::string notes;
    options.desk = read_desk(options.desk_file, notes);  // as the storm before has left it
    EXPECT_EQ(notes, "");
    FlightDeck deck(inputs, options);
    desktop.clear();
    Storm storm(seed);
    deck.after_frame = [&] { storm.gust(); };
    if (seed % 2 == 1) deck.watch(cockpit_dir / "flows/engine_start.lua");
    const EndOfPauses end_of_pauses;
    others += deck.fly().has_value();
    desktop.keep_windows();
  }
  std::printf("%u flights, %u of them begun by the menu\n", seed - 1, others);
}

}  // namespace
