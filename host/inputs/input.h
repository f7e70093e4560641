/// What enters a flight from outside: by mouse, keyboard and hands, from a script, from the weather.
#pragma once

#include <cstdint>
#include <string>
#include <tuple>
#include <variant>

#include "host/inputs/flying_fields.h"
#include "interface/panel_interface.h"

namespace host {

/// Each input has a word of its own for journals, and lists its parts in their order there; a gauge's
/// name comes last.
namespace input {

enum class Button : std::uint32_t { left = MOUSE_LEFT, right = MOUSE_RIGHT };

struct Press {
  std::string gauge;
  PanelPoint point;  ///< of the gauge's background
  Button button;
  static constexpr std::string_view word = "press";
  static auto parts(auto& of) { return std::tie(of.button, of.point, of.gauge); }
};

/// With the button down.
struct Move {
  PanelPoint point;
  static constexpr std::string_view word = "move";
  static auto parts(auto& of) { return std::tie(of.point); }
};

struct Release {
  static constexpr std::string_view word = "release";
  static auto parts(auto&) { return std::tie(); }
};

struct Wheel {
  std::string gauge;
  PanelPoint point;
  std::int32_t notches;  ///< away from the person is positive
  static constexpr std::string_view word = "wheel";
  static auto parts(auto& of) { return std::tie(of.notches, of.point, of.gauge); }
};

struct OpenWindow {
  std::uint32_t ident;
  static constexpr std::string_view word = "open_window";
  static auto parts(auto& of) { return std::tie(of.ident); }
};

struct CloseWindow {
  std::uint32_t ident;
  static constexpr std::string_view word = "close_window";
  static auto parts(auto& of) { return std::tie(of.ident); }
};

/// A key event past the panel, as a keyboard command sends it.
struct KeyEvent {
  std::uint32_t number;
  std::uint32_t value;
  static constexpr std::string_view word = "event";
  static auto parts(auto& of) { return std::tie(of.number, of.value); }
};

/// What hands and feet move.
struct Fly {
  NamedValues moved;
  static constexpr std::string_view word = "fly";
  static auto parts(auto& of) { return std::tie(of.moved); }
};

struct MakeWeather {
  NamedValues changed;
  static constexpr std::string_view word = "weather";
  static auto parts(auto& of) { return std::tie(of.changed); }
};

struct PlaceInFlight {
  NamedValues place;
  static constexpr std::string_view word = "place_in_flight";
  static auto parts(auto& of) { return std::tie(of.place); }
};

struct PlaceOnRunway {
  static constexpr std::string_view word = "place_on_runway";
  static auto parts(auto&) { return std::tie(); }
};

struct MakeReady {
  static constexpr std::string_view word = "make_ready";
  static auto parts(auto&) { return std::tie(); }
};

struct BeginWithStartPage {
  static constexpr std::string_view word = "start_page";
  static auto parts(auto&) { return std::tie(); }
};

/// One of start_places().
struct StartAt {
  std::string place;
  static constexpr std::string_view word = "start_at";
  static auto parts(auto& of) { return std::tie(of.place); }
};

struct SetTimeOfDay {
  double hours;  ///< local, 0 to 24
  static constexpr std::string_view word = "set_time_of_day";
  static auto parts(auto& of) { return std::tie(of.hours); }
};

struct Fail {
  std::uint32_t key;
  static constexpr std::string_view word = "fail";
  static auto parts(auto& of) { return std::tie(of.key); }
};

struct Repair {
  std::uint32_t key;
  static constexpr std::string_view word = "repair";
  static auto parts(auto& of) { return std::tie(of.key); }
};

struct FailByChance {
  double per_hour;
  static constexpr std::string_view word = "failures_per_hour";
  static auto parts(auto& of) { return std::tie(of.per_hour); }
};

/// A reading that stands still, whatever the aircraft does.
struct HoldToken {
  std::uint32_t number;
  double value;
  static constexpr std::string_view word = "set_token";
  static auto parts(auto& of) { return std::tie(of.number, of.value); }
};

struct ReleaseToken {
  std::uint32_t number;
  static constexpr std::string_view word = "release_token";
  static auto parts(auto& of) { return std::tie(of.number); }
};

}  // namespace input

using Input = std::variant<input::Press, input::Move, input::Release, input::Wheel, input::OpenWindow,
                           input::CloseWindow, input::KeyEvent, input::Fly, input::MakeWeather,
                           input::PlaceInFlight, input::PlaceOnRunway, input::MakeReady,
                           input::BeginWithStartPage, input::StartAt, input::SetTimeOfDay, input::Fail,
                           input::Repair, input::FailByChance, input::HoldToken, input::ReleaseToken>;

}  // namespace host
