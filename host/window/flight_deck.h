/// The cockpit in windows: keeps the pace of its frames, takes a person's inputs and shows it.
#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>

#include "host/hands/sticks.h"
#include "host/pages/pages.h"
#include "host/window/deck_options.h"
#include "host/window/mouse_hand.h"
#include "host/window/notices.h"
#include "host/window/picture_writer.h"
#include "host/window/views.h"

namespace host {

class FlightDeck {
 public:
  /// Opens the windows. Throws std::runtime_error when there is no display. The inputs must outlive it.
  FlightDeck(CockpitInputs& inputs, const DeckOptions& options);
  ~FlightDeck();
  FlightDeck(const FlightDeck&) = delete;
  FlightDeck& operator=(const FlightDeck&) = delete;

  void mark_areas(bool marked);

  /// Called after every frame of the cockpit.
  std::function<void()> after_frame;
  /// Called when frames stop for a while.
  std::function<void()> on_pause;
  /// Whether leaving loses the flight: then it takes two asks.
  bool ask_to_leave = false;

  /// Flies until the person leaves.
  void fly();

 private:
  using Clock = std::chrono::steady_clock;

  double now() const;
  void wait_for_event();
  double next_deadline() const;
  void take(const SDL_Event& event);
  void take_window(const SDL_WindowEvent& event);
  void take_key(const SDL_KeyboardEvent& key);
  void take_repeating_key(const SDL_Keysym& key, View& view);
  bool take_scroll_key(const SDL_Keysym& key, View& view);
  bool take_panel_key(const SDL_Keysym& key);
  void run_frames();
  void run_frame();
  void settle();
  void show_what_opened_in_a_pause();
  void keep_desk();
  void refresh();
  /// What the captain sees now: the aircraft of the last frame, flown on to this moment.
  outside::Sight sight_at(double time) const;

  // ---- Flying by hand (flight_hands.cpp) --------------------------------------------------------
  /// Every change of the controls by the person goes through here, between two frames.
  void apply(const FlightInputs& inputs);
  void apply_hands();
  bool take_flying_key(const SDL_KeyboardEvent& key);
  bool take_yoke(const SDL_Event& event);
  void toggle_yoke();
  void let_go_of_keys();
  void take_window_actions();
  void turn_head(double seconds);
  void show_controls_page();
  void show_badge();

  // ---- The pages beside the panels (page_hand.cpp) ----------------------------------------------
  void follow_pages();
  void show_page();
  bool take_page_event(const SDL_Event& event);
  bool take_page_key(const SDL_Keysym& key);
  /// What a pixel of the main window, in the desktop's units, has of the page; the page's spot there.
  bool over_page(Uint32 window, int x, int y) const;
  const PageSpot* page_spot(int x, int y) const;

  void toggle_window(std::uint32_t ident, bool beside);
  void toggle_torn();
  /// Sends a key event of the aircraft past the panel, as a keyboard command does.
  void send(std::uint32_t event);
  void toggle_panel_lights();
  void toggle_outside();
  void toggle_pause();
  void change_zoom(double factor, View& view);
  void show_zoom();
  void hide_zoom();
  void go_back(View& view);
  void leave();
  static void take_message(const char* text, const char* caption, void* context);

  CockpitInputs& inputs_;  ///< whatever the person does goes through here
  Cockpit& cockpit_;
  DeckOptions options_;
  Desktop desktop_;
  double scale_;
  Clock::time_point start_ = Clock::now();
  Views views_;
  Notices notices_;
  PictureWriter pictures_;
  MouseHand hand_;
  Pages pages_;
  DrawnPage page_;  ///< as it stands in the main window
  double page_due_ = 0;
  ControlMap controls_;
  Hands hands_;
  std::optional<Sticks> sticks_;
  std::map<SDL_Keycode, std::size_t> held_keys_;  ///< and what each one does
  outside::Look look_;
  double looked_ = 0;  ///< when the head was last turned
  bool yoke_ = false;
  bool controls_shown_ = false;
  double frame_due_ = 0;
  double last_frame_ = 0;
  double picture_due_ = 0;
  bool paused_ = false;
  Uint32 zoomed_ = 0;  ///< the view whose zoom has just changed; 0: none
  double zoom_shown_until_ = Pointer::never;
  bool asked_ = false;  ///< whether to leave
  bool leaving_ = false;
};

}  // namespace host
