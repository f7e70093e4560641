#include "host/window/flight_deck.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <utility>

#include "host/panel/panel_scene.h"
#include "platform/platform_host.h"

namespace host {
namespace {

constexpr double picture_time = 1.0 / 60;  // seconds between two pictures of something that moves
constexpr int most_late_frames = 4;        // a machine that slept does not fly the time it missed
constexpr double most_work = 0.05;         // seconds of frames between two looks at hands and screen

// Ends a wait for events, from any thread.
void wake() {
  SDL_Event event{};
  event.type = SDL_USEREVENT;
  SDL_PushEvent(&event);
}

}  // namespace

FlightDeck::FlightDeck(CockpitInputs& inputs, const DeckOptions& options)
    : inputs_(inputs),
      cockpit_(inputs.cockpit()),
      options_(options),
      settings_(options.desk.settings),
      scale_(options.scale     ? *options.scale
             : settings_.scale ? *settings_.scale
                               : Desktop::scale()),
      views_(cockpit_, scale_, options.zoom ? std::optional(*options.zoom * scale_) : std::nullopt,
             options.desk),
      notices_(views_.main()),
      pictures_(options.pictures.empty() ? pictures_folder() : options.pictures, wake),
      hand_(inputs_, views_, scale_),
      lists_(options.checklists.empty() ? std::vector<Checklist>{}
                                        : read_checklists(options.checklists)),
      pages_(inputs_, lists_, options.checklists),
      flying_(options.controls),
      flows_(flows_in(options.flows)) {
  apply_volume();
  platform_on_message(take_message, this);
}

FlightDeck::~FlightDeck() { platform_on_message(nullptr, nullptr); }

void FlightDeck::mark_areas(bool marked) {
  views_.each([&](View& view) { view.mark_areas(marked); });
}

double FlightDeck::now() const { return std::chrono::duration<double>(Clock::now() - start_).count(); }

void FlightDeck::take_message(const char* text, const char* caption, void* context) {
  auto* deck = static_cast<FlightDeck*>(context);
  std::fprintf(stderr, "%s: %s\n", caption, text);
  deck->notices_.add(text, deck->now());
  if (deck->flow_) deck->flow_->add_message(text);
}

std::optional<NextFlight> FlightDeck::fly() {
  frame_due_ = now();
  while (!leaving_) {
    run_frames();
    for (const std::string& note : pictures_.take_notes()) notices_.add(note, now());
    notices_.tick(now());
    hand_.tick(now());
    if (now() >= zoom_shown_until_) hide_zoom();
    take_window_actions();
    follow_pages();
    settle();
    refresh();
    wait_for_event();
    if (options_.exit_after && now() >= *options_.exit_after) leaving_ = true;
  }
  flow_.reset();
  keep_desk();
  if (next_) next_->desk = kept_desk();
  return next_;
}

void FlightDeck::settle() {
  const Views::Settled settled = views_.settle();
  if (settled.main_resized) {
    notices_.place();
    show_page();
    show_controls_page();
    strip_old_ = true;
    menu_old_ = true;
    views_.settle();  // the page may have taken another share of the window
  }
  if (strip_old_) {
    show_strip();
    views_.settle();
  }
  show_menu();
  show_zoom();
  if (!settled.panels) return;
  hand_.reset();
  if (paused_) show_what_opened_in_a_pause();
}

// What has not run for a while has no picture, or an old one: the flight goes on for one frame.
void FlightDeck::show_what_opened_in_a_pause() {
  for (std::size_t i : open_windows(cockpit_))
    for (const PlacedGauge& placed : cockpit_.windows()[i].gauges)
      if (placed.gauge->frame != cockpit_.frames()) return run_frame();
}

void FlightDeck::keep_desk() {
  if (options_.desk_file.empty()) return;
  try {
    write_desk(options_.desk_file, kept_desk());
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
  }
}

Desk FlightDeck::kept_desk() const {
  Desk desk = views_.desk();
  desk.settings = settings_;
  return desk;
}

void FlightDeck::run_frame() {
  inputs_.frame();
  if (after_frame) after_frame();
}

void FlightDeck::run_frames() {
  const double begun = now(), period = 1.0 / (cockpit_.rate() * speed_);
  if (paused_) return;
  if (flow_ && begun >= rest_due_) rest_the_eye();
  if (begun - frame_due_ > most_late_frames / cockpit_.rate()) frame_due_ = begun;
  for (; now() >= frame_due_ && now() - begun < most_work; frame_due_ += period) {
    if (flow_ && !let_flow_work()) return;
    apply_hands();
    run_frame();
    last_frame_ = frame_due_;
  }
}

// Moving parts stand between their last two readings, as far as the time has come since, in pictures
// at an even pace; what stands still is shown with the frame that put it there.
void FlightDeck::refresh() {
  const double time = now();
  const bool moving = views_.moving() && !paused_;
  if (moving && time < picture_due_) return;
  const double blend =
      moving ? std::clamp((time - last_frame_) * cockpit_.rate() * speed_, 0.0, 1.0) : 1.0;
  flying_.turn_head(time - std::exchange(looked_, time));
  const auto sight = paused_ ? std::nullopt : std::optional(sight_at(time));
  views_.each([&](View& view) { view.refresh(blend, sight); });
  picture_due_ = std::max(picture_due_ + picture_time, time);
}

outside::Sight FlightDeck::sight_at(double time) const {
  outside::Sight sight = outside::captains_sight(
      cockpit_.aircraft(), std::clamp((time - last_frame_) * speed_, 0.0, 1.0 / cockpit_.rate()));
  sight.look = flying_.look();
  return sight;
}

double FlightDeck::next_deadline() const {
  double next = std::min({notices_.next_tick(), hand_.next_tick(), zoom_shown_until_});
  if (options_.exit_after) next = std::min(next, *options_.exit_after);
  if (paused_) return next;
  if (pages_.shown()) next = std::min(next, page_due_);
  if (views_.moving()) next = std::min(next, picture_due_);
  return std::min(next, frame_due_);
}

void FlightDeck::wait_for_event() {
  const double wait = std::clamp(next_deadline() - now(), 0.0, 60.0);
  SDL_Event event;
  if (!SDL_WaitEventTimeout(&event, static_cast<int>(std::ceil(wait * 1000)))) return;
  do take(event);
  while (SDL_PollEvent(&event));
}

void FlightDeck::take(const SDL_Event& event) {
  flying_.take_stick(event);
  if (take_menu_mouse(event) || take_yoke(event)) return;
  if (event.type == SDL_MOUSEBUTTONDOWN &&
      (take_menu_ask(event.button) || take_strip_press(event.button)))
    return;
  if (take_page_event(event) || take_strip_motion(event)) return;
  if (event.type == SDL_MOUSEBUTTONDOWN && refuses_press(event.button)) return;
  switch (event.type) {
    case SDL_QUIT: leave(); break;
    case SDL_WINDOWEVENT: take_window(event.window); break;
    case SDL_KEYUP: take_flying_key(event.key); break;
    case SDL_KEYDOWN:
      if (!take_menu_key(event.key) && !take_flow_key(event.key) && !take_flying_key(event.key))
        take_key(event.key);
      break;
    case SDL_MOUSEWHEEL:
      if (View* view = views_.find(event.wheel.windowID); view && (SDL_GetModState() & KMOD_CTRL)) {
        hand_.zoom(event.wheel);
        zoomed_ = event.wheel.windowID;
        break;
      }
      [[fallthrough]];
    default: hand_.take(event, now()); break;
  }
}

void FlightDeck::take_window(const SDL_WindowEvent& event) {
  View* view = views_.find(event.windowID);
  if (!view) return;
  if (event.event == SDL_WINDOWEVENT_FOCUS_LOST) flying_.let_go_of_keys();
  if (event.event == SDL_WINDOWEVENT_SIZE_CHANGED) {
    view->take_size();
  } else if (event.event == SDL_WINDOWEVENT_EXPOSED) {
    view->invalidate();
  } else if (event.event == SDL_WINDOWEVENT_CLOSE) {
    if (const auto torn = views_.torn_window(event.windowID)) {
      if (!flow_has_control()) inputs_.take(input::CloseWindow{cockpit_.config().windows[*torn].ident});
    } else {
      leave();
    }
  }
}

}  // namespace host
