/// What a flow does to a cockpit: it works the controls as a person would, lets time pass, and looks.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "host/drawing/painter.h"
#include "host/inputs/cockpit_inputs.h"
#include "host/pages/page.h"

namespace host {

/// Where a gesture takes place: a pixel of a gauge's background.
struct Spot {
  std::string gauge;
  PanelPoint point;
  std::string control;            ///< its name; empty: whatever is there
  const HotArea* area = nullptr;  ///< with a name: the one that the gesture is meant for
};

/// A sound that has started.
struct HeardSound {
  std::string name;
  double seconds;  ///< simulated time
};

/// What surrounds the flow.
struct FlowSurroundings {
  std::filesystem::path pictures;             ///< folder for pictures; empty: none are made
  std::function<void(double)> after_frame;    ///< gets the frame's time in seconds
  std::function<double(double)> sound_level;  ///< of the last so many seconds, 0 to 1; empty: unknown
  std::function<void(const std::string&)> say;
  std::function<void(const Canvas&)> after_picture = {};  ///< gets each picture that is made
  std::vector<Checklist> checklists{};                    ///< of the kneeboard
  std::function<void()> pass_frame = {};  ///< asks their owner for a frame; empty: the flow runs them
  std::function<void(const Spot&)> before_gesture = {};  ///< gets what is going to be worked
};

/// A cockpit under the hands of a flow. Times are simulated seconds. Whatever cannot be done, such as
/// a click on a gauge that no open window shows, throws std::runtime_error with the reason.
class FlowSession {
 public:
  /// The inputs must outlive it.
  FlowSession(CockpitInputs& inputs, FlowSurroundings surroundings);
  ~FlowSession();
  FlowSession(const FlowSession&) = delete;
  FlowSession& operator=(const FlowSession&) = delete;

  Cockpit& cockpit() { return cockpit_; }
  CockpitInputs& inputs() { return inputs_; }
  const FlowSurroundings& surroundings() const { return surroundings_; }

  double seconds() const { return cockpit_.seconds(); }

  /// Lets at least `duration` pass, in whole frames.
  void wait(double duration);
  void frame();

  /// Each gesture lasts at least one frame, so that its effect shows afterwards.
  void click(const Spot& spot, std::uint32_t button);
  void hold(const Spot& spot, std::uint32_t button, double duration);
  void drag(const Spot& spot, PanelPoint to, double duration);
  void wheel(const Spot& spot, int notches);

  /// The key events that the gauges have sent since the last gesture began.
  const std::vector<SentEvent>& events() const { return events_; }

  /// Called after every frame, beside what the surroundings ask for.
  std::function<void()> time_moved;

  /// The messages that the module has shown since the start.
  std::vector<std::string> messages;

  /// The sounds that have started since then.
  std::vector<HeardSound> sounds;

  /// A gauge that an open window shows.
  CockpitGauge& shown_gauge(const std::string& name);

  /// Writes a picture: of everything that is open (`what` empty), of one window by its ident, of one
  /// gauge or of one of the program's pages by its name. Does nothing where no pictures are wanted.
  void picture(const std::string& name, const std::string& what, double zoom);

 private:
  CockpitGauge& begin_gesture(const Spot& spot);
  void press(const CockpitGauge& gauge, const Spot& spot, std::uint32_t button);

  CockpitInputs& inputs_;
  Cockpit& cockpit_;
  FlowSurroundings surroundings_;
  std::vector<SentEvent> events_;
};

}  // namespace host
