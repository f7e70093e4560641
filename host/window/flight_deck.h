/// The cockpit in windows: keeps the pace of its frames, takes a person's inputs and shows it.
#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "host/pages/pages.h"
#include "host/script/watched_flow.h"
#include "host/window/deck_options.h"
#include "host/window/flow_list.h"
#include "host/window/flying_hands.h"
#include "host/window/menu.h"
#include "host/window/mouse_hand.h"
#include "host/window/next_flight.h"
#include "host/window/notices.h"
#include "host/window/picture_writer.h"
#include "host/window/strip_bar.h"
#include "host/window/views.h"

namespace host {

class FlightDeck {
 public:
  /// Opens the windows. The inputs must outlive it, and so must the desktop.
  FlightDeck(CockpitInputs& inputs, const DeckOptions& options);
  ~FlightDeck();
  FlightDeck(const FlightDeck&) = delete;
  FlightDeck& operator=(const FlightDeck&) = delete;

  void mark_areas(bool marked);

  /// Called after every frame of the cockpit.
  std::function<void()> after_frame;
  /// Called when frames stop for a while.
  std::function<void()> on_pause;
  /// Whether leaving loses the flight: then it has to be asked for twice.
  bool ask_to_leave = false;
  /// Called when the flight goes over to real time, or to something faster.
  std::function<void(bool as_life)> on_speed;

  /// Lets a flow fly, before the person's eyes, until it ends or is taken over.
  void watch(const std::filesystem::path& flow);

  /// Flies until the person leaves. Returns what the person wants to fly instead, if anything.
  std::optional<NextFlight> fly();

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
  Desk kept_desk() const;
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
  void take_window_actions();
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

  // ---- The cards of the menu (menu_rows.cpp) ----------------------------------------------------
  MenuSheet menu_sheet(MenuPage page);
  std::vector<MenuRow> top_rows();
  MenuRow sound_row();
  std::vector<MenuRow> panel_rows();
  std::vector<MenuRow> page_rows();
  std::vector<MenuRow> flight_rows();
  std::vector<MenuRow> flow_rows();
  std::vector<MenuRow> setting_rows();
  void set_volume(double volume);
  void apply_volume() const;
  void step_scale(int by);
  void set_scale(double scale);
  void begin_another(NextFlight next);

  // ---- The menu in its window (menu_hand.cpp) ---------------------------------------------------
  View& menu_view();
  void open_menu(View& view, PanelPoint at, bool for_keyboard);
  void open_menu_for_keyboard(View& view);
  void close_menu();
  void show_menu();
  bool take_menu_key(const SDL_KeyboardEvent& event);
  bool take_menu_mouse(const SDL_Event& event);
  bool take_menu_ask(const SDL_MouseButtonEvent& event);
  /// What lies at a place that an event tells; whether that is a control.
  std::optional<ViewHit> hit_at(Uint32 window, int x, int y);
  static bool takes_click(const ViewHit& hit);

  // ---- A flow that is watched (flow_hand.cpp) ---------------------------------------------------
  bool let_flow_work();
  bool show_to_the_eye(const Spot& spot);
  void rest_the_eye();
  void point_at_target();
  void end_flow();
  void take_over();
  void stop_flow(const std::string& note);
  void set_speed(int speed);
  bool flow_has_control();
  void look_or_work();
  bool take_flow_key(const SDL_KeyboardEvent& key);
  bool refuses_press(const SDL_MouseButtonEvent& event);
  void show_strip();
  std::optional<StripAct> strip_act(Uint32 window, int x, int y) const;
  bool take_strip_press(const SDL_MouseButtonEvent& event);
  bool take_strip_motion(const SDL_Event& event);

  // ---- Keys (flight_keys.cpp) -------------------------------------------------------------------
  void toggle_help();
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
  Settings settings_;
  double scale_;
  Clock::time_point start_ = Clock::now();
  Views views_;
  Notices notices_;
  PictureWriter pictures_;
  MouseHand hand_;
  std::vector<Checklist> lists_;
  Pages pages_;
  DrawnPage page_;  ///< as it was last drawn
  double page_due_ = 0;
  FlyingHands flying_;
  double looked_ = 0;  ///< when the head was last turned
  bool controls_shown_ = false;
  Menu menu_{[this](MenuPage page) { return menu_sheet(page); }};
  Uint32 menu_view_ = 0;
  PanelPoint menu_at_{};                    ///< where it was asked for
  std::optional<std::size_t> menu_window_;  ///< the panel that it was asked for on
  bool menu_old_ = false;
  bool menu_shown_ = false;
  std::vector<OfferedFlow> flows_;
  std::unique_ptr<WatchedFlow> flow_;
  std::string flow_name_, stage_;
  std::optional<Target> flow_target_;  ///< what the flow works
  double rest_due_ = Pointer::never;
  int speed_ = 1;  ///< times real time
  StripBar strip_;
  bool strip_old_ = true;
  std::optional<NextFlight> next_;
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
