/// The cockpit in windows: keeps the pace of its frames, takes a person's inputs and shows it.
#pragma once

#include <chrono>
#include <filesystem>
#include <string>

#include "host/window/deck_options.h"
#include "host/window/journal.h"
#include "host/window/mouse_hand.h"
#include "host/window/notices.h"
#include "host/window/views.h"

namespace host {

class FlightDeck {
 public:
  /// Opens the windows. Throws std::runtime_error when there is no display or the record cannot be
  /// written.
  FlightDeck(Cockpit& cockpit, const DeckOptions& options);
  ~FlightDeck();
  FlightDeck(const FlightDeck&) = delete;
  FlightDeck& operator=(const FlightDeck&) = delete;

  void mark_areas(bool marked);

  /// Flies until the person leaves.
  void fly();

 private:
  using Clock = std::chrono::steady_clock;

  double now() const;
  void wait_for_event();
  double next_deadline() const;
  void take(const SDL_Event& event);
  void take_window(const SDL_WindowEvent& event);
  void take_key(const SDL_Keysym& key);
  bool take_panel_key(SDL_Keycode key);
  void run_frames();
  void refresh();
  /// What the captain sees now: the aircraft of the last frame, flown on to this moment.
  outside::Sight sight_at(double time) const;

  void toggle_window(std::uint32_t ident);
  void toggle_torn();
  /// Sends a key event of the aircraft past the panel, as a keyboard command does.
  void send(std::uint32_t event);
  void toggle_panel_lights();
  void move_fuel_lever(std::size_t engine);  ///< 1 or 2
  void toggle_outside();
  void toggle_pause();
  void change_zoom(double factor);
  void save_picture();
  void leave_or_close_help();
  static void take_message(const char* text, const char* caption, void* context);

  Cockpit& cockpit_;
  DeckOptions options_;
  Desktop desktop_;
  double scale_;
  Clock::time_point start_ = Clock::now();
  Views views_;
  Notices notices_;
  Journal journal_;
  MouseHand hand_;
  double frame_due_ = 0;
  double last_frame_ = 0;
  double picture_due_ = 0;
  bool paused_ = false;
  bool leaving_ = false;
};

}  // namespace host
