/// What the program has to say over the main view: messages that go by themselves, the pause, the
/// help page.
#pragma once

#include <limits>
#include <string>
#include <vector>

#include "host/window/view.h"

namespace host {

class Notices {
 public:
  explicit Notices(View& view) : view_(view) {}

  /// Shows a message for some seconds, together with those that are still shown.
  void add(const std::string& text, double now);

  void set_badge(const std::string& text);  ///< empty: none
  void toggle_help();
  bool help_shown() const { return help_; }

  /// Takes away what has been shown long enough.
  void tick(double now);
  double next_tick() const;

  /// Draws everything again for a new size of the view.
  void place();

 private:
  struct Note {
    std::string text;
    double until;
  };

  void place_notes();

  View& view_;
  std::vector<Note> notes_;
  std::string badge_;
  bool help_ = false;
};

}  // namespace host
