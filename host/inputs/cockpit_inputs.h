/// The one way into a running cockpit for everything that comes from outside.
#pragma once

#include <cstdint>
#include <vector>

#include "host/inputs/input.h"
#include "host/panel/cockpit.h"
#include "host/panel/pointer.h"

namespace host {

/// Hears of everything that enters a flight.
class InputListener {
 public:
  virtual ~InputListener() = default;

  /// The input has been taken after so many frames of the cockpit.
  virtual void taken(std::uint64_t frames, const Input& input) = 0;

  /// A frame has passed.
  virtual void frame_passed() {}
};

enum class Answer {
  nothing,  ///< there was nothing for it to work, and nothing has happened
  done,
  not_as_wanted,  ///< done as far as it can be
};

/// A cockpit in the hands of a person or a script. Inputs take place between two frames; a flight is
/// the same to the bit when the same ones take place between the same frames.
class CockpitInputs {
 public:
  /// The cockpit must outlive it.
  explicit CockpitInputs(Cockpit& cockpit) : cockpit_(cockpit) {}

  Cockpit& cockpit() { return cockpit_; }

  /// Takes one input now and tells the listeners, unless nothing answered it. Throws
  /// std::invalid_argument for named values that are not known or out of their range; nothing has
  /// happened then.
  Answer take(const Input& input);

  /// Moves the controls to where hands and feet have them, if they have moved.
  void fly(const simulation::FlightControls& wanted);

  /// One frame. What is held down repeats with the frames.
  void frame();

  /// Whether a control is held down.
  bool holding() const { return pointer_.holding(); }

  /// The listener must live as long as inputs are taken.
  void tell(InputListener& listener) { listeners_.push_back(&listener); }

 private:
  Answer apply(const input::Press& press);
  Answer apply(const input::Move& move);
  Answer apply(const input::Release& release);
  Answer apply(const input::Wheel& wheel);
  Answer apply(const input::OpenWindow& open);
  Answer apply(const input::CloseWindow& close);
  Answer apply(const input::KeyEvent& event);
  Answer apply(const input::Fly& fly);
  Answer apply(const input::MakeWeather& weather);
  Answer apply(const input::PlaceInFlight& place);
  Answer apply(const input::PlaceOnRunway& place);
  Answer apply(const input::MakeReady& ready);
  Answer apply(const input::BeginWithStartPage& begin);
  Answer apply(const input::StartAt& start);
  Answer apply(const input::SetTimeOfDay& time);
  Answer apply(const input::Fail& fail);
  Answer apply(const input::Repair& repair);
  Answer apply(const input::FailByChance& chance);
  Answer apply(const input::HoldToken& hold);
  Answer apply(const input::ReleaseToken& release);

  Cockpit& cockpit_;
  Pointer pointer_;
  std::vector<InputListener*> listeners_;
};

}  // namespace host
